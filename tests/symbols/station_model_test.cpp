// The coded SYNOP read back and laid out as the centre plots it.
#include <gtest/gtest.h>

#include <string>
#include <algorithm>
#include <cmath>
#include <fstream>
#include <random>
#include <vector>

#include "symbols/station_model.h"
#include "symbols/synop_reader.h"
#include "symbols/xml_check.h"

namespace obsdesk {
namespace {

// The report of the SYNOP coder's worked example.
constexpr const char* kWorked = "32558 52404 10254 20121 30125 40150 53012 60001 83100 333=";

TEST(SynopReader, ReadsTheGroupsBackKeepingNotObservedApartFromMalformed) {
  struct Case {
    std::string text;
    std::string what;  // the value looked at, as "name=value"
    std::vector<std::string> odd;
  };
  auto value = [](const SynopReading& r, const std::string& name) -> std::string {
    auto i = [](const std::optional<int>& v) { return v ? std::to_string(*v) : std::string("-"); };
    auto d = [](const std::optional<double>& v) {
      if (!v) return std::string("-");
      std::string s = std::to_string(std::lround(*v * 10));
      return s;  // tenths
    };
    if (name == "h") return i(r.h);
    if (name == "VV") return i(r.VV);
    if (name == "N") return i(r.N);
    if (name == "dd") return i(r.dd);
    if (name == "ff") return i(r.ff);
    if (name == "knots") return r.wind_in_knots ? "yes" : "no";
    if (name == "TT") return d(r.TT);
    if (name == "TdTd") return d(r.TdTd);
    if (name == "P0") return d(r.P0);
    if (name == "P") return d(r.P);
    if (name == "a") return i(r.a);
    if (name == "ppp") return d(r.ppp);
    if (name == "RRR") return i(r.RRR);
    if (name == "tR") return i(r.tR);
    if (name == "ww") return i(r.ww) + "," + i(r.W1) + "," + i(r.W2);
    if (name == "clouds") return i(r.Nh) + "," + i(r.CL) + "," + i(r.CM) + "," + i(r.CH);
    return "?";
  };
  const Case cases[] = {
      {kWorked, "h=5", {}},
      {kWorked, "VV=58", {}},
      {kWorked, "dd=240", {}},
      {kWorked, "ff=4", {}},
      {kWorked, "TT=254", {}},
      {kWorked, "TdTd=121", {}},
      {kWorked, "P0=10125", {}},
      {kWorked, "P=10150", {}},
      {kWorked, "ppp=12", {}},
      {kWorked, "clouds=3,1,0,0", {}},
      {kWorked, "RRR=0", {}},
      // Below zero, below 1000 hPa, and the heading of section 0 with knots.
      {"AAXX 24124 40754 11462 81865 11052 21051 39950 40180 57025=", "TT=-52", {}},
      {"AAXX 24124 40754 11462 81865 11052 21051 39950 40180 57025=", "P0=9950", {}},
      {"AAXX 24124 40754 11462 81865 11052=", "knots=yes", {}},
      {"32558 52404 10254=", "knots=no", {}},
      // A speed of 99 units or more in the 00fff group.
      {"32558 52799 00105 10254=", "ff=105", {}},
      // "/" is not observed: empty, and not a fault of the group.
      {"32/// /2404 1//// 7//3/ 8/1//=", "VV=-", {}},
      {"32/// /2404 1//// 7//3/ 8/1//=", "N=-", {}},
      {"32/// /2404 1//// 7//3/ 8/1//=", "TT=-", {}},
      {"32/// /2404 1//// 7//3/ 8/1//=", "ww=-,3,-", {}},
      {"32/// /2404 1//// 7//3/ 8/1//=", "clouds=-,1,-,-", {}},
      // Malformed groups are named, their values left empty, the rest read.
      {"32558 52404 10x54 20121=", "TT=-", {"group 10x54: not a temperature"}},
      {"32558 52404 1025 20121=", "TdTd=121", {"group 1025: not five figures"}},
      {"32558 52404 12254 20121=", "TT=-", {"group 12254: not a temperature"}},
      {"32558 52404 20121 10254=", "TT=-", {"group 10254: out of place in section 1"}},
      {"32558 52404 59012=", "a=-", {"group 59012: not a tendency"}},
      {"32558 52404 1/2/4=", "TT=-", {"group 1/2/4: not a temperature"}},
      // The humidity group 29UUU is no dew point.
      {"32558 52404 10254 29085=", "TdTd=-", {}},
      // Precipitation from section 3 when section 1 has none.
      {"22558 52404 10254 333 60052=", "RRR=5", {}},
      {"12558 52404 10254 60101 333 60052=", "RRR=10", {}},
      {"", "N=-", {}},
      {"=", "N=-", {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    const SynopReading r = read_synop(c.text);
    const auto eq = c.what.find('=');
    EXPECT_EQ(c.what.substr(0, eq) + "=" + value(r, c.what.substr(0, eq)), c.what);
    EXPECT_EQ(r.odd, c.odd);
  }
}

TEST(StationModel, TheWorkedExampleIsPlacedAsTheCentrePlotsIt) {
  const StationModel m = station_model(kWorked);
  std::vector<std::string> got;
  for (const PlotElement& e : m.elements) got.push_back(e.element + " @ " + e.place + " = " + e.text);
  const std::vector<std::string> want = {
      "N @ centre = N5",         // five octas in the circle
      "TT @ upper left = 25",    // 25.4 in whole degrees
      "PPP @ upper right = 150", // QFF 1015.0: the last three figures in tenths
      "VV @ far left = 58",
      "ppp @ right = +12",       // rising (a = 3) by 1.2 hPa
      "a @ far right = a3",
      "TdTd @ lower left = 12",
      "CL @ below = CL1",
      "Nh @ below right = 3",
      "h @ bottom = 5",
      "RRR @ bottom right = 0",
      "tR @ bottom right = 1",
      "wind @ shaft = 240/10",   // 4 m/s is 7.8 knots: one full barb
  };
  EXPECT_EQ(got, want);

  // The places hold their sides of the circle.
  for (const PlotElement& e : m.elements) {
    SCOPED_TRACE(e.element);
    const auto has = [&](const char* w) { return e.place.find(w) != std::string::npos; };
    if (has("left")) {
      EXPECT_LT(e.x, 0);
    }
    if (has("right")) {
      EXPECT_GT(e.x, 0);
    }
    if (has("upper") || e.place == "above" || e.place == "top") {
      EXPECT_LT(e.y, 0);
    }
    if (has("lower") || e.place == "below" || e.place == "bottom") {
      EXPECT_GT(e.y, 0);
    }
  }
}

// The reports the SYNOP coder's tests hold, section 0 in front, plot without a
// group the reader cannot read: the reader and the coder agree on every group.
TEST(StationModel, TheCodersReportsPlotWhole) {
  struct Case {
    std::string file;
    std::vector<std::string> want;
  };
  const Case cases[] = {
      {"worked-example-12utc.txt",
       {"N=N5", "TT=25", "PPP=150", "VV=58", "ppp=+12", "a=a3", "TdTd=12", "CL=CL1", "Nh=3", "h=5", "RRR=0", "tR=1",
        "wind=240/10"}},
      {"full-06utc.txt",
       {"N=N7", "CH=CH1", "CM=CM3", "TT=8", "PPP=187", "VV=62", "ww=ww80", "ppp=+08", "a=a2", "TdTd=-2", "CL=CL9",
        "Nh=5", "W1=W8", "h=5", "RRR=3", "tR=1", "wind=270/10"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.file);
    std::ifstream in(std::string(OBSDESK_SOURCE_DIR) + "/tests/data/synop/" + c.file);
    ASSERT_TRUE(in);
    std::string report;
    std::getline(in, report);
    const StationModel m = station_model(report);
    EXPECT_EQ(m.odd, std::vector<std::string>{});
    std::vector<std::string> got;
    for (const PlotElement& e : m.elements) got.push_back(e.element + "=" + e.text);
    EXPECT_EQ(got, c.want);
  }
}

TEST(StationModel, WindWeatherAndCloudsFollowThePlottingRules) {
  struct Case {
    std::string text;
    std::vector<std::string> want;  // elements beside the circle, "element=text"
  };
  const Case cases[] = {
      // Speeds in m/s become knots rounded to 5: 1 m/s is no barb, 2 m/s a half barb.
      {"32558 50901=", {"N=N5", "VV=58", "h=5", "wind=90/0"}},
      {"32558 50902=", {"N=N5", "VV=58", "h=5", "wind=90/5"}},
      {"32558 53626=", {"N=N5", "VV=58", "h=5", "wind=360/50"}},
      // Knots stay knots.
      {"AAXX 24124 40754 32558 53626=", {"N=N5", "VV=58", "h=5", "wind=360/25"}},
      {"32558 50000=", {"N=N5", "VV=58", "h=5", "wind=0"}},  // calm
      {"32558 59905=", {"N=N5", "VV=58", "h=5"}},           // variable: no shaft
      // ww 00 to 03 and W 0 to 2 are not plotted; the others are, as symbols.
      {"32558 8//// 70212=", {"N=N8", "VV=58", "h=5"}},
      {"32558 8//// 76362=", {"N=N8", "ww=ww63", "W1=W6", "VV=58", "h=5"}},
      // Cloud type 0 is no cloud: nothing above or below the circle.
      {"32558 8//// 88079=", {"N=N8", "CH=CH9", "CM=CM7", "Nh=8", "VV=58", "h=5"}},
      // Falling pressure: a minus sign; steady (a = 4): no sign; a trace of rain.
      {"32558 /1111 57005 69906=", {"N=N/", "a=a7", "ppp=-05", "RRR=TR", "tR=6", "VV=58", "h=5", "wind=110/20"}},
      {"32558 /1111 54000 69956=", {"N=N/", "a=a4", "ppp=00", "RRR=0.5", "tR=6", "VV=58", "h=5", "wind=110/20"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    std::vector<std::string> got;
    for (const PlotElement& e : station_model(c.text).elements) got.push_back(e.element + "=" + e.text);
    std::sort(got.begin(), got.end());
    std::vector<std::string> want = c.want;
    std::sort(want.begin(), want.end());
    EXPECT_EQ(got, want);
  }
}

TEST(StationModel, AnyTextGivesAWellFormedPicture) {
  for (const char* text : {kWorked, "", "=", "AAXX", "<&>\" 1<254", "32558 52404 10x54 2012& 3<125=",
                           "32558 59999 00999 11999 21999 39999 49999 58999 69999 79999 89999 333 69999=",
                           "AAXX 24124 40754 11462 81865 11052 21051 39950 40180 57025 60042 76162 88471 333=",
                           "32558 50201 50202 50203 50204"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(xml_problem(station_model_svg(text)), "");
  }
  // Texts of report figures, slashes, blanks and letters in any order: the
  // reader never fails, and the picture stays well-formed.
  std::mt19937 rng(22);
  const std::string alphabet = "0123456789/////     =AX9";
  for (int n = 0; n < 3000; ++n) {
    std::string text = n % 3 == 0 ? "AAXX " : "";
    const int length = int(rng() % 90);
    for (int i = 0; i < length; ++i) text += alphabet[rng() % alphabet.size()];
    const std::string svg = station_model_svg(text);
    ASSERT_EQ(xml_problem(svg), "") << text;
  }
  // A group the reader could not read is shown under the model.
  EXPECT_NE(station_model_svg("32558 52404 10x54=").find("group 10x54: not a temperature"), std::string::npos);
}

}  // namespace
}  // namespace obsdesk
