#include "coders/synop_sections.h"

#include "checks/temperature.h"
#include "coders/coder_common.h"
#include "coders/synop_groups.h"
#include "core/textnum.h"

namespace obsdesk {

namespace {

double tenfold(double v) { return val(num(v * 10)); }

bool blank(std::string_view box) { return trim(box).empty(); }

bool is_cb(std::string_view type) { return type == "CB     3" || type == "CB     9"; }

std::string two_figures(double x) { return pad_left(num(x), 2); }

}  // namespace

// 4a3hhh
std::optional<std::string> upper_air_group(std::string_view h850) {
  if (h850 == "+++++" || blank(h850)) return std::nullopt;
  return "48" + num(round_to(coder_number(h850)) - 1000);
}

std::string upper_air_slot(std::string_view group, std::string_view station_height, std::string_view hour) {
  const double h = coder_number(station_height);
  const double hh = val(hour);
  const bool main_hour = !blank(hour) && (hh == 0 || hh == 6 || hh == 12 || hh == 18);
  if (h > 749.9 && h < 2300.1 && main_hour) return std::string(group);
  return std::string(kBlankGroup);
}

std::string section3_cloud_figure(std::string_view type) {
  struct Row {
    const char* type;
    const char* c;
  };
  static constexpr Row kTable[] = {
      {"CU     1", "8"}, {"CU     2", "8"}, {"CU,SC  8", "8"}, {"CB     3", "9"}, {"CB     9", "9"},
      {"SC     4", "6"}, {"SC     5", "6"}, {"ST,FS  6", "7"}, {"FS,FCU 7", "7"}, {"AS     1", "4"},
      {"AS     2", "4"}, {"AS,AC  7", "4"}, {"NS     2", "5"}, {"AC     3", "3"}, {"AC     4", "3"},
      {"AC     5", "3"}, {"AC     6", "3"}, {"AC,AS  7", "3"}, {"AC     7", "3"}, {"AC,NS  7", "3"},
      {"AC     8", "3"}, {"AC     9", "3"}, {"CI     1", "0"}, {"CI     2", "0"}, {"CI     3", "0"},
      {"CI     4", "0"}, {"CS     5", "2"}, {"CS     6", "2"}, {"CS     7", "2"}, {"CS     8", "2"},
      {"CC,CS  9", "1"},
  };
  for (const Row& r : kTable)
    if (type == r.type) return r.c;
  return "";
}

// hshs
std::optional<std::string> layer_height_code(double x, bool first_low) {
  if (x < 300) return two_figures(fix(x / 30));
  if (x <= 1500) return num(fix(x / 30));
  // Above 1500 m the first low row says 50; the others keep "1500", as the
  // rule stands.
  if (x < 1800) return first_low ? "50" : "1500";
  if (x <= 9000) return num(fix(x / 300) + 50);
  if (x <= 21000) return num(fix(80 + (x - 9000) / 1500));
  return std::nullopt;
}

// 89/hshs
std::optional<std::string> vertical_visibility_group(std::string_view vv) {
  if (blank(vv)) return std::nullopt;
  if (vv == "/" || vv == "//") return "89///";
  const double x = coder_number(vv);
  if (x < 300) return "89/0" + num(fix(x / 30));
  if (x <= 1500) return "89/" + num(fix(x / 30));
  if (x < 1800) return "89/50";
  if (x <= 9000) return "89/" + num(fix(x / 300) + 50);
  if (x <= 21000) return "89/" + num(fix(80 + (x - 9000) / 1500));
  if (x > 21001) return "89/89";
  return std::nullopt;
}

// A trace, an empty box and "X" (a layer hidden by an overcast below) are no
// layer of section 3.
double section3_amount(std::string_view amount) {
  if (amount == "TR" || amount == "tr" || amount == "X" || blank(amount)) return 0;
  return coder_number(amount);
}

// 8NsChshs
std::string layer_group(const CloudRow& row, bool first_low) {
  if (blank(row.height) || row.height == "X") return std::string(kBlankGroup);
  const auto hshs = layer_height_code(coder_number(row.height), first_low);
  return "8" + num(section3_amount(row.amount)) + section3_cloud_figure(row.type) + hshs.value_or("");
}

CloudBoxes choose_cloud_boxes(const Section3Clouds& in, CloudBoxes box) {
  double a[5];
  std::string g[5];
  for (int i = 0; i < 5; ++i) {
    a[i] = section3_amount(in.rows[i].amount);
    g[i] = layer_group(in.rows[i], i == 0);
  }
  const double a1 = a[0], a2 = a[1], a3 = a[2], aM = a[3], aH = a[4];
  const std::string &G1 = g[0], &G2 = g[1], &G3 = g[2], &GM = g[3], &GH = g[4];
  const bool cb1 = is_cb(in.rows[0].type), cb2 = is_cb(in.rows[1].type), cb3 = is_cb(in.rows[2].type);

  // P: the middle layer, then the high one behind it; else the high one alone.
  auto P = [&](int i, double m, double f, double gg) {
    if (aM > m) {
      box[i] = GM;
      if (aH > f && i + 1 < 4) box[i + 1] = GH;
    } else if (aH > gg) {
      box[i] = GH;
    }
  };
  // Q: the middle layer, else the high one.
  auto Q = [&](int i, double t) {
    if (aM > t)
      box[i] = GM;
    else if (aH > t)
      box[i] = GH;
  };

  if (in.rows[0].amount == "TR") {
    if (cb2) {
      box[0] = G2;
      if (a3 == 0) {
        P(1, 0, 0, 0);
      } else {
        box[1] = G3;
        if (cb3)
          P(2, 0, 2, 0);
        else
          P(2, 2, 4, 2);
      }
    } else if (a2 > 0) {
      box[0] = G2;
      if (cb3) {
        box[1] = G3;
        P(2, 2, 4, 2);
      } else if (a3 > 2) {
        box[1] = G3;
        Q(2, 4);
      } else {
        P(1, 2, 4, 2);
      }
    } else if (cb3) {
      box[0] = G3;
      P(1, 0, 2, 0);
    } else if (a3 > 0) {
      box[0] = G3;
      P(1, 2, 4, 2);
    } else {
      P(0, 0, 2, 0);
    }
    return box;
  }

  const int cbs = int(cb1) + int(cb2) + int(cb3);
  if (cbs >= 2) return box;
  if (cb1) {
    box[0] = G1;
    if (a2 == 0) {
      P(1, 0, 2, 2);
    } else {
      box[1] = G2;
      if (a3 > 2) {
        box[2] = G3;
        Q(3, 4);
      } else {
        P(2, 2, 4, 2);
      }
    }
  } else if (cb2) {
    box[0] = G1;
    box[1] = G2;
    if (a3 > 2) {
      box[2] = G3;
      Q(3, 4);
    } else {
      P(2, 2, 4, 2);
    }
  } else if (cb3) {
    box[0] = G1;
    if (a2 > 2) {
      box[1] = G2;
      box[2] = G3;
      Q(3, 4);
    } else {
      box[1] = G3;
      P(2, 2, 4, 2);
    }
  } else if (a1 == 0) {
    P(0, 0, 2, 0);
  } else {
    box[0] = G1;
    if (a2 > 2) {
      box[1] = G2;
      if (a3 > 4)
        box[2] = G3;
      else
        Q(2, 4);
    } else if (a3 > 2) {
      box[1] = G3;
      Q(2, 4);
    } else {
      P(1, 2, 4, 2);
    }
  }
  return box;
}

void drop_obscured_boxes(CloudBoxes& boxes, std::string_view vv) {
  if (!blank(vv)) return;
  for (std::string& b : boxes)
    if (char_at(b, 2) == "9") b = kBlankGroup;
}

void compact_cloud_boxes(CloudBoxes& boxes, std::string_view valuel1) {
  if (valuel1 == "8")
    for (int i = 1; i < 4; ++i) boxes[i] = kBlankGroup;
  for (int i = 0; i < 4; ++i) {
    if (blank(boxes[i])) break;
    if (char_at(boxes[i], 2) != "0") continue;
    for (int j = i; j < 3; ++j) boxes[j] = boxes[j + 1];
    boxes[3] = kBlankGroup;
  }
}

// 7R24R24R24R24
std::optional<std::string> rain24_group(std::string_view rain) {
  if (blank(rain)) return std::nullopt;
  if (rain == "/") return "7////";
  if (rain == "TR") return "79999";
  const double r = coder_number(rain);
  const std::string t = num(tenfold(r));
  std::optional<std::string> group;
  if (r >= 0.1 && r < 1) group = "7000" + t;
  if (r == 0) group = "70000";
  if (r > 0.9 && r < 10) group = "700" + t;
  if (r > 9.9 && r < 100) group = "70" + t;
  if (r > 99.9 && r < 1000) group = "7" + t;
  return group;
}

// 4E'sss
std::string snow_group(std::string_view ground_code, std::string_view snow) {
  return "4" + std::string(ground_code) + snow_depth_figures(snow, coder_number);
}

std::string pan_figure(std::string_view pan_kind) {
  static constexpr const char* kKinds[] = {
      "USA طشت تبخير سنج باز  (بدون پوشش) مدل",
      "USA طشت تبخير سنج باز  (باپوشش مشبك يا تور سيمي) مدل",
      "(Sunken) GGI - 3000  طشت تبخير سنج مدل",
      "تانك (مخزن) 20 متر مربعي",
      "ساير وسائل اندازه گيري",
      "برنج",
      "گندم",
      "(Maize) ذرت",
      "(Sorghum) ذرت خوشه اي",
      "ديگر محصولات",
  };
  // The profile's list writes some kinds with a closing blank: compare without it.
  const std::string kind = trim(pan_kind);
  for (int i = 0; i < 10; ++i)
    if (kind == kKinds[i]) return std::to_string(i);
  return "";
}

bool evaporation_is_negative(std::string_view evaporation) {
  return is_numeric(evaporation) && val(evaporation) < 0;
}

// 5EEEiE
std::optional<std::string> evaporation_group(std::string_view evaporation, std::string_view pan_kind) {
  const std::string e = trim(evaporation);
  if (e.empty() || e == "-" || e == ".") return std::nullopt;
  const std::string ie = pan_figure(pan_kind);
  for (const char* missing : {"X", "//", "/", "XX", "xx", "x"})
    if (e == missing) return "5///" + ie;
  const std::string eee = num(round_to(coder_number(e) * 10));
  switch (len(eee)) {
    case 1: return "500" + eee + ie;
    case 2: return "50" + eee + ie;
    case 3: return "5" + eee + ie;
    default: return std::nullopt;
  }
}

// 55SSS
std::optional<std::string> sunshine_group(std::string_view sun) {
  const std::string s = trim(sun);
  if (s.empty() || s == ".") return std::nullopt;
  if (s == "//" || s == "/") return "55///";
  const double x = tenfold(coder_number(s));
  if (x == 0) return "55000";
  const std::string t = num(x);
  switch (len(t)) {
    case 1: return "5500" + t;
    case 2: return "550" + t;
    case 3: return "55" + t;
    default: return std::nullopt;
  }
}

// 2FFFF
std::string radiation_group(std::string_view radiation, std::string_view factor) {
  if (radiation == "//" || radiation == "/") return "2////";
  const double x = round_to(coder_number(radiation) * coder_number(factor));
  return "2" + pad_left(num(x), 4);
}

ReportDate next_report_day(ReportDate d) {
  // The date boxes are read as every box is: a number from the leading figures.
  // A Persian day left empty (the 29th of February, keyed by hand) stays empty
  // rather than becoming a day nobody typed.
  const double day = val(d.day) + 1;
  d.day = two_figures(day);
  if (!trim(d.sh_day).empty()) d.sh_day = two_figures(val(d.sh_day) + 1);
  const double month = val(d.month);
  const double year = val(d.year);
  double last = 31;
  if (month == 2) {
    const long y = static_cast<long>(year);
    last = (y % 4 == 0 && (y % 100 != 0 || y % 400 == 0)) ? 29 : 28;
  } else if (month == 4 || month == 6 || month == 9 || month == 11) {
    last = 30;
  }
  if (day > last) {
    d.day = "01";
    if (month == 12) {
      d.month = "01";
      d.year = num(year + 1);
    } else {
      d.month = two_figures(month + 1);
    }
  }
  return d;
}

}  // namespace obsdesk
