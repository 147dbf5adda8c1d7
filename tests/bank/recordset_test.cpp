#include "bank/recordset.h"

#include <gtest/gtest.h>

#include <fstream>

#include "bank/bank.h"
#include "screens/bank_tables.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

class Rows : public ::testing::Test {
 protected:
  Rows() {
    Database db(file(), Database::Mode::Create);
    create_kashf_table(db);
  }
  std::filesystem::path file() const { return dir.path() / "Kashf.mdb"; }
  void add(const std::string& key) {
    rs.add_new();
    rs.set("yymmddttgg", key);
    rs.update();
  }
  test::TempDir dir;
  Recordset rs;
};

TEST_F(Rows, AnEmptyTableStandsAtBothEnds) {
  rs.open(file(), "KASHF");
  EXPECT_TRUE(rs.eof());
  EXPECT_TRUE(rs.bof());
  EXPECT_THROW(rs.move_next(), BankError);
  EXPECT_THROW(rs.get("UTC"), BankError);
  EXPECT_EQ(rs.record_count(), 0);
}

TEST_F(Rows, WalksInTheOrderRowsWereAdded) {
  rs.open(file(), "KASHF");
  for (const char* k : {"2401010000", "2401010300", "2401010600"}) add(k);
  rs.move_first();
  EXPECT_EQ(rs.get("yymmddttgg"), "2401010000");
  rs.move_next();
  rs.move_next();
  EXPECT_EQ(rs.get("YYMMDDTTGG"), "2401010600");  // column names ignore case
  rs.move_next();
  EXPECT_TRUE(rs.eof());
  rs.move_previous();  // from past the end back onto the last row
  EXPECT_EQ(rs.get("yymmddttgg"), "2401010600");
  rs.move_first();
  rs.move_previous();
  EXPECT_TRUE(rs.bof());
  rs.move_next();
  EXPECT_EQ(rs.get("yymmddttgg"), "2401010000");
  rs.move_last();
  EXPECT_EQ(rs.get("yymmddttgg"), "2401010600");
}

TEST_F(Rows, AnAddedRowIsOnlyThereAfterUpdateAndTheCurrentRowStays) {
  rs.open(file(), "KASHF");
  add("A");
  rs.move_first();
  rs.add_new();
  rs.set("yymmddttgg", "B");
  {
    Recordset other;
    other.open(file(), "KASHF");
    EXPECT_EQ(other.record_count(), 1);
  }
  rs.update();
  EXPECT_EQ(rs.get("yymmddttgg"), "A");
  EXPECT_EQ(rs.record_count(), 2);
  rs.go_to(rs.last_modified());
  EXPECT_EQ(rs.get("yymmddttgg"), "B");
}

TEST_F(Rows, EditUpdatesTheCurrentRow) {
  rs.open(file(), "KASHF");
  add("A");
  rs.move_first();
  rs.edit();
  rs.set("UTC", "06");
  rs.update();
  rs.requery();
  EXPECT_EQ(rs.get("UTC"), "06");
  EXPECT_THROW(rs.set("UTC", "x"), BankError);  // not editing now
  EXPECT_THROW(rs.get("NOPE"), BankError);
}

TEST_F(Rows, FindsByLikePatternsFirstThenNext) {
  rs.open(file(), "KASHF");
  for (const char* k : {"2405010000", "2405020000", "2406010000", "24%5_0000"}) add(k);
  rs.move_last();
  const std::int64_t before = rs.bookmark();
  EXPECT_TRUE(rs.find_first("yymmddttgg", "*0501*"));
  EXPECT_EQ(rs.get("yymmddttgg"), "2405010000");
  EXPECT_FALSE(rs.find_next("yymmddttgg", "*0501*"));
  EXPECT_EQ(rs.get("yymmddttgg"), "2405010000");  // no match: stays
  EXPECT_TRUE(rs.find_first("yymmddttgg", "24??01*"));
  EXPECT_TRUE(rs.find_next("yymmddttgg", "24??01*"));
  EXPECT_EQ(rs.get("yymmddttgg"), "2406010000");
  EXPECT_TRUE(rs.find_first("yymmddttgg", "*%5_*"));  // SQL wildcards are plain characters here
  EXPECT_EQ(rs.get("yymmddttgg"), "24%5_0000");
  EXPECT_FALSE(rs.find_first("yymmddttgg", "*9999*"));
  rs.go_to(before);
  EXPECT_EQ(rs.get("yymmddttgg"), "24%5_0000");
}

TEST_F(Rows, OpeningToldByTheFileName) {
  EXPECT_THROW(rs.open(dir.path() / "missing.mdb", "KASHF"), BankError);
  try {
    rs.open(file(), "NOSUCH");
    FAIL();
  } catch (const BankError& e) {
    EXPECT_NE(std::string(e.what()).find("NOSUCH"), std::string::npos);
    EXPECT_NE(std::string(e.what()).find("Kashf.mdb"), std::string::npos);
  }
  const auto damaged = dir.path() / "damaged.mdb";
  std::ofstream(damaged) << "this is no database at all, just some text that is long enough";
  try {
    rs.open(damaged, "KASHF");
    FAIL();
  } catch (const BankError& e) {
    EXPECT_NE(std::string(e.what()).find("damaged.mdb"), std::string::npos);
  }
}

}  // namespace
}  // namespace obsdesk
