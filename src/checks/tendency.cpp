#include "checks/tendency.h"

#include <cmath>

#include "checks/rain.h"
#include "core/textnum.h"
#include "screens/desk.h"

namespace obsdesk {

namespace {

constexpr const char* kTypeAmount = "مــقدار تغييرات فـشــار را وارد نمـائيـــد";

// The traces that fit the change of pressure, by its sign: a rise offers 0 to
// 3, a fall 5 to 8, no change 0, 4 and 5. The marks only guide the eye.
constexpr int kRise[] = {0, 1, 2, 3};
constexpr int kFall[] = {5, 6, 7, 8};
constexpr int kSteady[] = {0, 4, 5};

template <std::size_t N>
void mark(FrmNTF& d, const int (&fits)[N]) {
  for (int a : fits) d.marker[static_cast<std::size_t>(a)]->visible = true;
}

// The dialog closes; it keeps nothing for the next time.
void close(Desk& ws) { ws.unload(ws.FrmNTF); }

// The dialog stays in front until the amount is known.
void FrmNTF_deactivate(Desk& ws) {
  if (ws.FrmNTF.visible && ws.FrmKashf.Text25.text.empty()) ws.focus(ws.FrmNTF.Text1);
}

// A digit 0 to 8 acts as a click on its trace; Enter and anything else do nothing.
void Text1_key_up(Desk& ws) {
  if (ws.key() == "\r") return;
  const std::string& t = ws.FrmNTF.Text1.text;
  if (t.empty()) return;
  const int a = static_cast<unsigned char>(t[0]) - 48;
  if (a < 0 || a > 8) return;
  if (ws.FrmNTF.trace[static_cast<std::size_t>(a)]->enabled) choose_tendency(ws, a);
}

void Command1_click(Desk& ws) {
  close(ws);
  ws.focus(ws.FrmKashf.Text74);
}

}  // namespace


TextBox* previous_pressure(Desk& ws) {
  const int index = main_hour_index(entry_hour(ws));
  if (index < 0) return nullptr;
  // Three hours before: 00 looks back to 21 of the day before.
  return ws.FrmMain.qfe[static_cast<std::size_t>((index + 7) % 8)];
}

void open_tendency_dialog(Desk& ws) {
  FrmNTF& d = ws.FrmNTF;
  ws.show(d);
  for (Label* m : d.marker) m->visible = false;
  const TextBox* before = previous_pressure(ws);
  const double diff = val(ws.FrmKashf.Text18.text) - (before ? val(before->text) : 0.0);
  if (diff == 0) {
    mark(d, kSteady);
  } else if (diff < 0) {
    mark(d, kFall);
  } else {
    mark(d, kRise);
  }
  ws.focus(d.Text1);
}

void choose_tendency(Desk& ws, int a) {
  FrmKashf& k = ws.FrmKashf;
  ws.set(k.Text38, std::to_string(a));
  const TextBox* before = previous_pressure(ws);
  if (before == nullptr || before->text.empty()) {
    // Nothing to compare with: the observer types the amount.
    ws.error(kTypeAmount);
  } else if (a != 4 && !k.Text18.text.empty()) {
    // The sign is carried by the characteristic; the amount is the size alone.
    const double diff = val(k.Text18.text) - val(before->text);
    ws.set(k.Text25, round_text(std::fabs(diff), 1));
  }
  if (a == 4) ws.set(k.Text25, "0");
  close(ws);
  ws.focus(k.Text25);
}

void wire_tendency_dialog(Desk& ws) {
  FrmNTF& d = ws.FrmNTF;
  d.on(ScreenEvent::Deactivate, FrmNTF_deactivate);
  d.Text1.on(Event::KeyUp, Text1_key_up);
  d.Command1.on(Event::Click, Command1_click);
  for (std::size_t a = 0; a < d.trace.size(); ++a)
    d.trace[a]->on(Event::Click, [a](Desk& w) { choose_tendency(w, static_cast<int>(a)); });
}

}  // namespace obsdesk
