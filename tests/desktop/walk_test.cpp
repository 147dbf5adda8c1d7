// A walk through the screens beyond the daily path, by the observer's hands on
// the real widgets: the settings, the boards and their hints, the search, the
// past hours. The rules are proven in the core; these prove that each screen's
// form reaches them and shows what they answer.
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <gtest/gtest.h>
#include <memory>

#include "bank/bank.h"
#include "screens/bank_tables.h"
#include "bank/sqlite.h"
#include "screens/handoffs.h"
#include "station/workstation.h"
#include "desktop/app.h"
#include "desktop/binder.h"
#include "settings/station_settings.h"
#include "support/test_support.h"
#include "widget_driver.h"
#include "checks/tendency.h"

namespace obsdesk {
namespace {

// A workstation on a fresh bank with every screen bound to its form.
struct Rig {
  test::Station st{{2024, 3, 20, 6, 40, 0}};
  std::unique_ptr<Binder> binder;
  std::unique_ptr<test::WidgetDriver> hands;
  Desk* ws = nullptr;

  void bind(Desk& w) {
    hands.reset();
    binder.reset();
    ws = &w;
    binder = std::make_unique<Binder>(w);
    binder->bind_all();
    install_hint_symbol(*binder);
    binder->sync();
    hands = std::make_unique<test::WidgetDriver>(*binder);
  }
  bool up(const Screen& s) { return binder->window(s)->isVisible(); }
  // The pointer comes over a widget, as the window system tells it.
  void point(Control& c) {
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(binder->widget(c), &enter);
  }
};

// Settings: a limit edited and stored through the File menu is in the profile
// after the program runs again, and the entry rules ask about a reading past it.
TEST(Walk, ALimitStoredInTheSettingsIsInForceAfterARestart) {
  Rig d;
  d.bind(d.st.start());
  Desk& ws = *d.ws;
  FrmOption& o = ws.FrmOption;
  d.hands->click(ws.FrmMain.Command10);
  ASSERT_TRUE(d.up(o));
  EXPECT_TRUE(qobject_cast<QLineEdit*>(d.binder->widget(o.txtmax1))->isReadOnly());  // locked until Edit
  d.hands->click(o.Label45);
  ASSERT_TRUE(d.binder->widget(o.EDITT)->isVisible());
  d.hands->click(o.EDITT);
  EXPECT_FALSE(d.binder->widget(o.Frame4)->isVisible());  // any command closes the menu
  d.hands->type(o.txtmax1, "10");
  d.hands->click(o.Label45);
  d.hands->click(o.savee);
  d.hands->click(o.Label45);
  d.hands->click(o.Closee);
  EXPECT_FALSE(d.up(o));

  d.bind(d.st.restart());
  EXPECT_EQ(d.ws->FrmOption.txtmax1.text, "10");
  d.hands->click(d.ws->FrmMain.Command10);
  EXPECT_EQ(d.hands->shown_text(d.ws->FrmOption.txtmax1), "10");
}

// UpDate ends the program with its reason on the message panel; the panel is the
// last window up, and the program closes when the observer has read it.
TEST(Walk, UpDateEndsTheProgramAfterItsMessageIsRead) {
  Rig d;
  d.bind(d.st.start());
  Desk& ws = *d.ws;
  int closed = 0;
  d.binder->on_ended = [&closed] { ++closed; };
  d.hands->click(ws.FrmMain.Command10);
  d.hands->click(ws.FrmOption.Label45);
  d.hands->click(ws.FrmOption.UPDATE);
  EXPECT_TRUE(ws.ended());
  EXPECT_TRUE(d.up(ws.FrmERR));
  EXPECT_FALSE(d.up(ws.FrmOption));
  EXPECT_FALSE(d.up(ws.FrmMain));
  EXPECT_EQ(d.hands->shown_text(ws.FrmERR.Label1), QString::fromUtf8(kRestartToApply));
  EXPECT_EQ(closed, 0);
  d.hands->click(ws.FrmERR.Command1);
  EXPECT_FALSE(d.up(ws.FrmERR));
  EXPECT_EQ(closed, 1);
}

// The boards: opened from the entry screen's pictures, each picture drawn as its
// symbol; the pointer over one shows its hint; a click or a key picks.
TEST(Walk, TheBoardsOpenFromTheirPicturesShowHintsAndPick) {
  Rig d;
  d.bind(d.st.open_entry());
  Desk& ws = *d.ws;
  FrmKashf& k = ws.FrmKashf;
  d.hands->choose(k.Combo5, "SYN & MET");
  d.hands->type(ws.FrmIRIX.TXTIR, "3");
  d.hands->type(ws.FrmIRIX.TXTIX, "2");
  d.hands->type(k.Text1, "06");
  d.hands->enter();

  // Present weather: the symbol of ww63 over its figure, its hint; ww05 picked.
  d.hands->click(k.Image1);
  ASSERT_TRUE(d.up(ws.FrmFeali));
  Control& P63 = *ws.control("FrmFeali.P63");
  Control& P61 = *ws.control("FrmFeali.P61");
  auto* p63 = qobject_cast<QPushButton*>(d.binder->widget(P63));
  ASSERT_NE(p63, nullptr);
  EXPECT_FALSE(p63->icon().isNull());
  EXPECT_EQ(p63->text(), "63");
  d.point(P63);
  EXPECT_TRUE(d.up(ws.FrmTooltip));
  EXPECT_FALSE(d.hands->shown_text(ws.FrmTooltip.Lab1).isEmpty());
  EXPECT_EQ(ws.active_screen(), &ws.FrmFeali);  // the hint takes no input
  // The hint draws the symbol of the button under the pointer, enlarged, and
  // redraws it when the pointer moves to another button.
  auto* tip_symbol = d.binder->form(ws.FrmTooltip)->findChild<QLabel*>(QStringLiteral("ui_tip_symbol"));
  ASSERT_NE(tip_symbol, nullptr);
  const QImage symbol63 = tip_symbol->pixmap().toImage();
  EXPECT_FALSE(symbol63.isNull());
  EXPECT_GT(symbol63.width(), p63->iconSize().width());
  auto* tip_meaning = d.binder->form(ws.FrmTooltip)->findChild<QLabel*>(QStringLiteral("ui_tip_meaning"));
  ASSERT_NE(tip_meaning, nullptr);
  EXPECT_EQ(tip_meaning->text(), "Rain, continuous, moderate");
  d.point(P61);
  EXPECT_EQ(d.hands->shown_text(ws.FrmTooltip.Lab1).toStdString(), ws.FrmTooltip.Lab1.text);
  EXPECT_FALSE(tip_symbol->pixmap().isNull());
  EXPECT_NE(tip_symbol->pixmap().toImage(), symbol63);
  d.hands->click(*ws.control("FrmFeali.P05"));
  EXPECT_FALSE(d.up(ws.FrmFeali));
  EXPECT_FALSE(d.up(ws.FrmTooltip));
  EXPECT_EQ(k.Image1.text, "ww05");
  auto* image = qobject_cast<QLabel*>(d.binder->widget(k.Image1));
  ASSERT_NE(image, nullptr);
  EXPECT_FALSE(image->pixmap().isNull());
  EXPECT_EQ(image->toolTip(), "ww05");

  // Past weather W1: a click on its picture picks the figure.
  d.hands->click(k.Image2);
  ASSERT_TRUE(d.up(ws.Frmgozashteh1));
  d.hands->click(ws.Frmgozashteh1.w6);
  EXPECT_FALSE(d.up(ws.Frmgozashteh1));
  EXPECT_EQ(k.Image2.text, "W6");

  // The tendency dialog: a key typed in its box picks one of the traces it offers.
  open_tendency_dialog(ws);
  d.binder->sync();
  ASSERT_TRUE(d.up(ws.FrmNTF));
  std::string figure;
  for (std::size_t a = 0; a < ws.FrmNTF.trace.size() && figure.empty(); ++a)
    if (ws.FrmNTF.trace[a]->enabled) figure = std::to_string(a);
  ASSERT_FALSE(figure.empty());
  d.hands->type(ws.FrmNTF.Text1, figure);
  EXPECT_FALSE(d.up(ws.FrmNTF));
  EXPECT_EQ(k.Text38.text, figure);
}

// The browser's search by a Persian date: the day typed in the Persian boxes
// fills the Gregorian ones and the key, and Find shows that row.
TEST(Walk, ARecordIsFoundByItsPersianDate) {
  Rig d;
  {
    Database db(resolve_bank_path(d.st.root(), "VARDOK\\BANK\\OIII\\ACCESS\\Kashf.mdb"), Database::Mode::ReadWrite);
    for (const char* key : {"2403180600", "2403190600", "2403210600"})
      db.prepare("INSERT INTO KASHF (yymmddttgg, TYPEREPORT, UTC) VALUES (?, 'SYNOP    ', '06')").bind(1, key).run();
  }
  d.bind(d.st.open_browser());
  Desk& ws = *d.ws;
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  FrmFind& f = ws.FrmFind;
  ASSERT_EQ(b.TXTYYMMDDTT.text, "2403210600");
  d.hands->click(b.search);
  ASSERT_TRUE(d.up(f));
  d.hands->choose(f.ComSH, "اسفند");
  d.hands->type(f.TXTYEARsh, "1402");
  d.hands->type(f.TXTDAYsh, "29");  // 29 Esfand 1402 is 19 March 2024
  d.hands->type(f.txttime, "06");
  EXPECT_EQ(d.hands->shown_text(f.TXTDAYmi), "19");
  d.hands->click(f.CmdFind);
  EXPECT_FALSE(d.up(f));
  EXPECT_EQ(b.TXTYYMMDDTT.text, "2403190600");
  EXPECT_EQ(d.hands->shown_text(b.TXTYYMMDDTT), "2403190600");
}

// The past hours editor: a value typed in its box is stored and read back by the
// next run.
TEST(Walk, APastHoursValueIsEditedAndKept) {
  Rig d;
  d.bind(d.st.start());
  Desk& ws = *d.ws;
  d.hands->click(ws.FrmMain.Command4);
  ASSERT_TRUE(d.up(ws.FrmWP));
  d.hands->type(ws.FrmWP.Text3, "12.5");  // the temperature of 06 UTC
  d.hands->enter();
  d.hands->click(ws.FrmWP.Command1);
  EXPECT_FALSE(d.up(ws.FrmWP));
  EXPECT_TRUE(d.up(ws.FrmERR));
  d.bind(d.st.restart());
  EXPECT_EQ(d.ws->FrmMain.txt06TB.text, "12.5");
}

// The help screen tells its text on a read-only page and goes back to the start.
TEST(Walk, HelpShowsItsTextAndGoesBack) {
  Rig d;
  d.bind(d.st.start());
  Desk& ws = *d.ws;
  d.hands->click(ws.FrmMain.Command9);
  ASSERT_TRUE(d.up(ws.FrmHelp));
  auto* page = qobject_cast<QPlainTextEdit*>(d.binder->widget(ws.FrmHelp.Text1));
  ASSERT_NE(page, nullptr);
  EXPECT_TRUE(page->isReadOnly());
  EXPECT_TRUE(page->toPlainText().contains("iR"));
  d.hands->click(ws.FrmHelp.Command1);
  EXPECT_FALSE(d.up(ws.FrmHelp));
  EXPECT_TRUE(d.up(ws.FrmMain));
}

}  // namespace
}  // namespace obsdesk
