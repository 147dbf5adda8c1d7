// The bulletins by report kind and hour: envelopes, headings, the optional
// second line, and which files are written at all.
#include "archive/bulletins.h"

#include <gtest/gtest.h>

#include "screens/record.h"

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
  // The plain bulletins of each kind at its usual hours are written by the
  // scenarios; these are the second lines, the hour text and no kind at all.
  const Case cases[] = {
      {kSynop, "09", true,
       {{"SYNOP.DAT", {"ZCZC", "SIIR47 OIII 200900", "AAXX 20091", synop_body, "55080=", "NNNN"}}}},
      {kSynop, "6", false, {}},  // the hour is compared as two characters
      {kSynMet, "07", true,
       {{"METAR.DAT",
         {"ZCZC", "SAIR48 OIII 200700", "METAR OIII 200700Z 24008KT 8000 SCT020 25/12 Q1015=", "NOSIG=", "NNNN"}}}},
      {kSpeci, "", true,
       {{"SPECI.DAT",
         {"ZCZC", "SPIR45 OIII 200645", "SPECI OIII 200645Z 24015G25KT 3000 TSRA BKN015CB 18/15 Q1012=", "BECMG 6000=",
          "NNNN"}}}},
      {"", "06", false, {}},
  };
  for (const Case& c : cases) {
    const auto got = bulletins_for(report_kind_of(c.kind), fields(c.hour, c.second));
    const std::string where = std::string(c.kind) + " at " + c.hour;
    ASSERT_EQ(got.size(), c.files.size()) << where;
    for (std::size_t i = 0; i < got.size(); ++i) {
      EXPECT_EQ(got[i].file, c.files[i].first) << where;
      EXPECT_EQ(got[i].lines, c.files[i].second) << where;
    }
  }
}

// A form whose coder did not run, or failed, has no lines: no bulletin of it is
// written, so nothing of an earlier report goes out under this one's heading.
TEST(Bulletins, AFormWithNoCodedTextWritesNoBulletin) {
  struct Case {
    std::string_view kind;
    const char* hour;
    bool synop, metar, speci;  // which lines the coders left
    std::vector<std::string> files;
  };
  const Case cases[] = {
      {kSynop, "00", false, true, true, {}},
      {kSynMet, "12", false, true, false, {"METAR.DAT"}},
      {kSynMet, "12", true, false, false, {"SYNOP.DAT"}},
      {kMetar, "07", true, false, true, {}},
      {kMetar30, "07", false, false, false, {}},
      {kSpeci, "", true, true, false, {}},
  };
  for (const Case& c : cases) {
    BulletinFields f = fields(c.hour, false);
    if (!c.synop) f.synop1.clear();
    if (!c.metar) f.metar1.clear();
    if (!c.speci) f.speci1.clear();
    std::vector<std::string> files;
    for (const Bulletin& b : bulletins_for(report_kind_of(c.kind), f)) files.push_back(b.file);
    EXPECT_EQ(files, c.files) << c.kind << " at " << c.hour;
  }
}

}  // namespace
}  // namespace obsdesk
