// The smaller boards: the weather of the past hour, W1 and W2, the sky letters,
// the state of the ground and iR iX, and the pictures of the entry screen that
// open them.
#include <gtest/gtest.h>

#include <string>

#include "screens/record.h"
#include "screens/handoffs.h"
#include "screens/board_tables.h"
#include "pickers/pickers.h"
#include "screens/weather_tables.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

std::string panel_error(std::string_view words) { return "FrmERR: " + std::string(words); }

TEST(PastHourWeather, WritesTheBoxAndTheUnblockedPanel) {
  struct Case {
    int ww;
    std::string present;  // METAR present weather already chosen
    std::string box, panel;
    bool open;
  };
  const Case cases[] = {
      {62, "SN", "RERA", "RERA", false},  // only rain still falling keeps the panel
      {73, "+SN", "RESN", "old", false},   // heavy or light snow keeps it for 72 to 75
      {75, "SN", "RESN", "RESN", false},   // plain snow does not
      {40, "", "BCFG", "old", false},    // no recent group for fog banks
      {48, "", "FZFFG", "old", false},
      {0, "", "***", "old", false},
      {9, "", "", "old", false},  // written as nothing at all
      {99, "TSGR", "RETSGR", "RETSSA", false},  // the block list of 98
      {99, "TSSA", "RETSGR", "old", false},
      {28, "", "", "old", true},  // refused, board stays
      {78, "", "", "old", true},  // does nothing
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = s.start();
    ws.FrmDisplayKashf.TXTWW1.text = c.present;
    ws.FrmCode.Text2.text = "old";
    ws.WeatherBoxSelect = 7;
    ws.show(ws.FrmGozashteh);
    ws.take_messages();
    ws.click(*ws.FrmGozashteh.buttons.P[c.ww]);
    EXPECT_EQ(ws.FrmDisplayKashf.TXTWW2.text, c.box) << c.ww;
    EXPECT_EQ(ws.FrmCode.Text2.text, c.panel) << c.ww;
    EXPECT_EQ(ws.FrmGozashteh.visible, c.open) << c.ww;
    EXPECT_EQ(ws.FrmKashf.Image7.text, c.open ? "" : "ww" + std::string(present_weather_picture(c.ww).substr(2)));
    const auto msgs = ws.take_messages();
    if (c.ww == 28) {
      EXPECT_EQ(msgs, std::vector<std::string>{panel_error(kNoMetarPastHour)});
    } else {
      EXPECT_TRUE(msgs.empty()) << c.ww;
    }
  }
}

TEST(PastWeather, W2MayNotOutrankW1AndTheGroupFollows) {
  struct Case {
    int w1, w2;
    bool taken;
  };
  const Case cases[] = {{3, 3, true}, {3, 0, true}, {9, 9, true}, {0, 1, false}};
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = s.open_entry();
    FrmKashf& k = ws.FrmKashf;
    ws.FrmDisplayKashf.TXTWW4.text = "63";
    k.Frame17.visible = true;
    ws.click(k.Image9);  // before W1: refused
    EXPECT_EQ(ws.take_messages().back(), panel_error("     هواي گذشته قبلي انتخاب نشده است  "));
    EXPECT_FALSE(ws.FrmGozashteh2.visible);
    ws.click(k.Image2);
    ASSERT_TRUE(ws.Frmgozashteh1.visible);
    ws.click(ws.Frmgozashteh1.button(c.w1));
    EXPECT_FALSE(ws.Frmgozashteh1.visible);
    EXPECT_EQ(k.Image2.text, "W" + std::to_string(c.w1));
    EXPECT_EQ(ws.FrmCode.Text85.text, "763" + std::to_string(c.w1));
    ws.click(k.Image9);
    ASSERT_TRUE(ws.FrmGozashteh2.visible);
    ws.take_messages();
    ws.click(ws.FrmGozashteh2.button(c.w2));
    const std::string w1 = std::to_string(c.w1), w2 = std::to_string(c.w2);
    if (c.taken) {
      EXPECT_FALSE(ws.FrmGozashteh2.visible);
      EXPECT_EQ(ws.FrmDisplayKashf.TXTWW6.text, w2);
      EXPECT_EQ(ws.FrmCode.Text85.text, "763" + w1 + w2);
    } else {
      EXPECT_EQ(ws.take_messages(),
                std::vector<std::string>{panel_error(" از نظر اهميت مورد انتخاب شده از انتخاب اول بالاتر ميباشد  ")});
      EXPECT_TRUE(ws.FrmGozashteh2.visible);
      EXPECT_EQ(ws.FrmCode.Text85.text, "763" + w1);
    }
    // A click on the filled W1 picture empties it and the group.
    if (ws.FrmGozashteh2.visible) ws.click(ws.FrmGozashteh2.Command1);
    ws.click(k.Image2);
    EXPECT_EQ(k.Image2.text, "");
    EXPECT_EQ(ws.FrmDisplayKashf.TXTWW5.text, "");
    EXPECT_FALSE(ws.Frmgozashteh1.visible);
  }
}

std::string open_letters(const SkyBoard& board) {
  std::string out;
  for (const auto& b : board.letters)
    if (b->enabled) out += (out.empty() ? "" : " ") + b->name;
  return out;
}

TEST(SkyLetters, CloudAmountAndSelectorOpenTheButtons) {
  struct Case {
    int select;
    std::string amount;
    bool all_open_before;
    std::string open;  // letters enabled after the opening
  };
  const Case cases[] = {
      {1, "TR", false, "b"}, {1, "0", false, "b"},  {1, "2", false, "b"},   {1, "3", false, "bc"},
      {1, "5", false, "bc"}, {1, "6", false, "c"},  {1, "8", false, "c o"}, {1, "9", false, "b c bc o"},
      {10, "9", false, ""},         // at 10 nothing is opened first: what was shut stays shut
      {10, "4", true, "bc"},        // but the amount still shuts
      {7, "4", false, "b c bc o"},  // any other selector opens every button
      {1, "", false, ""},           // no cloud amount: nothing is done
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = s.start();
    for (auto& b : ws.FrmBCO.letters) b->enabled = c.all_open_before;
    ws.FrmKashf.Text5.text = c.amount;
    ws.WeatherBoxSelect = c.select;
    open_sky_board(ws, ws.FrmBCO);
    EXPECT_TRUE(ws.FrmBCO.visible);
    EXPECT_EQ(open_letters(ws.FrmBCO), c.open) << c.select << " " << c.amount;
  }
  // The same table holds on the "y" board.
  test::Station s;
  Desk& ws = s.start();
  ws.FrmKashf.Text5.text = "8";
  ws.WeatherBoxSelect = 1;
  open_sky_board(ws, ws.FrmBCOY);
  EXPECT_EQ(open_letters(ws.FrmBCOY), "cy oy");
  open_sky_board(ws, ws.FrmBCOBCOY);
  EXPECT_EQ(open_letters(ws.FrmBCOBCOY), "c o cy oy");
}

TEST(SkyLetters, TheLetterGoesToTheBoxOfTheSelector) {
  struct Case {
    int select;
    std::string tww;
    std::string box, image;
  };
  const Case cases[] = {
      {10, "1", "FrmDisplayKashf.TXTWW1", "Image10"}, {7, "", "FrmDisplayKashf.TXTWW2", "Image7"},
      {8, "", "FrmDisplayKashf.TXTWW3", "Image8"},    {1, "1", "FrmDisplayKashf.TXTWW4", "Image1"},
      {0, "2", "FrmDisplayKashf.TXTWW5", "Image2"},   {0, "3", "FrmDisplayKashf.TXTWW6", "Image9"},
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = s.start();
    ws.FrmKashf.Text5.text = "9";
    ws.FrmKashf.TWW.text = c.tww;
    ws.WeatherBoxSelect = c.select;
    ws.FrmCode.Text2.text = "RERA";
    open_sky_board(ws, ws.FrmBCOBCOY);
    ws.click(*ws.FrmBCOBCOY.letter("bcy"));
    EXPECT_FALSE(ws.FrmBCOBCOY.visible);
    EXPECT_EQ(s.at(c.box).text, " bcy") << c.box;
    EXPECT_EQ(s.at(c.image).text, "sky_bcy") << c.image;
    // A sky letter is no METAR group: the recent-weather group stays as it was.
    EXPECT_EQ(ws.FrmCode.Text2.text, "RERA");
  }
  // Nothing to write to: the board just hides.
  test::Station s;
  Desk& ws = s.start();
  ws.WeatherBoxSelect = 0;
  open_sky_board(ws, ws.FrmBCO);
  ws.click(*ws.FrmBCO.letter("o"));
  EXPECT_FALSE(ws.FrmBCO.visible);
  EXPECT_EQ(ws.FrmCode.Text2.text, "");
}

TEST(SkyLetters, KeyboardAndTheRemarksStep) {
  test::Station s;
  Desk& ws = s.start();
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  ws.FrmKashf.Text5.text = "9";
  b.TXTWW3.text = "RA";
  b.TXTWW1.text = "SN";
  open_remarks_pickers(ws);
  EXPECT_EQ(ws.WeatherBoxSelect, 1);
  EXPECT_EQ(ws.FrmKashf.TWW.text, "1");
  ASSERT_TRUE(ws.FrmBCOY.visible);
  EXPECT_EQ(b.TXTWW3.text, "");  // the "y" board clears the recent place
  ws.type(ws.FrmBCOY.Text1, "o");
  EXPECT_EQ(b.TXTWW4.text, " oy");
  EXPECT_FALSE(ws.FrmBCOY.visible);
  ASSERT_TRUE(ws.FrmBCO.visible);  // then the board without "y"
  EXPECT_EQ(b.TXTWW1.text, "");
  ws.type(ws.FrmBCO.Text1, "x");  // no letter of the board
  EXPECT_TRUE(ws.FrmBCO.visible);
  ws.click(ws.FrmBCO.Command1);
  EXPECT_EQ(b.TXTWW4.text, " oy");
  EXPECT_TRUE(ws.FrmFeali.visible);  // and last the present weather board
  // A shut letter is not picked by its key.
  ws.unload(ws.FrmFeali);
  ws.FrmKashf.Text5.text = "2";
  open_sky_board(ws, ws.FrmBCO);
  ws.type(ws.FrmBCO.Text1, "c");
  EXPECT_TRUE(ws.FrmBCO.visible);
  ws.type(ws.FrmBCO.Text1, "b");
  EXPECT_FALSE(ws.FrmBCO.visible);
  EXPECT_EQ(b.TXTWW4.text, " b");
}

TEST(GroundState, ButtonsWriteTheGroupsOfSectionThree) {
  struct Case {
    int index;  // 0..9 e, 10..19 s
    std::string tground;
    std::string text91, text92, text52;
  };
  const Case cases[] = {
      {5, "/", "35///", "     ", "0"},  // the kept slip: the state reads "0" on this branch
      {5, "-3.2", "35103", "     ", "5"},
      {15, "/", "3////", "45012", "5"},
      {19, "-3.2", "3/103", "49012", "9"},
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = s.start();
    ws.FrmKashf.Text68.text = c.tground;
    ws.GroundSign = "1";
    ws.GroundTemp = "03";
    ws.SnowDepth = "012";
    open_ground_picker(ws);
    ASSERT_TRUE(ws.FrmZamin.visible);
    ws.click(*ws.FrmZamin.buttons[c.index]);
    EXPECT_FALSE(ws.FrmZamin.visible);
    EXPECT_EQ(ws.FrmCode.Text91.text, c.text91) << c.index;
    EXPECT_EQ(ws.FrmCode.Text92.text, c.text92) << c.index;
    EXPECT_EQ(ws.FrmDisplayKashf.Text52.text, c.text52) << c.index;
    EXPECT_EQ(ws.GroundCode, std::string(1, char('0' + c.index % 10)));
    EXPECT_EQ(ws.FrmKashf.Image3.text, std::string(ground_state_table()[c.index].picture));
  }
  // A digit typed on the board picks the ground with snow.
  test::Station s;
  Desk& ws = s.start();
  ws.FrmKashf.Text68.text = "/";
  open_ground_picker(ws);
  ws.type(ws.FrmZamin.Text1, "7");
  EXPECT_EQ(ws.FrmKashf.Image3.text, "Ep7");
  EXPECT_EQ(ws.FrmCode.Text91.text, "3////");
  open_ground_picker(ws);
  ws.click(ws.FrmZamin.Command1);
  EXPECT_FALSE(ws.FrmZamin.visible);
  EXPECT_EQ(ws.FrmKashf.Image3.text, "Ep7");
}

TEST(IrIx, TypedAndChosen) {
  test::Station s;
  Desk& ws = s.start();
  FrmIRIX& f = ws.FrmIRIX;
  open_irix_picker(ws, false);
  ASSERT_TRUE(f.visible);
  ws.type(f.TXTIR, "5");
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{panel_error("عــــدد 1  تا 4 وارد گـــردد   ")});
  EXPECT_EQ(f.TXTIR.text, "");
  ws.choose(f.Combo3, ix_texts()[1]);  // iX before iR
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{panel_error("NOTE: مقدار دهي نشده است  IR")});
  EXPECT_EQ(f.TXTIX.text, "");
  EXPECT_TRUE(f.visible);
  ws.type(f.TXTIR, "3");
  EXPECT_EQ(f.Combo1.text, ir_texts()[2]);
  ws.type(f.TXTIX, "7");
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{panel_error("عــــدد 1  تا 6 وارد گـــردد   ")});
  ws.choose(f.Combo3, ix_texts()[1]);
  EXPECT_EQ(f.TXTIX.text, "2");
  EXPECT_EQ(ws.FrmKashf.Text48.text, "32");
  EXPECT_FALSE(f.visible);
  // Typed both, and opened again with iR emptied.
  open_irix_picker(ws, true);
  EXPECT_EQ(f.TXTIR.text, "");
  ws.choose(f.Combo1, ir_texts()[0]);
  EXPECT_EQ(f.TXTIR.text, "1");
  ws.type(f.TXTIX, "4");
  EXPECT_EQ(ws.FrmKashf.Text48.text, "14");
  EXPECT_FALSE(f.visible);
  // The next report gives the same figures: typed or chosen, they still count.
  for (bool by_list : {false, true}) {
    ws.set_text(ws.FrmKashf.Text48, "");
    open_irix_picker(ws, false);
    if (by_list) {
      ws.choose(f.Combo1, ir_texts()[0]);
      ws.choose(f.Combo3, ix_texts()[3]);
    } else {
      ws.type(f.TXTIR, "1");
      ws.type(f.TXTIX, "4");
    }
    EXPECT_EQ(ws.FrmKashf.Text48.text, "14") << by_list;
    EXPECT_FALSE(f.visible) << by_list;
  }
}

TEST(EntryPictures, OpenTheirBoardsAndEmptyWhenFilled) {
  test::Station s;
  Desk& ws = s.open_entry();
  FrmKashf& k = ws.FrmKashf;
  k.Frame12.visible = k.Frame17.visible = true;
  k.Text4.text = "3000";
  k.Text5.text = "5";
  k.Combo3.text = "SC     4";
  ws.click(k.Image10);
  ws.click(*ws.FrmFeali.buttons.P[63]);
  EXPECT_EQ(present_weather_code(ws), 63);
  ws.click(k.Image10);  // filled: emptied, no board
  EXPECT_FALSE(ws.FrmFeali.visible);
  EXPECT_EQ(k.Image10.text, "");
  EXPECT_EQ(ws.FrmDisplayKashf.TXTWW1.text, "");
  EXPECT_EQ(ws.FrmCode.Text4.text, "");
  EXPECT_EQ(present_weather_code(ws), -1);
  ws.click(k.Image1);
  ws.click(*ws.FrmFeali.buttons.P[2]);
  EXPECT_EQ(ws.FrmCode.Text85.text, "     ");
  EXPECT_EQ(present_weather_code(ws), 2);
  ws.click(k.Image7);
  ws.click(*ws.FrmGozashteh.buttons.P[21]);
  EXPECT_EQ(ws.FrmCode.Text2.text, "RERA");
  ws.click(k.Image7);  // emptied with its panel group
  EXPECT_EQ(ws.FrmCode.Text2.text, "");

  // Cancel on the recent place puts it away; Image4 brings it back.
  ws.click(k.Image8);
  ws.click(ws.FrmFeali.Command1);
  EXPECT_FALSE(k.Image8.visible);
  ws.click(k.Image4);
  EXPECT_TRUE(k.Image8.visible);
  EXPECT_FALSE(k.Image4.visible);
  EXPECT_EQ(ws.WeatherBoxSelect, 8);
  EXPECT_TRUE(ws.FrmFeali.visible);
  ws.click(ws.FrmFeali.Command1);

  k.Frame9.visible = true;
  ws.click(k.Image3);
  ASSERT_TRUE(ws.FrmZamin.visible);
  ws.click(*ws.FrmZamin.buttons[2]);
  EXPECT_EQ(ws.FrmDisplayKashf.Text52.text, "2");
  ws.click(k.Image3);
  EXPECT_EQ(ws.FrmDisplayKashf.Text52.text, "");
  EXPECT_EQ(ws.GroundCode, "");
}

TEST(EntryPictures, TheIrIxBoxOpensItsBoard) {
  test::Station s;
  Desk& ws = s.open_entry();
  FrmKashf& k = ws.FrmKashf;
  ws.focus_now(k.Combo5);
  ws.choose(k.Combo5, kSynop);
  ASSERT_TRUE(ws.FrmIRIX.visible);  // the SYNOP kinds open it at once
  ws.click(ws.FrmIRIX.Command1);
  EXPECT_FALSE(ws.FrmIRIX.visible);
  EXPECT_EQ(k.Text48.text, "");
  ws.click(k.Text48);
  ASSERT_TRUE(ws.FrmIRIX.visible);
  ws.type(ws.FrmIRIX.TXTIR, "2");
  ws.type(ws.FrmIRIX.TXTIX, "5");
  EXPECT_EQ(k.Text48.text, "25");
  EXPECT_FALSE(ws.FrmIRIX.visible);
}

TEST(EntryPictures, ADoubleClickOffersTheSkyLetters) {
  const std::pair<const char*, std::string> cases[] = {
      {"Image1", "TXTWW4"}, {"Image2", "TXTWW5"}, {"Image8", "TXTWW3"}, {"Image7", "TXTWW2"},
  };
  for (const auto& [image, box] : cases) {
    test::Station s;
    Desk& ws = s.open_entry();
    FrmKashf& k = ws.FrmKashf;
    k.Frame12.visible = k.Frame17.visible = true;
    k.Text5.text = "9";
    ws.dbl_click(s.at(image));
    EXPECT_FALSE(ws.FrmFeali.visible) << image;
    EXPECT_FALSE(ws.FrmGozashteh.visible) << image;
    EXPECT_FALSE(ws.Frmgozashteh1.visible) << image;
    ASSERT_TRUE(ws.FrmBCOBCOY.visible) << image;
    ws.click(*ws.FrmBCOBCOY.letter("o"));
    EXPECT_EQ(s.at("FrmDisplayKashf." + box).text, " o") << image;
    EXPECT_EQ(s.at(image).text, "sky_o") << image;
  }
}

}  // namespace
}  // namespace obsdesk
