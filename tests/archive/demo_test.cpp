// The demo session of the README runs from start to the two bulletins on a
// fresh demo bank.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "cli/runner.h"
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

}  // namespace
}  // namespace obsdesk
