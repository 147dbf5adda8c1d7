// FrmFind: the date dialog of the browser's search. A date given in either
// calendar, and an hour, becomes the start of a report's key (YYMMDDTT), which
// the browser looks for.
#pragma once

#include "core/control.h"

namespace obsdesk {

class Desk;


void wire_search(Desk& ws);

// FrmFind, the search dialog: the text it returns ("" when closed without "Find")
// is handed to the continuation when the dialog closes.
void open_find_dialog(Desk& ws, std::function<void(Desk&, const std::string&)> on_text);

}  // namespace obsdesk
