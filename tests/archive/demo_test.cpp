// The demo session of the README runs from start to the two bulletins on a
// fresh demo bank.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "archive/text_archive.h"
#include "cli/runner.h"
#include "core/workstation.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

TEST(Demo, A06UtcSynAndMetRunsToItsBulletins) {
  test::TempDir dir;
  std::ifstream script(std::string(OBSDESK_SOURCE_DIR) + "/examples/demo.scenario");
  ASSERT_TRUE(script);
  std::ostringstream out, err;
  Runner runner(dir.path() / "bank", out);
  EXPECT_EQ(runner.run(script, "demo.scenario", err), 0) << err.str();
  const std::string printed = out.str();
  for (const char* line : {"  SMIR46 OIII 200600\\r\\n", "  AAXX 20061\\r\\n", "  SAIR48 OIII 200600\\r\\n",
                           "  METAR OIII 200600Z 27008KT 9999 SCT030 12/M02 Q1011=\\r\\n", "  NNNN\\r\\n"})
    EXPECT_NE(printed.find(line), std::string::npos) << line << "\n" << printed;
}

// The S and G lines the SYNOP coder leaves on the code panel keep the layout of
// the text archives, group for group, at a main hour and at a soil hour.
TEST(Demo, TheCodedArchiveLinesKeepTheArchiveLayout) {
  for (const char* hour : {"06", "09", "01"}) {
    test::TempDir dir;
    std::ifstream demo(std::string(OBSDESK_SOURCE_DIR) + "/examples/demo.scenario");
    std::string script, line;
    while (std::getline(demo, line) && line != "click Command4") {
      if (line == "type Text1 06") line = std::string("type Text1 ") + hour;
      script += line + "\n";
    }
    std::istringstream in(script);
    std::ostringstream out, err;
    Runner runner(dir.path() / "bank", out);
    ASSERT_EQ(runner.run(in, "demo", err), 0) << err.str();
    Workstation& ws = *runner.workstation();
    ASSERT_EQ(ws.SYNOP_coded, 1) << hour;
    EXPECT_EQ(ws.FrmCode.TXTSCDATA.text, s_line(synop_line_parts(ws))) << hour;
    EXPECT_EQ(ws.FrmCode.TXTgolbad.text, g_line(synop_line_parts(ws))) << hour;
  }
}

}  // namespace
}  // namespace obsdesk
