// The golden days of both station kinds, run through the runner: every saved
// SYNOP and SYN & MET that writes its bulletin leaves a BUFR message, and
// ecCodes reads back from it the values of the SYNOP text.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "archive/bufr_files.h"
#include "bank/bank.h"
#include "cli/runner.h"
#include "coders/bufr_check.h"
#include "screens/record.h"
#include "core/textnum.h"
#include "station/workstation.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

std::string read_bytes(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

struct DayRun {
  int synops = 0;                         // saves that wrote a SYNOP bulletin
};

DayRun run_day(const std::string& scenario) {
  test::TempDir dir;
  std::ostringstream out;
  Runner runner(dir.path() / "bank", out);
  std::ifstream script(std::string(OBSDESK_SOURCE_DIR) + "/tests/scenarios/" + scenario);
  EXPECT_TRUE(script) << scenario;
  DayRun run;
  std::map<std::string, int> expected_per_file;
  std::string line;
  int number = 0;
  while (std::getline(script, line)) {
    ++number;
    const auto words = split_command(line);
    if (words.empty()) continue;
    const bool save = words.size() == 2 && words[0] == "click" && words[1] == "FrmDisplayKashf.save";
    std::string failure;
    if (!save) {
      EXPECT_TRUE(runner.execute(words, &failure)) << scenario << ":" << number << " " << failure;
      continue;
    }
    Desk& ws = *runner.workstation();
    const std::string kind = ws.FrmDisplayKashf.TXTSEL.text;
    const int hour = int_val(trim(ws.FrmDisplayKashf.Text1.text));
    const std::string text = trim(ws.FrmDisplayKashf.txtSYN.text);
    const bool bulletin = is_synop_kind(report_kind_of(kind)) && hour % 3 == 0 && !text.empty();
    const BufrReport sent = bufr_report(ws);
    const std::string day = bufr_day_file(ws);
    const auto latest = resolve_bank_path(ws.bank_root(), trim(ws.FrmMain.LabName.text) + "\\SYNOP.BUFR");
    const std::string before = read_bytes(latest);
    EXPECT_TRUE(runner.execute(words, &failure)) << scenario << ":" << number << " " << failure;
    const std::string after = read_bytes(latest);
    if (!bulletin) {
      EXPECT_EQ(after, before) << scenario << ":" << number << " a report without a SYNOP bulletin wrote BUFR";
      EXPECT_EQ(ws.FrmDisplayKashf.LabBUFR.text, "No BUFR message");
      continue;
    }
    ++run.synops;
    ++expected_per_file[day];
    const auto got = decode_bufr(after);
    EXPECT_EQ(got.size(), 1u) << scenario << ":" << number;
    if (got.size() == 1) {
      test::expect_round_trip(sent, got[0], scenario + ":" + std::to_string(number) + " " + text);
    }
    EXPECT_EQ(ws.FrmDisplayKashf.LabBUFR.text, "BUFR message written");
    // The day's file grows by this message, unchanged, at its end.
    const std::string whole = read_bytes(resolve_bank_path(ws.bank_root(), day));
    EXPECT_EQ(decode_bufr(whole).size(), static_cast<std::size_t>(expected_per_file[day])) << day;
    EXPECT_EQ(whole.substr(whole.size() - std::min(whole.size(), after.size())), after) << day;
  }
  // The observer reads the latest message back in words from the browser.
  Desk& ws = *runner.workstation();
  if (run.synops > 0) {
    ws.show(ws.FrmDisplayKashf);
    ws.click(ws.FrmDisplayKashf.cmdBUFR);
    EXPECT_TRUE(ws.FrmBUFR.visible) << scenario;
    EXPECT_NE(ws.FrmBUFR.Text1.text.find("Station 40754, WIGOS 0-20000-0-40754"), std::string::npos)
        << ws.FrmBUFR.Text1.text;
    // The copy-out dialog hands over where the message lies.
    ws.show(ws.FrmPol);
    ws.FrmPol.Command6.enabled = true;
    ws.click(ws.FrmPol.Command6);
    EXPECT_EQ(ws.clipboard().text(), resolve_bank_path(ws.bank_root(), trim(ws.FrmMain.LabName.text) + "\\SYNOP.BUFR").string());
  }
  return run;
}

TEST(BufrDays, EverySynopOfTheGoldenDaysComesBackFromItsMessage) {
  struct Day {
    const char* scenario;
    int at_least, at_most;  // SYNOPs with a bulletin and a text the day holds
  };
  for (const Day& d : {Day{"day-24h/mehrabad-month-end.scenario", 10, 99},
                       Day{"day-12h/two-days.scenario", 5, 99},
                       // Coded by the 12/18-hour button alone: no SYNOP text, so no message.
                       Day{"day-12h/evening-18-21-00.scenario", 0, 0}}) {
    const DayRun run = run_day(d.scenario);
    EXPECT_GE(run.synops, d.at_least) << d.scenario;
    EXPECT_LE(run.synops, d.at_most) << d.scenario;
  }
}

}  // namespace
}  // namespace obsdesk
