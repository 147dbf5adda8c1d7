// The entry rules of the wind, visibility and cloud boxes of FrmKashf, bound by
// the session.
#pragma once

#include <string>

namespace obsdesk {

class Workstation;

void wire_wind(Workstation& ws);
void wire_visibility(Workstation& ws);
void wire_cloud(Workstation& ws);

// A visibility as typed, turned into metres: two characters or fewer are
// kilometres ("9" is 9000); longer texts are metres, with a point below 100
// meaning kilometres ("0.5" is 500). Returns false when a text of more than two
// characters reads above 2999.
bool visibility_metres(const std::string& typed, double& metres);
// From 30000 m on, a value between two multiples of 5000 is cut to the lower one.
double cut_to_5000(double metres);

}  // namespace obsdesk
