#include "archive/browser.h"

#include <array>

#include "archive/text_archive.h"
#include "bank/bank.h"
#include "screens/record.h"
#include "archive/search.h"
#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/entry.h"

namespace obsdesk {

namespace {

constexpr const char* kNoRecord = "No Record Found";
constexpr const char* kDeleteQuestion = "آيا ميخواهيد رکورد جاري را حذف نمائيد ؟";

// The three-hour span over the rain box, by main hour: the period that ends then.
constexpr std::array<const char*, 8> kRainSpan = {"21-00", "00-03", "03-06", "06-09",
                                                  "09-12", "12-15", "15-18", "18-21"};

bool on_row(const Recordset& rs) { return rs.is_open() && !rs.eof() && !rs.bof(); }

// The browser's moves run under one trap: the description goes to a message box.
template <typename F>
void trapped(Desk& ws, F&& f) {
  try {
    f();
  } catch (const UsageError&) {
    throw;
  } catch (const std::exception& e) {
    ws.message(e.what());
  }
}

void FrmDisplayKashf_load(Desk& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  ws.set(b.Text44, station_heading(ws));
  b.KASHF.open(ws, resolve_bank_path(ws.bank_root(), ws.FrmMain.txtpathnamebank1.text), "KASHF");
  b.KASHF.rs.commit_without_waiting();
  b.KASHF.move_last(ws);
}

// ---- Moving ---------------------------------------------------------------------

void keep_row(FrmDisplayKashf& b) {
  if (on_row(b.KASHF.rs)) b.kept_row = b.KASHF.rs.bookmark();
  else b.kept_row.reset();
}

// Back to the kept row; a row deleted meanwhile gives way to the last one.
void restore_row(Desk& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  if (b.kept_row) {
    try {
      b.KASHF.go_to(ws, *b.kept_row);
      return;
    } catch (const BankError&) {
    }
  }
  b.KASHF.move_last(ws);
}

enum class Move { Next, Previous, Last };

void move(Desk& ws, Move m) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  if (m == Move::Last) b.KASHF.caption = "The Last Record";
  trapped(ws, [&] {
    Recordset& rs = b.KASHF.rs;
    keep_row(b);
    if (!b.kept_row && m != Move::Last) {  // an empty table: nowhere to go
      ws.message(kNoRecord, "Message");
      return;
    }
    switch (m) {
      case Move::Next: b.KASHF.move_next(ws); break;
      case Move::Previous: b.KASHF.move_previous(ws); break;
      case Move::Last: b.KASHF.move_last(ws); break;
    }
    const bool past_end = m == Move::Previous ? rs.bof() : rs.eof();
    if (past_end) {
      ws.message(kNoRecord, "Message");
      restore_row(ws);
    }
  });
}

// ---- Search and delete ----------------------------------------------------------

}  // namespace

void search_kashf(Desk& ws, const std::string& text) {
  if (text.empty()) return;
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  trapped(ws, [&] {
    Recordset& rs = b.KASHF.rs;
    keep_row(b);
    const std::string pattern = "*" + text + "*";
    if (rs.find_first("yymmddttgg", pattern) || rs.find_next("yymmddttgg", pattern)) {
      b.KASHF.show(ws);
      return;
    }
    ws.message("no record found.", "not found");
    restore_row(ws);
  });
}

namespace {

void Command1_click(Desk& ws) {  // delete the row
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  if (!ws.ask(kDeleteQuestion)) return;
  trapped(ws, [&] {
    // The row stays shown until the next move; the text archives keep its lines.
    b.KASHF.rs.remove();
    flush_bank(ws.bank_root());
    b.Command1.visible = false;
  });
}

// ---- A new report -----------------------------------------------------------------

void newW_click(Desk& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  FrmMain& m = ws.FrmMain;
  trapped(ws, [&] {
    b.Command1.visible = true;
    // The working copies of the past hours take the row as it was kept.
    ws.set(m.txtutcpast, m.txtutcpastb.text);
    for (std::size_t i = 0; i < 8; ++i) {
      ws.set(*m.T[i], m.TB[i]->text);
      ws.set(*m.rain[i], m.rainB[i]->text);
      ws.set(*m.qfe[i], m.qfeB[i]->text);
    }
    // A new report starts with no report text: a body left from the last one
    // would go out under this report's heading.
    for (std::string* line : {&ws.SynopLine1, &ws.SynopLine2, &ws.MetarLine1, &ws.MetarLine2, &ws.SpeciLine1,
                              &ws.SpeciLine2})
      line->clear();
    for (Control* text : Controls{&ws.FrmKashf.txtSYN, &ws.FrmKashf.TXTMET, &ws.FrmKashf.TXTSPE}) ws.set(*text, "");
    keep_row(b);
    b.KASHF.add_new(ws);
    set_browsing(ws, false);
    ws.show(ws.FrmKashf);
    ws.hide(b);
  });
}

// ---- The display follows the row --------------------------------------------------

void TXTYYMMDDTT_change(Desk& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  const KashfNames n = kashf_names(station_folder(ws), station_nnn(ws.FrmOption.NUMCOD.text), b.TXTYYMMDDTT.text);
  ws.set(b.TXTFILENAMEKASHF, n.day);
  ws.set(b.TXTFILENAMEKASHFM, n.month);
  ws.set(b.TXTFILENAMEKASHFT, n.total);
}

void TXTSEL_change(Desk& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  const ReportKind kind = report_kind_of(b.TXTSEL.text);
  const bool metar_like = is_metar_kind(kind);
  if (metar_like) {
    b.Frame12.visible = true;
    b.Frame17.visible = false;
  } else if (kind == ReportKind::Synop) {
    b.Frame12.visible = false;
    b.Frame17.visible = true;
  } else if (kind == ReportKind::SynMet) {
    b.Frame12.visible = b.Frame17.visible = true;
  }
  b.Frame12.text = kind == ReportKind::Speci ? "SPECI" : "METAR";
  const bool timed = kind == ReportKind::Speci || kind == ReportKind::Metar30;
  b.txt1.visible = timed;
  b.Text1.visible = !timed;
  b.TXTSPE.visible = kind == ReportKind::Speci;
  b.TXTMET.visible = kind != ReportKind::Speci;
  for (Control* c : Controls{&b.Frame16, &b.Label42, &b.txtmin}) c->visible = !metar_like;
}

void Text1_change(Desk& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  const long hour = int_val(b.Text1.text);
  const bool main_hour = hour % 3 == 0;
  for (Control* c : Controls{&b.Label94, &b.Label96, &b.Label109, &b.Txttond, &b.Txtmaxwind, &b.Frame6, &b.Frame17,
                             &b.Frame15, &b.Frame8, &b.Frame9, &b.Frame10, &b.Frame5})
    c->visible = main_hour;
  if (main_hour && hour >= 0 && hour / 3 < static_cast<long>(kRainSpan.size())) {
    ws.set(b.Labrain, kRainSpan[static_cast<std::size_t>(hour / 3)]);
    ws.set(ws.FrmCode.Labutc, kRainSpan[static_cast<std::size_t>(hour / 3)]);
  }
}

void Text5_change(Desk& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  // The stored amount is padded to its width: "0 " is no cloud as "0" is.
  const std::string n = trim(b.Text5.text);
  const bool no_layers = n == "0" || n == "9";
  for (Control* c : Controls{&b.Frame1, &b.Frame2, &b.Frame3}) c->visible = !no_layers;
  b.Image6.visible = no_layers;
}

}  // namespace

void set_browsing(Desk& ws, bool browsing) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  for (Control* c : Controls{&b.newW, &b.nextt, &b.back, &b.last, &b.search}) c->enabled = browsing;
  b.save.enabled = !browsing;
  b.Command1.visible = browsing;
}

void wire_browser(Desk& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  b.on(ScreenEvent::Load, FrmDisplayKashf_load);
  b.Image11.on(Event::Click, [](Desk& w) {
    // The delete comes back with the return from the start screen.
    w.FrmDisplayKashf.Command1.visible = !w.FrmDisplayKashf.save.enabled;
    w.hide(w.FrmDisplayKashf);
    w.show(w.FrmMain);
  });
  b.newW.on(Event::Click, newW_click);
  b.nextt.on(Event::Click, [](Desk& w) { move(w, Move::Next); });
  b.back.on(Event::Click, [](Desk& w) { move(w, Move::Previous); });
  b.last.on(Event::Click, [](Desk& w) { move(w, Move::Last); });
  b.search.on(Event::Click, [](Desk& w) { open_find_dialog(w, search_kashf); });
  b.Command1.on(Event::Click, Command1_click);
  b.TXTYYMMDDTT.on(Event::Change, TXTYYMMDDTT_change);
  b.TXTSEL.on(Event::Change, TXTSEL_change);
  b.Text1.on(Event::Change, Text1_change);
  b.Text5.on(Event::Change, Text5_change);
}

}  // namespace obsdesk
