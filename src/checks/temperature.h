// Entry rules of the thermometers, the soil, the ground, the evaporation pan,
// sunshine and radiation.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/textnum.h"

namespace obsdesk {

class Desk;

// How a box is read as a number: leniently (`val`) while the observer types,
// strictly (a coder's reader, which throws on a malformed text) when a report
// is coded, so that a bad box stops the coding with a message.
using NumberReader = double (*)(std::string_view);

// Sign figure and two figures of whole degrees of the ground minimum, kept for
// 3EsnTgTg: a value ending in 5 is moved 0.1 away from zero before it is
// rounded. nullopt for a text that is not a reading ("", "/", ".", "-", "-.").
struct GroundMinimum {
  std::string sign, temp;
};
[[nodiscard]] std::optional<GroundMinimum> ground_minimum(std::string_view text, NumberReader read = val);

// sss of the total snow for 4E'sss: whole centimetres in three figures, 0 as
// "997"; "" for an empty box. Read leniently, a text that is no number ("/",
// "//") counts as 0 and so gives "997" too; a strict reader throws on it.
std::string snow_depth_figures(std::string_view text, NumberReader read = val);

// Evaporation from the water added (cc) with the rain r, and back.
double evaporation_from_water(double water_cc, double rain_mm);
double water_from_evaporation(double evaporation_mm, double rain_mm);

void bind_temperature_checks(Desk& ws);
void bind_ground_checks(Desk& ws);

}  // namespace obsdesk
