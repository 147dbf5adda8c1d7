// The SYNOP coder on the entry screen: the cloud check when Cmdsynop gets the
// focus, the pointer rules over it, and the run of its click, which fills the
// SYNOP frame of the code panel, joins txtSYN, splits it into the two report
// lines and composes the S and G archive lines. cmdsynop1218 makes the S line of
// a 12-hour station at 18, 21 and 00 UTC.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screens/record.h"

namespace obsdesk {

class Desk;

// The message of the cloud check; the first row has a double blank before "را".
inline constexpr std::string_view kCloudCheckAmount = "مــقدار ، نــوع و يا ارتفاع ابــر  را چــك نمـائيـــد";
inline constexpr std::string_view kCloudCheck = "مــقدار ، نــوع و يا ارتفاع ابــر را چــك نمـائيـــد";
inline constexpr std::string_view kWeatherMissing = "هواي حاضر ويا گذشته را چك نمائيد";
inline constexpr std::string_view kNoCloudAmounts = "لطفا وضعيت ابر ناكي را مشخص نمـائيـــد";
inline constexpr std::string_view kLineNot200 = "مــقداركراكتر مخالف 200 ميباشد";
inline constexpr std::string_view kNegativeEvaporation = "تبخير نمي تواند منفي باشد";

// The cloud rows against each other, run when Cmdsynop gets the focus. False
// when a row fails: its message is shown and the focus sent to the box.
bool synop_cloud_check(Desk& ws);

// The click of Cmdsynop. A run that does not reach a report which passes the
// final syntax check leaves the SYNOP uncoded: no text, no lines, no flag.
void run_synop(Desk& ws);
// Forgets the SYNOP of the report: its flag, its two lines and txtSYN; the
// confirmation button closes until a run codes again.
void forget_synop(Desk& ws);
// The click of cmdsynop1218.
void run_synop1218(Desk& ws);

// txtSYN from the boxes in their order: blank boxes left out, QNT behind, "=".
std::string join_synop(const std::vector<std::string>& boxes, std::string_view qnt);

// Pieces of the run, shared by the two buttons.
void synop_date_step(Desk& ws, StationKind kind, int clock_hour,
                     std::initializer_list<std::string_view> hours);
void synop_copies(Desk& ws);
// The report's hour and both dates into the panel's head.
void synop_hour_and_dates(Desk& ws);
// "2", station number, year, month, day and hour of the panel.
std::string synop_line_prefix(Desk& ws);
// Shows the S line and tells when it is not 200 characters long.
void set_archive_line(Desk& ws, std::string line);

// Binds the focus and pointer rules of Cmdsynop; wire_synop calls it.
void wire_synop_pointer(Desk& ws);
void wire_synop(Desk& ws);

}  // namespace obsdesk
