// The humidity mode belongs to one report: a report whose humidity was typed in
// place of the wet bulb leaves the next report reading the wet bulb again.
#include <gtest/gtest.h>

#include "physics/entry_fixture.h"

namespace obsdesk {
namespace {

TEST(HumidityMode, EndsWithTheEntryScreen) {
  test::Entry e(kSynop, "12");
  e.s.asker.queue(true);
  e.enter(e.k.Text27, "-2.5");
  ASSERT_EQ(e.ws.humidity_mode, 1);
  e.ws.unload(e.k);
  EXPECT_EQ(e.ws.humidity_mode, 0);
  e.ws.show(e.k);
  EXPECT_EQ(e.ws.humidity_mode, 0);
}

}  // namespace
}  // namespace obsdesk
