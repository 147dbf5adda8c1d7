#include <QApplication>
#include <QClipboard>
#include <QWidget>
#include <gtest/gtest.h>

#include "core/workstation.h"
#include "desktop/app.h"
#include "support/test_support.h"
#include "widget_driver.h"

namespace obsdesk {
namespace {

// The whole program as the observer starts it, with the desktop's own services:
// a 06 UTC SYN & MET saved, and "Copy Metar" on the copy-out dialog puts the
// METAR bulletin on the system clipboard, where another program can paste it.
TEST(Desktop, CopyOutPutsTheBulletinOnTheSystemClipboard) {
  test::TempDir tmp;
  FixedClock clock({2024, 3, 20, 6, 40, 0});
  Desktop desktop(tmp.path() / "bank", clock);
  ASSERT_TRUE(desktop.start());
  Workstation& ws = desktop.workstation();
  FrmKashf& k = ws.FrmKashf;
  test::WidgetDriver hands(desktop.binder());
  EXPECT_TRUE(desktop.binder().window(ws.FrmMain)->isVisible());

  hands.click(ws.FrmMain.Command2);
  hands.click(ws.FrmDisplayKashf.newW);
  hands.choose(k.Combo5, "SYN & MET");
  hands.type(ws.FrmIRIX.TXTIR, "3");
  hands.type(ws.FrmIRIX.TXTIX, "2");
  hands.type(k.Text1, "06");
  hands.enter();
  // The values go in as the rules' own settings do; the typed-report test walks them.
  for (const auto& [box, value] : std::initializer_list<std::pair<Control*, const char*>>{
           {&k.Text2, "270"}, {&k.Text3, "4"}, {&k.Text4, "10000"}, {&k.Text5, "3"}, {&k.Text6, "3"},
           {&k.Combo1, "CU     1"}, {&k.Text7, "900"}, {&k.Text49, "3"}, {&k.Combo4, "CU     1"},
           {&k.txtmin, "900"}, {&k.Text27, "12.4"}, {&k.Text28, "6.2"}, {&k.Text13, "15"}, {&k.Text14, "880.0"},
           {&k.Text25, "1.2"}, {&k.Text38, "3"}, {&k.txtt12, "8.0"}})
    ws.set_text(*box, value);
  desktop.binder().sync();
  hands.click(k.Cmdsynop);
  hands.click(k.Command4);
  hands.click(k.Combo7);
  hands.choose(k.Combo7, "احمد رضايي");
  hands.click(k.ZAKHIREH);
  hands.click(ws.FrmDisplayKashf.save);
  ASSERT_TRUE(desktop.binder().window(ws.FrmPol)->isVisible());

  QGuiApplication::clipboard()->setText(QStringLiteral("something else"));
  hands.click(ws.FrmPol.Command2);
  const QString pasted = QGuiApplication::clipboard()->text();
  EXPECT_TRUE(pasted.contains(QStringLiteral("METAR OIII 200600Z 27008KT 9999 SCT030 12/M02 Q1011="))) << pasted.toStdString();
}

}  // namespace
}  // namespace obsdesk
