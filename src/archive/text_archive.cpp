#include "archive/text_archive.h"

#include <algorithm>
#include <stdexcept>

#include "bank/bank.h"
#include "bank/journal.h"
#include "calendar/calendar.h"
#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/record.h"

namespace obsdesk {

namespace fs = std::filesystem;

namespace {

std::string two(long n) { return pad_left(std::to_string(n), 2); }

std::string scdata(std::string_view folder) { return std::string(folder) + "\\TEXT\\SCDATA\\"; }
std::string kashf_dir(std::string_view folder) { return std::string(folder) + "\\TEXT\\KASHF\\"; }

// A field of a line: the value left-aligned in its width; a longer value stands.
std::string field(std::string_view value, std::size_t width) { return pad_right(value, width); }

// The station line of the browser leads the record; it is no column of the
// table.
constexpr RecordField kStationLine{"Text44", 50};

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
  // The browser's boxes in the order of the record. Each width is the stored
  // width of the column the box shows, so the record and the table cannot
  // drift apart.
  static constexpr std::string_view kOrder[] = {
      "TXTSEL", "Text48", "TXTYYMMDDTT", "TXTYEARmi", "TXTMONTHMI", "TXTDAYmi", "TXTYEARsh", "TXTMONTHSH",
      "TXTDAYsh", "Text1", "Text2", "Text40", "Text39", "Text3", "TXTGUSTY", "Text4",
      "CMbMAX", "Text26", "CMbMIN", "Text5", "Text12", "txtt12", "Text27", "Text28",
      "Text13", "Text14", "Text38", "Text25", "Text6", "Text45", "Text7", "Text8",
      "Text43", "Text10", "Text42", "Text11", "Text49", "Text46", "txtmin", "Text17",
      "Text47", "Text16", "Text23", "Text54", "Text22", "Text15", "Text18", "Text19",
      "Text20", "Text21", "Text24", "Text29", "Text30", "Text31", "Text32", "Text33",
      "Text34", "Text35", "Text36", "Text37", "Text68", "Text69", "Text70", "Text63",
      "Text64", "Text65", "Text66", "Text67", "Text71", "Text72", "Text73", "Txttond",
      "Txttimesun", "Txtmaxwind", "Text59", "Text60", "Text50", "txtpast6", "Text51", "Text53",
      "TXTWW4", "TXTWW5", "TXTWW6", "TXTWW1", "TXTWW3", "TXTWW2", "TXTNAM",
  };
  static const std::vector<RecordField> fields = [] {
    std::vector<RecordField> out{kStationLine};
    for (std::string_view box : kOrder) {
      const auto& columns = kashf_columns();
      const auto c = std::find_if(columns.begin(), columns.end(), [&](const Column& x) { return x.browser_box == box; });
      if (c == columns.end()) throw std::logic_error("no KASHF column is shown in " + std::string(box));
      out.push_back({box, c->width});
    }
    return out;
  }();
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
