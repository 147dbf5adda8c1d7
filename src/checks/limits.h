// Station limits as the entry rules use them: a hard pair that refuses (words on
// the panel, the box emptied, the focus back) and a soft pair that asks (No does
// the same without words). Rows of the Station profile: 1 air, 2 wet bulb,
// 4 pressure, 5 soil at 5 cm and ground, 6 soil at 10 to 30 cm, 7 soil at 50 and
// 100 cm, 9 evaporation.
#pragma once

#include <string>

namespace obsdesk {

class Desk;
struct Control;

// A text that reads as a value to test: not "", "-", ".", "-.", "/" or "//".
[[nodiscard]] bool is_reading(const std::string& text);


// False (and refused with the words) when the value lies outside the hard pair
// of the row.
[[nodiscard]] bool within_hard(Desk& ws, Control& box, double v, int row, const char* words);
// False (and emptied, focus back) when the value lies outside the soft pair of
// the row and the observer answers No.
[[nodiscard]] bool within_soft(Desk& ws, Control& box, double v, int row, const char* question);

// The numeric typing rule of the thermometer boxes: "", ".", "-", "-." pass (and
// "/" where allowed); otherwise at most five characters of figures, "-", "." and
// the character of code 250, with no second point among the first four.
[[nodiscard]] bool thermometer_text_ok(const std::string& text, bool slash_ok);
// On a change: a bad text is refused with the words of the thermometers.
void thermometer_typing(Desk& ws, Control& box, bool slash_ok);

}  // namespace obsdesk
