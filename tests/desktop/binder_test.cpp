#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <gtest/gtest.h>
#include <memory>

#include "station/workstation.h"
#include "desktop/binder.h"
#include "desktop/services.h"
#include "support/test_support.h"
#include "widget_driver.h"

namespace obsdesk {
namespace {

// The entry screen open on a fresh bank at 06 UTC of a SYN & MET, bound to its
// widgets, with the hour typed through them (and Enter pressed, unless asked not).
struct Bound {
  test::Station st{{2024, 3, 20, 6, 40, 0}};
  std::unique_ptr<Binder> binder;
  std::unique_ptr<test::WidgetDriver> hands;
  Desk& ws;
  FrmKashf& k;
  explicit Bound(bool walk_on = true) : ws(st.open_entry()), k(ws.FrmKashf) {
    binder = std::make_unique<Binder>(ws);
    binder->bind_all();
    binder->sync();
    hands = std::make_unique<test::WidgetDriver>(*binder);
    hands->choose(k.Combo5, "SYN & MET");
    hands->type(ws.FrmIRIX.TXTIR, "3");
    hands->type(ws.FrmIRIX.TXTIX, "2");
    hands->type(k.Text1, "06");
    if (walk_on) hands->enter();
  }
  QLineEdit* edit(Control& c) { return qobject_cast<QLineEdit*>(binder->widget(c)); }
  QColor base(Control& c) { return edit(c)->palette().color(QPalette::Base); }
};

TEST(Binder, TheWidgetsFollowTheCore) {
  Bound b;
  ASSERT_EQ(b.ws.focused(), &b.k.Text2);

  // The box with the focus is green and holds the keyboard; the box left is white.
  EXPECT_EQ(b.base(b.k.Text2), QColor(0, 255, 0));
  EXPECT_TRUE(b.edit(b.k.Text2)->hasFocus());
  EXPECT_EQ(b.base(b.k.Text1), QColor(255, 255, 255));

  // Keys typed in the widget reach the core one change each, and the core's
  // answer comes back: 270 is kept, and Enter walks on as the rule says.
  b.hands->type(b.k.Text2, "270");
  EXPECT_EQ(b.k.Text2.text, "270");
  b.hands->enter();
  EXPECT_EQ(b.ws.focused(), &b.k.Text40);
  EXPECT_TRUE(b.edit(b.k.Text40)->hasFocus());

  // A locked box refuses typing: the widget is read-only and the core keeps its text.
  b.k.Text3.locked = true;
  b.k.Text3.text = "4";
  b.binder->sync();
  EXPECT_TRUE(b.edit(b.k.Text3)->isReadOnly());
  b.hands->type(b.k.Text3, "9");
  EXPECT_EQ(b.k.Text3.text, "4");
  EXPECT_EQ(b.edit(b.k.Text3)->text(), "4");

  // A mask laid over a group hides its boxes and their captions; lifted, they return.
  QWidget* gust = b.binder->widget(b.k.TXTGUSTY);
  ASSERT_TRUE(gust->isVisible());
  b.k.Frameh1.visible = true;
  b.binder->sync();
  EXPECT_FALSE(gust->isVisible());
  EXPECT_FALSE(b.binder->widget(b.k.Text2)->isVisible());
  QWidget* caption = b.binder->form(b.k)->findChild<QWidget*>("ui_cap_Text2");
  ASSERT_NE(caption, nullptr);
  EXPECT_FALSE(caption->isVisible());
  b.k.Frameh1.visible = false;
  b.binder->sync();
  EXPECT_TRUE(gust->isVisible());
  EXPECT_TRUE(caption->isVisible());

  // A picture box draws the symbol its id names; an id with no symbol reads as text.
  auto* picture = qobject_cast<QLabel*>(b.binder->widget(b.k.Image1));
  ASSERT_NE(picture, nullptr);
  b.k.Image1.text = "ww63";
  b.binder->sync();
  EXPECT_FALSE(picture->pixmap().isNull());
  b.k.Image1.text = "no-such-picture";
  b.binder->sync();
  EXPECT_TRUE(picture->pixmap().isNull());
  EXPECT_EQ(picture->text(), "no-such-picture");

  // A group the hour hides is hidden: the soil temperatures are not read at 06.
  EXPECT_FALSE(b.binder->widget(b.k.Frame5)->isVisible());
  EXPECT_TRUE(b.binder->widget(b.k.Frame9)->isVisible());
}

// A dry bulb past the station's soft limit asks; the answer decides what the box
// keeps. No empties it and gives it the focus again; Yes keeps the reading.
TEST(Binder, AQuestionsAnswerReachesTheBox) {
  struct Case {
    bool answer;
    std::string kept;
  };
  for (const Case& c : {Case{false, ""}, Case{true, "45"}}) {
    SCOPED_TRACE(c.answer ? "yes" : "no");
    Bound b(false);
    b.hands->type(b.k.txtt12, "8");
    b.st.asker.queue(c.answer);
    b.hands->type(b.k.Text27, "45");
    b.hands->enter();
    EXPECT_EQ(b.k.Text27.text, c.kept);
    EXPECT_EQ(b.edit(b.k.Text27)->text().toStdString(), c.kept);
    EXPECT_TRUE(b.edit(c.answer ? b.k.Text28 : b.k.Text27)->hasFocus());
  }
}

// The message panel shows the last message and does not hold the observer: the
// box that was refused keeps the keyboard, and "Ok" puts the panel away.
TEST(Binder, TheMessagePanelNeverBlocks) {
  Bound b;
  b.hands->type(b.k.Text2, "370");
  QWidget* panel = b.binder->window(b.ws.FrmERR);
  ASSERT_TRUE(panel->isVisible());
  EXPECT_EQ(panel->windowModality(), Qt::NonModal);
  EXPECT_TRUE(b.edit(b.k.Text2)->hasFocus());
  EXPECT_FALSE(b.hands->shown_text(b.ws.FrmERR.Label1).isEmpty());
  b.hands->click(b.ws.FrmERR.Command1);
  EXPECT_FALSE(panel->isVisible());
}

// A screen the core shows modally is a modal window; the entry screen stays
// hidden behind the browser until a new report opens it.
TEST(Binder, WindowsAreShownAndMadeModalAsTheirScreens) {
  test::Station st{{2024, 3, 20, 6, 40, 0}};
  Desk& ws = st.open_browser();
  Binder binder(ws);
  binder.bind_all();
  binder.sync();
  test::WidgetDriver hands(binder);
  EXPECT_TRUE(binder.window(ws.FrmDisplayKashf)->isVisible());
  EXPECT_FALSE(binder.window(ws.FrmKashf)->isVisible());
  EXPECT_FALSE(binder.window(ws.FrmMain)->isVisible());
  hands.click(ws.FrmDisplayKashf.newW);
  EXPECT_TRUE(binder.window(ws.FrmKashf)->isVisible());
  EXPECT_EQ(binder.window(ws.FrmKashf)->windowModality(), Qt::NonModal);
  EXPECT_FALSE(binder.window(ws.FrmDisplayKashf)->isVisible());
}

TEST(Binder, AModalScreenIsAModalWindow) {
  test::Station st{{2024, 3, 20, 6, 40, 0}};
  Desk& ws = st.open_browser();
  Binder binder(ws);
  binder.bind_all();
  binder.sync();
  test::WidgetDriver hands(binder);
  hands.click(ws.FrmDisplayKashf.search);
  ASSERT_TRUE(ws.FrmFind.visible);
  EXPECT_EQ(binder.window(ws.FrmFind)->windowModality(), Qt::ApplicationModal);
}

// The bank chooser runs before the click reaches the start screen's rule, which
// reads the name it chose; a cancelled chooser leaves the paths as they were.
TEST(Binder, TheChooserFillsWhatTheClickReads) {
  struct Case {
    std::string chosen;  // below the bank root; "" for a cancelled chooser
    std::string kashf_path;
  };
  for (const Case& c : {Case{"VARDOK/BANK/OIII/ACCESS/Kashf.mdb", "VARDOK\\BANK\\OIII\\ACCESS\\Kashf.mdb"},
                        Case{"", "unchanged"}}) {
    SCOPED_TRACE(c.chosen);
    test::Station st;
    Desk& ws = st.start();
    ws.FrmMain.txtpathnamebank1.text = "unchanged";
    ws.FrmMain.Frame1.visible = true;
    Binder binder(ws);
    binder.bind_all();
    binder.sync();
    test::WidgetDriver hands(binder);
    hands.click(ws.FrmMain.Option1);
    ASSERT_TRUE(ws.FrmMain.Option1.value);
    binder.before_click(ws.FrmMain.cmdOpen, [&] {
      ws.set_text(ws.FrmMain.CommonDialog1, c.chosen.empty() ? "" : ws.Derive + c.chosen);
      return true;
    });
    hands.click(ws.FrmMain.cmdOpen);
    EXPECT_EQ(ws.FrmMain.txtpathnamebank1.text, c.kashf_path);
    EXPECT_EQ(hands.shown_text(ws.FrmMain.txtpathnamebank1).toStdString(), c.kashf_path);
  }
}

// The questions carry Qt's own buttons in Persian.
TEST(Binder, QuestionsAnswerInPersian) {
  std::unique_ptr<QMessageBox> box(QtAsker::question_box(QStringLiteral("?")));
  const QString yes = box->button(QMessageBox::Yes)->text();
  const QString no = box->button(QMessageBox::No)->text();
  EXPECT_FALSE(yes.contains(QStringLiteral("Yes"))) << yes.toStdString();
  EXPECT_FALSE(no.contains(QStringLiteral("No"))) << no.toStdString();
  EXPECT_EQ(box->layoutDirection(), Qt::RightToLeft);
}

}  // namespace
}  // namespace obsdesk
