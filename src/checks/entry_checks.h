// The entry rules of the wind, visibility and cloud boxes of FrmKashf, bound by
// the session.
#pragma once

#include <string>

namespace obsdesk {

class Desk;
struct Control;

void wire_wind(Desk& ws);
void wire_visibility(Desk& ws);
void wire_cloud(Desk& ws);

// A visibility as typed, turned into metres: two characters or fewer are
// kilometres ("9" is 9000); longer texts are metres, with a point below 100
// meaning kilometres ("0.5" is 500). Returns false when a text of more than two
// characters reads above 2999.
[[nodiscard]] bool visibility_metres(const std::string& typed, double& metres);
// From 30000 m on, a value between two multiples of 5000 is cut to the lower one.
double cut_to_5000(double metres);

// Tests a layer height (HIGL1 to HIGL3, HIGM, HIGH) against its range; outside it
// tells the layer's words, empties the box and returns the focus. True when good;
// a handler that only tests the box may leave the result, as the refusal is
// made here.
bool cloud_height_ok(Desk& ws, Control& height_box);
// The rainfall rule that ends the cloud block: to the rain box, to TMIN3 or to
// the remarks, by hour and report kind.
void rainfall_rule(Desk& ws);

}  // namespace obsdesk
