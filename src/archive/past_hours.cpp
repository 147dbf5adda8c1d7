#include "archive/past_hours.h"

#include "bank/bank.h"
#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/entry.h"

namespace obsdesk {

namespace {

const char* kCheckTemperature = "     مــقدار دما را چــك نمـائيـــد";
const char* kCheckData = "     مــقدار داده را چــك نمـائيـــد";
const char* kCheckRain = "     مــقدار بارندگي را چــك نمـائيـــد";
const char* kCheckPressure = "     مــقدار فشار را چــك نمـائيـــد";
const char* kSavedRestart = " تغييرات ثبت شد لطفا برنامه را مجددا اجرا نمائيد";

}  // namespace


bool past_value_ok(const std::string& text) {
  bool point = false;
  const std::size_t n = std::min<std::size_t>(len(text), 4);
  for (std::size_t i = 1; i <= n; ++i) {
    const std::string c = char_at(text, i);
    if (c == ".") {
      if (point) return false;
      point = true;
    } else if (!is_digit(c) && c != "/" && ansi_code(c) != 250) {
      return false;
    }
  }
  return true;
}

std::string past_hour_text(const std::string& text) {
  static const char* const kept[] = {"", "0", "1", "2", "21", "18", "15", "12", "09", "06", "03", "00"};
  if (text == "24") return "00";
  for (const char* k : kept)
    if (text == k) return text;
  return "";
}

namespace {

struct Family {
  const char* on_change;
  const char* on_leave;
};

// Temperatures, rain, pressures: the words of a bad character and of a bad value
// found on leaving.
Family family_of(std::size_t index) {
  if (index < 8) return {kCheckTemperature, kCheckData};
  if (index < 16) return {kCheckRain, kCheckRain};
  return {kCheckPressure, kCheckPressure};
}

// A refused value: the words on the panel, the box emptied and the focus back
// in it, to be typed again.
void refuse(Desk& ws, TextBox& box, const char* words) {
  ws.error(words);
  ws.set(box, "");
  ws.focus(box);
}

void Text25_change(Desk& ws) {
  TextBox& t = ws.FrmWP.Text25;
  ws.set(t, past_hour_text(t.text));
}

// Saved: the Past row and the start screen's copy of it, then the editor closes.
void Command1_click(Desk& ws) {
  FrmWP& p = ws.FrmWP;
  Recordset& rs = p.Data1.rs;
  if (rs.eof() || rs.bof()) rs.add_new();
  else rs.edit();
  p.Data1.update();
  p.Data1.refresh(ws);
  if (ws.FrmMain.PAST.rs.is_open()) ws.FrmMain.PAST.refresh(ws);
  ws.error(kSavedRestart);
  ws.unload(p);
}

void FrmWP_load(Desk& ws) {
  const std::string prog = trim(ws.FrmMain.LabName.text);
  ws.FrmWP.Data1.open(ws, resolve_bank_path(ws.bank_root(), prog + "\\Bank\\Access\\Past.mdb"), "Past");
}

}  // namespace

void open_past_hours_editor(Desk& ws) { ws.show(ws.FrmWP); }

void wire_past_hours(Desk& ws) {
  FrmWP& p = ws.FrmWP;
  p.on(ScreenEvent::Load, FrmWP_load);
  for (std::size_t i = 0; i < p.family.size(); ++i) {
    TextBox* box = p.family[i];
    const Family words = family_of(i);
    Control* next = i + 1 < p.family.size() ? static_cast<Control*>(p.family[i + 1]) : &p.Command1;
    box->on(Event::Change, [box, words](Desk& w) {
      if (!past_value_ok(box->text)) refuse(w, *box, words.on_change);
    });
    box->on(Event::Leave, [box, words](Desk& w) {
      if (!past_value_ok(box->text)) refuse(w, *box, words.on_leave);
    });
    box->on(Event::Enter, [box](Desk& w) { w.FrmWP.Txt.text = box->text; });
    box->on(Event::KeyEnter, [next](Desk& w) { w.focus(*next); });
  }
  p.Text25.on(Event::Change, Text25_change);
  p.Text25.on(Event::KeyEnter, [](Desk& w) { w.focus(w.FrmWP.Text1); });
  p.Command1.on(Event::Click, Command1_click);
}

}  // namespace obsdesk
