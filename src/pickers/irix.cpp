// FrmIRIX: the indicators iR (rain reported where) and iX (station kind and
// weather reported), chosen by their words or typed as figures.
#include <algorithm>
#include <string>

#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/board_tables.h"
#include "pickers/pickers.h"

namespace obsdesk {

namespace {

constexpr std::string_view kIrRange = "عــــدد 1  تا 4 وارد گـــردد   ";
constexpr std::string_view kIxRange = "عــــدد 1  تا 6 وارد گـــردد   ";
constexpr std::string_view kIrFirst = "NOTE: مقدار دهي نشده است  IR";

// The figure 1 to count of a typed box, 0 when it is none.
int figure(const std::string& text, int count) {
  const std::string t = trim(text);
  if (t.size() != 1 || !is_digit(t)) return 0;
  const int n = t[0] - '0';
  return n >= 1 && n <= count ? n : 0;
}

// The place of a list's text, 1 based; 0 when the text is no item.
int item_number(const Control& list) {
  const auto it = std::find(list.items.begin(), list.items.end(), list.text);
  return it == list.items.end() ? 0 : static_cast<int>(it - list.items.begin()) + 1;
}

// A typed figure chooses its list item. The same item as the last report's is
// still a choice: the board is only hidden between reports and keeps its texts.
void typed(Desk& ws, Control& box, Control& list, std::string_view refusal, void (*chosen)(Desk&)) {
  if (box.text.empty()) return;
  const int n = figure(box.text, static_cast<int>(list.items.size()));
  if (n == 0) {
    ws.error(std::string(refusal));
    ws.set(box, "");
    return;
  }
  if (list.text == list.items[n - 1])
    chosen(ws);
  else
    ws.set(list, list.items[n - 1]);
}

}  // namespace

void TXTIR_change(Desk& ws) {
  typed(ws, ws.FrmIRIX.TXTIR, ws.FrmIRIX.Combo1, kIrRange, FrmIRIX_Combo1_change);
}

void TXTIX_change(Desk& ws) {
  typed(ws, ws.FrmIRIX.TXTIX, ws.FrmIRIX.Combo3, kIxRange, FrmIRIX_Combo3_change);
}

void FrmIRIX_Combo1_change(Desk& ws) {
  const int n = item_number(ws.FrmIRIX.Combo1);
  if (n > 0) ws.set(ws.FrmIRIX.TXTIR, std::to_string(n));
}

// iX comes after iR; with both, IRIX of the entry screen is set and the board closes.
void FrmIRIX_Combo3_change(Desk& ws) {
  FrmIRIX& f = ws.FrmIRIX;
  const int n = item_number(f.Combo3);
  if (n == 0) return;
  if (trim(f.TXTIR.text).empty()) {
    ws.error(std::string(kIrFirst));
    ws.set(f.Combo3, "");  // the choice does not stand, so it can be made again
    return;
  }
  ws.set(f.TXTIX, std::to_string(n));
  ws.set(ws.FrmKashf.Text48, trim(f.TXTIR.text) + trim(f.TXTIX.text));
  ws.hide(f);
}

// IRIX typed on the entry screen holds the same two figures the board gives: iR
// 1 to 4, then iX 1 to 6. Any other character would reach the first SYNOP group.
void Text48_change(Desk& ws) {
  TextBox& box = ws.FrmKashf.Text48;
  const std::string& t = box.text;
  const bool ir_bad = !t.empty() && (t[0] < '1' || t[0] > '4');
  const bool ix_bad = t.size() > 1 && (t.size() > 2 || t[1] < '1' || t[1] > '6');
  if (!ir_bad && !ix_bad) return;
  ws.error(std::string(ir_bad ? kIrRange : kIxRange));
  ws.set(box, "");
  ws.focus(box);
}

void open_irix_picker(Desk& ws, bool clear_ir) {
  if (clear_ir) ws.set(ws.FrmIRIX.TXTIR, "");
  ws.show(ws.FrmIRIX);
}

void wire_irix(Desk& ws) {
  FrmIRIX& f = ws.FrmIRIX;
  f.TXTIR.on(Event::Change, TXTIR_change);
  f.TXTIX.on(Event::Change, TXTIX_change);
  f.Combo1.on(Event::Change, FrmIRIX_Combo1_change);
  f.Combo3.on(Event::Change, FrmIRIX_Combo3_change);
  // A choice of the item already shown changes no text but is a choice all the same.
  f.Combo1.on(Event::Click, FrmIRIX_Combo1_change);
  f.Combo3.on(Event::Click, FrmIRIX_Combo3_change);
  f.Command1.on(Event::Click, [](Desk& w) { w.hide(w.FrmIRIX); });
  ws.FrmKashf.Text48.on(Event::Change, Text48_change);
}

}  // namespace obsdesk
