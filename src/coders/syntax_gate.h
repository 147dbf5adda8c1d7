// The last check of a coded report before it may be confirmed: its text is read
// as the receiving centre reads it. A report that does not pass is not coded.
// The gate does not replace the rules of the entry boxes; it is there so that no
// path the rules missed can put a malformed group into a bulletin.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace obsdesk {

// What is wrong with a report text: the group that fails, as it stands in the
// text ("=" when the closing sign is missing, doubled or misplaced; the whole
// text when it has no group at all).
struct GateFault {
  std::string group;
};

// A SYNOP body as txtSYN holds it: groups of exactly five characters from the
// figures and "/", one blank apart, the section indicator "333" allowed once,
// and one "=" closing the last group. The first group's iR (0 to 4) and iX
// (1 to 7) must be figures.
std::optional<GateFault> synop_fault(std::string_view text);

// A METAR body as TXTMET holds it (a blank before every group), or a SPECI text
// as TXTSPE holds it (its time group DDhhmmZ first, then the METAR groups). Each
// group must have one of the shapes the METAR coder and its boards produce.
std::optional<GateFault> metar_fault(std::string_view text, bool speci);

// The message for a group that fails the gate.
std::string gate_message(const GateFault& fault);

}  // namespace obsdesk
