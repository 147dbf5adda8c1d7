// From a key press in the dry-bulb box to every widget refreshed: the key event
// goes through the box's event filter and line edit, the core runs the change
// rules of Text27 and whatever they set, the binder copies every shown control
// back to its widget, and the event loop paints what changed. Each iteration is one key, a digit or a deletion
// in turn; the median and 99th percentile of the keys are reported as counters.
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <vector>

#include "../bench_bank.h"
#include "station/program.h"
#include "station/workstation.h"
#include "desktop/app.h"
#include "desktop/binder.h"

namespace {

using namespace obsdesk;

void send_key(QWidget* w, Qt::Key key, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(w, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QApplication::sendEvent(w, &release);
}

void BM_KeyInDryBulbToWidgetsRefreshed(benchmark::State& state) {
  QueueAsker asker;
  FixedClock clock({2024, 3, 20, 6, 40, 0});
  MemoryClipboard clipboard;
  Workstation ws(bench::temp_bank("key-refresh"), Services{asker, clock, clipboard});
  Binder binder(ws);
  binder.bind_all();
  start_program(ws);
  ws.click(ws.FrmMain.Command2);
  ws.click(ws.FrmDisplayKashf.newW);
  ws.choose(ws.FrmKashf.Combo5, "SYN & MET");
  ws.type(ws.FrmIRIX.TXTIR, "3");
  ws.type(ws.FrmIRIX.TXTIX, "2");
  ws.type(ws.FrmKashf.Text1, "06");
  ws.type(ws.FrmKashf.txtt12, "8");
  ws.focus_now(ws.FrmKashf.Text27);
  binder.sync();
  QApplication::processEvents();
  auto* box = qobject_cast<QLineEdit*>(binder.widget(ws.FrmKashf.Text27));
  if (box == nullptr || !box->hasFocus()) {
    state.SkipWithError("the dry-bulb box did not take the focus");
    return;
  }
  std::vector<double> ms;
  bool digit = true;
  for (auto _ : state) {
    const auto t0 = std::chrono::steady_clock::now();
    if (digit) send_key(box, Qt::Key_1, QStringLiteral("1"));
    else send_key(box, Qt::Key_Backspace, QString());
    // The widgets are painted again when the event loop runs: that is in the time.
    QApplication::processEvents();
    const auto t1 = std::chrono::steady_clock::now();
    ms.push_back(std::chrono::duration<double, std::milli>(t1 - t0).count());
    if (ws.FrmKashf.Text27.text != (digit ? "1" : "") || box->text() != QString::fromStdString(ws.FrmKashf.Text27.text)) {
      state.SkipWithError("a key did not reach the core and back");
      break;
    }
    digit = !digit;
  }
  std::sort(ms.begin(), ms.end());
  if (!ms.empty()) {
    state.counters["median_ms"] = ms[ms.size() / 2];
    state.counters["p99_ms"] = ms[std::min(ms.size() - 1, ms.size() * 99 / 100)];
  }
}
BENCHMARK(BM_KeyInDryBulbToWidgetsRefreshed)->Iterations(2000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  obsdesk::prepare_application(app);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
