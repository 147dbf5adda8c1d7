#include "cli/runner.h"

#include <istream>
#include <ostream>
#include <sstream>

#include "bank/sqlite.h"
#include "cli/bank_files.h"
#include "station/program.h"
#include "core/textnum.h"
#include "station/workstation.h"

namespace obsdesk {

std::vector<std::string> split_command(std::string_view line) {
  std::vector<std::string> words;
  std::size_t i = 0;
  while (i < line.size()) {
    while (i < line.size() && (line[i] == ' ' || line[i] == '\t' || line[i] == '\r')) ++i;
    if (i >= line.size() || line[i] == '#') break;
    std::string w;
    if (line[i] == '"') {
      ++i;
      bool closed = false;
      while (i < line.size()) {
        const char c = line[i++];
        if (c == '"') {
          closed = true;
          break;
        }
        if (c == '\\' && i < line.size() && (line[i] == '"' || line[i] == '\\')) {
          w += line[i++];
          continue;
        }
        w += c;
      }
      if (!closed) throw ScriptError("a quoted word is not closed");
      if (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r')
        throw ScriptError("a quoted word must stand alone");
    } else {
      while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r') w += line[i++];
    }
    words.push_back(std::move(w));
  }
  return words;
}

namespace {

std::string json_string(std::string_view s) {
  std::string out = "\"";
  for (char c : s) {
    switch (c) {
      case '"': out += "\\\""; break;
      case '\\': out += "\\\\"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      case '\t': out += "\\t"; break;
      default:
        if (static_cast<unsigned char>(c) < 0x20) {
          char buf[8];
          std::snprintf(buf, sizeof buf, "\\u%04x", c);
          out += buf;
        } else {
          out += c;
        }
    }
  }
  return out + "\"";
}

void need(const std::vector<std::string>& w, std::size_t min, std::size_t max, const char* usage) {
  if (w.size() < min || w.size() > max) throw ScriptError(std::string("usage: ") + usage);
}

}  // namespace

Runner::Runner(std::filesystem::path bank_root, std::ostream& out)
    : bank_root_(std::move(bank_root)), out_(out) {}

Runner::~Runner() = default;

Desk& Runner::require_started() {
  if (!ws_) throw ScriptError("the program has not been started (use start)");
  if (ws_->ended()) throw ScriptError("the program has ended (use start)");
  return *ws_;
}

std::string Runner::value_of(std::string_view name) {
  if (name == "clipboard") return clipboard_.text();
  if (name == "ended") return ws_ && ws_->ended() ? "1" : "0";  // the program has ended itself
  Desk& ws = require_started();
  if (name == "focus") return ws.focused() ? ws.focused()->full_name() : "";
  if (name == "screen") return ws.active_screen() ? ws.active_screen()->name : "";
  if (name == "SYNOP_coded") return std::to_string(ws.SYNOP_coded);
  if (name == "METAR_coded") return std::to_string(ws.METAR_coded);
  if (name == "SPECI_coded") return std::to_string(ws.SPECI_coded);
  if (name == "SynopLine1") return ws.SynopLine1;
  if (name == "SynopLine2") return ws.SynopLine2;
  if (name == "MetarLine1") return ws.MetarLine1;
  if (name == "MetarLine2") return ws.MetarLine2;
  if (name == "SpeciLine1") return ws.SpeciLine1;
  if (name == "SpeciLine2") return ws.SpeciLine2;
  if (name == "WeatherBoxSelect") return std::to_string(ws.WeatherBoxSelect);
  Control* c = ws.control(name);
  if (c == nullptr) throw ScriptError("unknown control " + std::string(name));
  return c->text;
}

std::string Runner::dump(std::string_view screen_name) {
  Desk& ws = require_started();
  Screen* s = ws.screen(screen_name);
  if (s == nullptr) throw ScriptError("unknown screen " + std::string(screen_name));
  std::ostringstream o;
  o << "{\"screen\":" << json_string(s->name) << ",\"visible\":" << (s->visible ? "true" : "false")
    << ",\"controls\":{";
  bool first = true;
  for (const Control* c : s->controls()) {
    o << (first ? "" : ",") << json_string(c->name) << ":{\"text\":" << json_string(c->text)
      << ",\"visible\":" << (c->visible ? "true" : "false") << ",\"enabled\":" << (c->enabled ? "true" : "false")
      << ",\"locked\":" << (c->locked ? "true" : "false") << ",\"back_color\":" << c->back_color;
    if (c->kind == Kind::OptionButton) o << ",\"value\":" << (c->value ? "true" : "false");
    if (c->kind == Kind::ComboBox) {
      o << ",\"items\":[";
      for (std::size_t i = 0; i < c->items.size(); ++i) o << (i ? "," : "") << json_string(c->items[i]);
      o << "]";
    }
    o << "}";
    first = false;
  }
  o << "}}";
  return o.str();
}

bool Runner::execute(const std::vector<std::string>& w, std::string* failure) {
  if (w.empty()) return true;
  const std::string& cmd = w[0];
  auto control = [&](const std::string& name) -> Control& {
    Control* c = require_started().control(name);
    if (c == nullptr) throw ScriptError("unknown control " + name);
    return *c;
  };

  if (cmd == "start") {
    need(w, 1, 1, "start");
    if (!ws_ || ws_->ended()) {
      ws_.reset();
      ws_ = std::make_unique<Workstation>(bank_root_, Services{asker_, clock_, clipboard_});
    }
    start_program(*ws_);
  } else if (cmd == "click") {
    need(w, 2, 2, "click CONTROL");
    require_started().click(control(w[1]));
  } else if (cmd == "dblclick") {
    need(w, 2, 2, "dblclick CONTROL");
    require_started().dbl_click(control(w[1]));
  } else if (cmd == "point") {
    need(w, 2, 2, "point CONTROL");
    require_started().point_at(control(w[1]));
  } else if (cmd == "type") {
    need(w, 3, 3, "type CONTROL TEXT");
    require_started().type(control(w[1]), w[2]);
  } else if (cmd == "set") {
    need(w, 3, 3, "set CONTROL TEXT");
    require_started().set_text(control(w[1]), w[2]);
  } else if (cmd == "choose") {
    need(w, 3, 3, "choose CONTROL ITEM");
    require_started().choose(control(w[1]), w[2]);
  } else if (cmd == "focus") {
    need(w, 2, 2, "focus CONTROL");
    require_started().focus_now(control(w[1]));
  } else if (cmd == "enter") {
    need(w, 1, 1, "enter");
    require_started().press_enter();
  } else if (cmd == "key") {
    need(w, 3, 3, "key CONTROL KEY");
    require_started().key_up(control(w[1]), w[2]);
  } else if (cmd == "answer") {
    need(w, 2, 2, "answer yes|no");
    if (w[1] != "yes" && w[1] != "no") throw ScriptError("usage: answer yes|no");
    asker_.queue(w[1] == "yes");
  } else if (cmd == "clock") {
    need(w, 2, 2, "clock \"YYYY-MM-DD HH:MM\"");
    DateTime t;
    if (!parse_date_time(w[1], t)) throw ScriptError("not a time: " + w[1]);
    clock_.set(t);
  } else if (cmd == "print") {
    need(w, 2, 1000, "print CONTROL...");
    for (std::size_t i = 1; i < w.size(); ++i) {
      std::string name = w[i];
      const std::string value = value_of(name);
      if (Control* c = ws_ ? ws_->control(name) : nullptr) name = c->full_name();
      out_ << name << "=" << value << "\n";
    }
  } else if (cmd == "dump") {
    need(w, 2, 2, "dump SCREEN");
    out_ << dump(w[1]) << "\n";
  } else if (cmd == "file") {
    need(w, 2, 2, "file PATH");
    print_bank_files(bank_root_, w[1], out_);
  } else if (cmd == "expect") {
    need(w, 3, 3, "expect CONTROL TEXT");
    const std::string got = value_of(w[1]);
    if (got != w[2]) {
      if (failure) *failure = "expected " + w[1] + "=\"" + w[2] + "\", got \"" + got + "\"";
      return false;
    }
  } else if (cmd == "messages") {
    need(w, 1, 1, "messages");
    if (!ws_) require_started();
    for (const std::string& m : ws_->take_messages()) out_ << m << "\n";
  } else {
    throw ScriptError("unknown command " + cmd);
  }
  return true;
}

namespace {

// A text of the script shown in a message: at most 200 characters, so that one
// runaway line cannot flood the terminal.
std::string cut(std::string_view text) {
  constexpr std::size_t kShown = 200;
  if (len(text) <= kShown) return std::string(text);
  return left(text, kShown) + "...";
}

}  // namespace

int Runner::run(std::istream& in, const std::string& source, std::ostream& err) {
  std::string line;
  int number = 0;
  while (std::getline(in, line)) {
    ++number;
    // A script saved by a Windows editor may start with a byte-order mark.
    if (number == 1 && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
    const std::string where = source + ":" + std::to_string(number) + ": ";
    auto bad_line = [&](const std::exception& e) {
      out_.flush();
      err << where << cut(e.what()) << "\n" << where << "in \"" << cut(line) << "\"\n";
      return 2;
    };
    try {
      std::string failure;
      if (!execute(split_command(line), &failure)) {
        out_.flush();
        err << where << failure << "\n";
        return 1;
      }
    } catch (const ScriptError& e) {
      return bad_line(e);
    } catch (const UsageError& e) {
      return bad_line(e);
    } catch (const BankError& e) {
      return bad_line(e);
    }
  }
  return 0;
}

}  // namespace obsdesk
