#include "screens/weather_tables.h"

namespace obsdesk {

namespace {

constexpr std::string_view kCloudNotNil = "      مقدار ابر نبايد صفر باشد     ";
constexpr std::string_view kCloudObscured = "      مقدار ابر بايد نه باشد     ";
constexpr std::string_view kCloudNotObscured = "      مقدار ابر نبايد نه باشد     ";
constexpr std::string_view kHumidityAbove80 = "      رطوبت نسبي بيشتر از 80% ميباشد       ";
constexpr std::string_view kHumidityBelow80 = "      رطوبت نسبي كمتر از 80% ميباشد       ";
constexpr std::string_view kHumidityBelow95 = "      رطوبت نسبي كمتر از 95% ميباشد       ";
constexpr std::string_view kWindBelow8 = "        سرعت باد كمتر از 8 متر بر ثانيه  ميباشد        ";
constexpr std::string_view kWindBelow30Knots = "        سرعت باد كمتر از 30 گره  ميباشد        ";
constexpr std::string_view kVisOutside1000To10000 = "      ديد افقي كمتر 1000 متر يا بيشتر از 10000 مترميباشد     ";
constexpr std::string_view kVisAbove1000 = "      ديد افقي بيشتر از 1000 متر ميباشد     ";
constexpr std::string_view kVisAtLeast1000 = "      ديد افقي مساوي ويابيشتر از 1000 متر ميباشد     ";
constexpr std::string_view kVisNotBelow4000 = "      ديد افقي بايد كمتر از  4000  متر ميباشد     ";
constexpr std::string_view kVisMustBeBelow1000 = "      ديد افقي بايد كمتر از 1000 متر ميباشد     ";
constexpr std::string_view kVisMustBeAtMost4000 = "      ديد افقي بايد كمتر از 4000 متر و يا 4000 متر باشد     ";
constexpr std::string_view kVisMustBeAbove1000 = "      ديد افقي بايد بيشتر از  1000 متر ميباشد     ";
constexpr std::string_view kVis4000OrLess = "      ديد افقي بايد 4000 متر  و يا كمتر ميباشد     ";

}  // namespace

const std::array<PresentWeather, 100>& present_weather_table() {
  // SYNOP text, METAR text, recent text, recent into the METAR box, cloud gate,
  // ask, visibility mark, tests before.
  static const std::array<PresentWeather, 100> table = {{
      {"00", "", "", false, Gate::None, false, Mark::None, {}},
      {"01", "", "", false, Gate::None, false, Mark::None, {}},
      {"02", "", "", false, Gate::None, false, Mark::None, {}},
      {"03", "", "", false, Gate::None, false, Mark::None, {{Check::CloudNotNil, kCloudNotNil}}},
      {"04", "FU", "FU", true, Gate::None, false, Mark::M5, {}},
      {"05", "HZ", "HZ", true, Gate::None, false, Mark::M5, {{Check::HumidityAtMost80, kHumidityAbove80}}},
      {"06", "DU", "DU", true, Gate::None, false, Mark::M5, {{Check::HumidityAtMost80, kHumidityAbove80}}},
      {"07", "SA", "SA", true, Gate::None, false, Mark::M5, {}},
      {"08", "PO", "PO", true, Gate::None, false, Mark::None, {}},
      {"09", "DS", "DS", true, Gate::None, false, Mark::None, {}},
      {"10", "BR", "BR", false, Gate::None, false, Mark::M5m, {{Check::HumidityAtLeast80, kHumidityBelow80}, {Check::Vis1000To10000, kVisOutside1000To10000}}},
      {"11", "MIFG", "MIFG", false, Gate::None, false, Mark::None, {{Check::VisBelow1000, kVisAbove1000}}},
      {"12", "MIFG", "MIFG", false, Gate::None, false, Mark::None, {{Check::VisBelow1000, kVisAbove1000}}},
      {"13", "", "", false, Gate::None, false, Mark::None, {}},
      {"14", "", "", false, Gate::None, false, Mark::None, {{Check::CloudNotNil, kCloudNotNil}}},
      {"15", "", "", false, Gate::None, false, Mark::None, {{Check::CloudNotNil, kCloudNotNil}}},
      {"16", "", "", false, Gate::None, false, Mark::None, {{Check::CloudNotNil, kCloudNotNil}}},
      {"17", "TS", "TS", false, Gate::CB, false, Mark::None, {{Check::CloudNotNil, kCloudNotNil}}},
      {"18", "SQ", "SQ", false, Gate::None, false, Mark::None, {{Check::WindAtLeast8, kWindBelow8}}},
      {"19", "+FC", "+FC", false, Gate::None, false, Mark::None, {{Check::CloudNotNil, kCloudNotNil}}},
      {"20", "", "", false, Gate::None, false, Mark::None, {}},
      {"21", "", "", false, Gate::None, false, Mark::None, {}},
      {"22", "", "", false, Gate::None, false, Mark::None, {}},
      {"23", "", "", false, Gate::None, false, Mark::None, {}},
      {"24", "", "", false, Gate::None, false, Mark::None, {}},
      {"25", "", "", false, Gate::None, false, Mark::None, {}},
      {"26", "", "", false, Gate::None, false, Mark::None, {}},
      {"27", "", "", false, Gate::None, false, Mark::None, {}},
      {"28", "", "", false, Gate::None, false, Mark::None, {{Check::VisAbove999, kVisAbove1000}}},
      {"29", "", "", false, Gate::None, false, Mark::None, {}},
      {"30", "DS", "DS", false, Gate::None, false, Mark::None, {{Check::WindAtLeast16, kWindBelow30Knots}, {Check::VisBelow1000, kVisAbove1000}}},
      {"31", "DS", "DS", false, Gate::None, false, Mark::None, {{Check::WindAtLeast16, kWindBelow30Knots}, {Check::VisBelow1000, kVisAbove1000}}},
      {"32", "DS", "DS", false, Gate::None, false, Mark::None, {{Check::WindAtLeast16, kWindBelow30Knots}, {Check::VisBelow1000, kVisAbove1000}}},
      {"33", "+DS", "+DS", false, Gate::None, false, Mark::None, {{Check::WindAtLeast16, kWindBelow30Knots}, {Check::VisBelow1000, kVisAbove1000}}},
      {"34", "+DS", "+DS", false, Gate::None, false, Mark::None, {{Check::WindAtLeast16, kWindBelow30Knots}, {Check::VisBelow1000, kVisAbove1000}}},
      {"35", "+DS", "+DS", false, Gate::None, false, Mark::None, {{Check::WindAtLeast16, kWindBelow30Knots}, {Check::VisBelow1000, kVisAbove1000}}},
      {"36", "DRSN", "DRSN", false, Gate::None, false, Mark::None, {}},
      {"37", "+DRSN", "+DRSN", false, Gate::None, false, Mark::None, {}},
      {"38", "BLSN", "BLSN", false, Gate::None, false, Mark::None, {}},
      {"39", "+BLSN", "+BLSN", false, Gate::None, false, Mark::None, {}},
      {"40", "BCFG", "BCFG", false, Gate::None, false, Mark::None, {{Check::HumidityAtLeast95, kHumidityBelow95}, {Check::VisBelow1000, kVisAtLeast1000}}},
      {"41", "BCFG", "BCFG", false, Gate::None, false, Mark::None, {{Check::HumidityAtLeast95, kHumidityBelow95}, {Check::VisBelow1000, kVisAtLeast1000}}},
      {"42", "FG", "FG", false, Gate::None, false, Mark::None, {{Check::HumidityAtLeast95, kHumidityBelow95}, {Check::CloudNotObscured, kCloudNotObscured}, {Check::VisBelow1000, kVisAtLeast1000}}},
      {"43", "FG", "FG", false, Gate::None, false, Mark::None, {{Check::HumidityAtLeast95, kHumidityBelow95}, {Check::CloudObscured, kCloudObscured}, {Check::VisBelow1000, kVisAtLeast1000}}},
      {"44", "FG", "FG", false, Gate::None, false, Mark::None, {{Check::HumidityAtLeast95, kHumidityBelow95}, {Check::CloudNotObscured, kCloudNotObscured}, {Check::VisBelow1000, kVisAtLeast1000}}},
      {"45", "FG", "FG", false, Gate::None, false, Mark::None, {{Check::HumidityAtLeast95, kHumidityBelow95}, {Check::CloudObscured, kCloudObscured}, {Check::VisBelow1000, kVisAtLeast1000}}},
      {"46", "FG", "FG", false, Gate::None, false, Mark::None, {{Check::HumidityAtLeast95, kHumidityBelow95}, {Check::CloudNotObscured, kCloudNotObscured}, {Check::VisBelow1000, kVisAtLeast1000}}},
      {"47", "FG", "FG", false, Gate::None, false, Mark::None, {{Check::HumidityAtLeast95, kHumidityBelow95}, {Check::CloudObscured, kCloudObscured}, {Check::VisBelow1000, kVisAtLeast1000}}},
      {"48", "FZFG", "FZFG", false, Gate::None, false, Mark::None, {{Check::HumidityAtLeast95, kHumidityBelow95}, {Check::CloudNotObscured, kCloudNotObscured}, {Check::VisBelow1000, kVisAtLeast1000}}},
      {"49", "FZFG", "FZFG", false, Gate::None, false, Mark::None, {{Check::HumidityAtLeast95, kHumidityBelow95}, {Check::CloudObscured, kCloudObscured}, {Check::VisBelow1000, kVisAtLeast1000}}},
      {"50", "-DZ", "-DZ", false, Gate::ST, true, Mark::None, {}},
      {"51", "-DZ", "-DZ", false, Gate::ST, true, Mark::None, {}},
      {"52", "DZ", "DZ", false, Gate::ST, true, Mark::None, {{Check::VisBelow4001, kVisNotBelow4000}}},
      {"53", "DZ", "DZ", false, Gate::ST, true, Mark::None, {{Check::VisBelow4001, kVisNotBelow4000}}},
      {"54", "+DZ", "+DZ", false, Gate::ST, true, Mark::None, {{Check::VisBelow1000, kVisMustBeBelow1000}}},
      {"55", "+DZ", "+DZ", false, Gate::ST, true, Mark::None, {{Check::VisBelow1000, kVisMustBeBelow1000}}},
      {"56", "FZDZ", "FZDZ", false, Gate::ST, true, Mark::None, {}},
      {"57", "+FZDZ", "+FZDZ", false, Gate::ST, true, Mark::None, {{Check::VisBelow4000, kVisMustBeAtMost4000}}},
      {"58", "RADZ", "RADZ", false, Gate::None, false, Mark::None, {}},
      {"59", "RA", "RERA", false, Gate::None, false, Mark::None, {}},
      {"60", "-RA", "-RA", false, Gate::NS, true, Mark::None, {}},
      {"61", "-RA", "-RA", false, Gate::NS, true, Mark::None, {}},
      {"62", "RA", "RA", false, Gate::NS, true, Mark::None, {}},
      {"63", "RA", "RA", false, Gate::NS, true, Mark::None, {}},
      {"64", "+RA", "+RA", false, Gate::NS, true, Mark::None, {}},
      {"65", "+RA", "+RA", false, Gate::NS, true, Mark::None, {}},
      {"66", "FZRA", "FZRA", false, Gate::NS, false, Mark::None, {}},
      {"67", "+FZRA", "+FZRA", false, Gate::NS, false, Mark::None, {}},
      {"68", "SNRA", "SNRA", false, Gate::NS, false, Mark::None, {}},
      {"69", "SNRA", "+SNRA", false, Gate::NS, false, Mark::None, {}},
      {"70", "-SN", "-SN", false, Gate::NS, true, Mark::None, {}},
      {"71", "-SN", "-SN", false, Gate::NS, true, Mark::None, {}},
      {"72", "SN", "RESN", false, Gate::NS, true, Mark::None, {{Check::VisAbove999, kVisMustBeAbove1000}}},
      {"73", "SN", "SN", false, Gate::NS, true, Mark::None, {{Check::VisAbove999, kVisMustBeAbove1000}}},
      {"74", "+SN", "+SN", false, Gate::NS, true, Mark::None, {{Check::VisBelow1000, kVisMustBeBelow1000}}},
      {"75", "+SN", "+SN", false, Gate::NS, true, Mark::None, {{Check::VisBelow1000, kVisMustBeBelow1000}}},
      {"76", "", "", false, Gate::NS, true, Mark::None, {}},
      {"77", "SG", "SG", false, Gate::ST, true, Mark::None, {}},
      {"78", "", "", false, Gate::None, false, Mark::None, {}},
      {"79", "PE", "PE", false, Gate::PE, false, Mark::None, {}},
      {"", "-SHRA", "-SHRA", false, Gate::CB, false, Mark::None, {}},  // 80: the code itself is not written
      {"81", "+SH", "+SH", false, Gate::CB, false, Mark::None, {}},
      {"82", "+SH", "+SH", false, Gate::CB, false, Mark::None, {}},
      {"83", "SNRA", "SNRA", false, Gate::CB, true, Mark::None, {}},
      {"84", "+SHSN", "+SHSN", false, Gate::CB, true, Mark::None, {}},
      {"85", "SHSN", "SHSN", false, Gate::CB, true, Mark::None, {}},
      {"86", "+NSSH", "+NSSH", false, Gate::CB, false, Mark::None, {{Check::VisBelow4001, kVis4000OrLess}}},
      {"87", "-GR", "-GR", false, Gate::CB, false, Mark::None, {}},
      {"88", "GR", "+GR", false, Gate::CB, false, Mark::None, {}},
      {"89", "-GR", "-GR", false, Gate::CB, false, Mark::None, {}},
      {"90", "+GR", "+GR", false, Gate::CB, false, Mark::None, {}},
      {"91", "-RA", "-RA", false, Gate::None, false, Mark::None, {}},
      {"92", "+RA", "+RA", false, Gate::None, false, Mark::None, {}},
      {"93", "GR", "GR", false, Gate::None, false, Mark::None, {}},
      {"94", "+GR", "+GR", false, Gate::None, false, Mark::None, {}},
      {"95", "TS", "TS", false, Gate::CB, false, Mark::None, {}},
      {"96", "TSGR", "TSGR", false, Gate::CB, false, Mark::None, {}},
      {"97", "+TS", "+TS", false, Gate::CB, false, Mark::None, {}},
      {"98", "TSSA", "TSSA", false, Gate::CB, false, Mark::None, {}},
      {"99", "+TSGR", "+TSGR", false, Gate::CB, false, Mark::None, {}},
  }};
  return table;
}

const std::array<PastHourWeather, 100>& past_hour_table() {
  // What the button does, MPW2, REw'w' of the panel, METAR present texts that
  // keep the panel. 48 and the block list of 99 stand as stored.
  static const std::array<PastHourWeather, 100> table = {{
      {PastHourAct::Write, "***", "", {}},  // 00
      {PastHourAct::Write, "***", "", {}},  // 01
      {PastHourAct::Write, "***", "", {}},  // 02
      {PastHourAct::Write, "***", "", {}},  // 03
      {PastHourAct::Write, "FU", "", {}},  // 04
      {PastHourAct::Write, "HZ", "", {}},  // 05
      {PastHourAct::Write, "HZ", "", {}},  // 06
      {PastHourAct::Write, "SA", "", {}},  // 07
      {PastHourAct::Write, "PO", "", {}},  // 08
      {PastHourAct::Write, "", "", {}},  // 09
      {PastHourAct::Write, "BR", "", {}},  // 10
      {PastHourAct::Write, "MIFG", "", {}},  // 11
      {PastHourAct::Write, "MIFG", "", {}},  // 12
      {PastHourAct::Write, "***", "", {}},  // 13
      {PastHourAct::Write, "***", "", {}},  // 14
      {PastHourAct::Write, "***", "", {}},  // 15
      {PastHourAct::Write, "***", "", {}},  // 16
      {PastHourAct::Write, "RETS", "", {}},  // 17
      {PastHourAct::Write, "RESQ", "RESQ", {}},  // 18
      {PastHourAct::Write, "REFC", "REFC", {}},  // 19
      {PastHourAct::Write, "REDZ", "REDZ", {}},  // 20
      {PastHourAct::Write, "RERA", "RERA", {}},  // 21
      {PastHourAct::Write, "RESN", "RESN", {}},  // 22
      {PastHourAct::Write, "RESNRA", "RESNRA", {}},  // 23
      {PastHourAct::Write, "REFZRA", "REFZRA", {}},  // 24
      {PastHourAct::Write, "RESH", "RESH", {}},  // 25
      {PastHourAct::Write, "RESHSN", "RESHSN", {}},  // 26
      {PastHourAct::Write, "REGR", "REGR", {}},  // 27
      {PastHourAct::Refuse, "", "", {}},  // 28
      {PastHourAct::Write, "RETS", "RETS", {}},  // 29
      {PastHourAct::Write, "REDS", "REDS", {}},  // 30
      {PastHourAct::Write, "REDS", "REDS", {"+SA", "SA"}},  // 31
      {PastHourAct::Write, "REDS", "REDS", {"+SA", "SA"}},  // 32
      {PastHourAct::Write, "REDS", "REDS", {"+SA", "SA"}},  // 33
      {PastHourAct::Write, "REDS", "REDS", {"+SA", "SA"}},  // 34
      {PastHourAct::Write, "REDS", "REDS", {"+SA", "SA"}},  // 35
      {PastHourAct::Write, "REDRSN", "REDRSN", {"DRSN"}},  // 36
      {PastHourAct::Write, "REDRSN", "REDRSN", {"DRSN"}},  // 37
      {PastHourAct::Write, "REBLSN", "REBLSN", {"BLSN"}},  // 38
      {PastHourAct::Write, "REBLSN", "REBLSN", {"BLSN"}},  // 39
      {PastHourAct::Write, "BCFG", "", {}},  // 40
      {PastHourAct::Write, "BCFG", "", {}},  // 41
      {PastHourAct::Write, "FG", "", {}},  // 42
      {PastHourAct::Write, "FG", "", {}},  // 43
      {PastHourAct::Write, "FG", "", {}},  // 44
      {PastHourAct::Write, "FG", "", {}},  // 45
      {PastHourAct::Write, "FG", "", {}},  // 46
      {PastHourAct::Write, "FG", "", {}},  // 47
      {PastHourAct::Write, "FZFFG", "", {}},  // 48
      {PastHourAct::Write, "FZFG", "", {}},  // 49
      {PastHourAct::Write, "-DZ", "", {}},  // 50
      {PastHourAct::Write, "-DZ", "", {}},  // 51
      {PastHourAct::Write, "REDZ", "REDZ", {"-DZ", "+DZ", "DZ"}},  // 52
      {PastHourAct::Write, "REDZ", "REDZ", {"-DZ", "+DZ", "DZ"}},  // 53
      {PastHourAct::Write, "REDZ", "REDZ", {"-DZ", "+DZ", "DZ"}},  // 54
      {PastHourAct::Write, "REDZ", "REDZ", {"-DZ", "+DZ", "DZ"}},  // 55
      {PastHourAct::Write, "-RADZ", "", {}},  // 56
      {PastHourAct::Write, "REFZDZ", "REFZDZ", {"FZDZ"}},  // 57
      {PastHourAct::Write, "RADZ", "", {}},  // 58
      {PastHourAct::Write, "RERADZ", "RERADZ", {"RA", "RADZ"}},  // 59
      {PastHourAct::Write, "RERA", "", {}},  // 60
      {PastHourAct::Write, "RERA", "", {}},  // 61
      {PastHourAct::Write, "RERA", "RERA", {"+RA", "-RA", "RA"}},  // 62
      {PastHourAct::Write, "RERA", "RERA", {"+RA", "-RA", "RA"}},  // 63
      {PastHourAct::Write, "RERA", "RERA", {"+RA", "-RA", "RA"}},  // 64
      {PastHourAct::Write, "RERA", "RERA", {"+RA", "-RA", "RA"}},  // 65
      {PastHourAct::Write, "REFZRA", "", {}},  // 66
      {PastHourAct::Write, "REFZRA", "REFZRA", {"FZRA"}},  // 67
      {PastHourAct::Write, "RESNRA", "", {}},  // 68
      {PastHourAct::Write, "RESNRA", "RESNRA", {"+SNRA", "SNRA"}},  // 69
      {PastHourAct::Write, "RESN", "", {}},  // 70
      {PastHourAct::Write, "RESN", "", {}},  // 71
      {PastHourAct::Write, "RESN", "RESN", {"-SN", "+SN"}},  // 72
      {PastHourAct::Write, "RESN", "RESN", {"-SN", "+SN"}},  // 73
      {PastHourAct::Write, "RESN", "RESN", {"-SN", "+SN"}},  // 74
      {PastHourAct::Write, "RESN", "RESN", {"-SN", "+SN"}},  // 75
      {PastHourAct::Write, "REIC", "REIC", {"IC"}},  // 76
      {PastHourAct::Write, "RESG", "RESG", {"SG"}},  // 77
      {PastHourAct::Nothing, "", "", {}},  // 78
      {PastHourAct::Write, "REPE", "REPE", {"PE"}},  // 79
      {PastHourAct::Write, "RESH", "", {}},  // 80
      {PastHourAct::Write, "RESH", "RESH", {"+SH", "SH"}},  // 81
      {PastHourAct::Write, "RESH", "RESH", {"+SH", "SH"}},  // 82
      {PastHourAct::Write, "SNRA", "", {}},  // 83
      {PastHourAct::Write, "RESHSN", "RESHSN", {"+SHSN", "SHSN"}},  // 84
      {PastHourAct::Write, "RESHSN", "", {}},  // 85
      {PastHourAct::Write, "RESHSN", "RESHSN", {"+SHSN", "SHSN"}},  // 86
      {PastHourAct::Write, "REGR", "", {}},  // 87
      {PastHourAct::Write, "REGR", "REGR", {"+GR", "GR"}},  // 88
      {PastHourAct::Write, "REGR", "REGR", {"+GR", "GR"}},  // 89
      {PastHourAct::Write, "REGR", "REGR", {"+GR", "GR"}},  // 90
      {PastHourAct::Write, "RERA", "RERA", {"RA", "+RA", "-RA"}},  // 91
      {PastHourAct::Write, "RERA", "RERA", {"RA", "+RA", "-RA"}},  // 92
      {PastHourAct::Write, "REGR", "REGR", {"-GR", "+GR", "GR"}},  // 93
      {PastHourAct::Write, "REGR", "REGR", {"-GR", "+GR", "GR"}},  // 94
      {PastHourAct::Write, "RETS", "RETS", {"-TS", "+TS", "TS"}},  // 95
      {PastHourAct::Write, "RETSGR", "RETSGR", {"-TSGR", "+TSGR", "TSGR"}},  // 96
      {PastHourAct::Write, "RETS", "RETS", {"-TS", "+TS", "TS"}},  // 97
      {PastHourAct::Write, "RETSSA", "RETSSA", {"-TSSA", "+TSSA", "TSSA"}},  // 98
      {PastHourAct::Write, "RETSGR", "RETSSA", {"-TSSA", "+TSSA", "TSSA"}},  // 99
  }};
  return table;
}

std::string_view present_weather_picture(int ww) {
  static const std::array<std::string, 100> ids = [] {
    std::array<std::string, 100> a;
    for (int i = 0; i < 100; ++i) a[i] = std::string("ww") + char('0' + i / 10) + char('0' + i % 10);
    return a;
  }();
  return ww >= 0 && ww < 100 ? std::string_view(ids[ww]) : std::string_view();
}

const std::vector<std::string>& vicinity_codes() {
  static const std::vector<std::string> codes = {"None", "VCSS", "VCFG",   "VCFC",   "VCSH",  "VCTS",
                                                 "VCDS", "VCPO", "VCELDU", "VCBLSA", "VCBLSN"};
  return codes;
}

bool vicinity_sets_mark(std::string_view code) {
  for (std::string_view c : {"VCSS", "VCFG", "VCDS", "VCPO", "VCELDU", "VCBLSA", "VCBLSN"})
    if (c == code) return true;
  return false;
}

}  // namespace obsdesk
