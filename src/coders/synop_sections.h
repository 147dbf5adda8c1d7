// The groups of sections 3 and 5 of a SYNOP, the cloud groups 8NsChshs and the
// date step of a report made after midnight, each a pure function over texts.
// As for section 1: nullopt means no branch matched and the box keeps what it
// held; a number that cannot be read throws CoderError.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace obsdesk {

// 4a3hhh from the height of the 850 hPa level; nullopt for "+++++" or empty.
std::optional<std::string> upper_air_group(std::string_view h850);
// The slot of 4a3hhh in the S line: the group at a station between 750 and
// 2300 m at the main hours, else five blanks.
std::string upper_air_slot(std::string_view group, std::string_view station_height, std::string_view hour);

// C of a cloud type item for section 3; "" for an item with no genus.
std::string section3_cloud_figure(std::string_view type);
// hshs of a layer height in metres; first_low: the first low row.
std::optional<std::string> layer_height_code(double x, bool first_low);
// The vertical visibility group written first into 8NSCHSHS.
std::optional<std::string> vertical_visibility_group(std::string_view vv);

// One cloud row of the observation.
struct CloudRow {
  std::string amount;  // VALUEL1 ... VALUEH as typed
  std::string type;    // the list item
  std::string height;  // HIGL1 ... HIGH as typed
};
// The five rows L1, L2, L3, M, H, and what the choice needs beside them.
struct Section3Clouds {
  std::array<CloudRow, 5> rows;
  std::string vv;  // vertical visibility
};
using CloudBoxes = std::array<std::string, 4>;  // 8NSCHSHS, 8NSCHSHS1 .. 8NSCHSHS3

// The amount of a row as section 3 counts it: a trace, an empty box and "X" (a
// layer hidden by an overcast below) are 0.
double section3_amount(std::string_view amount);
// The group 8NsChshs of one row (row 0 is the first low row); five blanks when
// the row has no height, or its height is "X".
std::string layer_group(const CloudRow& row, bool first_low);
// The choice of the four boxes from the rows, starting from boxes as they are.
CloudBoxes choose_cloud_boxes(const Section3Clouds& in, CloudBoxes boxes);
// A box whose second figure is 9 (sky obscured) goes when no vertical visibility
// was given: an obscured sky is reported by its vertical visibility, not as a layer.
void drop_obscured_boxes(CloudBoxes& boxes, std::string_view vv);
// After the obscured boxes go: eight oktas of the first layer leave box 0 alone,
// and a box of no cover gives way to the boxes behind it.
void compact_cloud_boxes(CloudBoxes& boxes, std::string_view valuel1);

// 7R24R24R24R24 from the rain of 24 hours.
std::optional<std::string> rain24_group(std::string_view rain);

// 4E'sss: E' of the state of ground, sss of the total snow in cm.
std::string snow_group(std::string_view ground_code, std::string_view snow);

// iE of the evaporation pan or crop; "" for a kind not in the table.
std::string pan_figure(std::string_view pan_kind);
// 5EEEiE. A negative evaporation is refused by the caller before this.
std::optional<std::string> evaporation_group(std::string_view evaporation, std::string_view pan_kind);
// True when the evaporation text is a negative number.
bool evaporation_is_negative(std::string_view evaporation);

// 55SSS from the sunshine hours.
std::optional<std::string> sunshine_group(std::string_view sun);

// 2FFFF from the global radiation and the station's radiation factor.
std::string radiation_group(std::string_view radiation, std::string_view factor);

// The date of a report made after midnight, one day on. Texts as in the date
// boxes; the Persian day only goes up, the Gregorian date is normalised.
struct ReportDate {
  std::string year, month, day, sh_day;
};
ReportDate next_report_day(ReportDate d);

}  // namespace obsdesk
