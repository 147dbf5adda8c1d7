// The bulletins by report kind and hour: envelopes, headings, the optional
// second line, and which files are written at all.
#include "archive/bulletins.h"

#include <gtest/gtest.h>

#include "core/record.h"

namespace obsdesk {
namespace {

using Lines = std::vector<std::string>;

BulletinFields fields(const std::string& hour, bool second_lines) {
  BulletinFields f;
  f.cccc = "OIII";
  f.numcod = "40754";
  f.hour = hour;
  f.ddhh = "20" + (hour.empty() ? std::string("  ") : hour);
  f.day = "20";
  f.hhmm = "0630";
  f.speci_time = "200645Z";
  f.synop1 = "12570 80000 10150 20012 38760 40215 52012 70211 81200 333 10210 20050";
  f.metar1 = " 24008KT 8000 SCT020 25/12 Q1015=";
  f.speci1 = "200645Z 24015G25KT 3000 TSRA BKN015CB 18/15 Q1012=";
  if (second_lines) {
    f.synop2 = "55080=";
    f.metar2 = "NOSIG=";
    f.speci2 = "BECMG 6000=";
  }
  return f;
}

TEST(Bulletins, EachKindWritesItsEnvelopes) {
  struct Case {
    std::string_view kind;
    std::string hour;
    bool second;
    std::vector<std::pair<std::string, Lines>> files;
  };
  const std::string synop_body = "40754 12570 80000 10150 20012 38760 40215 52012 70211 81200 333 10210 20050";
  const Case cases[] = {
      {kSynop, "06", false, {{"SYNOP.DAT", {"ZCZC", "SMIR46 OIII 200600", "AAXX 20061", synop_body, "NNNN"}}}},
      {kSynop, "09", true,
       {{"SYNOP.DAT", {"ZCZC", "SIIR47 OIII 200900", "AAXX 20091", synop_body, "55080=", "NNNN"}}}},
      {kSynop, "01", false, {}},  // no main hour: SYNOP.DAT keeps what it had
      {kSynop, "6", false, {}},   // the hour is compared as two characters
      {kSynMet, "12", false,
       {{"SYNOP.DAT", {"ZCZC", "SMIR46 OIII 201200", "AAXX 20121", synop_body, "NNNN"}},
        {"METAR.DAT", {"ZCZC", "SAIR48 OIII 201200", "METAR OIII 201200Z 24008KT 8000 SCT020 25/12 Q1015=", "NNNN"}}}},
      {kSynMet, "07", true,
       {{"METAR.DAT",
         {"ZCZC", "SAIR48 OIII 200700", "METAR OIII 200700Z 24008KT 8000 SCT020 25/12 Q1015=", "NOSIG=", "NNNN"}}}},
      {kMetar, "13", false,
       {{"METAR.DAT", {"ZCZC", "SAIR48 OIII 201300", "METAR OIII 201300Z 24008KT 8000 SCT020 25/12 Q1015=", "NNNN"}}}},
      {kMetar30, "", false,
       {{"METAR.DAT", {"ZCZC", "SAIR48 OIII 200630", "METAR OIII 200630Z 24008KT 8000 SCT020 25/12 Q1015=", "NNNN"}}}},
      {kSpeci, "", true,
       {{"SPECI.DAT",
         {"ZCZC", "SPIR45 OIII 200645", "SPECI OIII 200645Z 24015G25KT 3000 TSRA BKN015CB 18/15 Q1012=", "BECMG 6000=",
          "NNNN"}}}},
      {"", "06", false, {}},
  };
  for (const Case& c : cases) {
    const auto got = bulletins_for(c.kind, fields(c.hour, c.second));
    const std::string where = std::string(c.kind) + " at " + c.hour;
    ASSERT_EQ(got.size(), c.files.size()) << where;
    for (std::size_t i = 0; i < got.size(); ++i) {
      EXPECT_EQ(got[i].file, c.files[i].first) << where;
      EXPECT_EQ(got[i].lines, c.files[i].second) << where;
    }
  }
}

}  // namespace
}  // namespace obsdesk
