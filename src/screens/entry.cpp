#include "screens/entry.h"

#include "screens/desk.h"
#include "screens/record.h"

namespace obsdesk {

void refuse(Desk& ws, Control& box, const std::string& words) {
  if (!words.empty()) ws.error(words);
  ws.set(box, "");
  ws.focus(box);
}

ReportKind report_kind(const Desk& ws) { return report_kind_of(ws.FrmKashf.Combo5.text); }
const std::string& hour_text(const Desk& ws) { return ws.FrmKashf.Text1.text; }

bool hour_is(const Desk& ws, std::initializer_list<std::string_view> hours) {
  for (std::string_view h : hours)
    if (hour_text(ws) == h) return true;
  return false;
}

StationKind station_kind(const Desk& ws) { return station_kind_of(ws.FrmOption.Combo1.text); }

bool twelve_hour_station(const Desk& ws) { return station_kind(ws) == StationKind::Hours12; }

bool twelve_hour_night(const Desk& ws) {
  return twelve_hour_station(ws) && hour_is(ws, {"18", "21", "00", "0"});
}

bool report_kind_coded(const Desk& ws) {
  switch (report_kind(ws)) {
    case ReportKind::Synop: return ws.SYNOP_coded != 0;
    case ReportKind::SynMet: return ws.SYNOP_coded != 0 && ws.METAR_coded != 0;
    case ReportKind::Metar:
    case ReportKind::Metar30: return ws.METAR_coded != 0;
    case ReportKind::Speci: return ws.SPECI_coded != 0;
    case ReportKind::None: break;
  }
  return false;
}

std::string station_heading(const Desk& ws) {
  const FrmOption& o = ws.FrmOption;
  return o.Text1.text + "  " + o.TXTCOD.text + "  " + o.NUMCOD.text;
}

}  // namespace obsdesk
