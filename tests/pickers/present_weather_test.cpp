// The present weather board: every code on each of its three boxes under an
// observation that lets it through, then each test and gate on its own, and the
// rows of its table that look like slips.
#include <gtest/gtest.h>

#include <string>

#include "screens/handoffs.h"
#include "core/textnum.h"
#include "screens/weather_tables.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

struct Observation {
  std::string n = "5", rh = "90", ff = "20", vis = "3000", vm;
  std::string low1 = "CB     9", low2 = "ST,FS  6", low3 = "SC     4", middle = "AS     2";
};

// The boxes are written straight, so that no entry rule of the screen runs.
void observe(Desk& ws, const Observation& o) {
  FrmKashf& k = ws.FrmKashf;
  k.Text5.text = o.n;
  k.Text31.text = o.rh;
  k.Text3.text = o.ff;
  k.Text4.text = o.vis;
  k.TxtVM.text = o.vm;
  k.Combo1.text = o.low1;
  k.Combo2.text = o.low2;
  k.Combo3.text = o.low3;
  k.Combo6.text = o.middle;
}

// An observation that every test before the code passes.
Observation permissive(int ww) {
  Observation o;
  for (const BeforeTest& b : present_weather_table()[ww].before) {
    if (b.check == Check::CloudObscured) o.n = "9";
    if (b.check == Check::HumidityAtMost80) o.rh = "50";
    if (b.check == Check::HumidityAtLeast95) o.rh = "97";
    if (b.check == Check::VisBelow1000) o.vis = "500";
  }
  return o;
}

void clear_boxes(Desk& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  for (Control* c : Controls{&b.TXTWW1, &b.TXTWW3, &b.TXTWW4, &ws.FrmKashf.Image1, &ws.FrmKashf.Image10,
                             &ws.FrmKashf.Image8, &ws.FrmCode.Text4, &ws.FrmCode.Text47})
    c->text.clear();
  ws.take_messages();
}

// Opens the board for a box, as the picture does, and clicks one code.
void pick(Desk& ws, int select, int ww) {
  ws.WeatherBoxSelect = select;
  ws.show(ws.FrmFeali);
  ws.click(*ws.FrmFeali.buttons.P[ww]);
}

std::string two(int ww) { return std::string(present_weather_picture(ww).substr(2)); }

TEST(PresentWeather, EveryCodeWritesItsRowOnEachBox) {
  test::Station s;
  Desk& ws = s.start();
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  FrmKashf& k = ws.FrmKashf;
  for (int ww = 0; ww < 100; ++ww) {
    const PresentWeather& row = present_weather_table()[ww];
    const std::string pic = "ww" + two(ww);
    observe(ws, permissive(ww));

    clear_boxes(ws);
    pick(ws, 1, ww);
    EXPECT_FALSE(ws.FrmFeali.visible) << ww;
    EXPECT_EQ(b.TXTWW4.text, ww == 80 ? "" : two(ww));
    EXPECT_EQ(k.Image1.text, pic);
    EXPECT_TRUE(ws.take_messages().empty()) << ww;

    clear_boxes(ws);
    pick(ws, 10, ww);
    if (row.metar.empty()) {
      EXPECT_TRUE(ws.FrmFeali.visible) << ww;
      EXPECT_EQ(ws.take_messages(), std::vector<std::string>{"FrmERR: " + std::string(kNoMetarPresent)}) << ww;
      EXPECT_EQ(k.Image10.text, "") << ww;
      ws.unload(ws.FrmFeali);
    } else {
      EXPECT_FALSE(ws.FrmFeali.visible) << ww;
      EXPECT_EQ(b.TXTWW1.text, row.metar) << ww;
      EXPECT_EQ(ws.FrmCode.Text4.text, row.metar) << ww;
      EXPECT_EQ(k.Image10.text, pic) << ww;
    }

    clear_boxes(ws);
    pick(ws, 8, ww);
    if (ww == 27) {
      EXPECT_FALSE(ws.FrmFeali.visible);  // no refusal of its own: closed, nothing written
      EXPECT_EQ(k.Image8.text, "");
    } else if (row.recent.empty()) {
      EXPECT_TRUE(ws.FrmFeali.visible) << ww;
      const std::string_view words = ww == 0 || ww == 13 ? kNoMetarPast : kNoMetarPresent;
      EXPECT_EQ(ws.take_messages(), std::vector<std::string>{"FrmERR: " + std::string(words)}) << ww;
      ws.unload(ws.FrmFeali);
    } else {
      const bool in_metar_box = ww >= 4 && ww <= 9;
      EXPECT_EQ((in_metar_box ? b.TXTWW1 : b.TXTWW3).text, row.recent) << ww;
      EXPECT_EQ((in_metar_box ? b.TXTWW3 : b.TXTWW1).text, "") << ww;
      EXPECT_EQ(ws.FrmCode.Text47.text, row.recent) << ww;
      EXPECT_EQ(k.Image8.text, pic) << ww;
    }
  }
  EXPECT_EQ(present_weather_code(ws), 99);
}

TEST(PresentWeather, KeptTextsOfSomeCodes) {
  test::Station s;
  Desk& ws = s.start();
  observe(ws, Observation{});
  pick(ws, 1, 80);
  EXPECT_EQ(ws.FrmDisplayKashf.TXTWW4.text, "");
  EXPECT_EQ(ws.FrmFeali.MetarText, "-SHRA");
  EXPECT_EQ(present_weather_code(ws), 80);
  pick(ws, 10, 59);
  EXPECT_EQ(ws.FrmDisplayKashf.TXTWW1.text, "RA");
  pick(ws, 8, 59);
  EXPECT_EQ(ws.FrmDisplayKashf.TXTWW3.text, "RERA");
  EXPECT_EQ(present_weather_code(ws), 59);
}

TEST(PresentWeather, EachTestRefusesWithItsWords) {
  struct Case {
    int ww;
    void (*spoil)(Observation&);
    std::string_view words;
  };
  const Case cases[] = {
      {3, [](Observation& o) { o.n = "0"; }, "      مقدار ابر نبايد صفر باشد     "},
      {43, [](Observation& o) { o.n = "8"; o.rh = "97"; o.vis = "500"; }, "      مقدار ابر بايد نه باشد     "},
      {42, [](Observation& o) { o.n = "9"; o.rh = "97"; o.vis = "500"; }, "      مقدار ابر نبايد نه باشد     "},
      {5, [](Observation& o) { o.rh = "81"; }, "      رطوبت نسبي بيشتر از 80% ميباشد       "},
      {10, [](Observation& o) { o.rh = "79"; }, "      رطوبت نسبي كمتر از 80% ميباشد       "},
      {10, [](Observation& o) { o.vis = "999"; }, "      ديد افقي كمتر 1000 متر يا بيشتر از 10000 مترميباشد     "},
      {10, [](Observation& o) { o.vis = "10001"; }, "      ديد افقي كمتر 1000 متر يا بيشتر از 10000 مترميباشد     "},
      {40, [](Observation& o) { o.rh = "94"; }, "      رطوبت نسبي كمتر از 95% ميباشد       "},
      {18, [](Observation& o) { o.ff = "7"; }, "        سرعت باد كمتر از 8 متر بر ثانيه  ميباشد        "},
      {30, [](Observation& o) { o.ff = "15"; }, "        سرعت باد كمتر از 30 گره  ميباشد        "},
      {30, [](Observation& o) { o.vis = "1000"; }, "      ديد افقي بيشتر از 1000 متر ميباشد     "},
      {28, [](Observation& o) { o.vis = "999"; }, "      ديد افقي بيشتر از 1000 متر ميباشد     "},
      {41, [](Observation& o) { o.rh = "97"; o.vis = "1000"; }, "      ديد افقي مساوي ويابيشتر از 1000 متر ميباشد     "},
      {52, [](Observation& o) { o.vis = "4001"; }, "      ديد افقي بايد كمتر از  4000  متر ميباشد     "},
      {55, [](Observation& o) { o.vis = "1000"; }, "      ديد افقي بايد كمتر از 1000 متر ميباشد     "},
      {57, [](Observation& o) { o.vis = "4000"; }, "      ديد افقي بايد كمتر از 4000 متر و يا 4000 متر باشد     "},
      {72, [](Observation& o) { o.vis = "999"; }, "      ديد افقي بايد بيشتر از  1000 متر ميباشد     "},
      {86, [](Observation& o) { o.vis = "4001"; }, "      ديد افقي بايد 4000 متر  و يا كمتر ميباشد     "},
      // The minimum visibility, when typed, stands for the visibility.
      {11, [](Observation& o) { o.vis = "500"; o.vm = "1200"; }, "      ديد افقي بيشتر از 1000 متر ميباشد     "},
      // The cloud gates.
      {17, [](Observation& o) { o.low1 = "CU     1"; }, kCloudMismatch},
      {50, [](Observation& o) { o.low2 = "CU     1"; o.low1 = "CU     1"; o.low3 = "ST,FS  6"; }, kCloudMismatch},
      {60, [](Observation& o) { o.low3 = "CU     1"; o.middle = "AS     1"; }, kCloudMismatch},
      {79, [](Observation& o) { o.low1 = "CB     3"; o.middle = "AC     3"; }, kCloudMismatch},
      // No question for these under an obscured sky.
      {66, [](Observation& o) { o.n = "9"; o.low3 = "CU     1"; o.middle = "AS     1"; }, kCloudMismatch},
      {95, [](Observation& o) { o.n = "9"; o.low1 = "CU     1"; }, kCloudMismatch},
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = s.start();
    Observation o;
    c.spoil(o);
    observe(ws, o);
    ws.take_messages();
    pick(ws, 1, c.ww);
    EXPECT_EQ(ws.take_messages(), std::vector<std::string>{"FrmERR: " + std::string(c.words)}) << c.ww;
    EXPECT_TRUE(ws.FrmFeali.visible) << c.ww;
    EXPECT_EQ(ws.FrmDisplayKashf.TXTWW4.text, "") << c.ww;
    EXPECT_EQ(present_weather_code(ws), -1) << c.ww;
  }
}

TEST(PresentWeather, AnObscuredSkyAsksForTheCloudItCannotSee) {
  for (bool yes : {true, false}) {
    test::Station s;
    Desk& ws = s.start();
    Observation o;
    o.n = "9";
    o.low1 = o.low2 = o.low3 = "       0";
    o.middle = "       0";
    observe(ws, o);
    s.asker.queue(yes);
    pick(ws, 10, 63);
    const auto msgs = ws.take_messages();
    ASSERT_EQ(msgs.size(), 1u);
    EXPECT_EQ(msgs[0], "? " + std::string(kConfirmPhenomenon) + (yes ? " -> yes" : " -> no"));
    EXPECT_EQ(ws.FrmDisplayKashf.TXTWW1.text, yes ? "RA" : "");
    EXPECT_EQ(ws.FrmFeali.visible, !yes);
  }
}

TEST(PresentWeather, VisibilityMarks) {
  test::Station s;
  Desk& ws = s.start();
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  Observation o;
  o.vis = "8000";
  observe(ws, o);
  // M5: the METAR box takes haze in any case, the panel only up to 5000 m.
  pick(ws, 10, 4);
  EXPECT_EQ(b.TXTWW1.text, "FU");
  EXPECT_EQ(ws.FrmCode.Text4.text, "");
  EXPECT_EQ(ws.FrmKashf.Image10.text, "ww04");
  // M5 on the recent place: refused above 5000 m.
  clear_boxes(ws);
  pick(ws, 8, 7);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{"FrmERR: " + std::string(kRecentAbove5000)});
  EXPECT_TRUE(ws.FrmFeali.visible);
  ws.unload(ws.FrmFeali);
  // M5m: mist is kept out of both METAR places above 5000 m; the board closes.
  o.rh = "85";
  observe(ws, o);
  pick(ws, 10, 10);
  EXPECT_FALSE(ws.FrmFeali.visible);
  EXPECT_EQ(b.TXTWW1.text, "");
  EXPECT_EQ(ws.FrmKashf.Image10.text, "");
  pick(ws, 8, 10);
  EXPECT_EQ(b.TXTWW3.text, "");
  EXPECT_TRUE(ws.take_messages().empty());
  // Haze, dust and mist take back the METAR present box first, on any box.
  b.TXTWW1.text = "RA";
  ws.FrmCode.Text4.text = "RA";
  o.rh = "50";
  observe(ws, o);
  pick(ws, 1, 5);
  EXPECT_EQ(b.TXTWW1.text, "");
  EXPECT_EQ(ws.FrmCode.Text4.text, "");
  EXPECT_EQ(b.TXTWW4.text, "05");
}

TEST(PresentWeather, TheHintNamesBothCodes) {
  test::Station s;
  Desk& ws = s.start();
  ws.WeatherBoxSelect = 1;
  ws.show(ws.FrmFeali);
  ws.click(*ws.FrmFeali.buttons.P[63]);  // the pointer passes over it first; no cloud: refused
  EXPECT_EQ(ws.FrmTooltip.Lab1.text, "METAR CODE RA   SYNOP CODE 63");
  EXPECT_TRUE(ws.FrmTooltip.visible);
  ws.click(*ws.FrmFeali.buttons.P[2]);
  EXPECT_EQ(ws.FrmTooltip.Lab1.text, "METAR CODE    SYNOP CODE 02");
  EXPECT_FALSE(ws.FrmTooltip.visible);  // hidden with the board
}

TEST(PresentWeather, CancelAndVicinity) {
  test::Station s;
  Desk& ws = s.start();
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  ws.FrmDisplayKashf.TXTWW3.text = "RA";
  p.Text47.text = "RA";
  ws.WeatherBoxSelect = 8;
  ws.show(ws.FrmFeali);
  ws.click(ws.FrmFeali.Command1);
  EXPECT_FALSE(ws.FrmFeali.visible);
  EXPECT_FALSE(k.Image8.visible);
  EXPECT_TRUE(k.Image4.visible);
  EXPECT_EQ(ws.FrmDisplayKashf.TXTWW3.text, "");
  EXPECT_EQ(p.Text47.text, "");

  ws.WeatherBoxSelect = 10;
  ws.show(ws.FrmFeali);
  EXPECT_EQ(ws.FrmFeali.CmbVC.text, std::string(kVicinityHead));
  k.Text4.text = "5000";
  ws.choose(ws.FrmFeali.CmbVC, "VCSH");
  EXPECT_TRUE(k.LabVC.visible);
  EXPECT_EQ(k.LabVC.text, "VCSH");
  EXPECT_EQ(ws.FrmDisplayKashf.TXTWW1.text, "VCSH");
  EXPECT_EQ(p.Text4.text, "VCSH");
  EXPECT_EQ(p.Text47.text, "VCSH");
  EXPECT_FALSE(ws.FrmFeali.VicinityMark);
  k.Text4.text = "8000";
  ws.choose(ws.FrmFeali.CmbVC, "VCFG");
  EXPECT_TRUE(ws.FrmFeali.VicinityMark);
  EXPECT_EQ(ws.take_messages().back(), "FrmERR: " + std::string(kVicinityAbove8000));
  EXPECT_EQ(p.Text4.text, "");
  EXPECT_EQ(p.Text47.text, "");
  ws.choose(ws.FrmFeali.CmbVC, "None");
  EXPECT_FALSE(k.LabVC.visible);
  EXPECT_FALSE(ws.FrmFeali.visible);
}

// The rows whose texts look like slips are kept as they are, and every row has
// the shape the board relies on.
TEST(PresentWeather, TableRowsKeepTheirTexts) {
  const auto& t = present_weather_table();
  ASSERT_EQ(t.size(), 100u);
  struct Row {
    int ww;
    std::string_view synop, metar, recent;
    Gate gate;
    bool ask;
  };
  const Row rows[] = {
      {0, "00", "", "", Gate::None, false},       {50, "50", "-DZ", "-DZ", Gate::ST, true},
      {69, "69", "SNRA", "+SNRA", Gate::NS, false}, {76, "76", "", "", Gate::NS, true},
      {79, "79", "PE", "PE", Gate::PE, false},    {88, "88", "GR", "+GR", Gate::CB, false},
      {99, "99", "+TSGR", "+TSGR", Gate::CB, false},
  };
  for (const Row& r : rows) {
    const PresentWeather& p = t[r.ww];
    EXPECT_EQ(p.synop, r.synop) << r.ww;
    EXPECT_EQ(p.metar, r.metar) << r.ww;
    EXPECT_EQ(p.recent, r.recent) << r.ww;
    EXPECT_EQ(p.gate, r.gate) << r.ww;
    EXPECT_EQ(p.ask, r.ask) << r.ww;
  }
  // Every code but 80 writes its own two figures; only 04 to 09 send the recent
  // place to the METAR box; only a gated code may ask.
  for (int ww = 0; ww < 100; ++ww) {
    const PresentWeather& p = t[ww];
    if (ww != 80) {
      EXPECT_EQ(std::stoi(std::string(p.synop)), ww);
    }
    EXPECT_EQ(p.recent_in_metar_box, ww >= 4 && ww <= 9) << ww;
    if (p.ask) {
      EXPECT_NE(p.gate, Gate::None) << ww;
    }
    for (const BeforeTest& b : p.before) EXPECT_FALSE(b.message.empty()) << ww;
  }
  EXPECT_EQ(t[8].mark, Mark::None);  // 04, 07 and 10 carry theirs
}

}  // namespace
}  // namespace obsdesk
