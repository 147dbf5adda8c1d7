#include "screens/board_tables.h"

namespace obsdesk {

const std::array<PastWeather, 10>& past_weather_table() {
  static const std::array<PastWeather, 10> table = {{{"0", "W0"},
                                                     {"1", "W1"},
                                                     {"2", "W2"},
                                                     {"3", "W3"},
                                                     {"4", "W4"},
                                                     {"5", "W5"},
                                                     {"6", "W6"},
                                                     {"7", "W7"},
                                                     {"8", "W8"},
                                                     {"9", "W9"}}};
  return table;
}

const std::array<SkyLetter, 8>& sky_letter_table() {
  static const std::array<SkyLetter, 8> table = {{
      {"b", " b", "sky_b", Sky::b, false},
      {"c", " c", "sky_c", Sky::c, false},
      {"bc", " bc", "sky_bc", Sky::bc, false},
      {"o", " o", "sky_o", Sky::o, false},
      {"by", " by", "sky_by", Sky::b, true},
      {"cy", " cy", "sky_cy", Sky::c, true},
      {"bcy", " bcy", "sky_bcy", Sky::bc, true},
      {"oy", " oy", "sky_oy", Sky::o, true},
  }};
  return table;
}

bool sky_shut_by_amount(Sky sky, double a) {
  if (a < 3) return sky != Sky::b;
  if (a <= 5) return sky != Sky::bc;
  if (a <= 7) return sky != Sky::c;
  if (a <= 8) return sky == Sky::b || sky == Sky::bc;
  return false;
}

const std::array<GroundState, 20>& ground_state_table() {
  static const std::array<GroundState, 20> table = {{
      {"e0", "0", "E0", false},   {"e1", "1", "E1", false},   {"e2", "2", "E2", false},
      {"e3", "3", "E3", false},   {"e4", "4", "E4", false},   {"e5", "5", "E5", false},
      {"e6", "6", "E6", false},   {"e7", "7", "E7", false},   {"e8", "8", "E8", false},
      {"e9", "9", "E9", false},   {"s0", "0", "Ep0", true},   {"s1", "1", "Ep1", true},
      {"s2", "2", "Ep2", true},   {"s3", "3", "Ep3", true},   {"s4", "4", "Ep4", true},
      {"s5", "5", "Ep5", true},   {"s6", "6", "Ep6", true},   {"s7", "7", "Ep7", true},
      {"s8", "8", "Ep8", true},   {"s9", "9", "Ep9", true},
  }};
  return table;
}

const std::vector<std::string>& ir_texts() {
  static const std::vector<std::string> texts = {
      "بارندگي وجود دارد و در بخش 1 گزارش ميشود",
      "بارندگي وجود دارد و در بخش 3 گزارش ميشود",
      "بارندگي وجود ندارد و در بخش 3و1 گزارش نميشود",
      "بارندگي اندازه گيري نشده و در بخش 3و1 گزارش نميشود",
  };
  return texts;
}

const std::vector<std::string>& ix_texts() {
  static const std::vector<std::string> texts = {
      "ايستگاه غير خودكار و پديده وجود دارد",
      "ايستگاه غير خودكار و پديده وجود ندارد",
      "ايستگاه غير خودكار و ديده باني انجام نشده است",
      "ايستگاه خودكار و پديده وجود دارد",
      "ايستگاه خودكار و پديده وجود ندارد",
      "ايستگاه خودكار و ديده باني انجام نشده است",
  };
  return texts;
}

}  // namespace obsdesk
