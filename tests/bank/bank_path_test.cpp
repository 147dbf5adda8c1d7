// A name of the system ("VARDOK\Bank\Access\ID.MDB") found under the bank root
// whatever the case of its folders and file on disk.
#include <gtest/gtest.h>

#include <fstream>

#include "bank/bank.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

namespace fs = std::filesystem;

TEST(BankPath, FoundInAnyCaseAndNewNamesKeptAsGiven) {
  test::TempDir dir;
  const fs::path root = dir.path();
  fs::create_directories(root / "VARDOK" / "BANK" / "ACCESS");
  fs::create_directories(root / "VARDOK" / "BANK" / "OIII" / "TEXT" / "SCDATA");
  std::ofstream(root / "VARDOK" / "BANK" / "ACCESS" / "ID.MDB") << "";
  std::ofstream(root / "VARDOK" / "BANK" / "OIII" / "TEXT" / "SCDATA" / "S754.dat") << "";

  const struct {
    const char* name;
    fs::path expected;
  } cases[] = {
      {"VARDOK\\BANK\\ACCESS\\ID.MDB", root / "VARDOK/BANK/ACCESS/ID.MDB"},
      {"VARDOK\\bank\\access\\ID.mdb", root / "VARDOK/BANK/ACCESS/ID.MDB"},
      {"c:\\VARDOK\\Bank\\Access\\id.mdb", root / "VARDOK/BANK/ACCESS/ID.MDB"},
      {"VARDOK/BANK/OIII/TEXT/SCDATA/s754.DAT", root / "VARDOK/BANK/OIII/TEXT/SCDATA/S754.dat"},
      // A file still to be made stands in the folder found, spelled as given.
      {"VARDOK\\BANK\\OIII\\TEXT\\SCDATA\\S75424.dat", root / "VARDOK/BANK/OIII/TEXT/SCDATA/S75424.dat"},
      {"VARDOK\\bank\\oiii\\text\\scdata\\S75424.dat", root / "VARDOK/BANK/OIII/TEXT/SCDATA/S75424.dat"},
      // A missing folder is not made up: the rest of the name stays as given.
      {"VARDOK\\Bank\\OIIJ\\Text\\S754.dat", root / "VARDOK/BANK/OIIJ/Text/S754.dat"},
      {"", root},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(resolve_bank_path(root, c.name), c.expected);
  }
}

}  // namespace
}  // namespace obsdesk
