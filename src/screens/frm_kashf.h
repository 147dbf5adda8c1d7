// FrmKashf: the entry screen of one observation. Its boxes carry the short entry
// names of the rules; the record module ties each to its KASHF column.
#pragma once

#include "core/control.h"

namespace obsdesk {

struct FrmKashf : Screen {
  FrmKashf();

  // Time and date.
  TextBox Text1{*this, "Text1", 2};              // UTC hour "00" to "23"
  TextBox txt1{*this, "txt1", 4};                // hhmm of a SPECI or METAR(30')
  TextBox TXTYYMMDDTT{*this, "TXTYYMMDDTT"};     // key text of the report
  TextBox TXTYEARmi{*this, "TXTYEARmi"};         // Gregorian year
  TextBox TXTMONTHMI{*this, "TXTMONTHMI"};       // Gregorian month
  TextBox TXTDAYmi{*this, "TXTDAYmi"};           // Gregorian day
  TextBox TXTYEARsh{*this, "TXTYEARsh"};         // Persian year
  TextBox TXTMONTHSH{*this, "TXTMONTHSH"};       // Persian month
  TextBox TXTDAYsh{*this, "TXTDAYsh"};           // Persian day
  ComboBox Combo5{*this, "Combo5"};              // report kind
  ComboBox Combo7{*this, "Combo7"};              // observer on duty
  TextBox Text44{*this, "Text44"};               // station heading

  // Wind.
  TextBox Text2{*this, "Text2", 4};         // DD wind direction
  TextBox Text3{*this, "Text3", 3};         // FF wind speed, m/s
  TextBox Text40{*this, "Text40", 4};       // DNDN first limit of a variable direction
  TextBox Text39{*this, "Text39", 4};       // DXDX second limit
  TextBox TXTGUSTY{*this, "TXTGUSTY", 3};   // FFG gust
  TextBox Txttond{*this, "Txttond", 5};     // gust of the day, at 21 UTC
  TextBox Txtmaxwind{*this, "Txtmaxwind", 5};  // greatest wind of the day, at 21 UTC
  Label Label98{*this, "Label98", "تند باد"};
  Label Label96{*this, "Label96", "حداكثر باد"};

  // Visibility.
  TextBox Text4{*this, "Text4", 5};    // VH mean horizontal visibility
  TextBox TxtVM{*this, "TxtVM", 4};    // minimum visibility
  TextBox Text26{*this, "Text26", 5};  // MAXVV maximum visibility
  ComboBox CMbMAX{*this, "CMbMAX"};    // MAXVDVD direction of one extreme
  ComboBox CMbMIN{*this, "CMbMIN"};    // VDHD direction of the other

  // Cloud.
  TextBox Text5{*this, "Text5", 2};    // N total cloud
  TextBox Text12{*this, "Text12", 4};  // VV vertical visibility
  Frame Frame1{*this, "Frame1"};       // low layers
  Frame Frame2{*this, "Frame2"};       // middle layer
  Frame Frame3{*this, "Frame3"};       // high layer
  Image Image6{*this, "Image6", "clear-sky"};  // clear sky, shown when the layers are hidden
  TextBox Text6{*this, "Text6", 2};    // VALUEL1 amount of low layer 1
  ComboBox Combo1{*this, "Combo1"};    // TYPEL1
  TextBox Text7{*this, "Text7"};       // HIGL1 height, metres
  TextBox Text8{*this, "Text8", 2};    // VALUEL2
  ComboBox Combo2{*this, "Combo2"};    // TYPEL2
  TextBox Text9{*this, "Text9"};       // HIGL2
  TextBox Text10{*this, "Text10", 2};  // VALUEL3
  ComboBox Combo3{*this, "Combo3"};    // TYPEL3
  TextBox Text11{*this, "Text11"};     // HIGL3
  Frame Frame16{*this, "Frame16"};     // SYNOP cloud summary
  TextBox Text49{*this, "Text49", 2};  // TP amount of the low cloud in the SYNOP
  ComboBox Combo4{*this, "Combo4"};    // its type
  TextBox txtmin{*this, "txtmin"};     // its minimum height
  Label Label42{*this, "Label42", "ارتفاع مينيمم"};
  TextBox Text17{*this, "Text17", 2};  // VALUEM middle cloud amount
  ComboBox Combo6{*this, "Combo6"};    // TYPEM
  TextBox Text16{*this, "Text16", 4};  // HIGM
  TextBox Text23{*this, "Text23", 2};  // VALUEH high cloud amount
  ComboBox Combo9{*this, "Combo9"};    // TYPEH
  TextBox Text22{*this, "Text22", 4};  // HIGH
  TextBox Txt_NLC{*this, "Txt_NLC"};   // number-of-layers entry
  ComboBox Cmb_NLC{*this, "Cmb_NLC"};
  TextBox TXT_QNT{*this, "TXT_QNT"};   // "QNT"
  TextBox TEXTMIN{*this, "TEXTMIN"};   // height of the lowest reported cloud, for the coders

  // Thermometers and barometer.
  TextBox Text27{*this, "Text27"};      // TDRY dry bulb
  TextBox Text28{*this, "Text28"};      // TWET wet bulb
  TextBox Text13{*this, "Text13"};      // TP attached thermometer
  TextBox txtt12{*this, "txtt12"};      // temperature twelve hours before
  TextBox Text14{*this, "Text14", 6};   // PREAD barometer reading
  Frame FraNegar{*this, "FraNegar"};    // frame of the barograph box
  TextBox Text41{*this, "Text41", 6};   // barograph reading, twin of Text14
  TextBox Text15{*this, "Text15", 5};   // TC barometer correction
  TextBox Text18{*this, "Text18", 6};   // QFE station pressure
  TextBox Text19{*this, "Text19", 6};   // QNH hPa
  TextBox Text20{*this, "Text20", 5};   // QIN QNH in inches
  TextBox Text21{*this, "Text21", 6};   // QFF
  TextBox Text24{*this, "Text24", 6};   // H850 height of the 850 hPa level
  TextBox Text29{*this, "Text29", 5};   // TDEW dew point
  TextBox Text30{*this, "Text30", 5};   // EHPA vapour pressure
  TextBox Text31{*this, "Text31", 4};   // RH relative humidity
  TextBox Text25{*this, "Text25", 4};   // amount of pressure change
  TextBox Text38{*this, "Text38", 1};   // characteristic of pressure change
  Label Label17{*this, "Label17", "مقدار تغييرات"};
  TextBox Text48{*this, "Text48", 2};   // IRIX
  Frame Frame15{*this, "Frame15"};      // maximum and minimum
  TextBox Text59{*this, "Text59", 5};   // TMIN3
  TextBox Text60{*this, "Text60", 5};   // TMAX3

  // Rain.
  Frame Frame6{*this, "Frame6"};
  Label Labrain{*this, "Labrain"};       // the three-hour period
  TextBox Text50{*this, "Text50", 4};    // rain of the period
  TextBox Text42{*this, "Text42"};       // its twin at a 12-hour station
  TextBox txtpast6{*this, "txtpast6"};   // rain of six hours
  TextBox Text51{*this, "Text51"};       // rain total at 00 UTC
  TextBox Text53{*this, "Text53"};       // rain 06 to 06

  // Soil, pan, ground, radiation, sunshine.
  Frame Frame5{*this, "Frame5"};
  TextBox Text32{*this, "Text32", 5}, Text33{*this, "Text33", 5}, Text34{*this, "Text34", 4},
      Text35{*this, "Text35", 4}, Text36{*this, "Text36", 4}, Text37{*this, "Text37", 4};  // 5 to 100 cm
  Frame FraTmaxS{*this, "FraTmaxS"};
  TextBox Text43{*this, "Text43"};       // ground maximum
  Frame Frame8{*this, "Frame8"};
  TextBox Text63{*this, "Text63", 5};    // pan water minimum
  TextBox Text64{*this, "Text64", 5};    // pan water maximum
  TextBox Text65{*this, "Text65", 7};    // water added or taken, cc
  TextBox Text66{*this, "Text66", 4};    // evaporation, mm
  TextBox Text67{*this, "Text67", 6};    // wind run over the pan
  Frame Frame9{*this, "Frame9"};
  TextBox Text68{*this, "Text68", 5};    // ground minimum
  TextBox Text69{*this, "Text69", 3};    // total snow, cm
  TextBox Text70{*this, "Text70", 3};    // fresh snow, cm
  Frame Frame10{*this, "Frame10"};
  TextBox Text71{*this, "Text71", 5}, Text72{*this, "Text72", 5}, Text73{*this, "Text73", 5};  // radiation
  TextBox Txttimesun{*this, "Txttimesun", 4};  // sunshine hours
  Label Label109{*this, "Label109", "ساعت آفتابي"};

  // Weather pictures.
  Frame Frame12{*this, "Frame12"};  // METAR weather
  Frame Frame17{*this, "Frame17"};  // SYNOP weather
  Image Image1{*this, "Image1"};    // SYNOP present weather
  Image Image2{*this, "Image2"};    // W1
  Image Image9{*this, "Image9"};    // W2
  Image Image3{*this, "Image3"};    // state of ground
  Image Image10{*this, "Image10"};  // METAR present weather
  Image Image8{*this, "Image8"};    // METAR recent weather
  Image Image7{*this, "Image7"};    // METAR weather of the past hour
  Image Image4{*this, "Image4"};
  Label LabVC{*this, "LabVC"};      // vicinity code
  TextBox TWW{*this, "TWW"};        // "1" when the remarks step ran the SYNOP pickers

  // Remarks and coded texts.
  TextBox Text74{*this, "Text74"};  // remarks
  TextBox txtSYN{*this, "txtSYN"};
  TextBox TXTMET{*this, "TXTMET"};
  TextBox TXTSPE{*this, "TXTSPE"};

  // Commands.
  Button ZAKHIREH{*this, "ZAKHIREH", "تاييد"};
  Button Command5{*this, "Command5", "صفحه كد"};
  Button Cmdsynop{*this, "Cmdsynop", "كد  سينوپ"};
  Button cmdsynop1218{*this, "cmdsynop1218", "كد  سينوپ"};
  Button Command4{*this, "Command4", " كد  متار"};
  Button Command8{*this, "Command8", " كد اسپيسي"};
  Button Command1{*this, "Command1", "ويرايش "};
  Button Command12{*this, "Command12", "Minimize"};

  // Masks over groups that cannot be reached.
  Frame Framesyn1{*this, "Framesyn1"};  // over Text39, Text40
  Frame Framesyn2{*this, "Framesyn2"};  // over TXTGUSTY
  Frame Framesyn3{*this, "Framesyn3"};  // over TxtVM, CMbMAX, Text26, CMbMIN
  Frame Frameh1{*this, "Frameh1"}, Frameh2{*this, "Frameh2"}, Frameh3{*this, "Frameh3"},
      Frameh4{*this, "Frameh4"};        // a 12-hour station at 18, 21, 00 UTC
  Frame Frameh5{*this, "Frameh5"};      // over Text13 when the barograph is in use

  // Hidden boxes: constants of the formulae and the text archive names.
  TextBox txtpi{*this, "txtpi"};
  TextBox TXTe{*this, "TXTe"};
  TextBox txtloge{*this, "txtloge"};
  TextBox txtfilenameMET{*this, "txtfilenameMET"};
  TextBox txtFileNameDAY{*this, "txtFileNameDAY"};
  TextBox txtFileNamemonth{*this, "txtFileNamemonth"};
  TextBox txtFileNamemonthG{*this, "txtFileNamemonthG"};
  TextBox txtfilenametotal{*this, "txtfilenametotal"};
  TextBox TXTFILENAMETOTALG{*this, "TXTFILENAMETOTALG"};
  TextBox TXTFILENAMESYN{*this, "TXTFILENAMESYN"};
  TextBox TXTFILENAMESPE{*this, "TXTFILENAMESPE"};
  TextBox TxtResolution{*this, "TxtResolution"};
};

}  // namespace obsdesk
