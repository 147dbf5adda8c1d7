// The observation record: one row of the KASHF table, every column text. This
// module is the one place that ties each column to its entry box on FrmKashf, the
// most that box accepts, the stored width, and the box of the record browser that
// is bound to it. It also holds the fixed lists the observer chooses from.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace obsdesk {

struct Column {
  std::string_view column;       // KASHF column
  std::string_view entry_box;    // box of FrmKashf the value is typed in; "" when none
  std::string_view entry_name;   // the short name the rules use ("FF", "VH"); "" when none
  int max;                       // most characters the entry box accepts; 0: no limit
  int width;                     // stored width: padded with blanks up to it; 0: stored as typed
  std::string_view browser_box;  // box of FrmDisplayKashf bound to the column
};

// Every KASHF column, in the table's order.
const std::vector<Column>& kashf_columns();
const Column* find_column(std::string_view column);

// The five report kinds, spelt exactly so, blanks included, in list order.
inline constexpr std::string_view kSynop = "SYNOP    ";
inline constexpr std::string_view kSynMet = "SYN & MET";
inline constexpr std::string_view kMetar = "METAR    ";
inline constexpr std::string_view kSpeci = "SPECI    ";
inline constexpr std::string_view kMetar30 = "METAR(30')";
inline constexpr std::array<std::string_view, 5> kReportKinds = {kSynop, kSynMet, kMetar, kSpeci, kMetar30};

bool is_report_kind(std::string_view text);
// "SYNOP    " and "SYN & MET": the kinds that code a SYNOP.
bool is_synop_kind(std::string_view kind);
// "METAR    ", "METAR(30')" and "SPECI    ": the kinds without the synoptic groups.
bool is_metar_kind(std::string_view kind);

// Cloud type lists. Each item is eight characters with the code figure last, but
// for the low list of Combo3 and the SYNOP list of Combo4, whose first item (and,
// for Combo4, last item) is one blank short. Kept as the station's registers
// expect: the item is stored as chosen, and records already in the bank hold
// the short form, which a padded item would no longer match.
const std::vector<std::string>& low_cloud_types();      // Combo1, Combo2
const std::vector<std::string>& low3_cloud_types();     // Combo3
const std::vector<std::string>& synop_cloud_types();    // Combo4
const std::vector<std::string>& middle_cloud_types();   // Combo6
const std::vector<std::string>& high_cloud_types();     // Combo9
inline constexpr std::string_view kNoCloud = "       0";  // seven blanks and a zero

// Visibility directions of CMbMAX and CMbMIN (W stands before SW).
const std::vector<std::string>& visibility_directions();
// Cmb_NLC: the head text and the layer list.
inline constexpr std::string_view kLayerHead = "NLC";
const std::vector<std::string>& layer_list();

// Station kinds of the Station profile.
inline constexpr std::string_view kStation12 = "ايستگاه 12 ساعته";
inline constexpr std::string_view kStation18 = "ايستگاه 18 ساعته";
inline constexpr std::string_view kStation24 = "ايستگاه 24 ساعته";
inline constexpr std::string_view kStation6 = "ايستگاه 6 ساعته";

}  // namespace obsdesk
