// Drives the bound widgets as an observer's hands do: a mouse click into a box,
// keys typed one character at a time (Persian ones too), Enter, a press on a
// button, list or label, a choice from a list.
#pragma once

#include <QString>
#include <string>

#include "desktop/binder.h"

namespace obsdesk::test {

class WidgetDriver {
 public:
  explicit WidgetDriver(Binder& binder) : binder_(binder) {}

  // A click into the box, its text selected, then each character as a key.
  void type(Control& c, const std::string& text);
  // The Enter key on the widget that holds the focus.
  void enter();
  // A click on a button, option or label; a press on a list opens it.
  void click(Control& c);
  // A press on the list, then the item chosen from it.
  void choose(Control& c, const std::string& item);
  // The text the control's widget shows.
  QString shown_text(Control& c);
  // From the start screen: a new SYN & MET at 06 UTC through the widgets, its
  // values put in as the rules' own settings do (the typed-report test walks
  // them key by key), ready to be coded.
  void open_synmet_06();

 private:
  QWidget* widget(Control& c);
  Binder& binder_;
};

}  // namespace obsdesk::test
