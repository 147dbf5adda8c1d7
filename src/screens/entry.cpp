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

bool twelve_hour_station(const Desk& ws) { return station_kind(ws) == kStation12; }

bool twelve_hour_night(const Desk& ws) {
  return twelve_hour_station(ws) && hour_is(ws, {"18", "21", "00", "0"});
}

bool report_kind_coded(const Desk& ws) {
  const std::string& kind = report_kind(ws);
  if (kind == kSynop) return ws.SYNOP_coded != 0;
  if (kind == kSynMet) return ws.SYNOP_coded != 0 && ws.METAR_coded != 0;
  if (kind == kMetar || kind == kMetar30) return ws.METAR_coded != 0;
  if (kind == kSpeci) return ws.SPECI_coded != 0;
  return false;
}

std::string station_heading(const Desk& ws) {
  const FrmOption& o = ws.FrmOption;
  return o.Text1.text + "  " + o.TXTCOD.text + "  " + o.NUMCOD.text;
}

}  // namespace obsdesk
