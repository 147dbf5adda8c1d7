#include "archive/text_archive.h"

#include "bank/bank.h"
#include "bank/journal.h"
#include "calendar/calendar.h"
#include "core/textnum.h"
#include "screens/desk.h"

namespace obsdesk {

namespace fs = std::filesystem;

namespace {

std::string two(long n) { return pad_left(std::to_string(n), 2); }

std::string scdata(std::string_view folder) { return std::string(folder) + "\\TEXT\\SCDATA\\"; }
std::string kashf_dir(std::string_view folder) { return std::string(folder) + "\\TEXT\\KASHF\\"; }

// A field of a line: the value left-aligned in its width; a longer value stands.
std::string field(std::string_view value, std::size_t width) { return pad_right(value, width); }

}  // namespace

std::string station_folder(Desk& ws) {
  return trim(ws.FrmMain.LabName.text) + "\\BANK\\" + left(ws.FrmOption.TXTCOD.text, 4);
}

std::string station_nnn(std::string_view numcod) { return mid(numcod, 3, 3); }

ScdataNames scdata_names(std::string_view folder, std::string_view nnn, std::string_view key) {
  const std::string yy = mid(key, 1, 2), mm = mid(key, 3, 2), dd = mid(key, 5, 2);
  const std::string dir = scdata(folder), n(nnn);
  return {dir + "S" + n + yy + mm + dd + ".dat", dir + "S" + n + yy + mm + ".dat", dir + "S" + n + ".dat",
          dir + "SG" + n + yy + mm + ".dat", dir + "SG" + n + ".dat"};
}

KashfNames kashf_names(std::string_view folder, std::string_view nnn, std::string_view key) {
  const std::string yy = mid(key, 1, 2), mm = mid(key, 3, 2), dd = mid(key, 5, 2);
  const std::string dir = kashf_dir(folder) + "KASHF" + std::string(nnn);
  return {dir + yy + mm + dd + ".dat", dir + yy + mm + ".dat", dir + ".dat"};
}

ItDay it_day(std::string_view year, std::string_view month, std::string_view day, double hour) {
  ItDay d{std::string(year), std::string(month), {}, std::string(day)};
  if (hour > 12) {
    long y = int_val(year), m = int_val(month), dd = int_val(day) + 1;
    static const int kLength[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const long length = m == 2 ? (gregorian_leap(static_cast<int>(y)) ? 29 : 28)
                                : (m >= 1 && m <= 12 ? kLength[m - 1] : 31);
    if (dd > length) {
      dd = 1;
      if (++m > 12) {
        m = 1;
        d.year = num(static_cast<double>(++y));
      }
      d.month = two(m);
    }
    d.day = two(dd);
  }
  const long before = int_val(d.day) - 1;
  d.day_before = before >= 0 && before < 10 ? "0" + std::to_string(before) : std::to_string(before);
  return d;
}

std::string it_file_name(std::string_view folder, std::string_view nnn, const ItDay& d) {
  return scdata(folder) + "S" + std::string(nnn) + d.year + d.month + d.day_before + d.day + "IT.DAT";
}

std::string previous_month_tag(std::string_view key) {
  long m = int_val(mid(key, 3, 2));
  long y = int_val(mid(key, 1, 2));
  if (m == 1) {
    m = 12;
    --y;
  } else {
    --m;
  }
  auto pad = [](long n) {
    std::string t = std::to_string(n);
    return len(t) == 1 ? "0" + t : t;
  };
  return pad(y) + pad(m);
}

std::string it_line(std::string_view s) { return "266" + mid(s, 4); }

const std::vector<RecordField>& kashf_record_fields() {
  static const std::vector<RecordField> fields = {
      {"Text44", 50},     {"TXTSEL", 0},     {"Text48", 2},      {"TXTYYMMDDTT", 10}, {"TXTYEARmi", 4},
      {"TXTMONTHMI", 2},  {"TXTDAYmi", 2},   {"TXTYEARsh", 4},   {"TXTMONTHSH", 2},   {"TXTDAYsh", 2},
      {"Text1", 0},       {"Text2", 4},      {"Text40", 4},      {"Text39", 4},       {"Text3", 3},
      {"TXTGUSTY", 3},    {"Text4", 5},      {"CMbMAX", 0},      {"Text26", 5},       {"CMbMIN", 0},
      {"Text5", 2},       {"Text12", 4},     {"txtt12", 5},      {"Text27", 5},       {"Text28", 5},
      {"Text13", 5},      {"Text14", 6},     {"Text38", 1},      {"Text25", 4},       {"Text6", 2},
      {"Text45", 8},      {"Text7", 4},      {"Text8", 2},       {"Text43", 8},       {"Text10", 2},
      {"Text42", 8},      {"Text11", 4},     {"Text49", 2},      {"Text46", 8},       {"txtmin", 4},
      {"Text17", 2},      {"Text47", 8},     {"Text16", 4},      {"Text23", 2},       {"Text54", 8},
      {"Text22", 4},      {"Text15", 4},     {"Text18", 6},      {"Text19", 6},       {"Text20", 5},
      {"Text21", 6},      {"Text24", 7},     {"Text29", 5},      {"Text30", 5},       {"Text31", 4},
      {"Text32", 5},      {"Text33", 5},     {"Text34", 4},      {"Text35", 4},       {"Text36", 4},
      {"Text37", 4},      {"Text68", 5},     {"Text69", 3},      {"Text70", 3},       {"Text63", 5},
      {"Text64", 5},      {"Text65", 7},     {"Text66", 4},      {"Text67", 6},       {"Text71", 5},
      {"Text72", 5},      {"Text73", 5},     {"Txttond", 5},     {"Txttimesun", 5},   {"Txtmaxwind", 5},
      {"Text59", 5},      {"Text60", 5},     {"Text50", 4},      {"txtpast6", 4},     {"Text51", 4},
      {"Text53", 4},      {"TXTWW4", 7},     {"TXTWW5", 7},      {"TXTWW6", 7},       {"TXTWW1", 7},
      {"TXTWW3", 7},      {"TXTWW2", 7},     {"TXTNAM", 30},
  };
  return fields;
}

std::string kashf_record(const std::function<std::string(std::string_view box)>& value) {
  std::string out;
  for (const RecordField& f : kashf_record_fields()) {
    const std::string v = value(f.box);
    out += f.width > 0 ? field(v, static_cast<std::size_t>(f.width)) : v;
  }
  return out + "NOTE" + value("Text74");
}

std::string line_bytes(std::string_view line) { return to_cp1256(line) + "\r\n"; }

std::string lines_bytes(const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line_bytes(line);
  return bytes;
}

void flush_bank(const fs::path& root) { flush_files(root); }

fs::path bank_file(Desk& ws, std::string_view system_name) {
  return resolve_bank_path(ws.bank_root(), system_name);
}

}  // namespace obsdesk
