#include "desktop/services.h"

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>

namespace obsdesk {

QMessageBox* QtAsker::question_box(const QString& question, QWidget* parent) {
  auto* box = new QMessageBox(QMessageBox::Question, QApplication::applicationDisplayName(), question,
                              QMessageBox::Yes | QMessageBox::No, parent);
  box->setDefaultButton(QMessageBox::Yes);
  box->setLayoutDirection(Qt::RightToLeft);
  return box;
}

bool QtAsker::ask(const std::string& question) {
  if (before_box) before_box();
  std::unique_ptr<QMessageBox> box(question_box(QString::fromStdString(question), QApplication::activeWindow()));
  return box->exec() == QMessageBox::Yes;
}

void QtAsker::tell(const std::string& text, const std::string& title) {
  if (before_box) before_box();
  QMessageBox box(QMessageBox::Information,
                  title.empty() ? QApplication::applicationDisplayName() : QString::fromStdString(title),
                  QString::fromStdString(text), QMessageBox::Ok, QApplication::activeWindow());
  box.exec();
}

void QtClipboard::clear() { QGuiApplication::clipboard()->clear(); }

void QtClipboard::set_text(const std::string& text) {
  QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

std::string QtClipboard::text() const { return QGuiApplication::clipboard()->text().toStdString(); }

}  // namespace obsdesk
