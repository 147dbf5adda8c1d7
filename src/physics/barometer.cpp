#include "physics/barometer.h"

#include <cmath>

#include "screens/record.h"
#include "core/textnum.h"
#include "physics/psychrometry.h"

namespace obsdesk {

namespace fm = fault_math;

namespace {

const double kPi = 4 * std::atan(1.0);

}  // namespace

void correction_steps(PressureRun& run) {
  const PressureInputs& in = run.in;
  PressureResults& kept = run.kept;
  double Ct = 0, Cphi = 0, Ch = 0;
  // Latitude.
  run.step([&] {
    run.phi = (in.q1 + in.q2 / 60) * (kPi / 180);
    run.c2 = std::cos(2 * run.phi);
  });
  // Temperature of the mercury and of the scale.
  run.step([&] {
    Ct = fm::finite(fm::div(-in.PREAD * (kAlpha - kBeta) * in.TP, 1 + kAlpha * in.TP) -
                    (kAlpha - 3 * kGamma) * (kCistern * 1.333224) * in.TP);
  });
  // Gravity by latitude, against standard gravity 980.665 cm/s2.
  run.step([&] {
    Cphi = fm::finite(((1 - 0.0026373 * run.c2 + 5.9e-06 * run.c2 * run.c2) * (980.616 / 980.665) - 1) * in.PREAD);
  });
  // Gravity by height.
  run.step([&] { Ch = fm::finite((-2.007e-07 * in.h) * in.PREAD + (-1.14e-07 * (in.h / 2)) * in.PREAD); });
  // The whole correction, the sum of the three.
  run.step([&] { kept.TC = fm::finite(Cphi + Ch + Ct); });
  // Station pressure: the corrected reading of the mercury barometer, or the
  // barograph's reading as it stands.
  run.step([&] { kept.P = fm::finite(in.mercury ? in.PREAD + kept.TC : in.barograph); });
}

void reduction_steps(PressureRun& run, bool inverse_rounding) {
  const PressureInputs& in = run.in;
  PressureResults& kept = run.kept;
  const double phi = run.phi;
  const double sin2 = std::sin(phi) * std::sin(phi);
  const double sin2phi2 = std::sin(2 * phi) * std::sin(2 * phi);
  // The temperature of twelve hours before; an empty text counts as 0.
  const double t = val(in.T12);
  // Mean virtual temperature of the column below the station.
  run.step([&] {
    kept.TV = fm::div(fm::finite((in.TDRY + t) / 2 + kVirtualKelvin), 1 - 0.378 * fm::div(kept.E, kept.P));
  });
  // Gravity at the station, m/s2.
  const double g = 9.780356 * (1 + 0.0052885 * sin2 - 5.9e-06 * sin2phi2);
  // QFF, reduced to sea level with a gradient of 0.65 K per 100 m.
  run.step([&] {
    const double qff = fm::finite(kept.P * fm::exp(fm::div(g * in.h, kRdry * (kept.TV + 0.00325 * in.h))));
    kept.QFFSTR = num(fm::finite(inverse_rounding ? round_to(qff, 1) : qff));
  });
  // QNH by the ICAO standard atmosphere.
  run.step([&] {
    const double K = std::pow(1013.25, 0.190284) * 0.0065 / 288;
    const double S = fm::pow(kept.P - 0.3, 0.190284);
    const double qnh = fm::finite((kept.P - 0.3) * fm::pow(1 + K * fm::div(in.h, S), 1 / 0.190284));
    kept.QNHRAW = inverse_rounding ? round_to(qnh, 1) : qnh;
  });
  // QNH in inches of mercury.
  run.step([&] {
    const double qin = kept.QNHRAW / 33.86389;
    kept.QINRAW = inverse_rounding ? round_to(qin, 2) : qin;
  });
  // Height of the 850 hPa level: the station's geopotential height plus the
  // thickness of the layer from P down to 850 hPa.
  run.step([&] {
    const double g0 = (978.0356 * (1 + 0.0052885 * sin2 - 5.9e-06 * sin2phi2)) / 100;
    const double R =
        (2 * g0) / (3.085462e-06 + 2.27e-09 * std::cos(2 * phi) - 2 * std::pow(10.0, -12) * std::cos(4 * phi));
    const double G = (g0 * R) / 9.80665;
    const double Z = fm::div(fm::finite(G * in.h), R + in.h);
    kept.H850STR = num(fm::finite((kept.TV * 287.05 * fm::ln(fm::div(kept.P, 850))) / 9.80665 + Z));
  });
}

PressureReport DAMA_FASHAR(const PressureInputs& in, PressureResults& kept) {
  PressureRun run{in, kept, {}};
  correction_steps(run);
  // Vapour pressure; below 0 the wet bulb is wrong and the routine stops, the
  // results of the earlier call standing.
  run.step([&] { kept.E = vapour_pressure(in.TDRY, in.TWET, kept.P); });
  if (kept.E < 0) {
    run.report.vapour_below_zero = true;
    run.report.notices.push_back({false, kMsgCheckWetBulb});
    return run.report;
  }
  reduction_steps(run, false);
  // Dew point.
  run.step([&] { kept.TDRAW = round_to(dew_point_kelvin(kept.E) - kKelvin, 2); });
  // Relative humidity; out of range it is told, and the values stand.
  run.step([&] {
    kept.RHRAW = relative_humidity(kept.E, in.TDRY);
    if (kept.RHRAW > 100 || kept.RHRAW < 0.2) {
      run.report.humidity_out_of_range = true;
      run.report.notices.push_back({false, kMsgHumidityRange});
    }
  });
  return run.report;
}

PublishedPressure publish(const PressureResults& kept, ReportKind report_kind) {
  const bool metar = is_metar_kind(report_kind);
  PublishedPressure out;
  out.RH = round_text(kept.RHRAW, 1);
  out.TC = round_text(kept.TC, 1);
  out.QFE = round_text(kept.P, 1);
  out.EHPA = round_text(kept.E, 2);
  out.QFF = metar ? kNotForMetar : round_text(val(kept.QFFSTR), 1);
  out.QNH = round_text(kept.QNHRAW, 1);
  // Inches show two decimals by the length of the text: "29.9" becomes "29.90".
  // A value under 10 is not served by that count ("9.5" stays, "9.55" becomes
  // "9.550"). Kept as the station's registers expect: QIN is stored in a field
  // of fixed width, and a value under 10 inches is no real pressure anyway.
  out.QIN = round_text(kept.QINRAW, 2);
  if (len(out.QIN) == 4) out.QIN += "0";
  out.H850 = metar ? kNotForMetar : round_text(val(kept.H850STR), 1);
  out.TDEW = round_text(kept.TDRAW, 1);
  return out;
}

}  // namespace obsdesk
