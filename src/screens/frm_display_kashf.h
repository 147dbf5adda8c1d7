// FrmDisplayKashf: the record browser. It shows one row of the KASHF table at a
// time in locked boxes bound to the columns, walks the table, finds a row by its
// key text, deletes a row and starts a new report.
#pragma once

#include <cstdint>
#include <optional>

#include "bank/data_control.h"
#include "core/control.h"

namespace obsdesk {

struct FrmDisplayKashf : Screen {
  FrmDisplayKashf();

  // Boxes bound to the KASHF columns.
  TextBox Text1{*this, "Text1"};  // hour of the report
  TextBox txt1{*this, "txt1"};  // hhmm of a SPECI or METAR(30')
  TextBox TXTYYMMDDTT{*this, "TXTYYMMDDTT"};  // key text
  TextBox TXTYEARmi{*this, "TXTYEARmi"};  // Gregorian year
  TextBox TXTMONTHMI{*this, "TXTMONTHMI"};  // Gregorian month
  TextBox TXTDAYmi{*this, "TXTDAYmi"};  // Gregorian day
  TextBox TXTYEARsh{*this, "TXTYEARsh"};  // Persian year
  TextBox TXTMONTHSH{*this, "TXTMONTHSH"};  // Persian month
  TextBox TXTDAYsh{*this, "TXTDAYsh"};  // Persian day
  TextBox TXTSEL{*this, "TXTSEL"};  // report kind
  TextBox TXTNAM{*this, "TXTNAM"};  // observer

  TextBox Text2{*this, "Text2"};  // wind direction
  TextBox Text3{*this, "Text3"};  // wind speed
  TextBox Text40{*this, "Text40"};  // first limit of a variable direction
  TextBox Text39{*this, "Text39"};  // second limit
  TextBox TXTGUSTY{*this, "TXTGUSTY"};  // gust column, kept blank
  TextBox Txttond{*this, "Txttond"};  // gust of the day
  TextBox Txtmaxwind{*this, "Txtmaxwind"};  // greatest wind of the day

  TextBox Text4{*this, "Text4"};  // mean horizontal visibility
  TextBox TxtVM{*this, "TxtVM"};  // minimum visibility
  TextBox Text26{*this, "Text26"};  // maximum visibility
  TextBox CMbMAX{*this, "CMbMAX"};  // direction of one extreme
  TextBox CMbMIN{*this, "CMbMIN"};  // direction of the other

  TextBox Text5{*this, "Text5"};  // total cloud
  TextBox Text12{*this, "Text12"};  // vertical visibility
  TextBox Text6{*this, "Text6"};  // low layer 1 amount
  TextBox Text45{*this, "Text45"};  // low layer 1 type
  TextBox Text7{*this, "Text7"};  // low layer 1 height
  TextBox Text8{*this, "Text8"};  // low layer 2 amount
  TextBox Text43{*this, "Text43"};  // low layer 2 type
  TextBox Text9{*this, "Text9"};  // low layer 2 height
  TextBox Text10{*this, "Text10"};  // low layer 3 amount
  TextBox Text42{*this, "Text42"};  // low layer 3 type
  TextBox Text11{*this, "Text11"};  // low layer 3 height
  TextBox Text49{*this, "Text49"};  // SYNOP low cloud amount
  TextBox Text46{*this, "Text46"};  // its type
  TextBox txtmin{*this, "txtmin"};  // its minimum height
  TextBox Text17{*this, "Text17"};  // middle amount
  TextBox Text47{*this, "Text47"};  // middle type
  TextBox Text16{*this, "Text16"};  // middle height
  TextBox Text23{*this, "Text23"};  // high amount
  TextBox Text54{*this, "Text54"};  // high type
  TextBox Text22{*this, "Text22"};  // high height
  TextBox Txt_NLC{*this, "Txt_NLC"};  // number of layers
  TextBox TXT_QNT{*this, "TXT_QNT"};  // QNT

  TextBox Text27{*this, "Text27"};  // dry bulb
  TextBox Text28{*this, "Text28"};  // wet bulb
  TextBox Text13{*this, "Text13"};  // attached thermometer
  TextBox txtt12{*this, "txtt12"};  // temperature twelve hours before
  TextBox Text14{*this, "Text14"};  // barometer reading
  TextBox Text15{*this, "Text15"};  // barometer correction
  TextBox Text25{*this, "Text25"};  // amount of pressure change
  TextBox Text38{*this, "Text38"};  // characteristic of pressure change
  TextBox Text18{*this, "Text18"};  // QFE
  TextBox Text19{*this, "Text19"};  // QNH hPa
  TextBox Text20{*this, "Text20"};  // QNH inches
  TextBox Text21{*this, "Text21"};  // QFF
  TextBox Text24{*this, "Text24"};  // height of 850 hPa
  TextBox Text29{*this, "Text29"};  // dew point
  TextBox Text30{*this, "Text30"};  // vapour pressure
  TextBox Text31{*this, "Text31"};  // relative humidity
  TextBox Text48{*this, "Text48"};  // iR iX
  TextBox Text59{*this, "Text59"};  // minimum temperature
  TextBox Text60{*this, "Text60"};  // maximum temperature

  TextBox Text50{*this, "Text50"};  // rain of the period
  TextBox txtpast6{*this, "txtpast6"};  // rain of six hours
  TextBox Text51{*this, "Text51"};  // rain total at 00
  TextBox Text53{*this, "Text53"};  // rain 06 to 06
  TextBox Txttimesun{*this, "Txttimesun"};  // sunshine

  TextBox Text32{*this, "Text32"};  // soil 5 cm
  TextBox Text33{*this, "Text33"};  // soil 10 cm
  TextBox Text34{*this, "Text34"};  // soil 20 cm
  TextBox Text35{*this, "Text35"};  // soil 30 cm
  TextBox Text36{*this, "Text36"};  // soil 50 cm
  TextBox Text37{*this, "Text37"};  // soil 100 cm
  TextBox Text63{*this, "Text63"};  // pan minimum
  TextBox Text64{*this, "Text64"};  // pan maximum
  TextBox Text65{*this, "Text65"};  // water added or taken
  TextBox Text66{*this, "Text66"};  // evaporation
  TextBox Text67{*this, "Text67"};  // wind run
  TextBox Text68{*this, "Text68"};  // ground minimum
  TextBox Text69{*this, "Text69"};  // total snow
  TextBox Text70{*this, "Text70"};  // fresh snow
  TextBox Text52{*this, "Text52"};  // state of ground
  TextBox Text71{*this, "Text71"};  // global radiation
  TextBox Text72{*this, "Text72"};  // sky radiation
  TextBox Text73{*this, "Text73"};  // ground radiation

  TextBox TXTWW1{*this, "TXTWW1"};  // METAR present weather
  TextBox TXTWW3{*this, "TXTWW3"};  // METAR present weather, second place
  TextBox TXTWW2{*this, "TXTWW2"};  // METAR recent weather
  TextBox TXTWW4{*this, "TXTWW4"};  // SYNOP present weather
  TextBox TXTWW5{*this, "TXTWW5"};  // SYNOP W1
  TextBox TXTWW6{*this, "TXTWW6"};  // SYNOP W2

  TextBox txtSYN{*this, "txtSYN"};  // SYNOP text
  TextBox TXTMET{*this, "TXTMET"};  // METAR text
  TextBox TXTSPE{*this, "TXTSPE"};  // SPECI text
  TextBox TXTSCDATA{*this, "TXTSCDATA"};  // S line
  TextBox Text74{*this, "Text74"};  // remarks

  TextBox Text44{*this, "Text44"};  // station line, not bound

  // Commands.
  Button newW{*this, "newW", "تهيه گزارش"};
  Button nextt{*this, "nextt", "ساعت بعد"};
  Button back{*this, "back", "ساعت قبل"};
  Button last{*this, "last", "آخرين ساعت"};
  Button search{*this, "search", "جستجو"};
  Button save{*this, "save", "ذخيره"};
  Button Command1{*this, "Command1", "حذف رکورد"};
  Button Command12{*this, "Command12", "Minimize"};
  Button cmdBUFR{*this, "cmdBUFR", "BUFR"};  // the latest BUFR message in words
  Label LabBUFR{*this, "LabBUFR"};  // whether the save wrote a BUFR message
  Image Image11{*this, "Image11"};  // back to the start screen

  // Frames and labels that follow the row.
  Frame Frame1{*this, "Frame1"}, Frame2{*this, "Frame2"}, Frame3{*this, "Frame3"};  // cloud layers
  Image Image6{*this, "Image6", "clear-sky"};
  Frame Frame5{*this, "Frame5"};    // soil
  Frame Frame6{*this, "Frame6"};    // rain
  Label Labrain{*this, "Labrain"};  // the three-hour span over the rain box
  Frame Frame8{*this, "Frame8"};    // evaporimeter
  Frame Frame9{*this, "Frame9"};    // ground
  Frame Frame10{*this, "Frame10"};  // radiation
  Frame Frame12{*this, "Frame12", "METAR"};  // METAR weather
  Frame Frame15{*this, "Frame15"};  // maximum and minimum
  Frame Frame16{*this, "Frame16"};  // SYNOP cloud summary
  Frame Frame17{*this, "Frame17"};  // SYNOP weather
  Label Label42{*this, "Label42", "ارتفاع مينيمم"};
  Label Label94{*this, "Label94"};
  Label Label96{*this, "Label96", "حداكثر باد"};
  Label Label109{*this, "Label109", "ساعت آفتابي"};

  // Hidden work boxes.
  TextBox TXTFILENAMEKASHF{*this, "TXTFILENAMEKASHF"};
  TextBox TXTFILENAMEKASHFM{*this, "TXTFILENAMEKASHFM"};
  TextBox TXTFILENAMEKASHFT{*this, "TXTFILENAMEKASHFT"};
  TextBox txtkashf{*this, "txtkashf"};         // the record being composed
  TextBox TXTmonth{*this, "TXTmonth"};         // work text of the month-end rewrite
  TextBox txtpathnamebank{*this, "txtpathnamebank"};

  DataControl KASHF{"KASHF"};
  // The row kept by newW and the moves, to come back to; none on an empty table.
  std::optional<std::int64_t> kept_row;
};

}  // namespace obsdesk
