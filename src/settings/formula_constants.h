// The numbers of the barometer reduction and of the psychrometric formulae, held
// for the whole run and set again when the station settings are loaded. Two of
// them differ from the texts FrmOption shows in its constants frame (R is 287.05
// here and 287.04 there; the reference pressure 1013.246 here and 1013.25
// there): the computations use these numbers, never the boxes.
#pragma once

#include <cmath>

namespace obsdesk {

struct FormulaConstants {
  double G = 9.8;                   // gravity of the reductions, m/s2
  double GN = 980.665;              // standard gravity, cm/s2
  double G45 = 980.616;             // gravity at latitude 45 degrees, cm/s2
  double RDRY = 287.05;             // gas constant of dry air
  double A = 0.0065;                // temperature lapse rate, K/m
  double LOGE = 0.434294481903252;  // log10(e)
  double P0GOFF = 1013.246;         // reference pressure of the saturation formula, hPa
  double CISTERN = 34.0;            // multiplier of the second temperature term
  double ALPHA = 0.00018181;        // cubical expansion of mercury
  double BETA = 0.0000184;          // linear expansion of the scale
  double GAMMA = 0.00001;           // expansion term of the second temperature term
  double PI = 4 * std::atan(1.0);
};

}  // namespace obsdesk
