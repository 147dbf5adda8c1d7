// The bulletin files that go to the communications centre: METAR.DAT, SYNOP.DAT
// and SPECI.DAT in the program's folder under the bank root, each holding only
// the latest bulletin in its "ZCZC" ... "NNNN" envelope, written anew at every
// save of a report of its kind.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screens/record.h"

namespace obsdesk {

class Desk;
class SaveJournal;

// What the envelopes are made of.
struct BulletinFields {
  std::string cccc;        // the station's location indicator, as it stands
  std::string numcod;      // the station number, as it stands
  std::string hour;        // Text1, the hour of the report
  std::string ddhh;        // day and hour: characters 5 to 8 of the padded key text
  std::string day;         // TXTDAYmi
  std::string hhmm;        // txt1, the time of a METAR(30')
  std::string speci_time;  // the SPECI's YYGGggZ group of the code panel
  std::string synop1, synop2, metar1, metar2, speci1, speci2;  // the report lines
};

struct Bulletin {
  std::string file;  // "SYNOP.DAT", "METAR.DAT", "SPECI.DAT"
  std::vector<std::string> lines;
};

// The bulletins a report of this kind writes, in the order they are written: a
// SYNOP at an hour that is no main hour writes none, "SYN & MET" writes both.
std::vector<Bulletin> bulletins_for(ReportKind kind, const BulletinFields& f);

// The fields from the browser, the station profile, the code panel and the
// report lines.
BulletinFields bulletin_fields(Desk& ws);

// Each bulletin joins the save's journal as a file replaced whole: the old
// bulletin stays until the new one is complete.
void add_bulletins(Desk& ws, SaveJournal& journal, const std::vector<Bulletin>& bulletins);

}  // namespace obsdesk
