// The binder: the one piece that ties the desktop's widgets to the screens of a
// Workstation, by name. It holds no rule of its own.
//
// How a form is registered for a screen: a Designer form whose top widget is
// named after the screen (FrmKashf) is listed once in forms.cpp; bind_all() then
// builds it, and a screen with no form of its own gets a plain one made from its
// name table. Inside a form, a widget whose objectName is a control's name
// (Text27, Combo5, Cmdsynop) is that control's widget; widgets that only arrange
// or caption the form are named with the "ui_" prefix and are not bound. A
// caption label ("ui_cap_Text27") whose buddy is a bound widget is shown and
// hidden with it.
//
// What goes in (the calls the scenario runner makes):
//   a key typed in a box            Workstation::key_edit (the box's new text and the key)
//   Enter in a box or list          Workstation::press_enter
//   the focus put in a box by mouse Workstation::focus_now
//   a click on a button, option,
//   label or picture                Workstation::click (double click: dbl_click)
//   a press on a list               Workstation::click, then a choice: Workstation::choose
//   a window closed by its frame    the start screen's "Exit"; the message panel's "Ok";
//                                   the browser, with no report open, ends the program;
//                                   any other window stays (the core has no cancel there)
// What comes back after each event (sync): every control's text or caption, list
// items, shown, enabled, locked (read-only), back and fore colour, option value
// and picture id, with masked controls hidden; then every screen's window is
// shown, hidden or made modal as its screen is, and the focus is put on the
// control the core says holds it.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

class QWidget;
class QEvent;

namespace obsdesk {

class Desk;
struct Screen;
struct Control;

class Binder : public QObject {
 public:
  explicit Binder(Desk& ws, QObject* parent = nullptr);
  ~Binder() override;

  // Builds every screen's window: its registered Designer form, or a plain one.
  void bind_all();
  // Ties a form to its screen; the binder takes the form into a window of its own.
  void bind(Screen& screen, QWidget* form);

  // Runs before a click on the control reaches the core: a desktop service (the
  // file chooser) fills what the control's rule reads. Returning false drops the click.
  void before_click(const Control& c, std::function<bool()> hook);

  // Copies the state of every shown screen's controls to their widgets; shows,
  // hides and makes modal the windows; puts the focus where the core has it.
  void sync();
  // Copies one screen's controls to its widgets whether it is shown or not (for a
  // picture of a screen the core has not opened).
  void refresh(const Screen& s);

  QWidget* window(const Screen& s) const;
  QWidget* form(const Screen& s) const;
  QWidget* widget(const Control& c) const;
  // The control a bound widget stands for, nullptr for any other widget.
  Control* control_of(const QObject* w) const;
  Desk& workstation() { return ws_; }
  // The control the pointer last entered that answers it (a board's button), or
  // nullptr: the hint window draws that control's symbol.
  const Control* pointed() const { return pointed_; }

  // Displays that follow the core but are no control of it (the station model
  // beside the code panel) refresh themselves here, after every sync and refresh.
  std::vector<std::function<void()>> after_sync;

  // Called after a sync that finds the program ended.
  std::function<void()> on_ended;

  // Named widgets of a form with no control, and controls with no widget (or more
  // than one): both empty when the form matches its screen.
  struct Parity {
    std::vector<std::string> widgets_without_control;
    std::vector<std::string> controls_without_widget;
    std::vector<std::string> controls_with_many_widgets;
  };
  static Parity parity(const Screen& screen, const QWidget& form);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Bound;
  struct Window;
  template <typename F>
  void send(F&& f);
  void tie(Control& c, QWidget* w);
  void sync_control(Bound& b);
  void sync_window(Window& win);
  void sync_focus();
  // A click on a button or label: its desktop service first, then the core.
  void click(Bound& b);
  // Whether a screen's window is up: as the core says, and after the program has
  // ended only the message panel, until its message is read.
  bool showing(const Screen& s) const;

  Desk& ws_;
  std::vector<std::unique_ptr<Window>> windows_;
  std::map<const Control*, std::unique_ptr<Bound>> bound_;
  std::map<const QObject*, Bound*> by_widget_;
  std::map<const Control*, std::function<bool()>> before_click_;
  std::string last_key_;
  const Control* pointed_ = nullptr;
  bool syncing_ = false;
  bool ended_message_read_ = false;
  int sending_ = 0;
};

}  // namespace obsdesk
