#include "screens/bank_tables.h"

#include <map>
#include <vector>

#include "bank/bank.h"
#include "bank/journal.h"
#include "bank/sqlite.h"
#include "core/textnum.h"
#include "screens/frm_option.h"
#include "screens/record.h"
#include "screens/frm_code.h"

namespace obsdesk {

namespace fs = std::filesystem;

namespace {

void create_table(Database& db, std::string_view table, const std::vector<std::string>& columns) {
  std::string sql = "CREATE TABLE " + quote_name(table) + " (";
  for (std::size_t i = 0; i < columns.size(); ++i) sql += (i ? ", " : "") + quote_name(columns[i]) + " TEXT";
  db.exec(sql + ")");
}

void insert_row(Database& db, std::string_view table, const std::vector<std::string>& columns,
                const std::map<std::string, std::string>& values) {
  std::string names, marks;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    names += (i ? "," : "") + quote_name(columns[i]);
    marks += i ? ",?" : "?";
  }
  auto st = db.prepare("INSERT INTO " + quote_name(table) + " (" + names + ") VALUES (" + marks + ")");
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const auto it = values.find(columns[i]);
    st.bind(static_cast<int>(i + 1), it == values.end() ? std::string() : it->second);
  }
  st.run();
}

std::vector<std::string> past_columns() {
  std::vector<std::string> cols = {"utcpastb"};
  for (const char* prefix : {"QFE", "RAIN", "T"})
    for (const char* h : {"00", "03", "06", "09", "12", "15", "18", "21"})
      cols.push_back(std::string(prefix) + h + (std::string(prefix) == "QFE" ? "B" : ""));
  return cols;
}

// The demo profile: a real station's public identity, sensible limits, four
// observers, so that everything runs out of the box.
std::map<std::string, std::string> demo_station() {
  return {
      {"id", "1"}, {"Sname", "MEHRABAD AIRPORT"}, {"NumCod", "40754"}, {"Txtcod", "OIII"},
      {"txtq1", "35"}, {"txtq2", "41"}, {"tol1", "51"}, {"tol2", "19"}, {"txth", "1190.8"},
      {"txthmin", "1500"}, {"txtci", "0"}, {"indextabesh", "1"}, {"Stype", std::string(kStation24)},
      {"TASHT", "USA طشت تبخير سنج باز  (بدون پوشش) مدل "}, {"type Pnegar", "0"}, {"type Psang", "1"},
      {"OBSERVER1", "احمد رضايي"}, {"OBSERVER2", "مريم كريمي"}, {"OBSERVER3", "علي محمدي"},
      {"OBSERVER4", "زهرا حسيني"},
      // air
      {"txtminm1", "-25"}, {"txtmin1", "-15"}, {"txtmax1", "42"}, {"txtmaxm1", "48"},
      // wet bulb
      {"txtminm2", "-25"}, {"txtmin2", "-15"}, {"txtmax2", "32"}, {"txtmaxm2", "38"},
      // rain
      {"txtmax3", "30"}, {"txtmaxm3", "100"},
      // barometer reading at 1190 m
      {"txtminm4", "850"}, {"txtmin4", "860"}, {"txtmax4", "900"}, {"txtmaxm4", "910"},
      // soil 5 cm and ground; the absolute maximum is shared with 10 to 30 cm
      {"txtminm5", "-20"}, {"txtmin5", "-10"}, {"txtmax5", "55"}, {"txtmaxm5", "65"},
      {"txtminm6", "-10"}, {"txtmin6", "-3"}, {"txtmax6", "45"},
      {"txtminm7", "-2"}, {"txtmin7", "2"}, {"txtmax7", "35"}, {"txtmaxm7", "40"},
      // wind speed, m/s
      {"txtmax8", "20"}, {"txtmaxm8", "40"},
      // evaporation, mm
      {"txtminm9", "0"}, {"txtmax9", "15"}, {"txtmaxm9", "30"},
  };
}

}  // namespace

void create_kashf_table(Database& db) {
  std::vector<std::string> cols;
  for (const Column& c : kashf_columns()) cols.emplace_back(c.column);
  create_table(db, "KASHF", cols);
  db.exec("CREATE INDEX KASHF_key ON KASHF (yymmddttgg)");
}

void create_past_table(Database& db) { create_table(db, "Past", past_columns()); }

void create_station_table(Database& db) { create_table(db, "Station", station_columns()); }

namespace {

const char* kProg = "VARDOK";

std::string kashf_of(std::string_view folder) { return std::string(folder) + "\\ACCESS\\Kashf.mdb"; }
std::string station_db_of(std::string_view prog) { return std::string(prog) + "\\BANK\\ACCESS\\Station.mdb"; }
// Rain.mdb beside Kashf.mdb, named as the start screen names it: the first 24
// characters of the Kashf path.
std::string rain_of(std::string_view kashf) { return left(kashf, 24) + "Rain.mdb"; }

// A table the program needs, with the row it needs to work.
void make_table(Database& db, std::string_view table, std::string_view prog) {
  if (table == "NameOstan") {
    create_table(db, "NameOstan", {"NameOstan"});
    insert_row(db, "NameOstan", {"NameOstan"}, {{"NameOstan", "TEHRAN"}});
  } else if (table == "N_BackColor") {
    create_table(db, "N_BackColor", {"N_BackColor"});
    insert_row(db, "N_BackColor", {"N_BackColor"}, {{"N_BackColor", "&H00C0C0C0&"}});
  } else if (table == "ID") {
    const std::vector<std::string> cols = {"ID", "TXTPathNameBank1", "TXTPathNameBank2"};
    create_table(db, "ID", cols);
    insert_row(db, "ID", cols,
               {{"ID", "1"},
                {"TXTPathNameBank1", kashf_of(std::string(prog) + "\\BANK\\OIII")},
                {"TXTPathNameBank2", station_db_of(prog)}});
  } else if (table == "Past") {
    create_past_table(db);
    insert_row(db, "Past", past_columns(), {});
  } else if (table == "Station") {
    create_station_table(db);
    insert_row(db, "Station", station_columns(), demo_station());
  } else if (table == "KASHF") {
    create_kashf_table(db);
  } else if (table == "COOD") {
    create_cood_table(db);
  }
}

struct NeededDb {
  std::string path;  // below the drive
  std::vector<std::string_view> tables;
};

std::vector<NeededDb> control_databases(std::string_view prog) {
  return {{select_ostan_path(prog), {"NameOstan"}},
          {back_color_path(prog), {"N_BackColor"}},
          {id_path(prog), {"ID"}},
          {past_path(prog), {"Past"}}};
}

std::vector<NeededDb> station_databases(std::string_view station_db, std::string_view kashf) {
  return {{std::string(station_db), {"Station"}}, {std::string(kashf), {"KASHF", "COOD"}}, {rain_of(kashf), {}}};
}

// A new database with its tables; the file is made in one piece under a
// temporary name and renamed, so that a stop leaves no database without tables.
void make_database(const fs::path& file, const std::vector<std::string_view>& tables, std::string_view prog,
                   FileSeam* seam) {
  const fs::path tmp = file.string() + ".new";
  std::error_code ec;
  fs::remove(tmp, ec);
  announce(seam, FileCall::Open, file);
  {
    Database db(tmp, Database::Mode::Create);
    // One file, no log beside it, when it is renamed.
    db.exec("PRAGMA journal_mode=DELETE");
    db.exec("PRAGMA user_version=1");  // a database with no table is still a whole file
    Transaction t(db);
    for (std::string_view table : tables) make_table(db, table, prog);
    t.commit();
  }
  announce(seam, FileCall::Rename, file);
  fs::rename(tmp, file, ec);
  if (ec) throw BankError("cannot make " + file.string() + ": " + ec.message());
}

void make_folders(const fs::path& folder, FileSeam* seam) {
  announce(seam, FileCall::MakeFolder, folder);
  std::error_code ec;
  fs::create_directories(folder, ec);
  if (ec) throw BankError("cannot create the folder " + folder.string() + ": " + ec.message());
}

void station_tree(const fs::path& root, std::string_view prog, std::string_view code, FileSeam* seam) {
  const std::string folder = std::string(prog) + "\\BANK\\" + std::string(code);
  for (const char* sub : {"\\ACCESS", "\\TEXT\\SCDATA", "\\TEXT\\KASHF"})
    make_folders(resolve_bank_path(root, folder + sub), seam);
  for (const NeededDb& db : station_databases("", kashf_of(folder))) {
    if (db.path.empty()) continue;
    const fs::path file = resolve_bank_path(root, db.path);
    std::error_code ec;
    if (!fs::exists(file, ec)) make_database(file, db.tables, prog, seam);
  }
}

}  // namespace

fs::path bank_staging(const fs::path& root) { return root / (std::string(kProg) + ".staging"); }

std::string create_station_tree(const fs::path& root, std::string_view prog, std::string_view code) {
  station_tree(root, prog, code, nullptr);
  return kashf_of(std::string(prog) + "\\BANK\\" + std::string(code));
}

void create_bank(const fs::path& root, FileSeam* seam) {
  const fs::path staging = bank_staging(root);
  std::error_code ec;
  fs::remove_all(staging, ec);
  try {
    make_folders(staging / kProg / "BANK" / "ACCESS", seam);
    for (const NeededDb& db : control_databases(kProg))
      make_database(resolve_bank_path(staging, db.path), db.tables, kProg, seam);
    make_database(resolve_bank_path(staging, station_db_of(kProg)), {"Station"}, kProg, seam);
    station_tree(staging, kProg, "OIII", seam);
    announce(seam, FileCall::Rename, root / kProg);
    fs::rename(staging / kProg, root / kProg);
    fs::remove(staging, ec);
  } catch (const fs::filesystem_error& e) {
    throw BankError("cannot create the bank at " + root.string() + ": " + e.code().message());
  }
}

BankCheck check_bank(const fs::path& root, std::string_view prog, std::string_view stamp) {
  BankCheck out;
  std::error_code ec;
  fs::remove_all(bank_staging(root), ec);  // a first start cut off: begun again below
  auto look = [&](const NeededDb& need) {
    const fs::path file = resolve_bank_path(root, need.path);
    if (!fs::exists(fs::symlink_status(file, ec))) {
      if (!fs::is_directory(file.parent_path(), ec)) make_folders(file.parent_path(), nullptr);
      make_database(file, need.tables, prog, nullptr);
      out.made.push_back(file.string());
      return true;
    }
    const std::string damage = database_damage(file);
    if (!damage.empty()) {
      fs::path copy;
      if (fs::is_regular_file(file, ec)) {
        copy = file.string() + ".damaged-" + std::string(stamp);
        if (!fs::copy_file(file, copy, fs::copy_options::skip_existing, ec) || ec) copy.clear();
      }
      out.damaged.push_back({file, damage, copy});
      return false;
    }
    Database db(file, Database::Mode::ReadWrite);
    for (std::string_view t : need.tables) {
      if (db.has_table(t)) continue;
      Transaction made(db);
      make_table(db, t, prog);
      made.commit();
      out.made.push_back(file.string() + ": table " + std::string(t));
    }
    return true;
  };
  std::string kashf = kashf_of(std::string(prog) + "\\BANK\\OIII"), station_db = station_db_of(prog);
  bool paths_known = true;
  for (const NeededDb& need : control_databases(prog)) {
    const bool whole = look(need);
    if (need.tables.front() != "ID") continue;
    paths_known = whole;
    if (!whole) continue;
    Database db(resolve_bank_path(root, need.path), Database::Mode::ReadOnly);
    auto row = db.prepare("SELECT TXTPathNameBank1, TXTPathNameBank2 FROM ID LIMIT 1");
    if (row.step()) {
      if (!trim(row.text(0)).empty()) kashf = trim(row.text(0));
      if (!trim(row.text(1)).empty()) station_db = trim(row.text(1));
    }
  }
  if (!paths_known) return out;
  for (const NeededDb& need : station_databases(station_db, kashf)) look(need);
  // The text folders of the station beside its ACCESS folder.
  const fs::path access = resolve_bank_path(root, kashf).parent_path();
  for (const char* sub : {"SCDATA", "KASHF"}) {
    const fs::path folder = access.parent_path() / "TEXT" / sub;
    if (fs::exists(folder, ec)) continue;
    make_folders(folder, nullptr);
    out.made.push_back(folder.string());
  }
  return out;
}

}  // namespace obsdesk
