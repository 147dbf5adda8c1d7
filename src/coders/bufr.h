// The SYNOP as a BUFR edition 4 message, for the centres that take observations
// in BUFR: one subset of a land station, manned or automatic (the WIGOS
// identifier sequence 301150 followed by the land station sequence 307080),
// built from the values of the coded SYNOP text so that both reports carry the
// same observation. ecCodes writes and reads the message.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "coders/synop_decode.h"

namespace obsdesk {

// ecCodes refused a value or a message; the description says which.
class BufrError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Who observed, and where. The WIGOS identifier of a station with a WMO number
// is "0-20000-0-" and the number.
struct BufrStation {
  std::string numcod;       // five figures: block and station number
  std::string wigos_local;  // the local identifier of the WIGOS identifier
  std::string name;         // the station's name; a name in other than ASCII is left out
  std::optional<double> latitude, longitude;  // degrees, north and east positive
  std::optional<double> height_m;             // station and barometer above sea level
};

struct BufrReport {
  BufrStation station;
  int year = 0, month = 0, day = 0, hour = 0, minute = 0;  // UTC
  SynopValues values;
  std::optional<double> relative_humidity;  // %, the whole number the coder kept
};

// One message. Throws BufrError when ecCodes refuses it.
std::string encode_bufr(const BufrReport& report);

// Every message of the bytes (a day's file holds one after the other), read back
// by ecCodes. Throws BufrError on a damaged message.
std::vector<BufrReport> decode_bufr(std::string_view bytes);

// The values of a message in plain words, one a line, for the observer: what
// the centre receives.
std::vector<std::string> bufr_words(const BufrReport& report);

}  // namespace obsdesk
