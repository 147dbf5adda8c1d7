#include "screens/frm_option.h"

#include <algorithm>
#include <stdexcept>

#include "screens/record.h"

namespace obsdesk {

const std::vector<StationField>& station_fields() {
  static const std::vector<StationField> fields = {
      {"Text21", "id"},
      {"Text1", "Sname"},
      {"NUMCOD", "NumCod"},
      {"TXTCOD", "Txtcod"},
      {"txtq1", "txtq1"},
      {"txtq2", "txtq2"},
      {"Text3", "tol1"},
      {"Text2", "tol2"},
      {"Txth", "txth"},
      {"txthmin", "txthmin"},
      {"txtci", "txtci"},
      {"txttabesh", "indextabesh"},
      {"Combo1", "Stype"},
      {"Combo2", "TASHT"},
      {"txtPnegar", "type Pnegar"},
      {"txtPsang", "type Psang"},
      {"Text5", "OBSERVER1"},
      {"Text6", "OBSERVER2"},
      {"Text7", "OBSERVER3"},
      {"Text8", "OBSERVER4"},
      {"Text9", "OBSERVER5"},
      {"Text10", "OBSERVER6"},
      {"Text11", "Observer7"},
      {"Text12", "Observer8"},
      {"txtminm1", "txtminm1"},
      {"txtmin1", "txtmin1"},
      {"txtmax1", "txtmax1"},
      {"txtmaxm1", "txtmaxm1"},
      {"txtminm2", "txtminm2"},
      {"txtmin2", "txtmin2"},
      {"txtmax2", "txtmax2"},
      {"txtmaxm2", "txtmaxm2"},
      {"txtmax3", "txtmax3"},
      {"txtmaxm3", "txtmaxm3"},
      {"txtminm4", "txtminm4"},
      {"txtmin4", "txtmin4"},
      {"txtmax4", "txtmax4"},
      {"txtmaxm4", "txtmaxm4"},
      {"txtminm5", "txtminm5"},
      {"txtmin5", "txtmin5"},
      {"txtmax5", "txtmax5"},
      {"txtmaxm5", "txtmaxm5"},
      {"txtminm6", "txtminm6"},
      {"txtmin6", "txtmin6"},
      {"txtmax6", "txtmax6"},
      {"txtmaxm6", "txtmaxm5"},
      {"txtminm7", "txtminm7"},
      {"txtmin7", "txtmin7"},
      {"txtmax7", "txtmax7"},
      {"txtmaxm7", "txtmaxm7"},
      {"txtmax8", "txtmax8"},
      {"txtmaxm8", "txtmaxm8"},
      {"txtminm9", "txtminm9"},
      {"txtmax9", "txtmax9"},
      {"txtmaxm9", "txtmaxm9"}};
  return fields;
}

std::vector<std::string> station_columns() {
  std::vector<std::string> cols;
  for (const auto& f : station_fields())
    if (std::find(cols.begin(), cols.end(), f.column) == cols.end()) cols.emplace_back(f.column);
  return cols;
}

FrmOption::FrmOption() : Screen("FrmOption") {
  Combo1.items = {std::string(kStation12), std::string(kStation18), std::string(kStation24),
                  std::string(kStation6)};
  Combo2.items = pan_kinds();
  limit[1] = {&txtminm1, &txtmin1, &txtmax1, &txtmaxm1};
  limit[2] = {&txtminm2, &txtmin2, &txtmax2, &txtmaxm2};
  limit[3] = {&txtminm3, &txtmin3, &txtmax3, &txtmaxm3};
  limit[4] = {&txtminm4, &txtmin4, &txtmax4, &txtmaxm4};
  limit[5] = {&txtminm5, &txtmin5, &txtmax5, &txtmaxm5};
  limit[6] = {&txtminm6, &txtmin6, &txtmax6, &txtmaxm6};
  limit[7] = {&txtminm7, &txtmin7, &txtmax7, &txtmaxm7};
  limit[8] = {&txtminm8, &txtmin8, &txtmax8, &txtmaxm8};
  limit[9] = {&txtminm9, &txtmin9, &txtmax9, &txtmaxm9};
  // The constants as the frame shows them.
  TXTGH.text = "980.665";
  TXTg45.text = "980.616";
  TXTG.text = "9.80";
  TXTR.text = "287.04";
  TXTe.text = "2.718281828";
  TXTA.text = "0.0065";
  txtloge.text = "0.4342944819";
  txtpi.text = "3.141592654";
  TXTPN.text = "1013.25";
  for (Control* c : Controls{&TXTGH, &TXTg45, &TXTG, &TXTR, &TXTe, &TXTA, &txtloge, &txtpi, &TXTPN}) c->locked = true;
  place(Frame2, {&TXTGH, &TXTg45, &TXTG, &TXTR, &TXTe, &TXTA, &txtloge, &txtpi, &TXTPN});
  place(Frame4, {&nnew, &savee, &EDITT, &UPDATE, &firstt, &LASTt, &nextt, &back, &search, &Closee});
  Frame4.visible = false;
  Text21.visible = false;
  for (const auto& f : station_fields()) {
    Control* box = find(f.box);
    if (box == nullptr) throw std::logic_error("no box " + std::string(f.box) + " on FrmOption");
    Station.bind(*box, std::string(f.column));
  }
  for (Control* c : entry_boxes()) c->locked = true;
}

std::vector<Control*> FrmOption::entry_boxes() {
  std::vector<Control*> boxes;
  for (const auto& f : station_fields()) boxes.push_back(find(f.box));
  for (Control* c : Controls{&txtmin3, &txtminm3, &txtmin8, &txtminm8, &txtmin9}) boxes.push_back(c);
  return boxes;
}

std::vector<Control*> FrmOption::commands() {
  return {&nnew, &savee, &EDITT, &UPDATE, &firstt, &LASTt, &nextt, &back, &search, &Closee};
}

std::vector<Control*> FrmOption::enter_walk() {
  std::vector<Control*> walk = {&Text1, &NUMCOD, &TXTCOD, &txtq1, &txtq2, &Text3, &Text2, &Txth, &txthmin, &txtci,
                                &txttabesh};
  for (int row = 1; row <= 9; ++row)
    for (TextBox* box : {limit[row].minm, limit[row].min, limit[row].max, limit[row].maxm}) walk.push_back(box);
  for (Control* c : Controls{&Text5, &Text9, &Text6, &Text10, &Text7, &Text11, &Text8, &Text12}) walk.push_back(c);
  return walk;
}

}  // namespace obsdesk
