// The report kind in Combo5 decides which groups of the entry screen are shown,
// locked or hidden, which frame of the code panel is in use and which coder
// buttons are open. Hidden groups keep their values.
#pragma once

namespace obsdesk {

class Desk;

void Combo5_change(Desk& ws);
void wire_report_kind(Desk& ws);

}  // namespace obsdesk
