#include "calendar/key_text.h"

#include "core/textnum.h"
#include "screens/desk.h"

namespace obsdesk {

std::string key_text(const FrmKashf& k) {
  return mid(k.TXTYEARmi.text, 3) + trim(k.TXTMONTHMI.text) + trim(k.TXTDAYmi.text) + trim(left(k.Text1.text, 2));
}

void rebuild_key_text(Desk& ws) { ws.set(ws.FrmKashf.TXTYYMMDDTT, key_text(ws.FrmKashf)); }

}  // namespace obsdesk
