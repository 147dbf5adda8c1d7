// The copy-out dialog: the buttons of each report kind, the bulletin files put on
// the clipboard, and a missing file.
#include "archive/copy_out.h"

#include <gtest/gtest.h>

#include <fstream>

#include "screens/record.h"
#include "screens/handoffs.h"
#include "core/textnum.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

using test::Station;

const std::string kMetarBulletin = "ZCZC\r\nSAIR31 OIII 201200\r\nMETAR OIII 201200Z 24008KT 8000 SCT020 25/12 Q1015=\r\nNNNN\r\n";
const std::string kSynopBulletin = "ZCZC\r\nSMIR01 OIII 201200\r\nAAXX 20121 40754 32570 72408=\r\nNNNN\r\n";

void write_file(const Station& s, const char* name, const std::string& text) {
  std::ofstream(s.root() / "VARDOK" / name, std::ios::binary) << to_cp1256(text);
}

Desk& after_save(Station& s, std::string_view kind) {
  Desk& ws = s.open_browser();
  ws.FrmDisplayKashf.TXTSEL.text = std::string(kind);
  s.clipboard.set_text("pasted before");
  open_copy_out(ws);
  return ws;
}

TEST(CopyOut, TheButtonsOfEachKind) {
  const struct {
    std::string_view kind;
    bool metar, synop, speci;
  } table[] = {
      {kSynop, false, true, false}, {kSynMet, true, true, false}, {kMetar, true, false, false},
      {kMetar30, true, false, false}, {kSpeci, false, false, true}, {"", false, false, false},
  };
  for (const auto& c : table) {
    Station s;
    Desk& ws = after_save(s, c.kind);
    FrmPol& p = ws.FrmPol;
    const std::string kind(c.kind);
    EXPECT_EQ(ws.active_screen(), &p) << kind;
    EXPECT_EQ(s.clipboard.text(), "") << kind;  // emptied on opening
    EXPECT_EQ(p.Command2.enabled, c.metar) << kind;
    EXPECT_EQ(p.Command3.enabled, c.synop) << kind;
    EXPECT_EQ(p.Command4.enabled, c.speci) << kind;
    EXPECT_TRUE(p.Command5.enabled) << kind;
    EXPECT_TRUE(p.Command1.enabled) << kind;
  }
}

// Each button puts its bulletin on the clipboard; a missing file is told and
// the clipboard keeps what it had; "Back" empties it.
TEST(CopyOut, EachButtonPutsItsBulletinOnTheClipboard) {
  Station s;
  Desk& ws = after_save(s, kSynMet);
  FrmPol& p = ws.FrmPol;
  write_file(s, "METAR.dat", kMetarBulletin);
  ws.take_messages();
  ws.click(p.Command3);  // no SYNOP bulletin yet
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{"box: File not found"});
  EXPECT_EQ(s.clipboard.text(), "");
  ws.click(p.Command2);
  EXPECT_EQ(s.clipboard.text(), kMetarBulletin);
  ws.click(p.Command3);
  EXPECT_EQ(s.clipboard.text(), kMetarBulletin);
  ws.take_messages();
  s.clipboard.clear();
  ws.click(p.Command5);  // both: the METAR bulletin is copied before the SYNOP one is missed
  EXPECT_EQ(s.clipboard.text(), kMetarBulletin);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{"box: File not found"});

  write_file(s, "SYNOP.dat", kSynopBulletin);
  ws.click(p.Command3);
  EXPECT_EQ(s.clipboard.text(), kSynopBulletin);
  ws.click(p.Command5);
  EXPECT_EQ(s.clipboard.text(), kMetarBulletin + kSynopBulletin);
  EXPECT_EQ(p.Text.text, kMetarBulletin + kSynopBulletin);
  EXPECT_TRUE(ws.take_messages().empty());
  ws.click(p.Command1);  // "Back"
  EXPECT_EQ(s.clipboard.text(), "");
  EXPECT_FALSE(p.loaded);
  EXPECT_EQ(ws.active_screen(), &ws.FrmDisplayKashf);
}

}  // namespace
}  // namespace obsdesk
