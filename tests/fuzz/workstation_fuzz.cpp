// A seeded storm of what an observer can do: random clicks, key strokes, typed
// texts, list choices, answers and clock changes over every control of every
// screen, in sequences on a fresh bank each. After every sequence every database
// of the bank must pass SQLite's integrity check, and after every event each
// report a coder has coded (the lines that go into the bulletins) must pass the
// final syntax check of the coders. A sequence is reproduced by its
// number, and --print writes it as a scenario for the runner, so a fault it finds
// becomes a regression scenario.
//
//   obsdesk_fuzz [--seed S] [--events N] [--per-sequence M] [--sequence K --print]
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

#include "bank/sqlite.h"
#include "coders/syntax_gate.h"
#include "cli/runner.h"
#include "station/workstation.h"

namespace fs = std::filesystem;
using namespace obsdesk;

namespace {

struct Options {
  std::uint64_t seed = 1;
  long events = 100000;
  int per_sequence = 2000;
  long only_sequence = -1;
  bool print = false;
};

// Texts an observer types, on purpose or by a slip: good values, the system's
// "not observed" marks, limits, junk, Persian and Arabic figures, long runs.
const std::vector<std::string> kTexts = {
    "", "0", "00", "1", "5", "9", "10", "12", "18", "21", "24", "25", "30", "45", "99", "100",
    "360", "800", "1000", "1013.2", "850.4", "9999", "10000", "99999", "-1", "-12.5", "-0.4",
    "0.5", "4.55", ".", "..", "/", "//", "///", "-", "+", "TR", "tr", "VRB", "VRB ", "CAVOK",
    " ", "  ", "a", "Z", "ب", "ه", "٣", "۵", "1e308", "99999999999999999999", "'", "\"", "%",
    "*", "_", "\\", "?", "12a", "0/", "/0", "3.14159", "0000000", "SYNOP    ", "METAR    ",
    "SYN & MET", "METAR(30')", "SPECI    ", "1400", "06", "03", "15"};

std::string random_text(std::mt19937_64& rng) {
  std::uniform_int_distribution<int> pick(0, 9);
  if (pick(rng) < 7) return kTexts[rng() % kTexts.size()];
  // A run of random figures and signs.
  static const std::string alphabet = "0123456789./-+ ";
  std::string s;
  const int n = static_cast<int>(rng() % 9);
  for (int i = 0; i < n; ++i) s += alphabet[rng() % alphabet.size()];
  return s;
}

std::string quoted(const std::string& w) {
  std::string out = "\"";
  for (char c : w) {
    if (c == '"' || c == '\\') out += '\\';
    out += c;
  }
  return out + "\"";
}

std::string as_line(const std::vector<std::string>& words) {
  std::string line;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i) line += ' ';
    line += i == 0 ? words[i] : quoted(words[i]);
  }
  return line;
}

// One command, chosen by weight; controls are mostly taken from the screen the
// observer is looking at, sometimes from anywhere.
std::vector<std::string> next_command(Desk& ws, std::mt19937_64& rng) {
  std::vector<Control*> pool;
  Screen* active = ws.active_screen();
  if (active != nullptr && rng() % 5 != 0) pool = active->controls();
  if (pool.empty()) {
    const auto& screens = ws.screens();
    Screen* s = screens[rng() % screens.size()];
    pool = s->controls();
  }
  Control* c = pool.empty() ? nullptr : pool[rng() % pool.size()];
  const std::string name = c ? c->full_name() : "FrmKashf.Text1";

  const int roll = static_cast<int>(rng() % 100);
  if (roll < 28) return {"type", name, random_text(rng)};
  if (roll < 48) return {"enter"};
  if (roll < 66) return {"click", name};
  if (roll < 74) {
    std::string item = c && !c->items.empty() ? c->items[rng() % c->items.size()] : random_text(rng);
    return {"choose", name, item};
  }
  if (roll < 79) return {"set", name, random_text(rng)};
  if (roll < 84) return {"focus", name};
  if (roll < 87) return {"dblclick", name};
  if (roll < 90) {
    static const std::vector<std::string> keys = {"\r", "0", "5", "/", "-", ".", "a", "\b"};
    return {"key", name, keys[rng() % keys.size()]};
  }
  if (roll < 98) return {"answer", rng() % 3 ? "yes" : "no"};
  // The clock: any time of a few years, month ends and 23 h more often.
  const int year = 2019 + static_cast<int>(rng() % 8);
  const int month = 1 + static_cast<int>(rng() % 12);
  const int day = rng() % 3 ? 1 + static_cast<int>(rng() % 28) : 28 + static_cast<int>(rng() % 4);
  const int hour = rng() % 3 ? static_cast<int>(rng() % 24) : 23;
  char buf[32];
  std::snprintf(buf, sizeof buf, "%04d-%02d-%02d %02d:%02d", year, month, day, hour,
                static_cast<int>(rng() % 60));
  return {"clock", buf};
}

// Every database file of the bank passes SQLite's integrity check.
bool bank_sound(const fs::path& root, std::string& why) {
  std::error_code ec;
  for (fs::recursive_directory_iterator it(root, ec), end; it != end; it.increment(ec)) {
    if (ec) break;
    if (!it->is_regular_file()) continue;
    std::string ext = it->path().extension().string();
    for (char& ch : ext) ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    if (ext != ".MDB") continue;
    try {
      Database db(it->path(), Database::Mode::ReadWrite);
      Statement st = db.prepare("PRAGMA integrity_check");
      if (!st.step() || st.text(0) != "ok") {
        why = it->path().string() + ": integrity check failed";
        return false;
      }
    } catch (const std::exception& e) {
      why = it->path().string() + ": " + e.what();
      return false;
    }
  }
  return true;
}

// The report text of a coder's two bulletin lines, as the coder joined it.
std::string joined(const std::string& line1, const std::string& line2) {
  return line2.empty() ? line1 : line1 + " " + line2;
}

// Every coded report passes the syntax check; false with the reason when one
// does not. The lines, not the boxes, are read: the runner can type into a box,
// but only a coder writes the lines that reach the bulletins.
// Random keys alone seldom fill a report the coders accept. Half the sequences
// therefore begin from a whole report of a golden scenario, typed up to its coder
// button, and every sequence presses the coder buttons now and then: the storm
// then works on reports that code, and the syntax check sees them.
const char* const kBaseReports[] = {"synop/full-06utc.scenario", "metar/worked-example.scenario"};

std::vector<std::vector<std::string>> base_report(const std::string& name) {
  std::ifstream in(fs::path(OBSDESK_SOURCE_DIR) / "tests" / "scenarios" / name);
  std::vector<std::vector<std::string>> lines;
  for (std::string line; std::getline(in, line);) {
    std::vector<std::string> words;
    try {
      words = split_command(line);
    } catch (const ScriptError&) {
      continue;
    }
    if (words.empty()) continue;
    const std::string& cmd = words[0];
    if (cmd == "start" || cmd == "print" || cmd == "messages" || cmd == "expect" || cmd == "file" || cmd == "dump")
      continue;
    lines.push_back(words);
    if (cmd == "click" && (words[1] == "Cmdsynop" || words[1] == "Command4")) break;
  }
  return lines;
}

// One box of the entry screen put to a random text, as a slip of the observer
// on a report that was whole.
std::vector<std::string> entry_slip(Desk& ws, std::mt19937_64& rng) {
  std::vector<Control*> boxes;
  for (Control* c : ws.FrmKashf.controls())
    if (c->kind == Kind::TextBox && c->reachable()) boxes.push_back(c);
  if (boxes.empty()) return {"enter"};
  return {"set", boxes[rng() % boxes.size()]->full_name(), random_text(rng)};
}

std::vector<std::string> coder_click(std::mt19937_64& rng) {
  static const char* const buttons[] = {"Cmdsynop", "Command4", "Command8", "cmdsynop1218"};
  return {"click", buttons[rng() % 4]};
}

// Distinct coded reports met in the run, to show how much the check saw.
std::set<std::string>& coded_seen() {
  static std::set<std::string> seen;
  return seen;
}

bool coded_reports_sound(const Desk& ws, std::string& why) {
  for (const std::string* line : {&ws.SynopLine1, &ws.MetarLine1, &ws.SpeciLine1})
    if (!line->empty()) coded_seen().insert(*line);
  std::optional<GateFault> f;
  std::string text;
  if (!ws.SynopLine1.empty() && (f = synop_fault(text = joined(ws.SynopLine1, ws.SynopLine2)))) {
  } else if (!ws.MetarLine1.empty() && (f = metar_fault(text = joined(ws.MetarLine1, ws.MetarLine2), false))) {
  } else if (!ws.SpeciLine1.empty() && (f = metar_fault(text = joined(ws.SpeciLine1, ws.SpeciLine2), true))) {
  }
  if (!f) return true;
  why = "a coded report fails the syntax check at \"" + f->group + "\": " + text;
  return false;
}

// Runs one sequence; false with the reason when the workstation broke.
bool run_sequence(const Options& o, long k, const fs::path& root, long& events, std::string& why) {
  std::mt19937_64 rng(o.seed * 1000003ULL + static_cast<std::uint64_t>(k));
  fs::remove_all(root);
  std::ostringstream sink;
  std::vector<std::string> script;
  {
    Runner runner(root, sink);
    auto perform = [&](const std::vector<std::string>& words) -> bool {
      script.push_back(as_line(words));
      if (o.print) std::cout << script.back() << "\n";
      try {
        // The fuzzer writes no expects, so there is no failed one to look at.
        static_cast<void>(runner.execute(words, nullptr));
      } catch (const ScriptError&) {
      } catch (const UsageError&) {
        // A control that cannot be reached or an item not in the list: refused, as
        // the screen itself would refuse it.
      } catch (const std::exception& e) {
        why = std::string("after \"") + script.back() + "\": " + e.what();
        return false;
      }
      sink.str("");
      return true;
    };
    if (!perform({"clock", "2024-03-20 05:40"}) || !perform({"start"})) return false;
    if (k % 2 == 0) {
      static const std::vector<std::vector<std::string>> bases[] = {base_report(kBaseReports[0]),
                                                                    base_report(kBaseReports[1])};
      for (const auto& words : bases[(k / 2) % 2])
        if (!perform(words)) return false;
    }
    for (int i = 0; i < o.per_sequence; ++i, ++events) {
      Desk* ws = runner.workstation();
      if (ws == nullptr || ws->ended()) {
        if (!perform({"start"})) return false;
        continue;
      }
      if (k % 2 == 0 && i < 300) {
        // One slip on the whole report, its coder pressed, the box put back.
        const std::vector<std::string> slip = entry_slip(*ws, rng);
        Control* box = slip.size() == 3 ? ws->control(slip[1]) : nullptr;
        const std::string before = box ? box->text : std::string();
        if (!perform(slip)) return false;
        if (!perform({"click", (k / 2) % 2 == 0 ? "Cmdsynop" : "Command4"})) return false;
        if (!coded_reports_sound(*runner.workstation(), why)) {
          why = "after \"" + script.back() + "\": " + why;
          return false;
        }
        if (box != nullptr && runner.workstation() == ws && !perform({"set", slip[1], before})) return false;
        continue;
      }
      if (!perform(rng() % 25 == 0 ? coder_click(rng) : next_command(*ws, rng))) return false;
      if (runner.workstation() != nullptr && !coded_reports_sound(*runner.workstation(), why)) {
        why = "after \"" + script.back() + "\": " + why;
        return false;
      }
    }
  }
  return bank_sound(root, why);
}

}  // namespace

int main(int argc, char** argv) {
  Options o;
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    auto value = [&]() -> long {
      if (i + 1 >= argc) {
        std::cerr << "obsdesk_fuzz: " << a << " needs a value\n";
        std::exit(2);
      }
      return std::strtol(argv[++i], nullptr, 10);
    };
    if (a == "--seed") o.seed = static_cast<std::uint64_t>(value());
    else if (a == "--events") o.events = value();
    else if (a == "--per-sequence") o.per_sequence = static_cast<int>(value());
    else if (a == "--sequence") o.only_sequence = value();
    else if (a == "--print") o.print = true;
    else {
      std::cerr << "usage: obsdesk_fuzz [--seed S] [--events N] [--per-sequence M] [--sequence K --print]\n";
      return 2;
    }
  }
  if (o.per_sequence < 1) o.per_sequence = 1;
  // A bank in memory when the machine offers one: the bank syncs every write.
  std::error_code shm_ec;
  const fs::path base = fs::is_directory("/dev/shm", shm_ec) ? fs::path("/dev/shm") : fs::temp_directory_path();
  const fs::path root = base / ("obsdesk-fuzz-" + std::to_string(::getpid()));
  long events = 0;
  const long sequences = o.only_sequence >= 0 ? 1 : (o.events + o.per_sequence - 1) / o.per_sequence;
  int status = 0;
  for (long n = 0; n < sequences; ++n) {
    const long k = o.only_sequence >= 0 ? o.only_sequence : n;
    std::string why;
    if (!run_sequence(o, k, root, events, why)) {
      std::cerr << "obsdesk_fuzz: seed " << o.seed << " sequence " << k << ": " << why
                << "\n  reproduce: obsdesk_fuzz --seed " << o.seed << " --per-sequence " << o.per_sequence
                << " --sequence " << k << " --print\n";
      status = 1;
      break;
    }
  }
  std::error_code ec;
  fs::remove_all(root, ec);
  if (!o.print) std::cout << "obsdesk_fuzz: " << events << " events in " << sequences << " sequences, seed " << o.seed
                          << ", " << coded_seen().size() << " coded reports checked" << (status ? ": FAILED" : ": no fault")
                          << "\n";
  return status;
}
