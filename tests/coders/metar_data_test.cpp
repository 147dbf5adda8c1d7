// The reports kept for an independent METAR parser are the bodies the golden
// scenarios print, with the heading the bulletin puts in front.
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>

namespace {

std::set<std::string> coded_texts(const std::string& scenario) {
  std::ifstream in(std::string(OBSDESK_SOURCE_DIR) + "/tests/scenarios/metar/" + scenario + ".out");
  std::set<std::string> texts;
  for (std::string line; std::getline(in, line);)
    for (const char* box : {"FrmKashf.TXTMET=", "FrmKashf.TXTSPE="})
      if (line.rfind(box, 0) == 0) texts.insert(line.substr(std::string(box).size()));
  return texts;
}

// The body behind "METAR CCCC DDHHmmZ" (it starts with a blank) or "SPECI CCCC ".
std::string body(const std::string& report) {
  const bool speci = report.rfind("SPECI ", 0) == 0;
  std::size_t at = 0;
  for (int blanks = speci ? 2 : 3; blanks > 0 && at != std::string::npos; --blanks) at = report.find(' ', at + 1);
  if (at == std::string::npos) return "";
  return report.substr(speci ? at + 1 : at);
}

TEST(MetarReportsData, MatchTheGoldenScenarios) {
  std::ifstream in(std::string(OBSDESK_SOURCE_DIR) + "/tests/data/metar_reports.txt");
  ASSERT_TRUE(in) << "tests/data/metar_reports.txt";
  std::string scenario;
  int reports = 0;
  for (std::string line; std::getline(in, line);) {
    if (line.rfind("# ", 0) == 0) {
      scenario = line.substr(2);
      continue;
    }
    if (line.empty() || line[0] == '#') continue;
    ++reports;
    EXPECT_EQ(coded_texts(scenario).count(body(line)), 1u) << scenario << ": " << line;
  }
  EXPECT_EQ(reports, 6);
}

}  // namespace
