// Controls and screens as data. A control carries only what the rules touch: its
// text (or caption, list text, picture id), whether it is shown, enabled and
// locked, its max length, its colours and, for a list, its items. A screen is a
// struct whose members are its controls, named as the system names them; each
// control registers itself in its screen's name table when it is built, so the
// table is written once, by the member declarations themselves.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace obsdesk {

class Desk;
struct Screen;

// A rule bound to an event: it is given the desk, the engine with every screen.
using Handler = std::function<void(Desk&)>;

struct Control;
// A list of controls of mixed kinds: for (Control* c : Controls{&Text1, &Combo5}).
using Controls = std::initializer_list<Control*>;

// Colour numbers as the system writes them (0x00BBGGRR).
inline constexpr long kGreen = 65280;           // the control with the focus
inline constexpr long kWhite = 0xFFFFFF;        // every other box
inline constexpr long kOrange = 0x0080FF;       // some boxes on leaving
inline constexpr long kWindowText = 0x80000008;  // system colour: window text
inline constexpr long kWindowBack = 0x80000005;  // system colour: window background
inline constexpr long kButtonText = 0x80000012;  // system colour: button text
inline constexpr long kButtonFace = 0x8000000F;  // system colour: button face

enum class Kind { TextBox, ComboBox, Label, Frame, Button, Image, OptionButton };

enum class Event {
  Change,      // the text changed
  Enter,       // the control got the focus
  Leave,       // the control lost the focus
  KeyEnter,    // the Enter key was pressed in it
  KeyUp,       // a key was released in it (Engine::key() tells which)
  Click,
  DblClick,
  MouseMove,   // the pointer passes over it
  MouseLeave,  // the pointer went on to another control
  MouseUp,
  Count
};

enum class ScreenEvent { Load, Activate, Deactivate, Unload, Count };

// What a control holds; kept once more as the design-time state, to which the
// control returns when its screen is unloaded.
struct ControlState {
  std::string text;
  bool visible = true;
  bool enabled = true;
  bool locked = false;
  bool value = false;           // option buttons
  int max_length = 0;           // 0: no limit on typing
  long back_color = kWhite;
  long fore_color = kWindowText;
  std::vector<std::string> items;  // list controls
};

struct Control : ControlState {
  Control(Screen& screen, std::string name, Kind kind);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  Screen& screen;
  const std::string name;
  const Kind kind;

  // The frame this control sits in, and the frames laid over it as masks.
  Control* container = nullptr;
  std::vector<Control*> masks;

  // Binds a handler to an event. A control has at most one handler for an
  // event, owned by the rules of one topic; binding twice is a wiring fault.
  void on(Event event, Handler handler);
  const Handler& handler(Event event) const { return handlers_[static_cast<std::size_t>(event)]; }

  // Controls that can hold the focus: boxes, lists, buttons, option buttons.
  bool focusable() const;
  // Shown, enabled, inside shown frames, on a shown screen, and no mask over it.
  bool reachable() const;
  // "SCREEN.NAME"
  std::string full_name() const;

  void snapshot_design() { design_ = static_cast<const ControlState&>(*this); }
  void reset_to_design() { static_cast<ControlState&>(*this) = design_; }

 private:
  friend class Engine;
  std::array<Handler, static_cast<std::size_t>(Event::Count)> handlers_;
  ControlState design_;
  bool in_change_ = false;  // guards a change handler against its own output
};

struct TextBox : Control {
  TextBox(Screen& s, std::string n, int max = 0) : Control(s, std::move(n), Kind::TextBox) {
    max_length = max;
  }
};

struct ComboBox : Control {
  ComboBox(Screen& s, std::string n, std::vector<std::string> list = {})
      : Control(s, std::move(n), Kind::ComboBox) {
    items = std::move(list);
  }
  bool has_item(std::string_view t) const;
};

struct Label : Control {
  Label(Screen& s, std::string n, std::string caption = {}) : Control(s, std::move(n), Kind::Label) {
    text = std::move(caption);
    back_color = kButtonFace;
  }
};

struct Frame : Control {
  Frame(Screen& s, std::string n, std::string caption = {}) : Control(s, std::move(n), Kind::Frame) {
    text = std::move(caption);
    back_color = kButtonFace;
  }
};

struct Button : Control {
  Button(Screen& s, std::string n, std::string caption = {}) : Control(s, std::move(n), Kind::Button) {
    text = std::move(caption);
    back_color = kButtonFace;
  }
};

// A picture box: its text is the id of the picture it shows ("ww63", "W5").
struct Image : Control {
  Image(Screen& s, std::string n, std::string picture = {}) : Control(s, std::move(n), Kind::Image) {
    text = std::move(picture);
  }
};

struct OptionButton : Control {
  OptionButton(Screen& s, std::string n, std::string caption = {})
      : Control(s, std::move(n), Kind::OptionButton) {
    text = std::move(caption);
  }
};

struct Screen {
  explicit Screen(std::string screen_name) : name(std::move(screen_name)) {}
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  virtual ~Screen() = default;

  const std::string name;
  std::string caption;
  bool visible = false;
  bool loaded = false;
  Control* active = nullptr;  // the control that holds this screen's focus
  bool takes_focus = true;    // false for a panel that never becomes the active screen

  // The name table: exact name first, then a unique match ignoring case.
  Control* find(std::string_view control_name) const;
  const std::vector<Control*>& controls() const { return list_; }

  void on(ScreenEvent event, Handler handler);
  const Handler& handler(ScreenEvent event) const { return handlers_[static_cast<std::size_t>(event)]; }

  // Puts the listed controls into a frame.
  static void place(Control& frame, std::initializer_list<Control*> inside);
  // Lays a mask frame over the listed controls.
  static void mask(Control& mask_frame, std::initializer_list<Control*> under);

  void snapshot_design();
  void reset_to_design();

  // Shown modally: the caller waits for it to close (Engine::show_modal).
  bool modal() const { return static_cast<bool>(on_close_); }

 private:
  friend struct Control;
  friend class Engine;
  void add(Control* c);
  std::vector<Control*> list_;
  std::map<std::string, Control*, std::less<>> by_name_;
  std::array<Handler, static_cast<std::size_t>(ScreenEvent::Count)> handlers_;
  Handler on_close_;  // the caller's continuation of a modal show
};

}  // namespace obsdesk
