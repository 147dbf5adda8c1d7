// FrmWP: the past hours editor. It corrects by hand the one row of the Past
// table: the dry-bulb temperatures, three-hour rain and station pressures of the
// eight main hours, and the hour of the last main report.
#pragma once

#include <array>

#include "bank/data_control.h"
#include "core/control.h"

namespace obsdesk {

class Desk;


// A past value as the editor takes it: its first four characters are digits,
// "/", "." or the character of code 250, with one "." at most among them. A
// minus sign is not taken: this editor accepts no negative value.
[[nodiscard]] bool past_value_ok(const std::string& text);

// The hour box: "", "0", "1" and "2" while typing, two characters only as one
// of the eight main hours; "24" is written "00". Returns the text the box keeps.
std::string past_hour_text(const std::string& text);

void wire_past_hours(Desk& ws);

// FrmWP, the past hours editor, from the start screen.
void open_past_hours_editor(Desk& ws);

}  // namespace obsdesk
