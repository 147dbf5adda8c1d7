// FrmCode: the code panel. One box for every group of every report, so that the
// observer can see and correct each group, and the pickers can drop groups in
// before a coder runs. Frame1 holds METAR, Frame2 SPECI, Frame7 SYNOP.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/control.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace obsdesk {

class Database;

struct FrmCode : Screen {
  FrmCode();

  ComboBox SSTab1{*this, "SSTab1"};  // the tab shown: "0" METAR, "1" SPECI, "2" SYNOP
  Frame Frame1{*this, "Frame1", "METAR"};
  Frame Frame2{*this, "Frame2", "SPECI"};
  Frame Frame7{*this, "Frame7", "SYNOP"};
  Frame Frame12{*this, "Frame12", "1SnTTT  دماي اعماق خــاك"};
  Label Shape1{*this, "Shape1"}, Shape2{*this, "Shape2"}, Shape5{*this, "Shape5"};
  Label Labutc{*this, "Labutc"};
  Button Command1{*this, "Command1", "BACK"};
  Button Command2{*this, "Command2", "Back"};
  Button Command3{*this, "Command3", "Back"};

  // METAR frame.
  TextBox TXTUTC{*this, "TXTUTC"};  // UTC, hhmm of the report
  TextBox TXTCCCC{*this, "TXTCCCC"};  // CCCC station letters
  TextBox TXTYYGG{*this, "TXTYYGG"};  // YYGGggZ day and time
  TextBox TXTAUTO{*this, "TXTAUTO"};  // AUTO
  TextBox txtdddff{*this, "txtdddff"};  // dddffGfmfm wind
  TextBox TXTDNDX{*this, "TXTDNDX"};  // dndndnVdxdxdx variable sector
  TextBox TXTVVVv{*this, "TXTVVVv"};  // VVVV or CAVOK
  TextBox TXTVXVXVXDV{*this, "TXTVXVXVXDV"};  // VxVxVxVxDv second visibility
  TextBox Text5{*this, "Text5"};  // RDRDR/VRVRVRVRj runway visual range
  TextBox Text4{*this, "Text4"};  // W'W' present weather 1
  TextBox Text47{*this, "Text47"};  // W'W' present weather 2
  TextBox TXTSKC{*this, "TXTSKC"};  // SKC/NSC
  TextBox Text55{*this, "Text55"};  // VVhshshs vertical visibility
  TextBox Text56{*this, "Text56"};  // NsNsNshshshs cloud group 1
  TextBox Text57{*this, "Text57"};  // cloud group 2
  TextBox Text58{*this, "Text58"};  // cloud group 3
  TextBox Text59{*this, "Text59"};  // cloud group 4
  TextBox Text60{*this, "Text60"};  // cloud group 5
  TextBox Text61{*this, "Text61"};  // T'T'/T'dT'd temperature and dew point
  TextBox Text3{*this, "Text3"};  // QPHPHPH QNH
  TextBox Text30{*this, "Text30"};  // second QPHPHPH, altimeter
  TextBox Text2{*this, "Text2"};  // REW'W' recent weather
  TextBox Text1{*this, "Text1"};  // WSRWYDRDR wind shear
  TextBox Txt_NLC{*this, "Txt_NLC"};  // NLC
  TextBox TXT_QNT{*this, "TXT_QNT"};  // QNT
  TextBox TxtQNT{*this, "TxtQNT"};  // QNT

  // SPECI frame.
  TextBox Text29{*this, "Text29"};  // UTC
  TextBox Text9{*this, "Text9"};  // CCCC
  TextBox Text10{*this, "Text10"};  // YYGGggZ
  TextBox Text11{*this, "Text11"};  // AUTO
  TextBox Text12{*this, "Text12"};  // dddffGfmfm
  TextBox Text13{*this, "Text13"};  // dndndnVdxdxdx
  TextBox Text14{*this, "Text14"};  // VVVV or CAVOK
  TextBox Text15{*this, "Text15"};  // VxVxVxVxDv
  TextBox Text16{*this, "Text16"};  // RDRDR/VRVRVRVRj
  TextBox Text17{*this, "Text17"};  // W'W' 1
  TextBox Text18{*this, "Text18"};  // W'W' 2
  TextBox Text19{*this, "Text19"};  // SKC/NSC
  TextBox Text20{*this, "Text20"};  // VVhshshs
  TextBox Text21{*this, "Text21"};  // cloud group 1
  TextBox Text22{*this, "Text22"};  // cloud group 2
  TextBox Text23{*this, "Text23"};  // cloud group 3
  TextBox Text25{*this, "Text25"};  // cloud group 4
  TextBox Text8{*this, "Text8"};  // cloud group 5
  TextBox Text24{*this, "Text24"};  // T'T'/T'dT'd
  TextBox Text26{*this, "Text26"};  // QPHPHPH
  TextBox Text33{*this, "Text33"};  // second QPHPHPH
  TextBox Text27{*this, "Text27"};  // REW'W'
  TextBox Text28{*this, "Text28"};  // WSRWYDRDR
  TextBox Text32{*this, "Text32"};  // NLC

  // SYNOP frame.
  TextBox Text75{*this, "Text75"};  // UTC hour
  TextBox Text76{*this, "Text76"};  // IRIXHVV
  TextBox Text77{*this, "Text77"};  // NDDFF
  TextBox Text78{*this, "Text78"};  // OOFFF
  TextBox Text79{*this, "Text79"};  // 1SNTTT
  TextBox Text80{*this, "Text80"};  // 2SNTDTDTD
  TextBox Text81{*this, "Text81"};  // 3P0P0P0
  TextBox Text82{*this, "Text82"};  // 4PPPP
  TextBox Text83{*this, "Text83"};  // 5APPP
  TextBox Text84{*this, "Text84"};  // 6RRRTR
  TextBox Text85{*this, "Text85"};  // 7WWW1W2
  TextBox Text86{*this, "Text86"};  // 8NHCLCMCH
  TextBox Text87{*this, "Text87"};  // 9GGGG
  TextBox Text88{*this, "Text88"};  // the literal 333
  TextBox Text89{*this, "Text89"};  // 1SNTXTXTX
  TextBox Text90{*this, "Text90"};  // 2SNTNTNTN
  TextBox Text91{*this, "Text91"};  // 3ESNTGTG
  TextBox Text92{*this, "Text92"};  // 4E'SSS
  TextBox Text93{*this, "Text93"};  // 4A3HHH
  TextBox Text94{*this, "Text94"};  // 5EEEIE
  TextBox Text95{*this, "Text95"};  // 55SSS
  TextBox Text96{*this, "Text96"};  // J5F24F24F24F24 radiation
  TextBox Text97{*this, "Text97"};  // 7R24R24R24R24
  TextBox Text98{*this, "Text98"};  // 8NSCHSHS
  TextBox Text99{*this, "Text99"};  // 8NSCHSHS1
  TextBox Text100{*this, "Text100"};  // 8NSCHSHS2
  TextBox Text101{*this, "Text101"};  // 8NSCHSHS3
  TextBox Text102{*this, "Text102"};  // 9SNIWIWIW
  TextBox Text103{*this, "Text103"};  // RH
  TextBox Text104{*this, "Text104"};  // maxDDDFF
  TextBox Text105{*this, "Text105"};  // gustyDDDFF
  TextBox Text41{*this, "Text41"};  // 1snttt1
  TextBox Text42{*this, "Text42"};  // 1snttt2
  TextBox Text43{*this, "Text43"};  // 1snttt3
  TextBox Text44{*this, "Text44"};  // 1snttt4
  TextBox Text45{*this, "Text45"};  // 1snttt5
  TextBox Text46{*this, "Text46"};  // 1snttt6

  // Outside the frames.
  TextBox Text6{*this, "Text6"};  // holds "999"
  TextBox Text7{*this, "Text7"};  // F32, closes the archive line
  TextBox TXTSCDATA{*this, "TXTSCDATA"};  // the S line
  TextBox TXTTEDAD{*this, "TXTTEDAD"};  // its length
  TextBox TXTgolbad{*this, "TXTgolbad"};  // the G line
  TextBox Text34{*this, "Text34"};  // NDDFF as dddff
  TextBox TXTYEARmi{*this, "TXTYEARmi"};  // Gregorian year
  TextBox TXTMONTHMI{*this, "TXTMONTHMI"};  // Gregorian month
  TextBox TXTDAYmi{*this, "TXTDAYmi"};  // Gregorian day
  TextBox TXTYEARsh{*this, "TXTYEARsh"};  // Persian year
  TextBox TXTMONTHSH{*this, "TXTMONTHSH"};  // Persian month
  TextBox TXTDAYsh{*this, "TXTDAYsh"};  // Persian day

  bool store_pending = false;  // a write of the boxes into COOD is due after the event
  // The store's database, kept open between writes while its path stands.
  std::shared_ptr<Database> store;
  std::filesystem::path store_path;
  std::vector<std::string> stored;  // the row as last written there: an unchanged panel is not written again
};

// The METAR frame's boxes and their twins in the SPECI frame, by column.
struct PanelMirror {
  std::string_view column, metar_box, speci_box, speci_column;
};
std::span<const PanelMirror> panel_mirrors();
// A box of the panel and the COOD column that holds it.
struct PanelField {
  std::string_view box;
  std::string_view column;
};
// Every stored box of the panel, METAR frame, SPECI frame, SYNOP frame.
const std::vector<PanelField>& cood_fields();
// The blank value of a column: five blanks for a SYNOP group, empty for METAR.
std::string cood_blank(std::string_view column);
// Creates the table COOD with its one row of blank values.
void create_cood_table(Database& db);

}  // namespace obsdesk
