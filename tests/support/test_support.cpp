#include "support/test_support.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

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

Station::Station(DateTime now) : clock(now) {
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
