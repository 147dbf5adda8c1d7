#include "desktop/app.h"

#include <QApplication>
#include <QFileDialog>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QTranslator>

#include "bank/sqlite.h"
#include "core/program.h"
#include "core/workstation.h"

namespace obsdesk {

void prepare_application(QApplication& app) {
  QApplication::setApplicationName(QStringLiteral("obsdesk"));
  QApplication::setApplicationDisplayName(QStringLiteral("obsdesk"));
  QApplication::setLayoutDirection(Qt::RightToLeft);
  auto* qt_fa = new QTranslator(&app);
  if (qt_fa->load(QLocale(QLocale::Persian, QLocale::Iran), QStringLiteral("qtbase"), QStringLiteral("_"),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(qt_fa);
  // Noto Sans for the figures and report codes, Noto Sans Arabic for the Persian
  // words: both clear at small sizes, and the Latin face keeps the boxes low.
  QFont font(QStringLiteral("Noto Sans"));
  font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Sans Arabic"), QStringLiteral("DejaVu Sans")});
  font.setPointSize(9);
  QApplication::setFont(font);
}

Desktop::Desktop(std::filesystem::path bank_root, Clock& clock) {
  ws_ = std::make_unique<Workstation>(std::move(bank_root), Services{asker_, clock, clipboard_});
  binder_ = std::make_unique<Binder>(*ws_);
  binder_->bind_all();
  asker_.before_box = [this] { binder_->sync(); };
  install_bank_chooser(*binder_);
}

Desktop::~Desktop() = default;

bool Desktop::start(std::string* why) {
  try {
    start_program(*ws_);
  } catch (const std::exception& e) {
    if (why) *why = e.what();
    return false;
  }
  binder_->sync();
  if (ws_->ended()) {
    if (why) *why = "another copy of the program is running on this bank";
    return false;
  }
  return true;
}

void install_bank_chooser(Binder& binder) {
  Workstation& ws = binder.workstation();
  binder.before_click(ws.FrmMain.cmdOpen, [&binder, &ws] {
    const QString start = QString::fromStdString(ws.Derive + ws.FrmMain.LabName.text + "/BANK");
    const QString name = QFileDialog::getOpenFileName(binder.window(ws.FrmMain), QString(), start,
                                                      QStringLiteral("*.mdb"));
    // An empty name is a cancelled chooser; the rule then leaves the paths alone.
    ws.set_text(ws.FrmMain.CommonDialog1, name.toStdString());
    return true;
  });
}

}  // namespace obsdesk
