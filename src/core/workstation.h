// The Workstation owns every screen and the process-wide values, and it is the
// one place where the event semantics live:
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
// There are no global variables: a test makes as many workstations as it likes.
#pragma once

#include <deque>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "archive/copy_out.h"
#include "archive/frm_bufr.h"
#include "archive/frm_display_kashf.h"
#include "archive/past_hours.h"
#include "archive/search.h"
#include "calendar/calendar.h"
#include "coders/frm_code.h"
#include "core/control.h"
#include "core/frm_kashf.h"
#include "core/catalogue/select_station.h"
#include "core/frm_main.h"
#include "core/services.h"
#include "core/small_screens.h"
#include "physics/barometer.h"
#include "physics/tendency.h"
#include "pickers/boards.h"
#include "settings/frm_option.h"

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

class BankLock;

class Workstation {
 public:
  Workstation(std::filesystem::path bank_root, Services services);
  ~Workstation();
  Workstation(const Workstation&) = delete;
  Workstation& operator=(const Workstation&) = delete;

  // ---- Screens ----------------------------------------------------------------
  obsdesk::frmAbout frmAbout;
  obsdesk::FrmMain FrmMain;
  obsdesk::FrmEntezar FrmEntezar;
  obsdesk::FrmERR FrmERR;
  obsdesk::FrmHelp FrmHelp;
  obsdesk::FrmOption FrmOption;
  obsdesk::FrmKashf FrmKashf;
  obsdesk::FrmDisplayKashf FrmDisplayKashf;
  obsdesk::FrmCode FrmCode;

  // Screens of the stations topic.
  obsdesk::FrmSelectStation FrmSelectStation;
  obsdesk::FrmFind FrmFind;
  obsdesk::FrmPol FrmPol;
  obsdesk::FrmBUFR FrmBUFR;  // the BUFR reader
  obsdesk::FrmWP FrmWP;

  // Screens of the session and its entry rules.

  // Screens of the barometer and psychrometry.

  // Screens of rain and the pressure tendency.
  obsdesk::FrmNTF FrmNTF;  // the pressure tendency dialog

  // Screens of the coders.

  // Screens of the phenomenon pickers.
  obsdesk::FrmFeali FrmFeali;
  obsdesk::FrmGozashteh FrmGozashteh;
  obsdesk::Frmgozashteh1 Frmgozashteh1;
  obsdesk::FrmGozashteh2 FrmGozashteh2;
  obsdesk::FrmBCO FrmBCO;
  obsdesk::FrmBCOY FrmBCOY;
  obsdesk::FrmBCOBCOY FrmBCOBCOY;
  obsdesk::FrmZamin FrmZamin;
  obsdesk::FrmIRIX FrmIRIX;
  obsdesk::FrmTooltip FrmTooltip;

  // Screens of the archive.


  const std::vector<Screen*>& screens() const { return screens_; }
  Screen* screen(std::string_view name) const;
  // "SCREEN.NAME", or a bare name of FrmKashf; nullptr when there is none.
  Control* control(std::string_view qualified) const;

  // ---- Process-wide values ----------------------------------------------------
  const std::filesystem::path& bank_root() const { return bank_root_; }
  std::string Derive;        // the bank root as text, with a closing "/": the old drive
  int next_screen = 0;       // FrmMain's next-screen code, acted on by FrmEntezar
  CalendarState calendar;    // shared date and leap state of the conversions
  int SYNOP_coded = 0, METAR_coded = 0, SPECI_coded = 0;
  std::string SynopLine1, SynopLine2, MetarLine1, MetarLine2, SpeciLine1, SpeciLine2;
  int WeatherBoxSelect = 0;  // which box a picker board serves

  // Values kept between the rules of different topics.
  int humidity_mode = 0;     // 1: the observer types RH and the wet bulb is derived
  std::string GroundSign;    // sign figure of the ground minimum, kept for 3EsnTgTg
  std::string GroundTemp;    // the rounded ground minimum, two figures
  std::string SnowDepth;     // sss of the total snow, kept for 4E'sss
  // The clock hour at which the entry screen filled its date boxes (-1: not yet).
  // The step that moves a report made before midnight to the next day reads
  // this hour, so a report opened at 23:58 and coded at 00:02 keeps its date.
  int date_boxes_hour = -1;

  // Barometer and psychrometry: the results of DAMA_FASHAR and ModuleINVERS, kept
  // from call to call, and the relative humidity last typed in Text31.
  PressureResults pressure;
  double typed_RH = 0;
  std::string GroundCode;    // E or E' of the last state-of-ground button, kept for 4E'sss

  // The file-system seam of the bank's writers: none in the program, a test's
  // own where it stops or fails the save at a chosen call.
  FileSeam* file_seam = nullptr;
  // A save whose row stands but whose files could not all be written: its
  // intent is finished before the next save.
  bool files_waiting = false;
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
  bool ask(const std::string& question);
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
  void hold_lock(std::unique_ptr<BankLock> lock);

 private:
  void register_screens();
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
  std::unique_ptr<BankLock> lock_;
};

// Binds every rule of the system to its controls; called once by the Workstation.
void wire_all(Workstation& ws);

}  // namespace obsdesk
