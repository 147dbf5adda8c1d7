#include "desktop/app.h"
#include "desktop/svg_pixmap.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDatabase>
#include <QLabel>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>

#include "bank/sqlite.h"
#include "station/program.h"
#include "station/workstation.h"
#include "symbols/meanings.h"
#include "symbols/station_model.h"
#include "symbols/symbols.h"

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
  install_colour_chooser(*binder_);
  install_station_model(*binder_);
  install_hint_symbol(*binder_);
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
  Desk& ws = binder.workstation();
  binder.before_click(ws.FrmMain.cmdOpen, [&binder, &ws] {
    const QString start = QString::fromStdString(ws.Derive + ws.FrmMain.LabName.text + "/BANK");
    const QString name = QFileDialog::getOpenFileName(binder.window(ws.FrmMain), QString(), start,
                                                      QStringLiteral("*.mdb"));
    // An empty name is a cancelled chooser; the rule then leaves the paths alone.
    ws.set_text(ws.FrmMain.CommonDialog1, name.toStdString());
    return true;
  });
}

void install_colour_chooser(Binder& binder) {
  Desk& ws = binder.workstation();
  binder.before_click(ws.FrmMain.LabColor, [&binder, &ws] {
    const long now = parse_colour(ws.FrmMain.TxtBackColor.text);
    const QColor start(static_cast<int>(now & 0xFF), static_cast<int>((now >> 8) & 0xFF),
                       static_cast<int>((now >> 16) & 0xFF));
    const QColor chosen = QColorDialog::getColor(start, binder.window(ws.FrmMain));
    // The rule reads the colour number 0x00BBGGRR; an empty text is a cancelled chooser.
    const long number = chosen.isValid() ? chosen.red() | (chosen.green() << 8) | (chosen.blue() << 16) : -1;
    ws.set_text(ws.FrmMain.CommonDialog1, number < 0 ? std::string() : std::to_string(number));
    return true;
  });
}

void install_station_model(Binder& binder) {
  Desk& ws = binder.workstation();
  QWidget* form = binder.form(ws.FrmCode);
  QLabel* view = form ? form->findChild<QLabel*>(QStringLiteral("ui_station_model")) : nullptr;
  if (!view) return;
  // The last text drawn: a sync that leaves txtSYN as it was costs nothing.
  auto drawn = std::make_shared<std::string>();
  binder.after_sync.push_back([view, drawn, &ws] {
    const std::string& text = ws.FrmKashf.txtSYN.text;
    if (text == *drawn) return;
    *drawn = text;
    if (text.empty()) {
      view->clear();
      return;
    }
    // As wide as the panel's minimum, the model's own proportions kept (a model
    // with unread groups listed under it grows down, not narrower).
    const QPixmap pix = svg_pixmap(station_model_svg(text), view->minimumWidth(), view->devicePixelRatioF(), Qt::white);
    view->setPixmap(pix);
  });
}

void install_hint_symbol(Binder& binder) {
  Desk& ws = binder.workstation();
  QWidget* form = binder.form(ws.FrmTooltip);
  QLabel* view = form ? form->findChild<QLabel*>(QStringLiteral("ui_tip_symbol")) : nullptr;
  QLabel* meaning = form ? form->findChild<QLabel*>(QStringLiteral("ui_tip_meaning")) : nullptr;
  if (!view || !meaning) return;
  auto drawn = std::make_shared<std::string>();
  binder.after_sync.push_back([view, meaning, drawn, &binder, &ws] {
    if (!ws.FrmTooltip.visible) return;
    const Control* c = binder.pointed();
    const std::string id = c ? c->text : std::string();
    if (id == *drawn) return;
    *drawn = id;
    const std::string_view said = symbol_meaning(id);
    meaning->setText(QString::fromUtf8(said.data(), static_cast<qsizetype>(said.size())));
    meaning->setVisible(!said.empty());
    const std::string svg = symbol_svg(id);
    if (svg.empty()) {
      view->clear();
      view->hide();
      view->window()->adjustSize();
      return;
    }
    const QPixmap pix = svg_pixmap(svg, view->minimumWidth(), view->devicePixelRatioF());
    view->setPixmap(pix);
    view->show();
    view->window()->adjustSize();
  });
}

}  // namespace obsdesk
