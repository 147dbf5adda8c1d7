// The event semantics every rule stands on, on a small screen of the test's own.
#include "station/workstation.h"

#include <gtest/gtest.h>

#include <deque>

#include "support/test_support.h"

namespace obsdesk {
namespace {

struct Pad : Screen {
  Pad() : Screen("Pad") {}
  TextBox A{*this, "A"};
  TextBox B{*this, "B", 3};
  TextBox C{*this, "C"};
  Button Go{*this, "Go", "Go"};
  Frame Box{*this, "Box"};
  TextBox Inner{*this, "Inner"};
  Frame Mask{*this, "Mask"};
};

class Events : public ::testing::Test {
 protected:
  Events() {
    Screen::place(pad.Box, {&pad.Inner});
    Screen::mask(pad.Mask, {&pad.C});
    pad.Mask.visible = false;
    ws().show(pad);
  }
  Desk& ws() { return *station.ws; }
  void log_focus(Control& c) {
    c.on(Event::Enter, [this, &c](Desk&) { trail += "enter " + c.name + ";"; });
    c.on(Event::Leave, [this, &c](Desk&) { trail += "leave " + c.name + ";"; });
  }
  test::Station station;
  Pad pad;
  std::string trail;
};

TEST_F(Events, FocusMovesAfterTheHandlerLeaveThenEnter) {
  log_focus(pad.A);
  log_focus(pad.B);
  ws().focus_now(pad.A);
  pad.A.on(Event::KeyEnter, [&](Desk& w) {
    w.focus(pad.B);
    trail += "handler goes on;";
  });
  trail.clear();
  ws().press_enter();
  EXPECT_EQ(trail, "handler goes on;leave A;enter B;");
  EXPECT_EQ(ws().focused(), &pad.B);
  EXPECT_EQ(pad.B.back_color, kGreen);
  EXPECT_EQ(pad.A.back_color, kWhite);
}

TEST_F(Events, TwoRulesHandingTheFocusBackAndForthStop) {
  pad.A.on(Event::Leave, [&](Desk& w) { w.focus(pad.A); });
  pad.B.on(Event::Leave, [&](Desk& w) { w.focus(pad.B); });
  ws().focus_now(pad.A);
  ws().focus_now(pad.B);  // would hand the focus back and forth for ever
  EXPECT_NE(ws().focused(), nullptr);
}

TEST_F(Events, TypingReplacesTheTextThenAddsOneCharacterAChange) {
  std::vector<std::string> seen;
  std::string keys;
  pad.B.on(Event::Change, [&](Desk&) { seen.push_back(pad.B.text); });
  pad.B.on(Event::KeyUp, [&](Desk& w) { keys += w.key(); });
  ws().set_text(pad.B, "old");
  seen.clear();
  ws().type(pad.B, "1234");  // max length 3: the fourth key does nothing
  EXPECT_EQ(seen, (std::vector<std::string>{"1", "12", "123"}));
  EXPECT_EQ(keys, "1234");
  EXPECT_EQ(pad.B.text, "123");
  pad.A.locked = true;
  pad.A.text = "keep";
  ws().type(pad.A, "x");
  EXPECT_EQ(pad.A.text, "keep");
}

// Persian and Arabic-Indic digits, and the Arabic decimal sign, are typed as the
// figures the rules read; other Persian letters stay as they are.
TEST_F(Events, PersianKeyboardDigitsAreTypedAsFigures) {
  const struct {
    const char* typed;
    const char* text;
  } cases[] = {
      {"۰۱۲۳۴۵۶۷۸۹", "0123456789"},
      {"٠١٢٣٤٥٦٧٨٩", "0123456789"},
      {"-۱۲٫۵", "-12.5"},
      {"۱٫", "1."},
      {"ب۱x", "ب1x"},
  };
  for (const auto& c : cases) {
    ws().type(pad.A, c.typed);
    EXPECT_EQ(pad.A.text, c.text) << c.typed;
  }
  std::string key;
  pad.C.on(Event::KeyUp, [&](Desk& w) { key = w.key(); });
  ws().key_up(pad.C, "۷");
  EXPECT_EQ(key, "7");
}

TEST_F(Events, TypingStopsWhenARuleSendsTheFocusAway) {
  pad.A.on(Event::Change, [&](Desk& w) {
    if (pad.A.text == "c") w.focus(pad.B);  // as "c" in the wind direction does
  });
  ws().type(pad.A, "cde");
  EXPECT_EQ(pad.A.text, "c");
  EXPECT_EQ(pad.B.text, "");
  EXPECT_EQ(ws().focused(), &pad.B);
}

TEST_F(Events, TheMessagePanelDoesNotHoldTheCaller) {
  std::string after;
  pad.A.on(Event::Change, [&](Desk& w) {
    w.error("مــقدار را چــك نمـائيـــد");
    after = "went on";
  });
  ws().focus_now(pad.A);
  ws().set_text(pad.A, "x");
  EXPECT_EQ(after, "went on");
  EXPECT_TRUE(ws().FrmERR.visible);
  EXPECT_EQ(ws().FrmERR.Label1.text, "مــقدار را چــك نمـائيـــد");
  EXPECT_EQ(ws().active_screen(), &pad);
  ws().click(ws().FrmERR.Command1);
  EXPECT_FALSE(ws().FrmERR.visible);
  EXPECT_EQ(ws().focused(), &pad.A);
  EXPECT_EQ(ws().take_messages(), std::vector<std::string>{"FrmERR: مــقدار را چــك نمـائيـــد"});
}

TEST_F(Events, AFailingHandlerIsToldOnThePanelAndTheRestGoesOn) {
  pad.A.on(Event::Change, [](Desk&) { throw std::runtime_error("Type mismatch"); });
  int b_changes = 0;
  pad.B.on(Event::Change, [&](Desk&) { ++b_changes; });
  ws().set_text(pad.A, "x");
  ws().set_text(pad.B, "y");
  EXPECT_EQ(ws().FrmERR.Label1.text, "Type mismatch");
  EXPECT_EQ(b_changes, 1);
}

TEST_F(Events, AnEndlessChainOfChangesIsStopped) {
  // Each change sets a longer text round a ring of three boxes: the chain comes
  // back to A while A's handler still runs, and the re-entry guard stops it there.
  pad.A.on(Event::Change, [&](Desk& w) { w.set(pad.B, pad.A.text + "a"); });
  pad.B.on(Event::Change, [&](Desk& w) { w.set(pad.C, pad.B.text + "b"); });
  pad.C.on(Event::Change, [&](Desk& w) { w.set(pad.A, pad.C.text + "c"); });
  ws().set_text(pad.A, "x");
  EXPECT_EQ(pad.B.text, "xa");  // A is guarded while its handler runs
}

TEST_F(Events, AChainDeeperThanTheRuntimeAllowsIsStopped) {
  // Three hundred boxes, each change setting the next: no box is re-entered, so
  // only the depth of the chain can stop it.
  Screen deep("Deep");
  std::deque<TextBox> boxes;
  for (int i = 0; i < 300; ++i) boxes.emplace_back(deep, "T" + std::to_string(i));
  for (std::size_t i = 0; i + 1 < boxes.size(); ++i)
    boxes[i].on(Event::Change, [&boxes, i](Desk& w) { w.set(boxes[i + 1], "x"); });
  ws().set_text(boxes[0], "x");
  EXPECT_EQ(boxes[150].text, "x");
  EXPECT_EQ(boxes.back().text, "");
  EXPECT_EQ(ws().FrmERR.Label1.text, "Out of stack space");
}

TEST_F(Events, HiddenFramesAndMasksKeepTheirBoxesOutOfReach) {
  EXPECT_TRUE(pad.Inner.reachable());
  pad.Box.visible = false;
  EXPECT_FALSE(pad.Inner.reachable());
  EXPECT_THROW(ws().type(pad.Inner, "1"), UsageError);
  EXPECT_TRUE(pad.C.reachable());
  pad.Mask.visible = true;
  EXPECT_FALSE(pad.C.reachable());
  ws().focus(pad.C);  // a rule's move to a box out of reach is dropped
  ws().focus_now(pad.A);
  EXPECT_EQ(ws().focused(), &pad.A);
}

TEST_F(Events, OpeningAnotherScreenDoesNotMakeTheBoxLeave) {
  log_focus(pad.A);
  ws().focus_now(pad.A);
  Pad board;
  trail.clear();
  ws().show(board);
  ws().focus_now(board.A);
  ws().hide(board);
  EXPECT_EQ(trail, "");
  EXPECT_EQ(ws().focused(), &pad.A);
}

TEST_F(Events, OneHandlerAMoment) {
  pad.A.on(Event::Change, [](Desk&) {});
  EXPECT_THROW(pad.A.on(Event::Change, [](Desk&) {}), std::logic_error);
}

TEST_F(Events, ControlsAreFoundByScreenAndName) {
  EXPECT_EQ(ws().control("FrmKashf.Text27"), &ws().FrmKashf.Text27);
  EXPECT_EQ(ws().control("Text27"), &ws().FrmKashf.Text27);
  EXPECT_EQ(ws().control("frmcode.text77"), &ws().FrmCode.Text77);
  EXPECT_EQ(ws().control("Nope.Text1"), nullptr);
  // Text1 and txt1 differ by more than case: both found exactly.
  EXPECT_EQ(ws().control("txt1"), &ws().FrmKashf.txt1);
}

}  // namespace
}  // namespace obsdesk
