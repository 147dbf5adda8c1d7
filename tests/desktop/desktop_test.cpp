#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QLabel>
#include <QWidget>
#include <gtest/gtest.h>

#include "coders/synop.h"
#include "station/workstation.h"
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
  Desk& ws = desktop.workstation();
  FrmKashf& k = ws.FrmKashf;
  test::WidgetDriver hands(desktop.binder());
  EXPECT_TRUE(desktop.binder().window(ws.FrmMain)->isVisible());

  hands.open_synmet_06();
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

// The station model beside the code panel follows txtSYN: nothing drawn before a
// SYNOP is coded, the plotted report once Cmdsynop has coded it (ink on the
// page, not a blank pixmap), and nothing again when the report is forgotten.
TEST(Desktop, CodePanelDrawsTheStationModelOfTheCodedSynop) {
  test::TempDir tmp;
  FixedClock clock({2024, 3, 20, 6, 40, 0});
  Desktop desktop(tmp.path() / "bank", clock);
  ASSERT_TRUE(desktop.start());
  Desk& ws = desktop.workstation();
  FrmKashf& k = ws.FrmKashf;
  test::WidgetDriver hands(desktop.binder());
  auto* model = desktop.binder().form(ws.FrmCode)->findChild<QLabel*>(QStringLiteral("ui_station_model"));
  ASSERT_NE(model, nullptr);
  const auto inked = [model] {
    const QImage image = model->pixmap().toImage();
    if (image.isNull()) return 0;
    int dark = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (qGray(image.pixel(x, y)) < 128) ++dark;
    return dark;
  };

  hands.open_synmet_06();
  EXPECT_TRUE(k.txtSYN.text.empty());
  EXPECT_TRUE(model->pixmap().isNull());

  hands.click(k.Cmdsynop);
  ASSERT_FALSE(k.txtSYN.text.empty());
  EXPECT_GE(model->pixmap().width(), 300);
  // The circle, the barbs and a dozen figures: far more than a stray stroke.
  EXPECT_GT(inked(), 500);

  forget_synop(ws);
  desktop.binder().sync();
  EXPECT_TRUE(model->pixmap().isNull());
}

}  // namespace
}  // namespace obsdesk
