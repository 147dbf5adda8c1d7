// The rules of the phenomenon boards, one family of handlers per board, driven by
// the code tables.
#pragma once

#include <functional>
#include <string>

namespace obsdesk {

class Workstation;
struct Control;
struct SkyBoard;

// Binds every board and the pictures of the entry screen that open them.
void wire_pickers(Workstation& ws);

// The present weather board.
void FrmFeali_load(Workstation& ws);
void P_click(Workstation& ws, int ww);
void CmbVC_click(Workstation& ws);
void FrmFeali_Command1_click(Workstation& ws);

// The past-hour board.
void FrmGozashteh_P_click(Workstation& ws, int ww);

// The W1 and W2 boards (board 1 or 2).
void w_click(Workstation& ws, int board, int n);
// Image9: the W2 board, refused before W1 is chosen.
void open_w2_board(Workstation& ws);
// 7WWw1W2 from the SYNOP present weather and the two past weathers.
void rebuild_weather_group(Workstation& ws);

// The sky letter boards: the opening rule, a choice, the keyboard box.
void open_sky_board(Workstation& ws, SkyBoard& board, std::function<void(Workstation&)> on_close = {});
void sky_letter_click(Workstation& ws, SkyBoard& board, const std::string& letter);
void sky_Text1_key_up(Workstation& ws, SkyBoard& board);

// The state of ground board: index 0 to 9 are e0 to e9, 10 to 19 s0 to s9.
void ground_click(Workstation& ws, int index);
void FrmZamin_Text1_key_up(Workstation& ws);

// The iR iX board.
void TXTIR_change(Workstation& ws);
void Text48_change(Workstation& ws);
void TXTIX_change(Workstation& ws);
void FrmIRIX_Combo1_change(Workstation& ws);
void FrmIRIX_Combo3_change(Workstation& ws);

// The hint beside a board's picture: shown with the text of the code while the
// pointer is over the picture, hidden when it leaves.
void bind_hint(Control& picture, std::string text);

void wire_present_weather(Workstation& ws);
void wire_past_hour(Workstation& ws);
void wire_past_weather(Workstation& ws);
void wire_sky_letters(Workstation& ws);
void wire_ground(Workstation& ws);
void wire_irix(Workstation& ws);
void wire_entry_images(Workstation& ws);

// The pictures of the entry screen.
void Image1_click(Workstation& ws);
void Image10_click(Workstation& ws);
void Image8_click(Workstation& ws);
void Image4_click(Workstation& ws);
void Image7_click(Workstation& ws);
void Image2_click(Workstation& ws);
void Image9_click(Workstation& ws);
void Image3_click(Workstation& ws);
// A double click: the sky letters for the picture's box.
void sky_for_picture(Workstation& ws, int select, const char* tww);

}  // namespace obsdesk
