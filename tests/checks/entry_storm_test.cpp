// The change rules of the hour, wind, visibility and cloud boxes under a seeded
// storm of typed text: figures, letters, Persian letters, points, signs and
// blanks. Nothing may crash or hang, and every box typed in keeps to its most
// characters.
#include <gtest/gtest.h>

#include <random>

#include "screens/record.h"
#include "core/textnum.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

// Characters an observer may hit, one UTF-8 character each.
const std::vector<std::string> kKeys = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "0", "5", "9",
                                        "a", "c", "C", "v", "V", "t", "T", "r", "R", "x", "X", "n", "e",
                                        "s", "w", "N", "E", "S", "W", "ب", "ش", "ه", "۵", ".", "-", "+",
                                        " ", "/", ",", "\xd9\x92"};

std::string random_text(std::mt19937& rng) {
  std::string s;
  const int n = static_cast<int>(rng() % 6);
  for (int i = 0; i < n; ++i) s += kKeys[rng() % kKeys.size()];
  return s;
}

TEST(EntryStorm, ChangeRulesHoldUnderRandomText) {
  test::Station s;
  Desk& ws = s.open_entry();
  FrmKashf& k = ws.FrmKashf;
  k.Text48.text = "12";
  const std::vector<Control*> boxes = {&k.Text1, &k.txt1, &k.Text2, &k.Text3, &k.Text40, &k.Text39, &k.TXTGUSTY,
                                       &k.Txtmaxwind, &k.Txttond, &k.Text4, &k.TxtVM, &k.Text26, &k.CMbMAX, &k.CMbMIN,
                                       &k.Text5, &k.Text12, &k.Text6, &k.Combo1, &k.Text7, &k.Text8, &k.Combo2,
                                       &k.Text9, &k.Text10, &k.Combo3, &k.Text11, &k.Text49, &k.Text17, &k.Combo6,
                                       &k.Text16, &k.Text23, &k.Combo9, &k.Text22, &k.Combo7};
  std::mt19937 rng(20241123);
  int typed = 0;
  constexpr int kStrings = 100000;
  for (int i = 0; i < kStrings; ++i) {
    if (i % 5000 == 0) {
      // Now and then another report kind and hour, so that other boxes open.
      const std::string_view kind = kReportKinds[rng() % kReportKinds.size()];
      ws.set_text(k.Combo5, std::string(kind));
      static const char* hours[] = {"00", "03", "06", "09", "12", "15", "18", "21", "13"};
      if (k.Text1.reachable()) ws.type(k.Text1, hours[rng() % 9]);
    }
    if (rng() % 4 == 0) s.asker.queue(rng() % 2 == 0);
    Control* box = boxes[rng() % boxes.size()];
    const std::string text = random_text(rng);
    if (box->reachable()) {
      ws.type(*box, text);
      ++typed;
      if (rng() % 3 == 0) ws.press_enter();
    } else {
      ws.set_text(*box, text);
    }
    if (box->max_length > 0 && box->reachable() && ws.focused() == box) {
      ASSERT_LE(len(box->text), static_cast<std::size_t>(box->max_length))
          << box->name << " after \"" << text << "\" at " << i;
    }
  }
  EXPECT_GT(typed, kStrings / 4);  // most of the storm reaches the boxes by the keyboard
}

}  // namespace
}  // namespace obsdesk
