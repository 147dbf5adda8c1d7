// The text archives: names, the S, G and IT lines, the KASHF record, and the
// files on disk (code page, CR LF, appends, faults).
#include "archive/text_archive.h"

#include <gtest/gtest.h>

#include <map>

#include "core/textnum.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

namespace fs = std::filesystem;


TEST(TextArchive, TheClimatologicalDayOfTheItFile) {
  struct Case {
    const char *y, *m, *d;
    double hour;
    const char *year, *month, *before, *day;
  };
  const Case cases[] = {
      {"2004", "12", "31", 13, "2005", "01", "00", "01"},  // the plain subtraction gives day "00"
      {"2004", "12", "31", 12, "2004", "12", "30", "31"},  // 12 UTC still ends the day
      {"2024", "02", "28", 18, "2024", "02", "28", "29"},  // leap year
      {"2023", "02", "28", 18, "2023", "03", "00", "01"},
      {"2000", "02", "29", 21, "2000", "03", "00", "01"},  // 2000 is a leap year
      {"2024", "03", "09", 15, "2024", "03", "09", "10"},
      {"2024", "03", "05", 6, "2024", "03", "04", "05"},
      {"2024", "03", "01", 0, "2024", "03", "00", "01"},
  };
  for (const Case& c : cases) {
    const ItDay d = it_day(c.y, c.m, c.d, c.hour);
    const std::string where = std::string(c.y) + c.m + c.d + " " + std::to_string(c.hour);
    EXPECT_EQ(d.year, c.year) << where;
    EXPECT_EQ(d.month, c.month) << where;
    EXPECT_EQ(d.day_before, c.before) << where;
    EXPECT_EQ(d.day, c.day) << where;
  }
}

TEST(TextArchive, NamesFollowTheKeyText) {
  const ScdataNames s = scdata_names("VARDOK\\BANK\\OIII", "754", "2403200600");
  EXPECT_EQ(s.day, "VARDOK\\BANK\\OIII\\TEXT\\SCDATA\\S754240320.dat");
  EXPECT_EQ(station_nnn("40754"), "754");
  EXPECT_EQ(station_nnn("407"), "7");
  const std::pair<const char*, const char*> months[] = {
      {"2501050600", "2412"}, {"2403200600", "2402"}, {"0001010600", "-112"}};
  for (const auto& [key, tag] : months) EXPECT_EQ(previous_month_tag(key), tag) << key;
}

TEST(TextArchive, KashfRecordPadsEachFieldButTheVaryingOnes) {
  std::map<std::string, std::string, std::less<>> v = {
      {"Text44", "MEHRABAD AIRPORT  OIII  40754"}, {"TXTSEL", "METAR(30')"}, {"Text1", ""},
      {"CMbMAX", "NE"}, {"CMbMIN", ""}, {"Text2", "270"}, {"TXTNAM", "علي محمدي"}, {"Text74", "دو خط\r\nيادداشت"},
  };
  const std::string r = kashf_record([&](std::string_view box) {
    auto it = v.find(box);
    return it == v.end() ? std::string() : it->second;
  });
  EXPECT_EQ(left(r, 50), pad_right("MEHRABAD AIRPORT  OIII  40754", 50));
  EXPECT_EQ(mid(r, 51, 10), "METAR(30')");
  std::size_t fixed = 0;
  for (const RecordField& f : kashf_record_fields()) fixed += static_cast<std::size_t>(f.width);
  EXPECT_EQ(len(r), fixed + 10 + 2 + 4 + len(v["Text74"]));
  EXPECT_EQ(right(r, 4 + len(v["Text74"])), "NOTE" + v["Text74"]);
  EXPECT_EQ(mid(r, len(r) - 4 - len(v["Text74"]) - 29, 30), pad_right("علي محمدي", 30));
}

TEST(TextArchive, LinesAreInTheCodePageWithCrLf) {
  EXPECT_EQ(line_bytes("2407542403200612570"), "2407542403200612570\r\n");
  EXPECT_EQ(line_bytes("علي"), to_cp1256("علي") + "\r\n");
  EXPECT_EQ(line_bytes("علي").size(), 3u + 2u);  // one byte a Persian letter
  EXPECT_EQ(lines_bytes({"ZCZC", "علي"}), "ZCZC\r\n" + to_cp1256("علي") + "\r\n");
}

}  // namespace
}  // namespace obsdesk
