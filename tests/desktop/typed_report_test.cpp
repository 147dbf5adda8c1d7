#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <sstream>

#include "cli/runner.h"
#include "station/workstation.h"
#include "desktop/binder.h"
#include "support/test_support.h"
#include "widget_driver.h"

namespace obsdesk {
namespace {

std::string read_text(const std::filesystem::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

// The golden scenario of a typed SYN & MET played through the real widgets:
// every type, enter, click and choose goes in as key and mouse events on the
// bound widgets; the rest (the clock, prints, messages, files) is the runner's.
// Its printed lines, and so the bulletins and archive lines it prints, must equal
// the golden file the runner itself produced; the dry bulb is typed in Persian
// figures, one key event a character. A key the binder loses, a focus it
// moves on its own, a choice it sends twice, all change the files.
TEST(TypedReport, SynMetAt06ThroughTheWidgetsWritesTheGoldenFiles) {
  const std::filesystem::path dir = std::filesystem::path(OBSDESK_SOURCE_DIR) / "tests/scenarios/desktop";
  std::ifstream script(dir / "synmet-06-typed.scenario");
  ASSERT_TRUE(script.good());
  test::TempDir tmp;
  std::ostringstream out;
  Runner runner(tmp.path() / "bank", out);
  std::unique_ptr<Binder> binder;
  std::unique_ptr<test::WidgetDriver> hands;
  std::string line;
  int number = 0;
  while (std::getline(script, line)) {
    ++number;
    const std::vector<std::string> w = split_command(line);
    if (w.empty()) continue;
    SCOPED_TRACE("line " + std::to_string(number) + ": " + line);
    Desk* ws = runner.workstation();
    auto control = [&](const std::string& name) -> Control& {
      Control* c = ws->control(name);
      if (c == nullptr) throw std::runtime_error("unknown control " + name);
      return *c;
    };
    if (hands && w[0] == "type") hands->type(control(w[1]), w[2]);
    else if (hands && w[0] == "enter") hands->enter();
    else if (hands && w[0] == "click") hands->click(control(w[1]));
    else if (hands && w[0] == "choose") hands->choose(control(w[1]), w[2]);
    else {
      std::string failure;
      ASSERT_TRUE(runner.execute(w, &failure)) << failure;
    }
    if (!binder && runner.workstation() != nullptr) {
      binder = std::make_unique<Binder>(*runner.workstation());
      binder->bind_all();
      binder->sync();
      hands = std::make_unique<test::WidgetDriver>(*binder);
    }
  }
  std::string golden = read_text(dir / "synmet-06-typed.out");
  golden = golden.substr(0, golden.rfind("exit status"));
  EXPECT_EQ(out.str(), golden);
}

}  // namespace
}  // namespace obsdesk
