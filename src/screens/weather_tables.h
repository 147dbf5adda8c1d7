// The code tables of the phenomenon boards: the present weather code ww with its
// METAR texts and the tests made before it is taken, and the weather of the past
// hour with its recent-weather texts. Each row stands as the system stores it,
// odd entries included.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace obsdesk {

// The cloud that must be reported for a code to be taken.
enum class Gate {
  None,
  CB,  // a low layer of CB 3 or CB 9
  NS,  // a low layer of SC 4 or SC 5, or a middle cloud of AS 2 or NS 2
  ST,  // a first or second low layer of ST,FS 6
  PE,  // a low layer of CB 9, or a middle cloud of AS 2 or NS 2
};

// The visibility marks of a code.
enum class Mark {
  None,
  M5,   // METAR panel box only up to 5000 m; the recent place refused above 5000 m
  M5m,  // METAR box and panel written only below 5001 m
};

// A test made before a code is taken: N is the total cloud, RH the relative
// humidity, FF the wind speed in m/s, vis the visibility the board took at load.
enum class Check {
  CloudNotNil,        // N not 0
  CloudObscured,      // N is 9
  CloudNotObscured,   // N not 9
  HumidityAtMost80,   // RH <= 80
  HumidityAtLeast80,  // RH >= 80
  HumidityAtLeast95,  // RH >= 95
  WindAtLeast8,       // FF >= 8
  WindAtLeast16,      // FF >= 16
  VisBelow1000,       // vis < 1000
  VisAbove999,        // vis > 999
  VisBelow4001,       // vis < 4001
  VisBelow4000,       // vis < 4000
  Vis1000To10000,     // 1000 <= vis <= 10000
};

struct BeforeTest {
  Check check;
  std::string_view message;  // shown on the panel when the test fails
};

// One row of the present weather board.
struct PresentWeather {
  std::string_view synop;   // written to SWW: the two figures (empty at 80)
  std::string_view metar;   // METAR text; empty when the code has no METAR form
  std::string_view recent;  // text for the recent-weather place; empty when none
  bool recent_in_metar_box;  // the recent place writes the METAR present box
  Gate gate;
  bool ask;                 // an obscured sky may confirm a failed cloud gate
  Mark mark;
  std::vector<BeforeTest> before;
};

// The hundred rows, by ww.
const std::array<PresentWeather, 100>& present_weather_table();

// What a button of the past-hour board does.
enum class PastHourAct {
  Write,   // writes the box, the picture and maybe the panel
  Refuse,  // tells that the code is not used and stays open
  Nothing  // has no action at all
};

// One row of the past-hour board.
struct PastHourWeather {
  PastHourAct act;
  std::string_view box;    // text of MPW2
  std::string_view panel;  // REw'w' of the panel; empty when the code is not reported
  std::vector<std::string_view> blocked_by;  // METAR present texts that keep the panel as it is
};

// The hundred rows, by ww.
const std::array<PastHourWeather, 100>& past_hour_table();

// Picture id of a present weather code: "ww00" to "ww99".
std::string_view present_weather_picture(int ww);

// Messages of the present weather board.
inline constexpr std::string_view kConfirmPhenomenon = "آيا نوع پديده را تائيد مينمائيد ؟";
inline constexpr std::string_view kCloudMismatch = "      پديده انتخاب شده با نوع ابر مورد نظر تطابق ندارد     ";
inline constexpr std::string_view kNoMetarPresent = "      براي هواي حاضر متار مورد استفاده واقع نميگيردد     ";
inline constexpr std::string_view kNoMetarPast = "      براي هواي گذشته  متار مورد استفاده واقع نميگيردد     ";
inline constexpr std::string_view kRecentAbove5000 =
    "با توجه به اينكه ديد افقي بيش از 5000 متر ميباشد براي هواي حاضر متار مورد استفاده واقع نميگيردد";
inline constexpr std::string_view kVicinityAbove8000 =
    "توجه داشته باشيد که ديد افقي بيش از 8000 ملر مي باشد بنابرابن پديده انتحابي گزارش نميشود";
// Message of the past-hour board for 28.
inline constexpr std::string_view kNoMetarPastHour = "      در هواي گذشـتـه متار مورد استفاده واقع نميشود   ";

// The vicinity list of the present weather board, and its head.
inline constexpr std::string_view kVicinityHead = "                 Vicinity";
const std::vector<std::string>& vicinity_codes();
// The vicinity codes that set the board's mark.
bool vicinity_sets_mark(std::string_view code);

}  // namespace obsdesk
