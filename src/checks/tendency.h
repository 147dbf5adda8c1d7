// FrmNTF: the pressure tendency dialog. After the barometer reading of a SYNOP
// the observer chooses the barograph trace of the last three hours, by picture
// or by digit; the dialog fills the characteristic Text38 and works the amount
// Text25 out of QFE and the station pressure of three hours before.
#pragma once

#include <array>

#include "core/control.h"

namespace obsdesk {

class Desk;


// The colour of an opaque marker.

// The station pressure of three hours before the hour of the observation, one of
// FrmMain's txtp00qfe ... txtp21qfe; nullptr when the hour is not a main hour.
TextBox* previous_pressure(Desk& ws);

// The characteristic a chosen, by a click on its trace or by its digit.
void choose_tendency(Desk& ws, int a);

void wire_tendency_dialog(Desk& ws);

// FrmNTF, opened by Enter on the barometer box for the SYNOP kinds.
void open_tendency_dialog(Desk& ws);

}  // namespace obsdesk
