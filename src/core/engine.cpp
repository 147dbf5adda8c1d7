#include "core/engine.h"

#include <algorithm>

#include "core/textnum.h"

namespace obsdesk {

namespace {

bool is_box(const Control& c) { return c.kind == Kind::TextBox || c.kind == Kind::ComboBox; }

// Handlers call handlers through the texts they set; a chain this deep is a loop
// of the rules, stopped as the old runtime stopped it.
constexpr int kMaxNesting = 200;
// Queued focus moves and posted work handled after one input, at most.
constexpr int kMaxSettleSteps = 1000;

// The length of the UTF-8 character that starts with this byte; a stray
// continuation byte stands alone.
std::size_t char_length(unsigned char lead) {
  if (lead >= 0xF0) return 4;
  if (lead >= 0xE0) return 3;
  if (lead >= 0xC0) return 2;
  return 1;
}

// A Persian keyboard types the digits U+06F0 to U+06F9, some layouts the
// Arabic-Indic U+0660 to U+0669 and U+066B as the decimal sign. Every rule reads
// ASCII figures, so they are taken as such where typed text enters.
std::string keyboard_char(std::string_view ch) {
  if (ch.size() == 2) {
    const auto b0 = static_cast<unsigned char>(ch[0]), b1 = static_cast<unsigned char>(ch[1]);
    if (b0 == 0xDB && b1 >= 0xB0 && b1 <= 0xB9) return std::string(1, static_cast<char>('0' + (b1 - 0xB0)));
    if (b0 == 0xD9 && b1 >= 0xA0 && b1 <= 0xA9) return std::string(1, static_cast<char>('0' + (b1 - 0xA0)));
    if (b0 == 0xD9 && b1 == 0xAB) return ".";
  }
  return std::string(ch);
}

// Splits UTF-8 text into its characters as typed, in one pass.
std::vector<std::string> characters(std::string_view text) {
  std::vector<std::string> out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t n = std::min(char_length(static_cast<unsigned char>(text[i])), text.size() - i);
    out.push_back(keyboard_char(text.substr(i, n)));
    i += n;
  }
  return out;
}

}  // namespace

Engine::Engine(std::filesystem::path bank_root, Services services)
    : bank_root_(std::move(bank_root)), services_(services) {}

Engine::~Engine() = default;

void Engine::set_panels(Desk& desk, Screen& error_screen, Control& error_caption, Screen& default_screen) {
  desk_ = &desk;
  error_screen_ = &error_screen;
  error_caption_ = &error_caption;
  default_screen_ = &default_screen;
}

void Engine::snapshot_designs() {
  for (Screen* s : screens_) s->snapshot_design();
}

Screen* Engine::screen(std::string_view name) const {
  for (Screen* s : screens_)
    if (s->name == name) return s;
  const std::string wanted = upper(name);
  for (Screen* s : screens_)
    if (upper(s->name) == wanted) return s;
  return nullptr;
}

Control* Engine::control(std::string_view qualified) const {
  const auto dot = qualified.find('.');
  if (dot == std::string_view::npos) return default_screen_ != nullptr ? default_screen_->find(qualified) : nullptr;
  Screen* s = screen(qualified.substr(0, dot));
  return s ? s->find(qualified.substr(dot + 1)) : nullptr;
}

// ---- Events --------------------------------------------------------------------

// Each handler has its own trap: the description goes to the panel and the
// handler that raised it ends there. A misuse of the runner is no fault of the
// program's and goes on up.
void Engine::run_trapped(const Handler& h) {
  try {
    h(*desk_);
  } catch (const UsageError&) {
    throw;
  } catch (const std::exception& ex) {
    error(ex.what());
  }
}

void Engine::fire(Control& c, Event e) {
  const Handler& h = c.handler(e);
  if (!h) return;
  if (e == Event::Change) {
    if (c.in_change_) return;
    c.in_change_ = true;
  }
  struct Guard {
    Control& c;
    bool change;
    int& depth;
    ~Guard() {
      if (change) c.in_change_ = false;
      --depth;
    }
  } guard{c, e == Event::Change, depth_};
  if (++depth_ > kMaxNesting) {
    error("Out of stack space");
    return;
  }
  run_trapped(h);
}

void Engine::fire(Screen& s, ScreenEvent e) {
  const Handler& h = s.handler(e);
  if (!h) return;
  struct Depth {
    int& depth;
    ~Depth() { --depth; }
  } depth{depth_};
  ++depth_;
  run_trapped(h);
}

template <typename F>
void Engine::input(F&& f) {
  if (ended_) throw UsageError("the program has ended");
  f();
  settle();
}

void Engine::settle() {
  int steps = 0;
  while (!ended_ && (!focus_queue_.empty() || !posted_.empty())) {
    if (++steps > kMaxSettleSteps) {
      // Two rules handing the focus back and forth: it stops where it stands.
      focus_queue_.clear();
      posted_.clear();
      break;
    }
    if (!focus_queue_.empty()) {
      Control* target = focus_queue_.front();
      focus_queue_.pop_front();
      apply_focus(*target);
      continue;
    }
    Handler h = std::move(posted_.front());
    posted_.pop_front();
    run_trapped(h);
  }
}

void Engine::apply_focus(Control& target) {
  if (!target.focusable() || !target.reachable() || !target.screen.takes_focus) return;
  Screen& s = target.screen;
  activate(s);
  Control* old = s.active;
  if (old == &target) return;
  s.active = &target;
  if (old != nullptr && is_box(*old)) old->back_color = kWhite;
  if (is_box(target)) target.back_color = kGreen;
  if (old != nullptr) fire(*old, Event::Leave);
  fire(target, Event::Enter);
}

void Engine::activate(Screen& s) {
  if (active_screen_ == &s) return;
  Screen* old = active_screen_;
  active_screen_ = &s;
  if (old != nullptr) fire(*old, ScreenEvent::Deactivate);
  fire(s, ScreenEvent::Activate);
}

void Engine::hover(Control& c) {
  if (hovered_ == &c) {
    fire(c, Event::MouseMove);
    return;
  }
  Control* old = hovered_;
  hovered_ = &c;
  if (old != nullptr) fire(*old, Event::MouseLeave);
  fire(c, Event::MouseMove);
}

void Engine::point_at(Control& c) {
  input([&] {
    if (!c.reachable()) return;
    hover(c);
  });
}

void Engine::require_reachable(Control& c) const {
  if (!c.reachable()) throw UsageError(c.full_name() + " cannot be reached now");
}

void Engine::type(Control& c, std::string_view text) {
  input([&] {
    require_reachable(c);
    if (!c.focusable()) throw UsageError(c.full_name() + " takes no typing");
    focus(c);
    settle();
    if (focused() != &c) return;
    if (text.empty()) {
      if (!c.locked) set(c, "");
      return;
    }
    bool first = true;  // the first key replaces the selected text
    for (const std::string& ch : characters(text)) {
      if (focused() != &c || ended_) break;
      // The key goes onto the end of the text in place, so that typing a long
      // text costs no more than its length.
      if (!c.locked && (first || c.max_length == 0 || len(c.text) < static_cast<std::size_t>(c.max_length))) {
        if (first)
          c.text = ch;
        else
          c.text += ch;
        fire(c, Event::Change);
      }
      first = false;
      settle();
      if (focused() == &c && !ended_) {
        key_ = ch;
        fire(c, Event::KeyUp);
        settle();
      }
    }
  });
}

void Engine::set_text(Control& c, std::string text) {
  input([&] { set(c, std::move(text)); });
}

void Engine::choose(Control& list, std::string_view item) {
  input([&] {
    require_reachable(list);
    if (list.kind != Kind::ComboBox) throw UsageError(list.full_name() + " is not a list");
    if (std::find(list.items.begin(), list.items.end(), item) == list.items.end())
      throw UsageError("\"" + std::string(item) + "\" is not an item of " + list.full_name());
    hover(list);
    focus(list);
    settle();
    if (focused() != &list) return;
    set(list, std::string(item));
    fire(list, Event::Click);
  });
}

void Engine::click(Control& c) {
  input([&] {
    require_reachable(c);
    hover(c);
    if (c.focusable() && c.screen.takes_focus) {
      focus(c);
      settle();
      if (focused() != &c) return;  // the focus rule sent it elsewhere: no click
    }
    fire(c, Event::MouseUp);
    if (!c.reachable()) return;
    if (c.kind == Kind::OptionButton) {
      for (Control* other : c.screen.controls())
        if (other->kind == Kind::OptionButton && other->container == c.container) other->value = false;
      c.value = true;
    }
    fire(c, Event::Click);
  });
}

void Engine::dbl_click(Control& c) {
  input([&] {
    require_reachable(c);
    hover(c);
    fire(c, Event::Click);
    if (c.reachable()) fire(c, Event::DblClick);
  });
}

void Engine::focus_now(Control& c) {
  input([&] {
    require_reachable(c);
    if (!c.focusable()) throw UsageError(c.full_name() + " cannot hold the focus");
    focus(c);
  });
}

void Engine::press_enter() {
  input([&] {
    Control* c = focused();
    if (c == nullptr) return;
    key_ = "\r";
    fire(*c, Event::KeyEnter);
    settle();
    if (focused() == c && !ended_) fire(*c, Event::KeyUp);
  });
}

void Engine::key_up(Control& c, std::string key) {
  input([&] {
    key_ = keyboard_char(key);
    fire(c, Event::KeyUp);
  });
}

void Engine::key_edit(Control& c, std::string text, std::string key) {
  input([&] {
    require_reachable(c);
    if (!c.focusable()) throw UsageError(c.full_name() + " takes no typing");
    if (focused() != &c) {
      focus(c);
      settle();
      if (focused() != &c) return;
    }
    // Persian and Arabic-Indic figures come in as ASCII, as they do when typed.
    std::string typed;
    for (const std::string& ch : characters(text)) typed += ch;
    text = std::move(typed);
    key = keyboard_char(key);
    const bool fits = c.max_length == 0 || len(text) <= static_cast<std::size_t>(c.max_length);
    if (!c.locked && fits && text != c.text) {
      c.text = std::move(text);
      fire(c, Event::Change);
    }
    settle();
    if (focused() == &c && !ended_ && !key.empty()) {
      key_ = std::move(key);
      fire(c, Event::KeyUp);
    }
  });
}

// ---- Used by the rules ------------------------------------------------------------

void Engine::set(Control& c, std::string text) {
  if (c.text == text) return;
  c.text = std::move(text);
  fire(c, Event::Change);
}

void Engine::focus(Control& c) { focus_queue_.push_back(&c); }

void Engine::error(std::string caption) {
  messages_.push_back(error_screen_->name + ": " + caption);
  error_caption_->text = std::move(caption);
  error_screen_->loaded = true;
  error_screen_->visible = true;
}

bool Engine::ask(const std::string& question) {
  const bool yes = services_.asker.ask(question);
  messages_.push_back("? " + question + " -> " + (yes ? "yes" : "no"));
  return yes;
}

void Engine::message(const std::string& text, const std::string& title) {
  messages_.push_back("box: " + text + (title.empty() ? "" : " [" + title + "]"));
  services_.asker.tell(text, title);
}

void Engine::show(Screen& s) {
  if (ended_) return;
  if (!s.loaded) {
    s.loaded = true;
    fire(s, ScreenEvent::Load);
  }
  s.visible = true;
  z_order_.erase(std::remove(z_order_.begin(), z_order_.end(), &s), z_order_.end());
  z_order_.push_back(&s);
  activate(s);
}

void Engine::show_modal(Screen& s, Handler on_close) {
  s.on_close_ = std::move(on_close);
  show(s);
}

void Engine::hide(Screen& s) {
  const bool was_active = active_screen_ == &s;
  s.visible = false;
  z_order_.erase(std::remove(z_order_.begin(), z_order_.end(), &s), z_order_.end());
  if (was_active) {
    active_screen_ = nullptr;
    fire(s, ScreenEvent::Deactivate);
    for (auto it = z_order_.rbegin(); it != z_order_.rend(); ++it) {
      if ((*it)->visible) {
        activate(**it);
        break;
      }
    }
  }
  if (s.on_close_) {
    Handler h = std::move(s.on_close_);
    s.on_close_ = nullptr;
    run_trapped(h);
  }
}

void Engine::unload(Screen& s) {
  if (!s.loaded) return;
  fire(s, ScreenEvent::Unload);
  hide(s);
  if (hovered_ != nullptr && &hovered_->screen == &s) hovered_ = nullptr;
  s.reset_to_design();
  s.loaded = false;
}

void Engine::post(Handler h) { posted_.push_back(std::move(h)); }

void Engine::end_program() {
  ended_ = true;
  // The message panel stays: what it says as the program ends (a changed profile
  // comes into force at the next start) is the last thing the observer reads.
  for (Screen* s : screens_)
    if (s != error_screen_) s->visible = false;
  z_order_.clear();
  active_screen_ = nullptr;
  focus_queue_.clear();
  posted_.clear();
  lock_.reset();
}

Control* Engine::focused() const { return active_screen_ ? active_screen_->active : nullptr; }

std::vector<std::string> Engine::take_messages() {
  std::vector<std::string> out;
  out.swap(messages_);
  return out;
}


}  // namespace obsdesk
