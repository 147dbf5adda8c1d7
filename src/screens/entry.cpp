#include "screens/entry.h"

#include "screens/desk.h"
#include "screens/record.h"

namespace obsdesk {

void refuse(Desk& ws, Control& box, const std::string& words) {
  if (!words.empty()) ws.error(words);
  ws.set(box, "");
  ws.focus(box);
}

const std::string& report_kind(const Desk& ws) { return ws.FrmKashf.Combo5.text; }
const std::string& hour_text(const Desk& ws) { return ws.FrmKashf.Text1.text; }

bool hour_is(const Desk& ws, std::initializer_list<std::string_view> hours) {
  for (std::string_view h : hours)
    if (hour_text(ws) == h) return true;
  return false;
}

const std::string& station_kind(const Desk& ws) { return ws.FrmOption.Combo1.text; }

bool twelve_hour_night(const Desk& ws) {
  return station_kind(ws) == kStation12 && hour_is(ws, {"18", "21", "00", "0"});
}

std::string station_heading(const Desk& ws) {
  const FrmOption& o = ws.FrmOption;
  return o.Text1.text + "  " + o.TXTCOD.text + "  " + o.NUMCOD.text;
}

}  // namespace obsdesk
