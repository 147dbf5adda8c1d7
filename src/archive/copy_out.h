// FrmPol: the copy-out dialog that opens after each save. It puts the bulletin
// just written on the clipboard, so that the observer can paste it elsewhere.
#pragma once

#include "core/control.h"

namespace obsdesk {

class Desk;


inline constexpr const char* kLinkTopic = "SOUTH|MYTOPIC";

void wire_copy_out(Desk& ws);

// FrmPol, the copy-out dialog, at the end of a save.
void open_copy_out(Desk& ws);

}  // namespace obsdesk
