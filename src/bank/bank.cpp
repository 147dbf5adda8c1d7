#include "bank/bank.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdlib>
#include <map>
#include <vector>

#include "bank/sqlite.h"
#include "coders/code_panel.h"
#include "core/record.h"
#include "core/textnum.h"
#include "settings/frm_option.h"

namespace obsdesk {

namespace fs = std::filesystem;

fs::path default_bank_root() {
  if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg != nullptr && *xdg != '\0')
    return fs::path(xdg) / "obsdesk";
  if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0')
    return fs::path(home) / ".local" / "share" / "obsdesk";
  return fs::current_path() / "obsdesk-bank";
}

namespace {

bool same_name_any_case(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    char x = a[i], y = b[i];
    if (x >= 'a' && x <= 'z') x = static_cast<char>(x - 'a' + 'A');
    if (y >= 'a' && y <= 'z') y = static_cast<char>(y - 'a' + 'A');
    if (x != y) return false;
  }
  return true;
}

// The name as it stands in the folder, in whatever case; the name itself when the
// folder holds none such.
std::string spelled_on_disk(const fs::path& folder, const std::string& part) {
  std::error_code ec;
  if (fs::exists(folder / part, ec)) return part;
  for (fs::directory_iterator it(folder, ec), done; !ec && it != done; it.increment(ec)) {
    std::string name = it->path().filename().string();
    if (same_name_any_case(name, part)) return name;
  }
  return part;
}

}  // namespace

fs::path resolve_bank_path(const fs::path& root, std::string_view system_path) {
  std::vector<std::string> parts;
  bool first = true;
  std::size_t start = 0;
  while (start <= system_path.size()) {
    std::size_t end = system_path.find_first_of("\\/", start);
    if (end == std::string_view::npos) end = system_path.size();
    std::string part(system_path.substr(start, end - start));
    start = end + 1;
    if (part.empty() || part == ".") continue;
    const bool drive = first && part.size() == 2 && part[1] == ':';
    first = false;
    if (!drive) parts.push_back(std::move(part));
  }
  if (parts.empty()) return root;

  // Most names are spelled as on disk, or only their last part is new: two looks
  // settle those before the walk through every folder.
  fs::path folder = root;
  for (std::size_t i = 0; i + 1 < parts.size(); ++i) folder /= parts[i];
  std::error_code ec;
  if (fs::is_directory(folder, ec)) return folder / spelled_on_disk(folder, parts.back());

  fs::path out = root;
  for (const std::string& part : parts) out /= spelled_on_disk(out, part);
  return out;
}

std::string select_ostan_path(std::string_view prog) { return std::string(prog) + "\\Bank\\Access\\SelectOstan.MDB"; }
std::string back_color_path(std::string_view prog) { return std::string(prog) + "\\Bank\\Access\\BackColor.MDB"; }
std::string id_path(std::string_view prog) { return std::string(prog) + "\\Bank\\Access\\ID.MDB"; }
std::string past_path(std::string_view prog) { return std::string(prog) + "\\bank\\access\\PAST.mdb"; }
std::string id_row_path(std::string_view prog) { return std::string(prog) + "\\bank\\access\\ID.mdb"; }

std::unique_ptr<BankLock> BankLock::acquire(const fs::path& root) {
  const int fd = ::open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return nullptr;
  if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
    ::close(fd);
    return nullptr;
  }
  return std::unique_ptr<BankLock>(new BankLock(fd));
}

BankLock::~BankLock() {
  ::flock(fd_, LOCK_UN);
  ::close(fd_);
}

bool bank_is_new(const fs::path& root) {
  std::error_code ec;
  if (!fs::exists(root, ec)) return true;
  for (fs::directory_iterator it(root, ec), done; !ec && it != done; it.increment(ec))
    if (upper(it->path().filename().string()) == "VARDOK") return false;
  return true;
}

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

void create_bank(const fs::path& root) {
  const std::string prog = "VARDOK";
  const std::string station_folder = prog + "\\BANK\\OIII";
  try {
    fs::create_directories(root / prog / "BANK" / "ACCESS");
    fs::create_directories(root / prog / "BANK" / "OIII" / "ACCESS");
    fs::create_directories(root / prog / "BANK" / "OIII" / "TEXT" / "SCDATA");
    fs::create_directories(root / prog / "BANK" / "OIII" / "TEXT" / "KASHF");
  } catch (const fs::filesystem_error& e) {
    throw BankError("cannot create the bank at " + root.string() + ": " + e.code().message());
  }
  {
    Database db(resolve_bank_path(root, select_ostan_path(prog)), Database::Mode::Create);
    create_table(db, "NameOstan", {"NameOstan"});
    insert_row(db, "NameOstan", {"NameOstan"}, {{"NameOstan", "TEHRAN"}});
  }
  {
    Database db(resolve_bank_path(root, back_color_path(prog)), Database::Mode::Create);
    create_table(db, "N_BackColor", {"N_BackColor"});
    insert_row(db, "N_BackColor", {"N_BackColor"}, {{"N_BackColor", "&H00C0C0C0&"}});
  }
  {
    Database db(resolve_bank_path(root, id_path(prog)), Database::Mode::Create);
    const std::vector<std::string> cols = {"ID", "TXTPathNameBank1", "TXTPathNameBank2"};
    create_table(db, "ID", cols);
    insert_row(db, "ID", cols,
               {{"ID", "1"},
                {"TXTPathNameBank1", station_folder + "\\ACCESS\\Kashf.mdb"},
                {"TXTPathNameBank2", prog + "\\BANK\\ACCESS\\Station.mdb"}});
  }
  {
    Database db(resolve_bank_path(root, past_path(prog)), Database::Mode::Create);
    create_past_table(db);
    insert_row(db, "Past", past_columns(), {});
  }
  {
    Database db(resolve_bank_path(root, prog + "\\BANK\\ACCESS\\Station.mdb"), Database::Mode::Create);
    create_station_table(db);
    insert_row(db, "Station", station_columns(), demo_station());
  }
  {
    Database db(resolve_bank_path(root, station_folder + "\\ACCESS\\Kashf.mdb"), Database::Mode::Create);
    create_kashf_table(db);
    create_cood_table(db);
  }
}

}  // namespace obsdesk
