// cmdsynop1218: a station that does not report at every main hour makes, at 18,
// 21 and 00 UTC, an S line that holds only the groups of that hour, each in its
// fixed place.
#include "coders/code_panel.h"
#include "coders/synop.h"
#include "coders/synop_groups.h"
#include "coders/synop_sections.h"
#include "screens/record.h"
#include "screens/desk.h"

namespace obsdesk {

void run_synop1218(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  load_code_panel(ws);
  synop_date_step(ws, StationKind::Hours12, 15, {"21", "18"});
  synop_hour_and_dates(ws);

  const std::string prefix = synop_line_prefix(ws);
  const std::string& hour = k.Text1.text;
  std::string line;
  if (hour == "18") {
    if (const auto sun = sunshine_group(k.Txttimesun.text)) ws.set(p.Text95, *sun);
    line = prefix + std::string(93, ' ') + p.Text95.text + std::string(88, ' ');
  } else if (hour == "21") {
    ws.set(p.Text104, k.Txtmaxwind.text);
    ws.set(p.Text105, k.Txttond.text);
    line = prefix + std::string(136, ' ') + p.Text104.text + p.Text105.text + std::string(40, ' ');
  } else {
    line = prefix + std::string(186, ' ');
  }
  set_archive_line(ws, std::move(line));
  k.ZAKHIREH.enabled = true;
  k.cmdsynop1218.enabled = false;
}

}  // namespace obsdesk
