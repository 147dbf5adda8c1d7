// DAMA_FASHAR: from the dry and wet bulb, the attached thermometer and the
// barometer reading to every pressure and humidity figure of the observation
// (TC, QFE, QNH, QIN, QFF, H850, EHPA, RH, TDEW). A pure routine over a struct of
// inputs; its results are kept in a struct the caller holds, because they survive
// from call to call: a run that stops early leaves the older values standing, and
// they are published all the same.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "physics/fault_math.h"
#include "screens/shared_values.h"

namespace obsdesk {

// Constants of the reduction, as the station settings set them.
inline constexpr double kAlpha = 0.00018181;   // cubical expansion of mercury
inline constexpr double kBeta = 1.84e-05;      // linear expansion of the scale
inline constexpr double kGamma = 1e-05;        // expansion in the second temperature term
inline constexpr double kCistern = 34.0;       // multiplier of the second temperature term
inline constexpr double kRdry = 287.05;        // gas constant of dry air
inline constexpr double kVirtualKelvin = 273.15;  // the one offset of 273.15: virtual temperature

// The arguments of the routine, in their order. For ModuleINVERS, TWET holds the
// relative humidity typed by the observer.
struct PressureInputs {
  double h = 0;          // station height, m (Txth)
  double q1 = 0;         // latitude, degrees (txtq1)
  double q2 = 0;         // latitude, minutes (txtq2)
  std::string T12;       // text of txtt12: temperature twelve hours before
  double TDRY = 0;       // dry bulb, deg C
  double TWET = 0;       // wet bulb, deg C (RH, percent, for the inverse)
  double TP = 0;         // attached thermometer, deg C
  double PREAD = 0;      // barometer reading of Text14, hPa
  double txtci = 0;      // instrument correction: passed along, used by no formula
  bool mercury = true;   // txtPsang is 1: the station pressure is the corrected reading
  double barograph = 0;  // the reading of Text41, the station pressure otherwise
};


// What a run reported, in the order it happened: words for the error panel, and
// run-time fault descriptions for a message box.
struct PressureNotice {
  bool fault;  // true: a message box with the fault's description; false: the panel
  std::string text;
};

struct PressureReport {
  bool vapour_below_zero = false;   // E below 0: TWET is to be emptied
  bool humidity_out_of_range = false;
  std::vector<PressureNotice> notices;
};

inline constexpr const char* kMsgCheckWetBulb = "مــقدار دمـــا تر را چــك نمـائيـــد";
inline constexpr const char* kMsgHumidityRange = "مــقدار رطوبت خارج از حد قابل قبول ميباشد";

PressureReport DAMA_FASHAR(const PressureInputs& in, PressureResults& kept);

// The nine texts the entry screen shows, in the order they are written.
struct PublishedPressure {
  std::string RH;    // Text31
  std::string TC;    // Text15
  std::string QFE;   // Text18
  std::string EHPA;  // Text30
  std::string QFF;   // Text21, "+++++" for the METAR kinds
  std::string QNH;   // Text19
  std::string QIN;   // Text20
  std::string H850;  // Text24, "+++++" for the METAR kinds
  std::string TDEW;  // Text29
};
inline constexpr const char* kNotForMetar = "+++++";

PublishedPressure publish(const PressureResults& kept, std::string_view report_kind);

// ---- The steps, shared with ModuleINVERS ----------------------------------------

// Latitude in radians, and what the correction to station pressure leaves
// behind for the reduction.
struct PressureRun {
  const PressureInputs& in;
  PressureResults& kept;
  PressureReport report;
  double phi = 0;
  double c2 = 0;
  // Runs one step: a fault ends the step, its description is noted, the next
  // step goes on.
  template <typename F>
  void step(F&& f);
};

// Latitude, correction TC, station pressure P: each a step of its own, so a
// fault in one leaves the earlier values standing.
void correction_steps(PressureRun& run);
// From station pressure to the published values: T12, virtual temperature, QFF,
// QNH, QIN, H850. Rounding of the
// inverse: QFF and QNH to 1 decimal, QIN to 2; the forward routine keeps them raw.
void reduction_steps(PressureRun& run, bool inverse_rounding);

template <typename F>
void PressureRun::step(F&& f) {
  try {
    f();
  } catch (const fault_math::StepFault& fault) {
    report.notices.push_back({true, fault.what()});
  }
}

}  // namespace obsdesk
