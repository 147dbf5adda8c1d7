// Boxes whose text goes into a report group as it stands: what they take and
// what they refuse. A refusal empties the box and tells on the message panel.
#include <gtest/gtest.h>

#include "physics/entry_fixture.h"

namespace obsdesk {
namespace {

TEST(ReportBoxes, TakeOnlyWhatTheirGroupIsMadeOf) {
  struct Case {
    const char* box;
    const char* text;
    bool taken;
  };
  const Case cases[] = {
      // The tendency characteristic a: one figure 0 to 8.
      {"Text38", "0", true}, {"Text38", "8", true}, {"Text38", "9", false}, {"Text38", "x", false},
      {"Text38", " ", false}, {"Text38", "\t", false}, {"Text38", "-", false},
      // iR 1 to 4, iX 1 to 6, as the iR iX board gives them.
      {"Text48", "1", true}, {"Text48", "46", true}, {"Text48", "0", false}, {"Text48", "5", false},
      {"Text48", "17", false}, {"Text48", "10", false}, {"Text48", "1a", false}, {"Text48", "123", false},
      {"Text48", " 1", false},
      // QNT: figures and "/" (whole groups are tested on leaving).
      {"TXT_QNT", "9//12 12345", true}, {"TXT_QNT", "QNT", false}, {"TXT_QNT", "1234-", false},
      // The low heights: at most four figures.
      {"Text7", "2500", true}, {"Text7", "25000", false}, {"Text7", "3e2", false}, {"Text11", "12.5", false},
  };
  for (const Case& c : cases) {
    test::Entry e;
    Control& box = *e.ws.control(c.box);
    e.ws.set_text(box, c.text);
    EXPECT_EQ(box.text, c.taken ? c.text : "") << c.box << " \"" << c.text << "\"";
    EXPECT_EQ(e.messages().empty(), c.taken) << c.box << " \"" << c.text << "\"";
  }
}

TEST(ReportBoxes, QntKeepsWholeGroupsOnLeaving) {
  const struct {
    const char* text;
    bool kept;
  } cases[] = {{"12345", true}, {"12345 9////", true}, {"1234", false}, {"12345  67890", false}, {" 12345", false}};
  for (const auto& c : cases) {
    test::Entry e;
    e.k.TXT_QNT.visible = true;
    e.ws.focus_now(e.k.TXT_QNT);
    e.ws.set_text(e.k.TXT_QNT, c.text);
    e.ws.focus_now(e.k.Text74);
    EXPECT_EQ(e.k.TXT_QNT.text, c.kept ? c.text : "") << c.text;
  }
}

}  // namespace
}  // namespace obsdesk
