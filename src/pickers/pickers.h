// The rules of the phenomenon boards, one family of handlers per board, driven by
// the code tables.
#pragma once

#include <functional>
#include <string>

namespace obsdesk {

class Desk;
struct Control;
struct SkyBoard;

// Binds every board and the pictures of the entry screen that open them.
void wire_pickers(Desk& ws);

// The present weather board.
void FrmFeali_load(Desk& ws);
void P_click(Desk& ws, int ww);
void CmbVC_click(Desk& ws);
void FrmFeali_Command1_click(Desk& ws);

// The past-hour board.
void FrmGozashteh_P_click(Desk& ws, int ww);

// The W1 and W2 boards (board 1 or 2).
void w_click(Desk& ws, int board, int n);
// Image9: the W2 board, refused before W1 is chosen.
void open_w2_board(Desk& ws);
// 7WWw1W2 from the SYNOP present weather and the two past weathers.
void rebuild_weather_group(Desk& ws);

// The sky letter boards: the opening rule, a choice, the keyboard box.
void open_sky_board(Desk& ws, SkyBoard& board, std::function<void(Desk&)> on_close = {});
void sky_letter_click(Desk& ws, SkyBoard& board, const std::string& letter);
void sky_Text1_key_up(Desk& ws, SkyBoard& board);

// The state of ground board: index 0 to 9 are e0 to e9, 10 to 19 s0 to s9.
void ground_click(Desk& ws, int index);
void FrmZamin_Text1_key_up(Desk& ws);

// The iR iX board.
void TXTIR_change(Desk& ws);
void Text48_change(Desk& ws);
void TXTIX_change(Desk& ws);
void FrmIRIX_Combo1_change(Desk& ws);
void FrmIRIX_Combo3_change(Desk& ws);

// The hint beside a board's picture: shown with the text of the code while the
// pointer is over the picture, hidden when it leaves.
void bind_hint(Control& picture, std::string text);

void wire_present_weather(Desk& ws);
void wire_past_hour(Desk& ws);
void wire_past_weather(Desk& ws);
void wire_sky_letters(Desk& ws);
void wire_ground(Desk& ws);
void wire_irix(Desk& ws);
void wire_entry_images(Desk& ws);

// The pictures of the entry screen.
void Image1_click(Desk& ws);
void Image10_click(Desk& ws);
void Image8_click(Desk& ws);
void Image4_click(Desk& ws);
void Image7_click(Desk& ws);
void Image2_click(Desk& ws);
void Image9_click(Desk& ws);
void Image3_click(Desk& ws);
// A double click: the sky letters for the picture's box.
void sky_for_picture(Desk& ws, int select, const char* tww);

// The iR iX picker; clear_ir empties its TXTIR first.
void open_irix_picker(Desk& ws, bool clear_ir);
// The remarks step of a SYNOP kind: FrmBCOY, FrmBCO, FrmFeali in turn.
void open_remarks_pickers(Desk& ws);
// FrmFeali for the METAR present weather, at once (a low visibility).
void open_present_weather_picker(Desk& ws);
// FrmZamin, the state of ground.
void open_ground_picker(Desk& ws);

}  // namespace obsdesk
