// The save journal on its own: what it writes, what it puts back, what a
// restart finishes from the table, and how a failed call is told.
#include "bank/journal.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

#include "bank/sqlite.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

namespace fs = std::filesystem;
using test::read_bytes;

void put(const fs::path& file, const std::string& bytes) { std::ofstream(file, std::ios::binary) << bytes; }

std::string error_of(const std::function<void()>& f) {
  try {
    f();
  } catch (const std::exception& e) {
    return e.what();
  }
  return "no error";
}

// Appends to a file that exists and to one the intent makes, twice to the same
// file, and a replacement: written whole, then put back whole.
TEST(Journal, WritesAndPutsBackEveryFile) {
  test::TempDir dir;
  const fs::path old_file = dir.path() / "S754.dat", new_file = dir.path() / "SG754.dat",
                 bulletin = dir.path() / "SYNOP.DAT";
  put(old_file, "line 1\r\n");
  put(bulletin, "ZCZC\r\nold\r\nNNNN\r\n");
  SaveJournal j;
  j.append(old_file, "line 2\r\n");
  j.append(new_file, std::string("\0\xff binary", 9));
  j.append(old_file, "line 3\r\n");
  j.replace(bulletin, "ZCZC\r\nnew\r\nNNNN\r\n");
  EXPECT_EQ(j.ops()[2].before, 16);  // after the intent's own first line
  EXPECT_EQ(j.ops()[1].before, -1);

  j.write();
  EXPECT_EQ(read_bytes(old_file), "line 1\r\nline 2\r\nline 3\r\n");
  EXPECT_EQ(read_bytes(new_file), std::string("\0\xff binary", 9));
  EXPECT_EQ(read_bytes(bulletin), "ZCZC\r\nold\r\nNNNN\r\n");  // not before the renames
  EXPECT_TRUE(fs::exists(temporary_of(bulletin)));

  j.undo();
  EXPECT_EQ(read_bytes(old_file), "line 1\r\n");
  EXPECT_FALSE(fs::exists(new_file));
  EXPECT_FALSE(fs::exists(temporary_of(bulletin)));
  EXPECT_EQ(read_bytes(bulletin), "ZCZC\r\nold\r\nNNNN\r\n");

  j.write();
  j.put_in_place();
  EXPECT_EQ(read_bytes(bulletin), "ZCZC\r\nnew\r\nNNNN\r\n");
  EXPECT_FALSE(fs::exists(temporary_of(bulletin)));
}

// What a restart finds in the table, as a crash may leave the files, and what
// it makes of them: committed intents whole and once, provisional ones gone.
TEST(Journal, ARestartFinishesWhatTheTableHolds) {
  struct Case {
    const char* name;
    bool committed;
    std::string file_after_crash;  // the archive file as the crash left it
    std::string bulletin_after_crash;
    std::string file_expected, bulletin_expected;
    int finished;  // intents whose files had to be written or put back
  };
  const std::string head = "line 1\r\n", line = "line 2\r\n";
  const std::string old_b = "ZCZC\r\nold\r\nNNNN\r\n", new_b = "ZCZC\r\nnew\r\nNNNN\r\n";
  const std::vector<Case> cases = {
      {"committed, nothing written", true, head, old_b, head + line, new_b, 1},
      {"committed, half a line", true, head + "lin", old_b, head + line, new_b, 1},
      {"committed, all written", true, head + line, new_b, head + line, new_b, 0},
      {"committed, the bulletin not renamed", true, head + line, old_b, head + line, new_b, 1},
      {"provisional, nothing written", false, head, old_b, head, old_b, 0},
      {"provisional, half a line", false, head + "lin", old_b, head, old_b, 1},
      {"provisional, all written", false, head + line, old_b, head, old_b, 1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    test::TempDir dir;
    const fs::path root = dir.path(), file = root / "S754.dat", bulletin = root / "SYNOP.DAT";
    put(file, head);
    put(bulletin, old_b);
    Database db(root / "Kashf.mdb", Database::Mode::Create);
    SaveJournal j;
    j.append(file, line);
    if (c.committed) j.replace(bulletin, new_b);
    if (c.committed) record_committed(db, root, j);
    else record_provisional(db, root, j);
    put(file, c.file_after_crash);
    put(bulletin, c.bulletin_after_crash);
    if (c.bulletin_after_crash != c.bulletin_expected) put(temporary_of(bulletin), "ZC");

    const Recovery r = finish_pending(db, root, nullptr, true);
    EXPECT_EQ(r.redone + r.undone, c.finished);
    EXPECT_EQ(r.redone, c.committed ? c.finished : 0);
    EXPECT_EQ(read_bytes(file), c.file_expected);
    EXPECT_EQ(read_bytes(bulletin), c.bulletin_expected);
    if (c.committed) {
      EXPECT_FALSE(fs::exists(temporary_of(bulletin)));
    }
    // Done once: a second restart finds nothing to do.
    EXPECT_EQ(finish_pending(db, root, nullptr, true).redone, 0);
    EXPECT_EQ(read_bytes(file), c.file_expected);
  }
}

// Two saves kept in the table (the last one's clearing waits for the next
// flush): both are checked in order and each line stands once.
TEST(Journal, TwoKeptSavesOnOneFileEachStandOnce) {
  test::TempDir dir;
  const fs::path root = dir.path(), file = root / "KASHF754.dat";
  Database db(root / "Kashf.mdb", Database::Mode::Create);
  SaveJournal first, second, third;
  first.append(file, "first\r\n");
  record_committed(db, root, first);
  first.write();
  second.append(file, "second\r\n");
  record_committed(db, root, second);
  put(file, "first\r\nsec");  // the second save cut off mid-line
  EXPECT_EQ(finish_pending(db, root, nullptr, false).redone, 1);
  EXPECT_EQ(read_bytes(file), "first\r\nsecond\r\n");
  put(file, "");  // lost in a power cut: both are written again
  EXPECT_EQ(finish_pending(db, root, nullptr, true).redone, 2);
  EXPECT_EQ(read_bytes(file), "first\r\nsecond\r\n");
  // A third save drops the first, whose files its flush has covered.
  third.append(file, "third\r\n");
  record_committed(db, root, third);
  third.write();
  EXPECT_EQ(finish_pending(db, root, nullptr, true).redone, 0);
  put(file, "first\r\n");
  finish_pending(db, root, nullptr, true);
  EXPECT_EQ(read_bytes(file), "first\r\nsecond\r\nthird\r\n");
}

// A save taken back leaves its confirmation's lines waiting, provisional again:
// a restart then takes them back too.
TEST(Journal, AWithdrawnSaveLeavesItsConfirmationWaiting) {
  test::TempDir dir;
  const fs::path root = dir.path(), file = root / "S754.dat", record = root / "KASHF754.dat";
  Database db(root / "Kashf.mdb", Database::Mode::Create);
  SaveJournal confirmation, save;
  confirmation.append(file, "S line\r\n");
  record_provisional(db, root, confirmation);
  confirmation.write();
  save.append(record, "record\r\n");
  const Commit c = record_committed(db, root, save);
  EXPECT_LT(c.first_joined, c.intent);
  withdraw_intent(db, c);
  const Recovery r = finish_pending(db, root, nullptr, true);
  EXPECT_EQ(r.redone, 0);
  EXPECT_EQ(r.undone, 1);
  EXPECT_EQ(read_bytes(file), "");
  EXPECT_FALSE(fs::exists(record));
}

// A journal row that cannot be read back is told, not half acted on.
TEST(Journal, ADamagedRowIsTold) {
  test::TempDir dir;
  const fs::path root = dir.path();
  Database db(root / "Kashf.mdb", Database::Mode::Create);
  SaveJournal j;
  j.append(root / "S754.dat", "line\r\n");
  record_committed(db, root, j);
  db.exec("UPDATE SaveJournal SET ops = substr(ops, 1, 12)");
  EXPECT_THROW(finish_pending(db, root, nullptr, true), BankError);
}

// Missing folders, a file in a folder's place and a full disk are each told by
// name, and no folder is made on the way.
TEST(Journal, FailedCallsAreToldByName) {
  test::TempDir dir;
  const fs::path missing = dir.path() / "NOFOLDER" / "S754.dat";
  const fs::path blocked = dir.path() / "afile";
  put(blocked, "kept\r\n");
  struct Case {
    fs::path file;
    std::string words;
  };
  std::vector<Case> cases = {{missing, "Path not found"}, {blocked / "S754.dat", "Path not found"}};
  if (fs::exists("/dev/full")) cases.push_back({"/dev/full", "Disk full"});  // a device always full
  for (const Case& c : cases) {
    SaveJournal j;
    j.append(c.file, "x\r\n");
    EXPECT_EQ(error_of([&] { j.write(); }), c.words + ": " + c.file.string());
  }
  EXPECT_FALSE(fs::exists(missing.parent_path()));
  EXPECT_EQ(read_bytes(blocked), "kept\r\n");
}

// Apart, as permissions do not bind a privileged user.
TEST(Journal, AReadOnlyFolderIsToldAndLeftAsItWas) {
  test::TempDir dir;
  const fs::path ro = dir.path() / "ro";
  fs::create_directory(ro);
  put(ro / "S754.dat", "kept\r\n");
  fs::permissions(ro, fs::perms::owner_read | fs::perms::owner_exec);
  fs::permissions(ro / "S754.dat", fs::perms::owner_read);
  if (::access((ro / "S754.dat").c_str(), W_OK) == 0) GTEST_SKIP() << "permissions do not bind this user";
  for (const fs::path& f : {ro / "S754.dat", ro / "new.dat"}) {
    SaveJournal j;
    j.append(f, "x\r\n");
    EXPECT_EQ(error_of([&] { j.write(); }), "Permission denied: " + f.string());
  }
  EXPECT_EQ(read_bytes(ro / "S754.dat"), "kept\r\n");
}

}  // namespace
}  // namespace obsdesk
