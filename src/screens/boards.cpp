#include "screens/boards.h"

#include "screens/board_tables.h"
#include "screens/weather_tables.h"
#include "screens/desk.h"

namespace obsdesk {

namespace {

std::string two_figures(int n) { return std::string(1, char('0' + n / 10)) + char('0' + n % 10); }

}  // namespace

WeatherButtons::WeatherButtons(Screen& s) {
  P.reserve(100);
  for (int ww = 0; ww < 100; ++ww)
    P.push_back(std::make_unique<Button>(s, "P" + two_figures(ww), std::string(present_weather_picture(ww))));
}

FrmFeali::FrmFeali() : Screen("FrmFeali") {
  CmbVC.items = vicinity_codes();
  CmbVC.text = std::string(kVicinityHead);
}

FrmGozashteh::FrmGozashteh() : Screen("FrmGozashteh") {}

PastWeatherBoard::PastWeatherBoard(std::string board_name) : Screen(std::move(board_name)) {
  for (int n = 0; n < 10; ++n) button(n).text = std::string(past_weather_table()[n].picture);
}

Button& PastWeatherBoard::button(int n) {
  Button* all[] = {&w0, &w1, &w2, &w3, &w4, &w5, &w6, &w7, &w8, &w9};
  return *all[n];
}

SkyBoard::SkyBoard(std::string board_name, bool plain, bool with_y) : Screen(std::move(board_name)) {
  for (const SkyLetter& s : sky_letter_table())
    if (s.y ? with_y : plain)
      letters.push_back(std::make_unique<Button>(*this, std::string(s.button), std::string(s.picture)));
}

Button* SkyBoard::letter(std::string_view button_name) {
  for (auto& b : letters)
    if (b->name == button_name) return b.get();
  return nullptr;
}

FrmZamin::FrmZamin() : Screen("FrmZamin") {
  for (const GroundState& g : ground_state_table())
    buttons.push_back(std::make_unique<Button>(*this, std::string(g.button), std::string(g.picture)));
}

FrmIRIX::FrmIRIX() : Screen("FrmIRIX") {
  Combo1.items = ir_texts();
  Combo3.items = ix_texts();
}

FrmTooltip::FrmTooltip() : Screen("FrmTooltip") { takes_focus = false; }

int present_weather_code(Desk& ws) {
  const FrmKashf& k = ws.FrmKashf;
  const Control* images[] = {&k.Image1, &k.Image10, &k.Image8};
  const int last = ws.FrmFeali.LastCode;
  if (last >= 0)
    for (const Control* i : images)
      if (i->text == present_weather_picture(last)) return last;
  for (const Control* i : images)
    for (int ww = 0; ww < 100; ++ww)
      if (i->text == present_weather_picture(ww)) return ww;
  return -1;
}

}  // namespace obsdesk
