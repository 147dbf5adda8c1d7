// Values two topics keep between events, held by the desk: the state the date
// conversions share, and the barometer's results kept from run to run.
#pragma once

#include <string>

namespace obsdesk {

struct CalendarState {
  int GYear = 0, GMonth = 0, GDay = 0;  // Gregorian: input of one way, output of the other
  int SYear = 0, SMonth = 0, SDay = 0;  // Shamsi
  int GLeapThis = 0;  // 1 when the Gregorian year last tested was a leap year
  int GLeapPrev = 0;  // 1 when the year before it was
  int SLeapA = 0;     // 1 when (Shamsi year + 1) is divisible by 4
  int SLeapB = 0;     // 1 when (Shamsi year + 2) is divisible by 4
  std::string month_name_result;  // the last result of Module_Month_Num
};

// The barometer routine's results, unrounded unless a step rounds them.
struct PressureResults {
  double TC = 0;        // barometer correction
  double P = 0;         // station pressure
  double E = 0;         // vapour pressure
  double TV = 0;        // mean virtual temperature, K
  double RHRAW = 0;     // relative humidity, 2 decimals
  double TDRAW = 0;     // dew point, 2 decimals (1 after the inverse)
  std::string QFFSTR;   // QFF as text
  double QNHRAW = 0;
  double QINRAW = 0;
  std::string H850STR;  // height of the 850 hPa level as text
  double TWETRAW = 0;   // wet bulb derived by the inverse, 1 decimal
};

}  // namespace obsdesk
