// Program start and the start screen: the refusal of a second running copy, the
// bank created on a first start, the two opening stages of FrmMain (pointing the
// control databases, choosing the station row), its commands, the wait screen
// and the message panel.
#pragma once

#include <string>

namespace obsdesk {

class Desk;

// Starts the program on the workstation's bank root: the about screen, its "OK",
// the start screen loaded and activated. A root with no bank gets the tree and
// the demo station. Throws BankError when the root cannot be made a bank.
void start_program(Desk& ws);

// Points the five control databases at their files; each failure is told on the
// message panel and the others go on.
void open_control_databases(Desk& ws);

// The colour of the forms as a number, from "&H00C0C0C0&" or a decimal text.
long parse_colour(const std::string& text);
// Carries TxtBackColor to the start screen, the entry screen and the browser.
void apply_colours(Desk& ws);

// Acts on the start screen's next-screen code (the wait screen's first tick).
void open_next_screen(Desk& ws, int code);

void wire_program(Desk& ws);

}  // namespace obsdesk
