// The phenomenon boards: the screens from which the observer picks a coded
// phenomenon for the boxes of the entry screen, and the hint window beside them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/control.h"

namespace obsdesk {

// A board of the hundred present weather buttons P00 to P99.
struct WeatherButtons {
  explicit WeatherButtons(Screen& s);
  std::vector<std::unique_ptr<Button>> P;  // P[ww], each with the picture of its code
};

// FrmFeali: the present weather board (ww) for the SYNOP box, the METAR present
// box and the METAR recent box.
struct FrmFeali : Screen {
  FrmFeali();
  WeatherButtons buttons{*this};
  ComboBox CmbVC{*this, "CmbVC"};               // vicinity codes
  Button Command1{*this, "Command1", "Cancel"};
  std::string MetarText;   // METAR text of the last click
  double Visibility = 0;   // the visibility taken at load, metres
  bool VicinityMark = false;  // a vicinity code of the marked kind was chosen
  int LastCode = -1;       // ww of the last code taken, -1 when none
};

// FrmGozashteh: the weather of the past hour, the METAR group REw'w'.
struct FrmGozashteh : Screen {
  FrmGozashteh();
  WeatherButtons buttons{*this};
  Button Command1{*this, "Command1", "Cancel"};
};

// Ten buttons w0 to w9 of the past weather W.
struct PastWeatherBoard : Screen {
  explicit PastWeatherBoard(std::string board_name);
  Button w0{*this, "w0"}, w1{*this, "w1"}, w2{*this, "w2"}, w3{*this, "w3"}, w4{*this, "w4"},
      w5{*this, "w5"}, w6{*this, "w6"}, w7{*this, "w7"}, w8{*this, "w8"}, w9{*this, "w9"};
  Button Command1{*this, "Command1", "Cancel"};
  Button& button(int n);
};

// Frmgozashteh1: W1, the first past weather.
struct Frmgozashteh1 : PastWeatherBoard {
  Frmgozashteh1() : PastWeatherBoard("Frmgozashteh1") {}
  std::string PastW1;  // the figure chosen
};

// FrmGozashteh2: W2, the second past weather, not above W1.
struct FrmGozashteh2 : PastWeatherBoard {
  FrmGozashteh2() : PastWeatherBoard("FrmGozashteh2") {}
  std::string PastW2;  // the figure chosen
};

// A sky letter board: its buttons are made from the letters it offers.
struct SkyBoard : Screen {
  SkyBoard(std::string board_name, bool plain, bool with_y);
  std::vector<std::unique_ptr<Button>> letters;  // one button per letter, named as the letter
  TextBox Text1{*this, "Text1", 1};             // a letter typed picks its button
  Button Command1{*this, "Command1", "Cancel"};
  Button* letter(std::string_view button_name);
};

// FrmBCO: the sky letters b, c, bc, o.
struct FrmBCO : SkyBoard {
  FrmBCO() : SkyBoard("FrmBCO", true, false) {}
};

// FrmBCOY: the sky letters by, cy, bcy, oy.
struct FrmBCOY : SkyBoard {
  FrmBCOY() : SkyBoard("FrmBCOY", false, true) {}
};

// FrmBCOBCOY: all eight sky letters.
struct FrmBCOBCOY : SkyBoard {
  FrmBCOBCOY() : SkyBoard("FrmBCOBCOY", true, true) {}
};

// FrmZamin: the state of the ground, e0 to e9 without snow, s0 to s9 with snow.
struct FrmZamin : Screen {
  FrmZamin();
  std::vector<std::unique_ptr<Button>> buttons;  // e0..e9 then s0..s9
  TextBox Text1{*this, "Text1", 1};             // a digit typed picks its s button
  Button Command1{*this, "Command1", "Cancel"};
};

// FrmIRIX: the indicators iR and iX of the SYNOP.
struct FrmIRIX : Screen {
  FrmIRIX();
  ComboBox Combo1{*this, "Combo1"};  // iR by its words
  ComboBox Combo3{*this, "Combo3"};  // iX by its words
  TextBox TXTIR{*this, "TXTIR", 1};  // iR typed
  TextBox TXTIX{*this, "TXTIX", 1};  // iX typed
  Button Command1{*this, "Command1", "Cancel"};
};

// FrmTooltip: the hint beside a picture of a board.
struct FrmTooltip : Screen {
  FrmTooltip();
  Label Lab1{*this, "Lab1"};  // the code under the pointer
};

// The present weather code ww chosen on the board, -1 when none is chosen.
int present_weather_code(Desk& ws);

}  // namespace obsdesk
