// The bank's databases and tables as the screens' records define them: the
// first start's tree with its demo station, a new station's tree, and the look at
// the bank at start that completes what is missing.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/services.h"

namespace obsdesk {

class Database;

// Creates the tree, the control databases and the demo station profile (Tehran
// Mehrabad, WMO 40754, ICAO OIII, 1190.8 m, 35 41 N) with its empty KASHF table.
// The whole tree is made in a staging folder in the root and renamed into place
// last, so a stop on the way leaves no bank (and the staging folder, cleared at
// the next start) rather than half of one. Throws BankError with the folder's
// name when the root cannot be written.
void create_bank(const std::filesystem::path& root, FileSeam* seam = nullptr);
// The staging folder of a first start, left behind only by a stop.
std::filesystem::path bank_staging(const std::filesystem::path& root);

// A station's tree below the program's folder: BANK\CCCC\ACCESS with Kashf.mdb
// (KASHF and COOD tables) and Rain.mdb, TEXT\SCDATA and TEXT\KASHF. What exists
// already is kept. Returns the system path of its Kashf.mdb.
std::string create_station_tree(const std::filesystem::path& root, std::string_view prog, std::string_view code);

// What the look at the bank at start found and did.
struct BankCheck {
  std::vector<std::string> made;  // "<file>" or "<file>: table <T>", made because missing
  struct Damage {
    std::filesystem::path file;
    std::string reason;
    std::filesystem::path copy;  // empty when no copy could be made
  };
  std::vector<Damage> damaged;
};
// Each bank database (the control databases, the Station database and the
// station's Kashf.mdb and Rain.mdb named by the ID row) is checked: a missing
// database or table is made (with the row a table needs to work), an existing one
// is never overwritten; a damaged one (unreadable, not a database, zero bytes, or
// failing SQLite's quick check) is left as it is and copied beside itself with
// the stamp in its name. The station's text folders are made when missing.
BankCheck check_bank(const std::filesystem::path& root, std::string_view prog, std::string_view stamp);
// Schemas, all columns text.
void create_kashf_table(Database& db);
void create_past_table(Database& db);
void create_station_table(Database& db);

}  // namespace obsdesk
