// obsdesk [--bank DIR] [--now "YYYY-MM-DD HH:MM"]
// obsdesk [--bank DIR] --screenshots OUTDIR SCENARIO
#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QTimer>
#include <cstdio>
#include <iostream>
#include <optional>

#include "bank/bank.h"
#include "cli/runner.h"
#include "desktop/app.h"
#include "desktop/screenshots.h"

namespace {

int usage(std::ostream& o, int status) {
  o << "usage: obsdesk [--bank DIR] [--now \"YYYY-MM-DD HH:MM\"]\n"
       "       obsdesk [--bank DIR] --screenshots OUTDIR SCENARIO\n"
       "  --bank DIR         the bank root (default: the user's data folder)\n"
       "  --now TIME         the computer's clock shows this time\n"
       "  --screenshots      runs SCENARIO and writes a PNG of each screen it snaps\n"
       "  --quit-when-shown  ends as soon as the start screen is up (for timing the start)\n";
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  QElapsedTimer started;
  started.start();
  QApplication app(argc, argv);
  std::filesystem::path bank = obsdesk::default_bank_root();
  std::optional<obsdesk::DateTime> now;
  std::string shots, scenario;
  bool quit_when_shown = false;
  const QStringList args = QApplication::arguments();
  for (qsizetype i = 1; i < args.size(); ++i) {
    const std::string a = args[i].toStdString();
    if (a == "--help" || a == "-h") return usage(std::cout, 0);
    if (a == "--bank" && i + 1 < args.size()) {
      bank = args[++i].toStdString();
    } else if (a == "--now" && i + 1 < args.size()) {
      obsdesk::DateTime t;
      if (!obsdesk::parse_date_time(args[++i].toStdString(), t)) {
        std::cerr << "obsdesk: not a time: " << args[i].toStdString() << "\n";
        return 2;
      }
      now = t;
    } else if (a == "--screenshots" && i + 2 < args.size()) {
      shots = args[++i].toStdString();
      scenario = args[++i].toStdString();
    } else if (a == "--quit-when-shown") {
      quit_when_shown = true;
    } else {
      return usage(std::cerr, 2);
    }
  }
  obsdesk::prepare_application(app);
  if (!shots.empty()) return obsdesk::take_screenshots(bank, shots, scenario, std::cerr);

  obsdesk::RunnerClock clock;
  if (now) clock.set(*now);
  obsdesk::Desktop desktop(bank, clock);
  desktop.binder().on_ended = [] { QTimer::singleShot(0, qApp, &QApplication::quit); };
  std::string why;
  if (!desktop.start(&why)) {
    QMessageBox::critical(nullptr, QStringLiteral("obsdesk"), QString::fromStdString(why));
    return 1;
  }
  if (quit_when_shown) {
    QApplication::processEvents();
    std::cout << "start screen shown after " << started.elapsed() << " ms\n";
    return 0;
  }
  return QApplication::exec();
}
