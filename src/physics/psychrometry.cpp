#include "physics/psychrometry.h"

#include "core/textnum.h"

namespace obsdesk {

namespace fm = fault_math;

namespace {

const double kLn10 = std::log(10.0);

double pow10(double y) { return fm::pow(10.0, y); }

}  // namespace

// Goff-Gratch over water (Smithsonian tables form), with the boiling point
// 373.16 K; valid from about -50 to +100 deg C.
double es_water(double T, double p0) {
  const double x = fm::div(373.16, T) - 1;
  const double L = -7.90298 * x + (kLog10E * 5.02808) * fm::ln(x + 1) -
                   1.3816e-07 * (pow10(11.344 * (1 - T / 373.16)) - 1) +
                   0.0081328 * (pow10(-3.49149 * x) - 1) + kLog10E * fm::ln(p0);
  return pow10(L);
}

// Goff-Gratch over ice, with the triple point 273.16 K and 6.1071 hPa there.
double es_ice(double T) {
  const double x = fm::div(273.16, T) - 1;
  const double L = 0.876793 * (1 - fm::div(1, x + 1)) - 9.09718 * x - 3.56654 * kLog10E * fm::ln(x + 1) +
                   kLog10E * fm::ln(6.1071);
  return pow10(L);
}

// Psychrometer formula: 0.00072 per degree over ice, 0.000799 over water.
double vapour_pressure(double tdry, double twet, double p) {
  const double Tw = twet + kKelvin;
  if (twet < 0.1) return round_to(fm::finite(es_ice(Tw) - 0.00072 * (tdry - twet) * p), 3);
  return fm::finite(es_water(Tw, kP0Goff) - 0.000799 * (tdry - twet) * p);
}

double relative_humidity(double e, double tdry) {
  return round_to(fm::finite(fm::div(e, es_water(tdry + kKelvin, kP0Humidity)) * 100), 2);
}

// Newton on log10 es_w(T) = log10 e.
double dew_point_kelvin(double e) {
  const double log_e = kLog10E * fm::ln(e);
  const double log_p0 = kLog10E * fm::ln(kP0Goff);
  double T = kKelvin;
  for (int pass = 0; pass < kNewtonPasses; ++pass) {
    const double r = fm::div(373.16, T);
    const double f = -7.90298 * (r - 1) + 5.02808 * kLog10E * fm::ln(r) -
                     1.3816e-07 * (pow10(11.344 * (1 - T / 373.16)) - 1) +
                     0.0081328 * (pow10(-3.49149 * (r - 1)) - 1) + log_p0 - log_e;
    const double df = fm::div(2949.0424324, T * T) - fm::div(kLog10E * 5.02808, T) +
                      1.3816e-07 * (11.344 / 373.16) * kLn10 * pow10(11.344 * (1 - T / 373.16)) +
                      fm::div(pow10(-3.49149 * (r - 1)) * kLn10 * 10.596098316635523, T * T);
    T = fm::finite(T - fm::div(f, df));
  }
  return T;
}

// Newton on F(Tw) = e - (es(Tw) - A (tdry - Tw) p), the branch fixed by tdry.
double wet_bulb(double tdry, double e, double p) {
  const bool ice = tdry < 0.1;
  double Tw = 0.0;
  for (int pass = 0; pass < kNewtonPasses; ++pass) {
    const double T = Tw + kKelvin;
    double F = 0, dF = 0;
    if (ice) {
      F = e - (es_ice(T) - 0.00072 * (tdry - Tw) * p);
      const double A = pow10(fm::div(-2484.985689, T) + 9.883015031 - 3.56654 * fm::ln(fm::div(273.16, T)) / kLn10 -
                             0.00320981476 * Tw);
      dF = (fm::div(2484.985689, T * T) + fm::div(3.56654, T * kLn10) - 0.00320981476) * (-A) * kLn10 -
           p * 0.00072;
    } else {
      F = e - (es_water(T, kP0Goff) - 0.000799 * (tdry - Tw) * p);
      const double B = pow10(3.039982848 - 0.0303998285 * Tw);
      const double D = pow10(fm::div(-1302.884408, T) + 3.49149);
      const double C = (fm::div(-2949.076017, T) + 7.894847338 + 5.02808 * fm::ln(fm::div(373.16, T)) / kLn10) -
                       1.3816e-07 * B + 0.0081328 * D + fm::ln(kP0Goff) / kLn10;
      const double G = fm::div(2949.076017, T * T) - fm::div(5.02808, T * kLn10) + 4.200040306e-09 * B * kLn10 +
                       fm::div(D * 10.59609831 * kLn10, T * T);
      dF = G * (-pow10(C)) * kLn10 - p * 0.000799;
    }
    Tw = fm::finite(Tw - fm::div(F, dF));
  }
  return Tw;
}

PressureReport ModuleINVERS(const PressureInputs& in, PressureResults& kept) {
  PressureRun run{in, kept, {}};
  correction_steps(run);
  const double rh = in.TWET;
  run.step([&] { kept.E = round_to(fm::finite(es_water(in.TDRY + kKelvin, kP0Humidity) * rh / 100), 2); });
  run.step([&] { kept.TWETRAW = round_to(wet_bulb(in.TDRY, kept.E, kept.P), 1); });
  run.step([&] { kept.TDRAW = round_to(dew_point_kelvin(kept.E) - kKelvin, 1); });
  reduction_steps(run, true);
  return run.report;
}

}  // namespace obsdesk
