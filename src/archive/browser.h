// The record browser's opening: it stands on the KASHF table of the station,
// at the end of the table.
#pragma once

namespace obsdesk {

class Workstation;

void wire_browser(Workstation& ws);

}  // namespace obsdesk
