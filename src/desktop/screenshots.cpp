#include "desktop/screenshots.h"

#include <QApplication>
#include <QMessageBox>
#include <QPixmap>
#include <cstdio>
#include <fstream>
#include <memory>
#include <ostream>
#include <sstream>

#include "cli/runner.h"
#include "station/workstation.h"
#include "desktop/app.h"
#include "desktop/binder.h"
#include "desktop/services.h"

namespace obsdesk {

namespace {

// The observer's screen: the large windows are drawn at its size, the dialogs at
// their own.
constexpr int kWidth = 1366, kHeight = 768;

bool save(QWidget* w, const std::filesystem::path& file, std::ostream& err) {
  QApplication::processEvents();
  if (!w->grab().save(QString::fromStdString(file.string()), "PNG")) {
    err << "obsdesk: cannot write " << file.string() << "\n";
    return false;
  }
  return true;
}

}  // namespace

int take_screenshots(const std::filesystem::path& bank, const std::filesystem::path& out_dir,
                     const std::filesystem::path& scenario, std::ostream& err) {
  std::ifstream in(scenario);
  if (!in) {
    err << "obsdesk: cannot read " << scenario.string() << "\n";
    return 2;
  }
  std::filesystem::create_directories(out_dir);
  std::ostringstream printed;
  Runner runner(bank, printed);
  std::unique_ptr<Binder> binder;
  std::string line;
  int number = 0, shot = 0;
  while (std::getline(in, line)) {
    ++number;
    const std::string where = scenario.string() + ":" + std::to_string(number) + ": ";
    try {
      const std::vector<std::string> words = split_command(line);
      if (words.empty()) continue;
      if (words[0] == "snap" || words[0] == "question") {
        if (words.size() != 2) throw ScriptError("usage: snap SCREEN | question TEXT");
        ++shot;
        const std::string prefix = (shot < 10 ? "0" : "") + std::to_string(shot) + "-";
        if (words[0] == "question") {
          std::unique_ptr<QMessageBox> box(QtAsker::question_box(QString::fromStdString(words[1])));
          box->show();
          if (!save(box.get(), out_dir / (prefix + "question.png"), err)) return 2;
          continue;
        }
        Desk* ws = runner.workstation();
        if (ws == nullptr) throw ScriptError("snap before start");
        Screen* s = ws->screen(words[1]);
        if (s == nullptr) throw ScriptError("unknown screen " + words[1]);
        binder->refresh(*s);
        QWidget* w = binder->window(*s);
        const bool was_shown = w->isVisible();
        const QSize hint = binder->form(*s)->sizeHint() + QSize(24, 24);
        const bool large = hint.width() > kWidth / 2 || hint.height() > kHeight / 2;
        w->resize(large ? QSize(kWidth, kHeight) : hint);
        w->show();
        if (!save(w, out_dir / (prefix + s->name + ".png"), err)) return 2;
        if (!was_shown) w->hide();
        continue;
      }
      std::string failure;
      if (!runner.execute(words, &failure)) {
        err << where << failure << "\n";
        return 1;
      }
      if (!binder && runner.workstation() != nullptr) {
        binder = std::make_unique<Binder>(*runner.workstation());
        binder->bind_all();
        install_station_model(*binder);
        install_hint_symbol(*binder);
      }
      if (binder) binder->sync();
    } catch (const std::exception& e) {
      err << where << e.what() << "\n";
      return 2;
    }
  }
  return 0;
}

}  // namespace obsdesk
