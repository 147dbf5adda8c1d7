// The Enter key walks the form. Most boxes have one fixed successor, kept here as
// a table; the boxes whose successor depends on the report kind, the hour or the
// value decide it beside their own checks. The walk ends in the remarks box, whose
// Enter opens the weather pickers or asks whether there is weather to report.
#include <string_view>

#include "screens/record.h"
#include "pickers/pickers.h"
#include "station/session.h"
#include "core/textnum.h"
#include "station/workstation.h"
#include "screens/entry.h"

namespace obsdesk {

namespace {

constexpr const char* kAnyWeather = "آيا پديده جوي براي گزارش وجود دارد ؟";
// A SYNOP remarks step opens the pickers straight away when iX says the weather
// group is in the report and the air is this humid (relative humidity rounded).
constexpr double kHumidForWeather = 80;

struct Step {
  std::string_view from, to;
};

// Box to box, by Enter, whatever the hour and the report kind.
constexpr Step kFixedSteps[] = {
    {"txt1", "Text2"},          {"Text40", "Text39"},     {"Text39", "Text3"},     {"TXTGUSTY", "Text4"},
    {"Text26", "CMbMIN"},       {"CMbMAX", "Text26"},     {"CMbMIN", "Text5"},     {"Text6", "Combo1"},
    {"Combo1", "Text7"},        {"Text9", "Text10"},      {"Combo2", "Text9"},     {"Text10", "Combo3"},
    {"Combo3", "Text11"},       {"txtmin", "Text17"},     {"Combo6", "Text16"},    {"Combo9", "Text22"},
    {"Text32", "Text33"},       {"Text33", "Text34"},     {"Text34", "Text35"},    {"Text35", "Text36"},
    {"Text36", "Text37"},       {"Text37", "Text74"},     {"Text43", "Text74"},    {"Text67", "Text74"},
    {"Txttimesun", "Text74"},   {"Txttond", "Text74"},    {"Text63", "Text64"},    {"Text64", "Text65"},
    {"Text66", "Text67"},       {"Text69", "Text70"},     {"Text70", "Text63"},    {"Text71", "Text72"},
    {"Text72", "Text73"},       {"Text73", "Txttimesun"}, {"Text53", "Text68"},    {"Txtmaxwind", "Txttond"},
};

void Text1_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (twelve_hour_night(ws)) ws.focus(k.Text27);
  else if (!k.Text1.text.empty()) ws.focus(k.Text2);
}

// The visibility the METAR weather is judged by: the minimum when it is typed.
double metar_visibility(const FrmKashf& k) { return val(k.TxtVM.text.empty() ? k.Text4.text : k.TxtVM.text); }

}  // namespace

void Text74_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text31.text.empty()) return;
  const ReportKind kind = report_kind(ws);
  if (is_synop_kind(kind)) {
    ws.set(k.TWW, "1");
    const std::string ix = char_at(k.Text48.text, 2);
    const bool weather_group = ix == "1" || ix == "4" || ix == "5" || ix == "6";
    if ((weather_group && round_to(val(k.Text31.text)) >= kHumidForWeather) || ws.ask(kAnyWeather))
      open_remarks_pickers(ws);
  } else if (is_metar_kind(kind)) {
    if (metar_visibility(k) < 5001 || ws.ask(kAnyWeather)) open_present_weather_picker(ws);
  }
}

void wire_session_walk(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  for (const Step& s : kFixedSteps) {
    Control* from = k.find(s.from);
    Control* to = k.find(s.to);
    if (from == nullptr || to == nullptr) throw std::logic_error("walk: no box " + std::string(s.from));
    from->on(Event::KeyEnter, [to](Desk& w) { w.focus(*to); });
  }
  k.Text1.on(Event::KeyEnter, Text1_key_enter);
  k.Text74.on(Event::KeyEnter, Text74_key_enter);
}

}  // namespace obsdesk
