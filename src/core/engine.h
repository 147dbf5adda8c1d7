// The engine: the one place where the event semantics live.
//
// - Setting a control's text raises its change handler at once when the text
//   differs; a change handler is not re-entered by its own output.
// - Moving the focus is queued: the running handler finishes, then the old
//   control's leaving handler runs, then the new control's entry handler. A
//   refusal that returns the focus is another queued move. The control with the
//   focus is green, the box it left white.
// - Each screen keeps the control that has its focus. Opening another screen does
//   not make that control leave; coming back finds it where it was.
// - The message panel FrmERR never holds the caller; yes-or-no questions block
//   and go through the Asker.
//
// It knows screens only as screens; the desk above it holds the screens of the
// system and is what every handler is given. There are no global variables: a
// test makes as many workstations as it likes.
#pragma once

#include <deque>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/control.h"
#include "core/services.h"

namespace obsdesk {

// A request the screens cannot take: an unknown control, a box that cannot be
// reached, a list item that is not in the list. The runner reports it with its
// line; the desktop never raises it.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The services a workstation is built with; the caller keeps them alive.
struct Services {
  Asker& asker;
  Clock& clock;
  Clipboard& clipboard;
};

class Desk;

class Engine {
 public:
  Engine(std::filesystem::path bank_root, Services services);
  virtual ~Engine();
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  const std::vector<Screen*>& screens() const { return screens_; }
  Screen* screen(std::string_view name) const;
  // "SCREEN.NAME", or a bare name of the default screen; nullptr when there is none.
  Control* control(std::string_view qualified) const;

  const std::filesystem::path& bank_root() const { return bank_root_; }
  // Bank databases found damaged at start: kept as they are and never opened
  // for writing in this run.
  std::vector<std::filesystem::path> damaged_databases;

  Asker& asker() { return services_.asker; }
  Clipboard& clipboard() { return services_.clipboard; }
  DateTime now() { return services_.clock.now(); }

  // ---- Input: what a person does. Each runs to its end, then the queued focus
  //      moves and posted work run. --------------------------------------------
  void type(Control& c, std::string_view text);  // focus, then one change per character
  void set_text(Control& c, std::string text);   // one change, focus untouched
  void choose(Control& list, std::string_view item);
  void click(Control& c);
  void dbl_click(Control& c);
  void focus_now(Control& c);
  // The pointer moves over a control (a picture of a board shows its hint); a
  // control that cannot be reached now is passed over.
  void point_at(Control& c);
  void press_enter();
  void key_up(Control& c, std::string key);
  // One key typed into a box as an editing widget sees it: text is what the box
  // holds after the key (a character put in at the cursor, a selection replaced,
  // one taken out), key the character typed ("" for a deletion). The box takes
  // the focus first; a locked box, or a text past its max length, keeps its text.
  // The change handler runs, then the key-up handler, as for one typed character.
  void key_edit(Control& c, std::string text, std::string key);
  // The key of the key event being handled: one character, or "\r" for Enter.
  const std::string& key() const { return key_; }

  // ---- Used by the rules ------------------------------------------------------
  // Sets a text; the change handler runs at once when the text differs.
  void set(Control& c, std::string text);
  // Queues a move of the focus; it happens when the running handler has ended.
  void focus(Control& c);
  // Shows a caption on the message panel and goes on.
  void error(std::string caption);
  // A blocking yes-or-no question.
  [[nodiscard]] bool ask(const std::string& question);
  // A plain message box with an OK button.
  void message(const std::string& text, const std::string& title = {});
  void show(Screen& s);
  void show_modal(Screen& s, Handler on_close);
  void hide(Screen& s);
  // Hides the screen and puts its controls back as they were designed.
  void unload(Screen& s);
  // Runs after the current event, as a short timer would.
  void post(Handler h);
  // The program ends: every screen goes, nothing more is done.
  void end_program();
  bool ended() const { return ended_; }

  Control* focused() const;
  Screen* active_screen() const { return active_screen_; }

  // The panel captions, questions and message boxes raised, one a line, since the
  // last call.
  std::vector<std::string> take_messages();

  // The program's lock on its bank root, held for the whole run.
  void hold_lock(std::shared_ptr<void> lock) { lock_ = std::move(lock); }

 protected:
  // The desk registers its screens: the message panel, whose caption shows the
  // errors, and the screen whose controls a bare name finds.
  void add_screens(std::initializer_list<Screen*> screens) { screens_.insert(screens_.end(), screens); }
  void set_panels(Desk& desk, Screen& error_screen, Control& error_caption, Screen& default_screen);
  void snapshot_designs();

 private:
  void run_trapped(const Handler& h);
  void fire(Control& c, Event e);
  void fire(Screen& s, ScreenEvent e);
  void settle();
  void apply_focus(Control& target);
  void activate(Screen& s);
  void hover(Control& c);
  void require_reachable(Control& c) const;
  template <typename F>
  void input(F&& f);

  std::filesystem::path bank_root_;
  Services services_;
  std::vector<Screen*> screens_;
  std::vector<Screen*> z_order_;
  Screen* active_screen_ = nullptr;
  Control* hovered_ = nullptr;
  std::deque<Control*> focus_queue_;
  std::deque<Handler> posted_;
  std::vector<std::string> messages_;
  std::string key_;
  bool ended_ = false;
  int depth_ = 0;
  std::shared_ptr<void> lock_;
  Desk* desk_ = nullptr;
  Screen* error_screen_ = nullptr;
  Control* error_caption_ = nullptr;
  Screen* default_screen_ = nullptr;
};

}  // namespace obsdesk
