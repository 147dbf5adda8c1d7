// The runner's print of bank files: the code page read back, CR and LF shown,
// folders in name order, a missing name told.
#include "cli/bank_files.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "core/textnum.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

TEST(BankFiles, PrintsTheBytesAsTheyStand) {
  test::TempDir dir;
  const auto root = dir.path();
  std::filesystem::create_directories(root / "VARDOK" / "TEXT");
  std::ofstream(root / "VARDOK" / "TEXT" / "B.dat", std::ios::binary) << "ZCZC\r\n" + to_cp1256("علي") + "\r\nNNNN";
  std::ofstream(root / "VARDOK" / "TEXT" / "A.dat", std::ios::binary) << "x\n";
  const std::pair<const char*, const char*> cases[] = {
      {"VARDOK\\TEXT\\B.dat", "== VARDOK\\TEXT\\B.dat (15 bytes)\n  ZCZC\\r\\n\n  علي\\r\\n\n  NNNN\n"},
      {"vardok\\text", "== VARDOK\\TEXT\\A.dat (2 bytes)\n  x\\n\n== VARDOK\\TEXT\\B.dat (15 bytes)\n  ZCZC\\r\\n\n"
                       "  علي\\r\\n\n  NNNN\n"},
      {"VARDOK\\NONE.DAT", "== VARDOK\\NONE.DAT (missing)\n"},
  };
  for (const auto& [name, expected] : cases) {
    std::ostringstream out;
    print_bank_files(root, name, out);
    EXPECT_EQ(out.str(), expected) << name;
  }
}

}  // namespace
}  // namespace obsdesk
