#include "screens/record.h"

namespace obsdesk {

const std::vector<Column>& kashf_columns() {
  // column, entry box, entry name, max, width, browser box
  static const std::vector<Column> columns = {
      {"UTC", "Text1", "UTC", 2, 0, "Text1"},
      {"txt1", "txt1", "", 4, 0, "txt1"},
      {"yymmddttgg", "TXTYYMMDDTT", "YYMMDDTT", 0, 10, "TXTYYMMDDTT"},
      {"Year", "TXTYEARmi", "Year", 0, 4, "TXTYEARmi"},
      {"MOUNT", "TXTMONTHMI", "Month", 0, 2, "TXTMONTHMI"},
      {"Day", "TXTDAYmi", "Day", 0, 2, "TXTDAYmi"},
      {"sal", "TXTYEARsh", "SHYear", 0, 4, "TXTYEARsh"},
      {"mah", "TXTMONTHSH", "SHMonth", 0, 2, "TXTMONTHSH"},
      {"roz", "TXTDAYsh", "SHDay", 0, 2, "TXTDAYsh"},
      {"TYPEREPORT", "Combo5", "", 0, 0, "TXTSEL"},
      {"OBSERVERNAME", "Combo7", "", 30, 30, "TXTNAM"},
      {"DD", "Text2", "DD", 4, 4, "Text2"},
      {"FFF", "Text3", "FF", 3, 3, "Text3"},
      {"DDMIN", "Text40", "DNDN", 4, 4, "Text40"},
      {"DDMAX", "Text39", "DXDX", 4, 4, "Text39"},
      {"GUSTY", "", "", 0, 3, "TXTGUSTY"},
      {"MAXWIND", "Txttond", "", 5, 5, "Txttond"},
      {"GUSTYWIND", "Txtmaxwind", "max wind", 5, 5, "Txtmaxwind"},
      {"VISAVG", "Text4", "VH", 5, 5, "Text4"},
      {"VISMIN", "TxtVM", "FFG", 4, 0, "TxtVM"},
      {"VISMAX", "Text26", "MAXVV", 5, 5, "Text26"},
      {"VISMINDD", "CMbMAX", "MAXVDVD", 0, 0, "CMbMAX"},
      {"VISMAXDD", "CMbMIN", "VDHD", 0, 0, "CMbMIN"},
      {"TCOLD", "Text5", "N", 2, 2, "Text5"},
      {"VIRVIS", "Text12", "VV", 4, 4, "Text12"},
      {"AML1", "Text6", "VALUEL1", 2, 2, "Text6"},
      {"TYPL1", "Combo1", "TYPEL1", 0, 8, "Text45"},
      {"HGL1", "Text7", "HIGL1", 0, 4, "Text7"},
      {"AML2", "Text8", "VALUEL2", 2, 2, "Text8"},
      {"TYPL2", "Combo2", "TYPEL2", 0, 8, "Text43"},
      {"HGL2", "Text9", "HIGL2", 0, 4, "Text9"},
      {"AML3", "Text10", "VALUEL3", 2, 2, "Text10"},
      {"TYPL3", "Combo3", "TYPEL3", 0, 8, "Text42"},
      {"HGL3", "Text11", "HIGL3", 0, 4, "Text11"},
      {"TAML", "Text49", "TP", 2, 2, "Text49"},
      {"TTYPL", "Combo4", "", 0, 8, "Text46"},
      {"THGL", "txtmin", "", 0, 4, "txtmin"},
      {"AMM", "Text17", "VALUEM", 2, 2, "Text17"},
      {"TYPM", "Combo6", "TYPEM", 0, 8, "Text47"},
      {"HGLM", "Text16", "HIGM", 4, 4, "Text16"},
      {"AMH", "Text23", "VALUEH", 2, 2, "Text23"},
      {"TYPH", "Combo9", "TYPEH", 0, 8, "Text54"},
      {"HGH", "Text22", "HIGH", 4, 4, "Text22"},
      {"NLC", "Txt_NLC", "NLC", 0, 0, "Txt_NLC"},
      {"New_field01", "TXT_QNT", "New_field01", 0, 0, "TXT_QNT"},
      {"TDRY", "Text27", "TDRY", 0, 5, "Text27"},
      {"TWET", "Text28", "TWET", 0, 5, "Text28"},
      {"TTEMP", "Text13", "TP", 0, 5, "Text13"},
      {"T12", "txtt12", "", 0, 5, "txtt12"},
      {"READP", "Text14", "PREAD", 6, 6, "Text14"},
      {"TCORRT", "Text15", "TC", 5, 4, "Text15"},
      {"APPP", "Text25", "", 4, 4, "Text25"},
      {"TENA", "Text38", "", 1, 1, "Text38"},
      {"QFE", "Text18", "QFE", 6, 6, "Text18"},
      {"QNHPA", "Text19", "QNH", 6, 6, "Text19"},
      {"QNHIN", "Text20", "QIN", 5, 5, "Text20"},
      {"QFF", "Text21", "QFF", 6, 6, "Text21"},
      {"H850", "Text24", "H850", 6, 7, "Text24"},
      {"DEW", "Text29", "TDEW", 5, 5, "Text29"},
      {"EHPA", "Text30", "EHPA", 5, 5, "Text30"},
      {"RH", "Text31", "RH", 4, 4, "Text31"},
      {"IRIX", "Text48", "", 2, 2, "Text48"},
      {"TMIN", "Text59", "TMIN3", 5, 5, "Text59"},
      {"TMAX", "Text60", "TMAX3", 5, 5, "Text60"},
      {"RAIN", "Text50", "", 4, 4, "Text50"},
      {"6HOURPAST", "txtpast6", "", 0, 4, "txtpast6"},
      {"TOTALRAIN", "Text51", "", 0, 4, "Text51"},
      {"RAIN70000", "Text53", "", 0, 4, "Text53"},
      {"SUN", "Txttimesun", "", 4, 5, "Txttimesun"},
      {"TG5", "Text32", "", 5, 5, "Text32"},
      {"TG10", "Text33", "", 5, 5, "Text33"},
      {"TG20", "Text34", "", 4, 4, "Text34"},
      {"TG30", "Text35", "", 4, 4, "Text35"},
      {"TG50", "Text36", "", 4, 4, "Text36"},
      {"TG100", "Text37", "", 4, 4, "Text37"},
      {"AVEPMIN", "Text63", "", 5, 5, "Text63"},
      {"AVEPMAX", "Text64", "", 5, 5, "Text64"},
      {"ADDWATER", "Text65", "", 7, 7, "Text65"},
      {"EVEPORETION", "Text66", "", 4, 4, "Text66"},
      {"ANOMOMETER", "Text67", "", 6, 6, "Text67"},
      {"TGROUND", "Text68", "", 5, 5, "Text68"},
      {"TOTALSNOW", "Text69", "", 3, 3, "Text69"},
      {"FRESHSNOW", "Text70", "", 3, 3, "Text70"},
      {"STATEGROUND", "", "", 1, 0, "Text52"},
      {"TSR", "Text71", "", 5, 5, "Text71"},
      {"DSR", "Text72", "", 5, 5, "Text72"},
      {"RSR", "Text73", "", 5, 5, "Text73"},
      {"MWW", "", "", 0, 7, "TXTWW1"},
      {"MPW1", "", "", 0, 7, "TXTWW3"},
      {"MPW2", "", "", 0, 7, "TXTWW2"},
      {"SWW", "", "", 0, 7, "TXTWW4"},
      {"SPW1", "", "", 0, 7, "TXTWW5"},
      {"SPW2", "", "", 0, 7, "TXTWW6"},
      {"COODSYN", "txtSYN", "", 0, 0, "txtSYN"},
      {"COODMET", "TXTMET", "", 0, 0, "TXTMET"},
      {"COODSPE", "TXTSPE", "", 0, 0, "TXTSPE"},
      {"SCDATA", "", "", 0, 0, "TXTSCDATA"},
      {"NOTE", "Text74", "", 0, 0, "Text74"},
  };
  return columns;
}

const Column* find_column(std::string_view column) {
  for (const Column& c : kashf_columns())
    if (c.column == column) return &c;
  return nullptr;
}

namespace {

template <class Kind>
struct KindText {
  Kind kind;
  std::string_view text;
};

constexpr KindText<ReportKind> kReportTexts[] = {{ReportKind::Synop, kSynop},
                                                     {ReportKind::SynMet, kSynMet},
                                                     {ReportKind::Metar, kMetar},
                                                     {ReportKind::Speci, kSpeci},
                                                     {ReportKind::Metar30, kMetar30}};
constexpr KindText<StationKind> kStationTexts[] = {{StationKind::Hours12, kStation12},
                                                       {StationKind::Hours18, kStation18},
                                                       {StationKind::Hours24, kStation24},
                                                       {StationKind::Hours6, kStation6}};

// Exact texts only: a kind padded or cut differently is no kind, as the
// stored records hold them to the character.
template <class Kind, std::size_t N>
Kind kind_of(const KindText<Kind> (&table)[N], std::string_view text) {
  for (const auto& k : table)
    if (k.text == text) return k.kind;
  return Kind::None;
}

template <class Kind, std::size_t N>
std::string_view text_of(const KindText<Kind> (&table)[N], Kind kind) {
  for (const auto& k : table)
    if (k.kind == kind) return k.text;
  return {};
}

}  // namespace

ReportKind report_kind_of(std::string_view text) { return kind_of(kReportTexts, text); }
std::string_view report_kind_text(ReportKind kind) { return text_of(kReportTexts, kind); }
StationKind station_kind_of(std::string_view text) { return kind_of(kStationTexts, text); }
std::string_view station_kind_text(StationKind kind) { return text_of(kStationTexts, kind); }

bool is_synop_kind(ReportKind kind) { return kind == ReportKind::Synop || kind == ReportKind::SynMet; }

bool is_metar_kind(ReportKind kind) {
  return kind == ReportKind::Metar || kind == ReportKind::Metar30 || kind == ReportKind::Speci;
}

const std::vector<std::string>& pan_kinds() {
  static const std::vector<std::string> items = {"USA طشت تبخير سنج باز  (بدون پوشش) مدل ",
                                                 "USA طشت تبخير سنج باز  (باپوشش مشبك يا تور سيمي) مدل",
                                                 "(Sunken) GGI - 3000  طشت تبخير سنج مدل ",
                                                 "تانك (مخزن) 20 متر مربعي",
                                                 "ساير وسائل اندازه گيري",
                                                 "برنج",
                                                 "گندم",
                                                 "(Maize) ذرت",
                                                 "(Sorghum) ذرت خوشه اي",
                                                 "ديگر محصولات"};
  return items;
}

const std::vector<std::string>& low_cloud_types() {
  static const std::vector<std::string> items = {"       0", "CU     1", "CU     2", "CB     3",
                                                 "SC     4", "SC     5", "ST,FS  6", "FS,FCU 7",
                                                 "CU,SC  8", "CB     9", "       X"};
  return items;
}

const std::vector<std::string>& low3_cloud_types() {
  static const std::vector<std::string> items = {"      0",  "CU     1", "CU     2", "CB     3",
                                                 "SC     4", "SC     5", "ST,FS  6", "FS,FCU 7",
                                                 "CU,SC  8", "CB     9", "       X"};
  return items;
}

const std::vector<std::string>& synop_cloud_types() {
  static const std::vector<std::string> items = {"      0",  "CU     1", "CU     2", "CB     3",
                                                 "SC     4", "SC     5", "ST,FS  6", "FS,FCU 7",
                                                 "CU,SC  8", "CB     9", "      X"};
  return items;
}

const std::vector<std::string>& middle_cloud_types() {
  static const std::vector<std::string> items = {
      "       0", "AS     1", "AS     2", "NS     2", "AC     3", "AC     4", "AC     5", "AC     6",
      "AC,AS  7", "AS,AC  7", "AC     7", "AC,NS  7", "AC     8", "AC     9", "       X"};
  return items;
}

const std::vector<std::string>& high_cloud_types() {
  static const std::vector<std::string> items = {"       0", "CI     1", "CI     2", "CI     3",
                                                 "CI     4", "CS     5", "CS     6", "CS     7",
                                                 "CS     8", "CC,CS  9", "       X"};
  return items;
}

const std::vector<std::string>& visibility_directions() {
  static const std::vector<std::string> items = {"N", "NE", "E", "SE", "S", "W", "SW", "NW"};
  return items;
}

const std::vector<std::string>& layer_list() {
  static const std::vector<std::string> items = {"2LC", "3LC", "4LC", "5LC", "6LC", "7LC", "8LC", "None"};
  return items;
}

}  // namespace obsdesk
