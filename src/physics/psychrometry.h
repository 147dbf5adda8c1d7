// Psychrometry: saturation vapour pressure by Goff-Gratch over water and over
// ice, in the station program's own constants; vapour pressure from the bulbs;
// the dew point by a Newton run; and ModuleINVERS, which turns a relative
// humidity typed by the observer into a wet bulb.
//
// Absolute temperatures are T + 273.16 throughout (the virtual temperature alone
// takes 273.15). Two reference pressures are kept apart on purpose: 1013.246 in
// the wet-bulb and dew-point formulae, 1013.25 for the relative humidity.
#pragma once

#include "physics/barometer.h"

namespace obsdesk {

inline constexpr double kLog10E = 0.434294481903252;  // M = log10(e)
inline constexpr double kP0Goff = 1013.246;           // reference of the wet bulb and dew point
inline constexpr double kP0Humidity = 1013.25;        // reference of the relative humidity
inline constexpr double kKelvin = 273.16;
inline constexpr int kNewtonPasses = 100;             // both Newton runs: no early exit

// Goff-Gratch over water, hPa; T in kelvin, p0 the reference pressure. Raises a
// StepFault for T of 0 or below.
double es_water(double T, double p0);
// Goff-Gratch over ice, hPa; T in kelvin.
double es_ice(double T);

// Vapour pressure from the bulbs at station pressure p. A wet bulb below 0.1 is
// iced: that branch alone rounds to 3 decimals.
double vapour_pressure(double tdry, double twet, double p);

// Relative humidity in percent, 2 decimals, over water at 1013.25.
double relative_humidity(double e, double tdry);

// Dew point in kelvin from the vapour pressure: Newton from 273.16, exactly 100
// passes, always over water. Raises a StepFault for e of 0 or less.
double dew_point_kelvin(double e);

// Wet bulb in deg C whose vapour pressure is e at dry bulb tdry and station
// pressure p: Newton from 0, exactly 100 passes, on the ice branch when tdry is
// below 0.1 and on the water branch otherwise, whatever the wet bulb turns out.
double wet_bulb(double tdry, double e, double p);

// The inverse routine: in.TWET holds the relative humidity. Writes TC, P, E
// (2 decimals), TWETRAW, TDRAW (1 decimal) and the reduction values, which the
// following DAMA_FASHAR overwrites. It tests neither E nor RH for range.
PressureReport ModuleINVERS(const PressureInputs& in, PressureResults& kept);

}  // namespace obsdesk
