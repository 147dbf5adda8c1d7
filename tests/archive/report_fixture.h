// A report as the entry rules, the pickers and the coders would leave it, typed
// straight into the boxes, for the tests of confirmation and save.
#pragma once

#include <string>

#include "archive/text_archive.h"
#include "screens/record.h"
#include "support/test_support.h"

namespace obsdesk::test {

struct Obs {
  std::string kind = std::string(kSynop);
  std::string hour = "06", txt1;
  std::string year = "2024", month = "03", day = "20";
  std::string syear = "1403", smonth = "01", sday = "01";
  std::string observer = "علي محمدي";
  std::string note = "ملاحظه";
};

// A new report opened from the browser and filled as the entry rules and the
// coders would leave it.
inline void new_report(Desk& ws, const Obs& o) {
  ws.click(ws.FrmDisplayKashf.newW);
  FrmKashf& k = ws.FrmKashf;
  FrmCode& c = ws.FrmCode;
  k.Combo5.text = o.kind;
  k.Text1.text = o.hour;
  k.txt1.text = o.txt1;
  k.TXTYEARmi.text = o.year;
  k.TXTMONTHMI.text = o.month;
  k.TXTDAYmi.text = o.day;
  k.TXTYEARsh.text = o.syear;
  k.TXTMONTHSH.text = o.smonth;
  k.TXTDAYsh.text = o.sday;
  k.Text2.text = "270";
  k.Text3.text = "4";
  k.Text4.text = "10";
  k.Text5.text = "3";
  k.Text6.text = "3";
  k.Combo1.text = "CU     1";
  k.Text7.text = "900";
  k.Text9.text = "";
  k.Combo2.text = "       0";
  k.Combo3.text = "      0";
  k.Combo4.text = "      0";
  k.Combo6.text = "       0";
  k.Combo9.text = "       0";
  k.Text27.text = "12.4";
  k.Text28.text = "6.2";
  k.Text18.text = "880.5";
  k.Text20.text = "29.9";
  k.Text24.text = "1534";
  k.Combo7.text = o.observer;
  k.Text74.text = o.note;
  ws.FrmDisplayKashf.TXTWW4.text = "02";  // the pickers write straight into the row
  c.Text75.text = o.hour;
  c.Text76.text = "12570";
  c.Text77.text = "32704";
  c.Text79.text = "10124";
  c.Text34.text = "27004";
  c.Text7.text = "F32";
  // The head of the S and G lines as the SYNOP coder begins them; the groups after it
  // only have to be carried through to the files.
  const std::string head = "40754" + o.year.substr(2) + o.month + o.day + o.hour;
  c.TXTSCDATA.text = "2" + head + "1257032704     10124";
  c.TXTgolbad.text = head + "***27004*******";
  c.Text10.text = o.day + o.txt1 + "Z";
  ws.SynopLine1 = "12570 32704 10124=";
  ws.MetarLine1 = " 27004KT 9999 SCT030 12/02 Q1015=";
  ws.SpeciLine1 = o.day + o.txt1 + "Z 27015KT 9999 SCT030 12/02 Q1015=";
  FrmMain& m = ws.FrmMain;
  for (std::size_t i = 0; i < 8; ++i) {
    m.T[i]->text = "t" + std::to_string(i);
    m.qfe[i]->text = "q" + std::to_string(i);
    m.rain[i]->text = "r" + std::to_string(i);
  }
  ws.take_messages();
}

inline Desk& enter(Station& s, const Obs& o) {
  Desk& ws = s.open_browser();
  new_report(ws, o);
  return ws;
}

inline void confirm(Desk& ws) {
  ws.FrmKashf.ZAKHIREH.enabled = true;  // the coders' flags open it
  ws.click(ws.FrmKashf.ZAKHIREH);
}

}  // namespace obsdesk::test
