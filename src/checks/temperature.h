// Entry rules of the thermometers, the soil, the ground, the evaporation pan,
// sunshine and radiation.
#pragma once

#include <string>

namespace obsdesk {

class Desk;

// Sign figure and two-figure value of the ground minimum for 3EsnTgTg: a value
// ending in 5 is moved 0.1 away from zero before it is rounded. False for a text
// that is not a reading ("/", "", ".", "-").
bool ground_minimum_figures(const std::string& text, std::string& sign, std::string& value);

// sss of the total snow for 4E'sss: whole centimetres in three figures, 0 as
// "997"; "" for an empty box, "///" for "/" and "//".
std::string snow_depth_figures(const std::string& text);

// Evaporation from the water added (cc) with the rain r, and back.
double evaporation_from_water(double water_cc, double rain_mm);
double water_from_evaporation(double evaporation_mm, double rain_mm);

void bind_temperature_checks(Desk& ws);
void bind_ground_checks(Desk& ws);

}  // namespace obsdesk
