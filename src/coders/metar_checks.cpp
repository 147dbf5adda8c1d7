// The checks that run when a METAR or SPECI coder button receives the focus. A
// failure shows its words and moves the focus; the observer may still click later.
#include "coders/metar.h"
#include "coders/synop.h"
#include "screens/boards.h"
#include "screens/desk.h"

namespace obsdesk {

namespace {

const char* const kSameWeather = "هر دو هواي فعلي انتخابي يكسان ميباشد";
const char* const kChooseWeather = "لطفاهواي حاضر انتخاب گردد";
const char* const kWeatherAgainstClearSky = "هواي حاضر با ميزان ابر ناكي هماهنگي ندارد";

}  // namespace

bool metar_focus_checks(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  // The two METAR weather choices, compared by the picture each shows.
  if (!k.Image10.text.empty() && k.Image10.text == k.Image8.text && k.LabVC.text == "None") {
    ws.error(kSameWeather);
    ws.focus(k.Text74);
    return false;
  }
  // The cloud rows, as for the SYNOP.
  if (!synop_cloud_check(ws)) return false;
  if (k.Image10.text.empty() && ws.FrmDisplayKashf.TXTWW1.text.empty()) {
    ws.error(kChooseWeather);
    return false;
  }
  if (k.Text5.text == "0" && present_weather_code(ws) > 49) {
    ws.error(kWeatherAgainstClearSky);
    ws.focus(k.Text5);
    return false;
  }
  return true;
}

void Command4_enter(Desk& ws) { metar_focus_checks(ws); }

void Command4_click(Desk& ws) { run_metar_coder(ws, MetarForm::Metar); }

}  // namespace obsdesk
