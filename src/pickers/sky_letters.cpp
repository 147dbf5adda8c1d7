// FrmBCO, FrmBCOY, FrmBCOBCOY: the sky letters, chosen instead of a phenomenon
// when the sky itself is the weather. The cloud amount opens the letters of its
// sky; the selector and TWW tell which box the letter goes to.
#include <string>

#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/board_tables.h"
#include "pickers/pickers.h"

namespace obsdesk {

namespace {

const SkyLetter* find_letter(std::string_view button) {
  for (const SkyLetter& s : sky_letter_table())
    if (s.button == button) return &s;
  return nullptr;
}

// The buttons follow the cloud amount. At selector 1 every button is opened
// first; at 10 the amount only shuts, so a button shut at an earlier opening
// stays shut.
void follow_cloud_amount(Desk& ws, SkyBoard& board) {
  const std::string n = trim(ws.FrmKashf.Text5.text);
  if (n.empty()) return;
  const double amount = n == "TR" ? 1 : val(n);
  const int select = ws.WeatherBoxSelect;
  if (select != 10)
    for (auto& b : board.letters) b->enabled = true;
  if (select != 1 && select != 10) return;
  for (auto& b : board.letters)
    if (sky_shut_by_amount(find_letter(b->name)->sky, amount)) b->enabled = false;
}

}  // namespace

void open_sky_board(Desk& ws, SkyBoard& board, std::function<void(Desk&)> on_close) {
  if (&board == &ws.FrmBCO) {
    ws.set(ws.FrmDisplayKashf.TXTWW1, "");
    ws.set(ws.FrmCode.Text4, "");
  } else if (&board == &ws.FrmBCOY) {
    ws.set(ws.FrmDisplayKashf.TXTWW3, "");
    ws.set(ws.FrmCode.Text47, "");
  }
  follow_cloud_amount(ws, board);
  if (on_close)
    ws.show_modal(board, std::move(on_close));
  else
    ws.show(board);
}

void sky_letter_click(Desk& ws, SkyBoard& board, const std::string& letter) {
  const SkyLetter* s = find_letter(letter);
  if (s == nullptr) return;
  FrmKashf& k = ws.FrmKashf;
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  Control* box = nullptr;
  Control* image = nullptr;
  const std::string tww = trim(k.TWW.text);
  switch (ws.WeatherBoxSelect) {
    case 10: box = &b.TXTWW1, image = &k.Image10; break;
    case 7: box = &b.TXTWW2, image = &k.Image7; break;
    case 8: box = &b.TXTWW3, image = &k.Image8; break;
    default:
      if (tww == "1") box = &b.TXTWW4, image = &k.Image1;
      if (tww == "2") box = &b.TXTWW5, image = &k.Image2;
      if (tww == "3") box = &b.TXTWW6, image = &k.Image9;
  }
  if (box != nullptr) {
    ws.set(*box, std::string(s->text));
    ws.set(*image, std::string(s->picture));
    // The letter is no METAR group: it stays on the record and its picture, and
    // never goes into the recent-weather box of the METAR frame.
  }
  ws.hide(ws.FrmTooltip);
  ws.hide(board);
}

// A letter typed in the board's box acts as its button ("o" is the character 111).
void sky_Text1_key_up(Desk& ws, SkyBoard& board) {
  const std::string ch = char_at(board.Text1.text, 1);
  if (ch != "b" && ch != "c" && ch != "o") return;
  const bool y_board = &board == &ws.FrmBCOY;
  Button* button = board.letter(y_board ? ch + "y" : ch);
  if (button != nullptr && button->enabled) sky_letter_click(ws, board, button->name);
}

// The remarks step of a SYNOP kind: the two sky boards, then the present weather
// board, each when the one before has closed.
void open_remarks_pickers(Desk& ws) {
  ws.WeatherBoxSelect = 1;
  ws.set(ws.FrmKashf.TWW, "1");
  open_sky_board(ws, ws.FrmBCOY, [](Desk& w) {
    open_sky_board(w, w.FrmBCO, [](Desk& w2) { w2.show(w2.FrmFeali); });
  });
}

void wire_sky_letters(Desk& ws) {
  SkyBoard* boards[] = {&ws.FrmBCO, &ws.FrmBCOY, &ws.FrmBCOBCOY};
  for (SkyBoard* board : boards) {
    for (auto& b : board->letters) {
      const std::string name = b->name;
      b->on(Event::Click, [board, name](Desk& w) { sky_letter_click(w, *board, name); });
      bind_hint(*b, std::string(find_letter(name)->text));
    }
    board->Text1.on(Event::KeyUp, [board](Desk& w) { sky_Text1_key_up(w, *board); });
    board->Command1.on(Event::Click, [board](Desk& w) { w.hide(*board); });
  }
}

}  // namespace obsdesk
