// Confirming an observation (ZAKHIREH on the entry screen) and saving it (save
// on the browser). Confirmation repairs the dates, rolls the past hours
// forward, appends the SCDATA lines, copies every value into the browser's row
// and pads it to the stored widths, then closes the entry screen. Saving commits
// the row, writes the bulletin and the KASHF text record and opens the
// copy-out dialog. Each runs under one trap. The files of both go through the
// save journal: a write error puts every file back as it was before the step
// and tells it (the entry screen, or the open row, stays for another try); a
// crash is finished or taken back at the next start.
#pragma once

#include <string>

namespace obsdesk {

class Desk;

// A date one day past its month's end, repaired. Texts in, texts out; a date
// that needs no repair comes back as it was.
struct DateTexts {
  std::string day, month, year;
  bool operator==(const DateTexts&) const = default;
};
DateTexts repair_gregorian(const DateTexts& d, bool leap);
DateTexts repair_persian(const DateTexts& d, bool leap);

void ZAKHIREH_click(Desk& ws);
void save_click(Desk& ws);

void wire_save(Desk& ws);

}  // namespace obsdesk
