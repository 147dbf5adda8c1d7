// The record browser FrmDisplayKashf on the KASHF table: its opening at the end
// of the table, the moves, the search by key text, the delete, a new report,
// and the display that follows the row shown.
#pragma once

#include <string>

namespace obsdesk {

class Desk;

// The buttons of the two states: browsing (moves, search, new report and delete
// open, save closed) or a report in progress (the reverse).
void set_browsing(Desk& ws, bool browsing);

// The search with the text the find dialog gave: the first row whose key text
// holds it anywhere; "" does nothing.
void search_kashf(Desk& ws, const std::string& text);

void wire_browser(Desk& ws);

}  // namespace obsdesk
