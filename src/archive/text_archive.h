// The text archives beside the KASHF table: \TEXT\SCDATA\ holds the coded
// synoptic lines (S, G and IT lines), \TEXT\KASHF\ one fixed-width record per
// saved report. Names are system paths below the bank root, as the bank paths
// of FrmMain are. On disk every line is Windows-1256 and ends in CR LF. The
// lines are written through the save journal (bank/journal.h), so that a report
// has all of its lines or none.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace obsdesk {

class Desk;
struct FrmCode;

// ---- Names ------------------------------------------------------------------

// The station's folder of the bank: <prog>\BANK\<first four letters of TXTCOD>.
std::string station_folder(Desk& ws);
// <nnn>: characters 3 to 5 of the station number, the number without its block.
std::string station_nnn(std::string_view numcod);

// The five SCDATA names, from the key text YYMMDDTT.
struct ScdataNames {
  std::string day, month, total, monthG, totalG;
};
ScdataNames scdata_names(std::string_view folder, std::string_view nnn, std::string_view key);

// The three KASHF names, from the key text.
struct KashfNames {
  std::string day, month, total;
};
KashfNames kashf_names(std::string_view folder, std::string_view nnn, std::string_view key);

// The climatological day of the IT file, which ends at 12 UTC: after 12 the day
// is advanced by one (month and year carried), and the earlier day is a plain
// subtraction from it, so the first of a month gives "00" and that is the name.
struct ItDay {
  std::string year, month, day_before, day;
};
ItDay it_day(std::string_view year, std::string_view month, std::string_view day, double hour);
std::string it_file_name(std::string_view folder, std::string_view nnn, const ItDay& d);

// Last month's file name of the month-end rewrite: month and year taken from the
// key, stepped back one month, each left-padded with "0" to two characters
// ("00" in January steps back to "-1", which keeps its two characters).
std::string previous_month_tag(std::string_view key);

// ---- Lines ------------------------------------------------------------------

// The IT line: "266" in place of "2" and the first two figures of the number.
std::string it_line(std::string_view s_line);

// One field of the KASHF text record: the browser box and its width (0: as it
// stands, the varying fields).
struct RecordField {
  std::string_view box;
  int width;
};
// The fields of the record in their order; the line ends with "NOTE" and the
// remarks after the last of them.
const std::vector<RecordField>& kashf_record_fields();
// The record from the browser's boxes: each value left-aligned in its field,
// then "NOTE" and the remarks as they stand.
std::string kashf_record(const std::function<std::string(std::string_view box)>& value);

// ---- Files ------------------------------------------------------------------

// A line as the files hold it: Windows-1256, ended by CR LF.
std::string line_bytes(std::string_view line);
std::string lines_bytes(const std::vector<std::string>& lines);
// Everything the program has written under the bank reaches the disk. A line
// appended to a text file is not on disk when the append returns: a save
// flushes all of them at once, with one flush of the bank's file system rather
// than one per file and line, so a crash before that flush can lose them.
void flush_bank(const std::filesystem::path& root);

// A system name below the bank root as a file under it.
std::filesystem::path bank_file(Desk& ws, std::string_view system_name);

}  // namespace obsdesk
