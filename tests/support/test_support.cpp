#include "support/test_support.h"

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "bank/bank.h"
#include "bank/sqlite.h"
#include "screens/bank_tables.h"
#include "station/program.h"

namespace obsdesk::test {

TempDir::TempDir() {
  std::string tmpl = (std::filesystem::temp_directory_path() / "obsdesk-test-XXXXXX").string();
  if (::mkdtemp(tmpl.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
  path_ = tmpl;
}

TempDir::~TempDir() {
  std::error_code ec;
  std::filesystem::permissions(path_, std::filesystem::perms::owner_all, std::filesystem::perm_options::add, ec);
  std::filesystem::remove_all(path_, ec);
}

namespace {

namespace fs = std::filesystem;

// The made bank this process copies from.
const fs::path& made_bank() {
  static const fs::path made = [] {
    if (const char* shared = std::getenv("OBSDESK_TEST_BANK"); shared != nullptr && !bank_is_new(shared))
      return fs::path(shared);
    static TempDir own;  // lives to the end of the process
    make_bank(own.path());
    return own.path();
  }();
  return made;
}

}  // namespace

void make_bank(const fs::path& root) {
  create_bank(root);
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    std::string ext = entry.path().extension().string();
    for (char& c : ext) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (entry.is_regular_file() && ext == ".mdb") Database(entry.path(), Database::Mode::ReadWrite);
  }
}

void copy_made_bank(const fs::path& root) {
  fs::create_directories(root);
  fs::copy(made_bank(), root, fs::copy_options::recursive);
}

Station::Station(DateTime now, Root holds) : clock(now) {
  if (holds == Root::MadeBank) copy_made_bank(root());
  ws = std::make_unique<Workstation>(root(), Services{asker, clock, clipboard});
}

Desk& Station::start() {
  start_program(*ws);
  return *ws;
}

Desk& Station::restart() {
  ws.reset();
  ws = std::make_unique<Workstation>(root(), Services{asker, clock, clipboard});
  return start();
}

Desk& Station::open_browser() {
  start();
  ws->click(ws->FrmMain.Command2);
  return *ws;
}

Desk& Station::open_entry() {
  open_browser();
  ws->show(ws->FrmKashf);
  return *ws;
}

Control& Station::at(const std::string& qualified) {
  Control* c = ws->control(qualified);
  if (c == nullptr) throw std::runtime_error("no control " + qualified);
  return *c;
}

std::string read_bytes(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream o;
  o << in.rdbuf();
  return o.str();
}

}  // namespace obsdesk::test
