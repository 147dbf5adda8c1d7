// The desktop's own services for the core: questions as Persian Yes/No message
// boxes, plain message boxes, and the system clipboard.
#pragma once

#include <QString>
#include <functional>

#include "core/services.h"

class QMessageBox;
class QWidget;

namespace obsdesk {

class QtAsker : public Asker {
 public:
  // Runs before a box opens, so that the windows show what the question is about.
  std::function<void()> before_box;
  bool ask(const std::string& question) override;
  void tell(const std::string& text, const std::string& title) override;

  // The question box as ask() shows it (right to left, Yes and No); the caller owns it.
  static QMessageBox* question_box(const QString& question, QWidget* parent = nullptr);
};

class QtClipboard : public Clipboard {
 public:
  void clear() override;
  void set_text(const std::string& text) override;
  std::string text() const override;
};

}  // namespace obsdesk
