#include "screens/dialogs.h"

namespace obsdesk {

FrmPol::FrmPol() : Screen("FrmPol") {
  caption = "Copy";
  Text.visible = false;
}

FrmWP::FrmWP() : Screen("FrmWP") {
  caption = "Past Weather";
  family = {&Text1,  &Text2,  &Text3,  &Text4,  &Text5,  &Text6,  &Text7,  &Text8,
            &Text9,  &Text10, &Text11, &Text12, &Text13, &Text14, &Text15, &Text16,
            &Text17, &Text18, &Text19, &Text20, &Text21, &Text22, &Text23, &Text24};
  Txt.visible = false;
  static const char* hours[] = {"00", "03", "06", "09", "12", "15", "18", "21"};
  for (std::size_t i = 0; i < 8; ++i) {
    Data1.bind(*family[i], std::string("T") + hours[i]);
    Data1.bind(*family[8 + i], std::string("RAIN") + hours[i]);
    Data1.bind(*family[16 + i], std::string("QFE") + hours[i] + "B");
  }
  Data1.bind(Text25, "utcpastb");
}

FrmFind::FrmFind() : Screen("FrmFind") {
  caption = "Search";
  TXTDAYWEEK.locked = true;
}

FrmNTF::FrmNTF() : Screen("FrmNTF") {
  trace = {&NTF0, &NTF1, &NTF2, &NTF3, &NTF4, &NTF5, &NTF6, &NTF7, &NTF8};
  marker = {&Label1, &Label2, &Label3, &Label4, &Label5, &Label6, &Label7, &Label8, &Label9};
  for (Label* m : marker) {
    m->visible = false;
    m->back_color = kMarkerColor;
  }
}

FrmSelectStation::FrmSelectStation() : Screen("FrmSelectStation") { caption = "Select Station"; }

FrmBUFR::FrmBUFR() : Screen("FrmBUFR") {
  caption = "BUFR";
  Text1.locked = true;
}

}  // namespace obsdesk
