// The key text of a report, TXTYYMMDDTT: the Gregorian year from its third
// character, the month, the day and the hour of Text1, each trimmed.
#pragma once

#include <string>

namespace obsdesk {

class Desk;
struct FrmKashf;

std::string key_text(const FrmKashf& k);
// Sets TXTYYMMDDTT of the entry screen anew.
void rebuild_key_text(Desk& ws);

}  // namespace obsdesk
