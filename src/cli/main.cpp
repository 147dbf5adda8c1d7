// obsdesk-cli [--bank DIR] [--now "YYYY-MM-DD HH:MM"] run FILE|-
// obsdesk-cli symbols FILE   writes the contact sheet of the weather symbols
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "bank/bank.h"
#include "cli/runner.h"
#include "symbols/contact_sheet.h"

namespace {

int usage(std::ostream& o, int status) {
  o << "usage: obsdesk-cli [--bank DIR] [--now \"YYYY-MM-DD HH:MM\"] run FILE|-\n"
       "       obsdesk-cli symbols FILE\n"
       "  Runs a scenario: one command a line (start, click, type, set, choose, focus,\n"
       "  enter, key, answer, clock, print, dump, expect, messages).\n"
       "  --bank DIR  the bank root (default: the user's data folder)\n"
       "  --now TIME  the computer's clock shows this time\n"
       "  symbols     writes every weather symbol under its code to one SVG file\n";
  return status;
}

}  // namespace

// The contact sheet of the symbols, for review against the code tables.
int write_symbols(const char* path) {
  std::ofstream out(path, std::ios::binary);
  out << obsdesk::contact_sheet_svg();
  out.close();
  if (!out) {
    std::cerr << "obsdesk-cli: cannot write " << path << "\n";
    return 2;
  }
  return 0;
}

int main(int argc, char** argv) {
  if (argc == 3 && std::string(argv[1]) == "symbols") return write_symbols(argv[2]);
  std::filesystem::path bank = obsdesk::default_bank_root();
  std::optional<obsdesk::DateTime> now;
  std::string file;
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    if (a == "--help" || a == "-h") return usage(std::cout, 0);
    if (a == "--bank" && i + 1 < argc) {
      bank = argv[++i];
    } else if (a == "--now" && i + 1 < argc) {
      obsdesk::DateTime t;
      if (!obsdesk::parse_date_time(argv[++i], t)) {
        std::cerr << "obsdesk-cli: not a time: " << argv[i] << "\n";
        return 2;
      }
      now = t;
    } else if (a == "run" && i + 1 < argc && file.empty()) {
      file = argv[++i];
    } else {
      return usage(std::cerr, 2);
    }
  }
  if (file.empty()) return usage(std::cerr, 2);

  obsdesk::Runner runner(bank, std::cout);
  if (now) runner.set_now(*now);
  if (file == "-") return runner.run(std::cin, "-", std::cerr);
  std::error_code ec;
  if (std::filesystem::is_directory(file, ec)) {
    std::cerr << "obsdesk-cli: " << file << " is a folder, not a script\n";
    return 2;
  }
  std::ifstream in(file);
  if (!in) {
    std::cerr << "obsdesk-cli: cannot read " << file << "\n";
    return 2;
  }
  return runner.run(in, file, std::cerr);
}
