#include "screens/frm_main.h"

namespace obsdesk {

FrmMain::FrmMain() : Screen("FrmMain") {
  T = {&txt00T, &txt03T, &txt06T, &txt09T, &txt12T, &txt15T, &txt18T, &txt21T};
  TB = {&txt00TB, &txt03TB, &txt06TB, &txt09TB, &txt12TB, &txt15TB, &txt18TB, &txt21TB};
  rain = {&txtrain00, &txtrain03, &txtrain06, &txtrain09, &txtrain12, &txtrain15, &txtrain18, &txtrain21};
  rainB = {&txtrain00b, &txtrain03b, &txtrain06b, &txtrain09b,
           &txtrain12b, &txtrain15b, &txtrain18b, &txtrain21b};
  qfe = {&txtp00qfe, &txtp03qfe, &txtp06qfe, &txtp09qfe, &txtp12qfe, &txtp15qfe, &txtp18qfe, &txtp21qfe};
  qfeB = {&txtp00qfeb, &txtp03qfeb, &txtp06qfeb, &txtp09qfeb,
          &txtp12qfeb, &txtp15qfeb, &txtp18qfeb, &txtp21qfeb};

  caption = "VARDOK";
  Text1.visible = false;
  Frame1.visible = false;
  ComboOstan.visible = false;
  ComboOstan.text = "GUILAN";
  place(Frame1, {&Label4, &Label5, &Label6, &Label8, &Option1, &Option2, &cmdOpen, &txtpathnamebank1,
                 &txtpathnamebank2, &txtpathnamebank3});
  Option1.value = true;
  CommonDialog1.visible = false;
  for (Control* c : Controls{&TxtBackColor, &TxtResolution, &TxtResolutionNew}) c->visible = false;

  SelectOstan.bind(LabOstan, "NameOstan");
  BackColor.bind(TxtBackColor, "N_BackColor");
  IDPaths.bind(txtpathnamebank1, "TXTPathNameBank1");
  IDPaths.bind(txtpathnamebank2, "TXTPathNameBank2");
  ID.bind(Text1, "ID");
  static const char* hours[] = {"00", "03", "06", "09", "12", "15", "18", "21"};
  for (std::size_t i = 0; i < 8; ++i) {
    PAST.bind(*TB[i], std::string("T") + hours[i]);
    PAST.bind(*rainB[i], std::string("RAIN") + hours[i]);
    PAST.bind(*qfeB[i], std::string("QFE") + hours[i] + "B");
  }
  PAST.bind(txtutcpastb, "utcpastb");
}

int main_hour_index(int hour) { return (hour >= 0 && hour <= 21 && hour % 3 == 0) ? hour / 3 : -1; }

}  // namespace obsdesk
