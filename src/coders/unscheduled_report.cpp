// The SPECI coder: the METAR coder with its own time step and text. Its time is
// typed in txt1 and stands in the text itself; there is no look-back to the tenth
// minute before the hour.
#include "coders/metar.h"
#include "coders/metar_groups.h"
#include "screens/desk.h"

namespace obsdesk {

void speci_time_step(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  // The time stands on four figures in the field as well.
  ws.set(k.txt1, speci_hhmm(k.txt1.text));
  coder_number(k.txt1.text, "txt1");
  ws.set(p.Text29, k.txt1.text);
  ws.set(p.TXTCCCC, ws.FrmOption.TXTCOD.text);
  ws.set(p.Text10, speci_time_group(k.TXTDAYmi.text, k.txt1.text));
}

void Command8_enter(Desk& ws) { metar_focus_checks(ws); }

void Command8_click(Desk& ws) { run_metar_coder(ws, MetarForm::Speci); }

}  // namespace obsdesk
