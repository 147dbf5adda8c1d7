// An entry screen opened on the demo station (Tehran, 1190.8 m, 35 deg 41',
// mercury barometer, pressure limits 850/860/900/910) with a report kind and an
// hour, ready for the thermometer and barometer boxes.
#pragma once

#include <string>
#include <vector>

#include "screens/record.h"
#include "station/workstation.h"
#include "support/test_support.h"

namespace obsdesk::test {

struct Entry {
  explicit Entry(std::string_view kind = kSynop, const char* hour = "12")
      : ws(s.open_entry()), k(ws.FrmKashf), st(ws.FrmOption) {
    ws.set_text(k.Combo5, std::string(kind));
    ws.set_text(k.Text1, hour);
    ws.set_text(k.txtt12, "18");
    ws.take_messages();
  }
  // The coastal station: 21 m, 29 deg 36', limits 950/960/1040/1050.
  void coast() {
    st.Txth.text = "21";
    st.txtq1.text = "29";
    st.txtq2.text = "36";
    st.txtminm4.text = "950";
    st.txtmin4.text = "960";
    st.txtmax4.text = "1040";
    st.txtmaxm4.text = "1050";
  }
  // A barograph station: the station pressure is read in Text41.
  void barograph() {
    st.txtPnegar.text = "1";
    st.txtPsang.text = "0";
  }
  void twelve_hour() { st.Combo1.text = std::string(kStation12); }
  // Types a text and presses Enter in a box.
  void enter(Control& c, const std::string& text) {
    ws.type(c, text);
    ws.press_enter();
  }
  std::string focus() const { return ws.focused() ? ws.focused()->name : ""; }
  // The box that holds the entry screen's focus, whatever screen is in front.
  std::string kashf_focus() const { return k.active ? k.active->name : ""; }
  std::vector<std::string> messages() { return ws.take_messages(); }
  // The nine derived boxes in the order RH TC QFE EHPA QFF QNH QIN H850 TDEW.
  std::vector<std::string> derived() const {
    return {k.Text31.text, k.Text15.text, k.Text18.text, k.Text30.text, k.Text21.text,
            k.Text19.text, k.Text20.text, k.Text24.text, k.Text29.text};
  }

  Station s;
  Desk& ws;
  FrmKashf& k;
  FrmOption& st;
};

}  // namespace obsdesk::test
