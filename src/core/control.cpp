#include "core/control.h"

#include <stdexcept>

#include "core/textnum.h"

namespace obsdesk {

Control::Control(Screen& s, std::string n, Kind k) : screen(s), name(std::move(n)), kind(k) {
  screen.add(this);
}

void Control::on(Event event, Handler h) {
  auto& slot = handlers_[static_cast<std::size_t>(event)];
  if (slot) throw std::logic_error("two handlers bound to one event of " + full_name());
  slot = std::move(h);
}

bool Control::focusable() const {
  return kind == Kind::TextBox || kind == Kind::ComboBox || kind == Kind::Button ||
         kind == Kind::OptionButton;
}

bool Control::reachable() const {
  if (!screen.visible || !visible || !enabled) return false;
  for (const Control* c = container; c != nullptr; c = c->container)
    if (!c->visible || !c->enabled) return false;
  for (const Control* m : masks) {
    bool shown = m->visible;
    for (const Control* c = m->container; shown && c != nullptr; c = c->container) shown = c->visible;
    if (shown) return false;
  }
  return true;
}

std::string Control::full_name() const { return screen.name + "." + name; }

bool ComboBox::has_item(std::string_view t) const {
  for (const auto& i : items)
    if (i == t) return true;
  return false;
}

void Screen::add(Control* c) {
  if (!by_name_.emplace(c->name, c).second)
    throw std::logic_error("two controls named " + name + "." + c->name);
  list_.push_back(c);
}

Control* Screen::find(std::string_view control_name) const {
  if (auto it = by_name_.find(control_name); it != by_name_.end()) return it->second;
  const std::string wanted = upper(control_name);
  Control* found = nullptr;
  for (Control* c : list_) {
    if (upper(c->name) != wanted) continue;
    if (found != nullptr) return nullptr;  // ambiguous without the exact case
    found = c;
  }
  return found;
}

void Screen::on(ScreenEvent event, Handler h) {
  auto& slot = handlers_[static_cast<std::size_t>(event)];
  if (slot) throw std::logic_error("two handlers bound to one event of screen " + name);
  slot = std::move(h);
}

void Screen::place(Control& frame, std::initializer_list<Control*> inside) {
  for (Control* c : inside) c->container = &frame;
}

void Screen::mask(Control& mask_frame, std::initializer_list<Control*> under) {
  for (Control* c : under) c->masks.push_back(&mask_frame);
}

void Screen::snapshot_design() {
  for (Control* c : list_) c->snapshot_design();
}

void Screen::reset_to_design() {
  for (Control* c : list_) c->reset_to_design();
  active = nullptr;
}

}  // namespace obsdesk
