#include "coders/bufr.h"

#include <eccodes.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <memory>
#include <unordered_map>

namespace obsdesk {

namespace {

// The master table the message names: the newest the installed ecCodes carries.
constexpr long kMasterTable = 39;
// WIGOS identifier of a station known by its WMO number: series 0, issuer 20000
// (the WMO), issue 0.
constexpr long kWigosIssuer = 20000;
// Surface data, land; the international sub-categories of a main and of an
// intermediate synoptic hour, and of any other hour.
constexpr long kSurfaceLand = 0;
constexpr long kSubMain = 2, kSubIntermediate = 1, kSubHourly = 0;

// Total cloud in oktas as per cent; 9 (sky obscured) is 113.
constexpr std::array<long, 10> kOktaPercent = {0, 13, 25, 38, 50, 63, 75, 88, 100, 113};
// Cloud types of the 8NhCLCMCH group: CL, CM and CH are offset into one table.
constexpr long kClBase = 30, kCmBase = 20, kChBase = 10;
// A type that could not be seen (a "/" in the group).
constexpr long kClHidden = 62, kCmHidden = 61, kChHidden = 60;
// Vertical significance of the cloud groups.
constexpr long kSigLow = 7, kSigMiddle = 8, kSigObscured = 5, kSigNone = 62, kSigCbLayer = 4;
// Present weather "nothing to report" (iX 2 or 5: no 7wwW1W2 group).
constexpr long kNothingToReport = 508;
// Wind measured by an anemometer in m/s (the indicator iw is 1): certified
// instruments, the first bit of a four-bit flag table; averaged over 10 minutes.
constexpr long kWindCertified = 8;
constexpr long kTimeAveraged = 2;
constexpr long kWindPeriodMinutes = -10;
// The periods of the day's extremes: the 12 hours ending at the observation.
constexpr long kExtremeHours = -12;

using Handle = std::unique_ptr<codes_handle, decltype(&codes_handle_delete)>;

void check(int err, std::string_view what) {
  if (err != 0) throw BufrError(std::string("BUFR ") + std::string(what) + ": " + codes_get_error_message(err));
}

// The template's elements by name, one per position, with each delayed
// replication written out the number of times it runs. ecCodes names repeated
// elements by their rank ("#2#cloudType"); a cursor walks this list in the
// template's order and counts the ranks, so no rank is counted by hand.
class Layout {
 public:
  Layout(const std::vector<std::string>& names, const std::vector<long>& codes, std::vector<long> factors) {
    std::size_t replication = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
      const long f = codes[i] / 100000, x = codes[i] / 1000 % 100, y = codes[i] % 1000;
      if (f == 1 && y == 0 && i + 1 < names.size()) {  // delayed: factor, then x elements
        const long times = replication < factors.size() ? factors[replication] : 0;
        ++replication;
        names_.push_back(names[i + 1]);
        for (long t = 0; t < times; ++t)
          for (long k = 0; k < x && i + 2 + k < names.size(); ++k) names_.push_back(names[i + 2 + k]);
        i += 1 + x;
        continue;
      }
      if (f == 1) continue;  // a fixed replication is written out already
      names_.push_back(names[i]);
    }
  }
  const std::vector<std::string>& names() const { return names_; }

 private:
  std::vector<std::string> names_;
};

class Cursor {
 public:
  explicit Cursor(const Layout& layout) : names_(layout.names()) {}
  // The next element of this name from where the cursor stands, by its rank.
  std::string next(std::string_view name) {
    while (at_ < names_.size()) {
      const std::string& n = names_[at_++];
      const int rank = ++ranks_[n];
      if (n == name) return "#" + std::to_string(rank) + "#" + n;
    }
    throw BufrError("BUFR template has no element " + std::string(name));
  }

 private:
  const std::vector<std::string>& names_;
  std::size_t at_ = 0;
  std::map<std::string, int, std::less<>> ranks_;
};

// The elements of the template once, with replications unexpanded, read from
// ecCodes the first time they are needed.
struct Elements {
  std::vector<std::string> names;
  std::vector<long> codes;
};

const Elements& template_elements() {
  static const Elements elements = [] {
    Handle h(codes_bufr_handle_new_from_samples(nullptr, "BUFR4"), codes_handle_delete);
    if (!h) throw BufrError("BUFR: ecCodes has no BUFR4 sample");
    const long none[] = {0, 0};
    check(codes_set_long_array(h.get(), "inputDelayedDescriptorReplicationFactor", none, 2), "replication");
    check(codes_set_long(h.get(), "masterTablesVersionNumber", kMasterTable), "master table");
    const long seq[] = {301150, 307080};
    check(codes_set_long_array(h.get(), "unexpandedDescriptors", seq, 2), "template");
    size_t n = 0;
    check(codes_get_size(h.get(), "expandedAbbreviations", &n), "elements");
    std::vector<char*> names(n);
    check(codes_get_string_array(h.get(), "expandedAbbreviations", names.data(), &n), "elements");
    Elements e;
    e.codes.resize(n);
    size_t m = n;
    check(codes_get_long_array(h.get(), "expandedDescriptors", e.codes.data(), &m), "elements");
    for (size_t i = 0; i < n; ++i) {
      e.names.emplace_back(names[i]);
      free(names[i]);  // NOLINT: ecCodes hands the strings over with malloc
    }
    return e;
  }();
  return elements;
}

Layout layout_for(std::size_t layers) {
  const Elements& e = template_elements();
  return Layout(e.names, e.codes, {static_cast<long>(layers), 0});
}

// ---- Writing ----------------------------------------------------------------------

// What a template handle was last given, key by key: a value the handle already
// holds is not set again. Setting a value is most of the cost of a message, and
// from one report to the next most values (the station, its position, the
// heights of its instruments, the missing elements) stay the same.
using LastSet = std::unordered_map<std::string, std::string>;

class Writer {
 public:
  Writer(codes_handle* h, const Layout& layout, LastSet& last) : h_(h), cursor_(layout), last_(last) {}
  // Each call moves the cursor to the element, so that values are written in the
  // template's order; a missing value is skipped and stays missing.
  // The handle is used again for the next message: a missing value is written
  // as missing, so nothing of the message before stays behind.
  void put(std::string_view name, std::optional<double> v) {
    const std::string key = cursor_.next(name);
    if (!v) return missing(key);
    char held[32];
    std::snprintf(held, sizeof held, "d%a", *v);
    apply(key, held, [&] { return codes_set_double(h_, key.c_str(), *v); });
  }
  void put(std::string_view name, std::optional<long> v) {
    const std::string key = cursor_.next(name);
    if (!v) return missing(key);
    apply(key, "l" + std::to_string(*v), [&] { return codes_set_long(h_, key.c_str(), *v); });
  }
  void put(std::string_view name, std::optional<int> v) {
    put(name, v ? std::optional<long>(*v) : std::nullopt);
  }
  void skip_past(std::string_view name) { cursor_.next(name); }
  void put_text(std::string_view name, const std::string& text) {
    const std::string key = cursor_.next(name);
    if (text.empty()) return missing(key);
    apply(key, "s" + text, [&] {
      size_t n = text.size();
      return codes_set_string(h_, key.c_str(), text.c_str(), &n);
    });
  }

 private:
  // Sets the value unless the handle holds it already; it is noted as held
  // before the call that sets it, and a failed call drops the whole handle.
  template <typename Set>
  void apply(const std::string& key, std::string value, Set set) {
    std::string& held = last_[key];
    if (held == value) return;
    held = std::move(value);
    check(set(), key);
  }
  void missing(const std::string& key) {
    apply(key, "m", [&] { return codes_set_missing(h_, key.c_str()); });
  }

  codes_handle* h_;
  Cursor cursor_;
  LastSet& last_;
};

std::optional<long> widen(std::optional<int> v) { return v ? std::optional<long>(*v) : std::nullopt; }

bool ascii(std::string_view s) {
  for (unsigned char c : s)
    if (c < 0x20 || c > 0x7e) return false;
  return true;
}

std::optional<long> station_type(std::optional<int> ix) {
  if (!ix) return std::nullopt;
  if (*ix >= 1 && *ix <= 3) return 1;  // manned
  if (*ix >= 4 && *ix <= 7) return 0;  // automatic
  return std::nullopt;
}

long sub_category(int hour) {
  if (hour % 6 == 0) return kSubMain;
  if (hour % 3 == 0) return kSubIntermediate;
  return kSubHourly;
}

// The hours the past weather covers: six at the main hours, three at the others.
long past_weather_hours(int hour) {
  if (hour % 6 == 0) return -6;
  if (hour % 3 == 0) return -3;
  return -1;
}

// The figure of a cloud type, or the "not seen" value when the group has a "/".
std::optional<long> cloud_type(bool group, std::optional<int> figure, long base, long hidden) {
  if (!group) return std::nullopt;
  return figure ? base + *figure : hidden;
}

void put_clouds(Writer& w, const SynopValues& v) {
  const auto n = v.total_cloud;
  w.put("cloudCoverTotal", n ? std::optional<long>(kOktaPercent[*n]) : std::nullopt);
  std::optional<long> sig, amount, cl, cm, ch;
  if (v.cloud_group) {
    amount = v.low_amount;
    if (v.low_amount && *v.low_amount == 0) sig = 0;
    else if (v.cl && *v.cl != 0) sig = kSigLow;
    else if (v.cm && *v.cm != 0) sig = kSigMiddle;
    cl = cloud_type(true, v.cl, kClBase, kClHidden);
    cm = cloud_type(true, v.cm, kCmBase, kCmHidden);
    ch = cloud_type(true, v.ch, kChBase, kChHidden);
  } else if (n && *n == 0) {
    sig = kSigNone;
    amount = 0;
    cl = kClBase, cm = kCmBase, ch = kChBase;
  } else if (n && *n == 9) {
    sig = kSigObscured;
    amount = 9;
    cl = kClHidden, cm = kCmHidden, ch = kChHidden;
  }
  w.put("verticalSignificanceSurfaceObservations", sig);
  w.put("cloudAmount", amount);
  w.put("heightOfBaseOfCloud", v.lowest_cloud_m);
  w.put("cloudType", cl);
  w.put("cloudType", cm);
  w.put("cloudType", ch);
  long layer = 0;
  for (const CloudLayer& c : v.layers) {
    const bool cb = c.genus && *c.genus == 9;
    w.put("verticalSignificanceSurfaceObservations", std::optional<long>(cb ? kSigCbLayer : ++layer));
    w.put("cloudAmount", c.amount);
    w.put("cloudType", c.genus);
    w.put("heightOfBaseOfCloud", c.height_m);
  }
}

void put_values(Writer& w, const BufrReport& r) {
  const SynopValues& v = r.values;
  const BufrStation& s = r.station;
  w.put("wigosIdentifierSeries", std::optional<long>(0));
  w.put("wigosIssuerOfIdentifier", std::optional<long>(kWigosIssuer));
  w.put("wigosIssueNumber", std::optional<long>(0));
  w.put_text("wigosLocalIdentifierCharacter", s.wigos_local.empty() ? s.numcod : s.wigos_local);
  const bool numbered = s.numcod.size() == 5 && ascii(s.numcod);
  w.put("blockNumber", numbered ? std::optional<long>(std::stol(s.numcod.substr(0, 2))) : std::nullopt);
  w.put("stationNumber", numbered ? std::optional<long>(std::stol(s.numcod.substr(2))) : std::nullopt);
  w.put_text("stationOrSiteName", ascii(s.name) ? s.name : std::string());
  w.put("stationType", station_type(v.iX));
  w.put("year", std::optional<long>(r.year));
  w.put("month", std::optional<long>(r.month));
  w.put("day", std::optional<long>(r.day));
  w.put("hour", std::optional<long>(r.hour));
  w.put("minute", std::optional<long>(r.minute));
  w.put("latitude", s.latitude);
  w.put("longitude", s.longitude);
  w.put("heightOfStationGroundAboveMeanSeaLevel", s.height_m);
  w.put("heightOfBarometerAboveMeanSeaLevel", s.height_m);

  w.put("nonCoordinatePressure", v.station_pressure);
  w.put("pressureReducedToMeanSeaLevel", v.sea_level_pressure);
  w.put("3HourPressureChange", v.tendency_pa);
  w.put("characteristicOfPressureTendency", v.tendency_characteristic);

  w.put("airTemperature", v.temperature);
  w.put("dewpointTemperature", v.dew_point);
  w.put("relativeHumidity", r.relative_humidity);
  w.put("horizontalVisibility", v.visibility_m);
  w.put("totalPrecipitationPast24Hours", v.rain24);
  put_clouds(w, v);

  w.put("stateOfGround", v.ground_state);
  w.put("totalSnowDepth", v.snow_depth_m);
  w.put("groundMinimumTemperaturePast12Hours", v.ground_minimum);

  const bool weather = v.present_weather.has_value() || v.past_weather1 || v.past_weather2;
  const bool nothing = !weather && v.iX && (*v.iX == 2 || *v.iX == 5);
  w.put("presentWeather", nothing ? std::optional<long>(kNothingToReport) : widen(v.present_weather));
  w.put("timePeriod", weather ? std::optional<long>(past_weather_hours(r.hour)) : std::nullopt);
  w.put("pastWeather1", v.past_weather1);
  w.put("pastWeather2", v.past_weather2);

  w.skip_past("totalSunshine");  // sunshine is not carried: both periods stay missing
  w.skip_past("totalSunshine");

  // Precipitation: the 6RRRtR group over its period; the second place stays missing.
  const bool rain = v.rain.amount && v.rain.hours > 0;
  w.put("timePeriod", rain ? std::optional<long>(-v.rain.hours) : std::nullopt);
  w.put("totalPrecipitationOrTotalWaterEquivalent", rain ? v.rain.amount : std::nullopt);
  w.skip_past("totalPrecipitationOrTotalWaterEquivalent");

  const auto extreme = [&](std::string_view name, std::optional<double> t) {
    w.put("timePeriod", t ? std::optional<long>(kExtremeHours) : std::nullopt);
    w.put("timePeriod", t ? std::optional<long>(0) : std::nullopt);
    w.put(name, t);
  };
  extreme("maximumTemperatureAtHeightAndOverPeriodSpecified", v.max_temperature);
  extreme("minimumTemperatureAtHeightAndOverPeriodSpecified", v.min_temperature);

  const bool wind = v.wind_direction || v.wind_speed;
  w.put("instrumentationForWindMeasurement", wind ? std::optional<long>(kWindCertified) : std::nullopt);
  w.put("timeSignificance", wind ? std::optional<long>(kTimeAveraged) : std::nullopt);
  w.put("timePeriod", wind ? std::optional<long>(kWindPeriodMinutes) : std::nullopt);
  w.put("windDirection", v.wind_direction);
  w.put("windSpeed", v.wind_speed);
}

// ---- Reading ----------------------------------------------------------------------

class Reader {
 public:
  Reader(codes_handle* h, const Layout& layout) : h_(h), cursor_(layout) {}
  std::optional<double> real(std::string_view name) {
    const std::string key = cursor_.next(name);
    double d = 0;
    if (codes_get_double(h_, key.c_str(), &d) != 0 || d == CODES_MISSING_DOUBLE) return std::nullopt;
    return d;
  }
  std::optional<int> whole(std::string_view name) {
    const std::string key = cursor_.next(name);
    long l = 0;
    if (codes_get_long(h_, key.c_str(), &l) != 0 || l == CODES_MISSING_LONG) return std::nullopt;
    return static_cast<int>(l);
  }
  std::string text(std::string_view name) {
    const std::string key = cursor_.next(name);
    char buf[256] = {};
    size_t n = sizeof buf;
    if (codes_get_string(h_, key.c_str(), buf, &n) != 0) return {};
    std::string s(buf);
    while (!s.empty() && (s.back() == ' ' || s.back() == static_cast<char>(0xff))) s.pop_back();
    return s;
  }
  void skip_past(std::string_view name) { cursor_.next(name); }

 private:
  codes_handle* h_;
  Cursor cursor_;
};

std::optional<int> okta_of(std::optional<int> percent) {
  if (!percent) return std::nullopt;
  for (std::size_t i = 0; i < kOktaPercent.size(); ++i)
    if (kOktaPercent[i] == *percent) return static_cast<int>(i);
  return std::nullopt;
}

std::optional<int> figure_of(std::optional<int> type, long base) {
  if (!type || *type < base || *type > base + 9) return std::nullopt;
  return *type - static_cast<int>(base);
}

BufrReport read_values(Reader& rd) {
  BufrReport r;
  BufrStation& s = r.station;
  SynopValues& v = r.values;
  rd.skip_past("wigosIssueNumber");
  s.wigos_local = rd.text("wigosLocalIdentifierCharacter");
  const auto block = rd.whole("blockNumber"), number = rd.whole("stationNumber");
  if (block && number) {
    char buf[16];
    std::snprintf(buf, sizeof buf, "%02d%03d", *block, *number);
    s.numcod = buf;
  }
  s.name = rd.text("stationOrSiteName");
  rd.skip_past("stationType");
  r.year = rd.whole("year").value_or(0);
  r.month = rd.whole("month").value_or(0);
  r.day = rd.whole("day").value_or(0);
  r.hour = rd.whole("hour").value_or(0);
  r.minute = rd.whole("minute").value_or(0);
  s.latitude = rd.real("latitude");
  s.longitude = rd.real("longitude");
  s.height_m = rd.real("heightOfStationGroundAboveMeanSeaLevel");

  v.station_pressure = rd.real("nonCoordinatePressure");
  v.sea_level_pressure = rd.real("pressureReducedToMeanSeaLevel");
  v.tendency_pa = rd.real("3HourPressureChange");
  v.tendency_characteristic = rd.whole("characteristicOfPressureTendency");
  v.temperature = rd.real("airTemperature");
  v.dew_point = rd.real("dewpointTemperature");
  r.relative_humidity = rd.real("relativeHumidity");
  v.visibility_m = rd.real("horizontalVisibility");
  v.rain24 = rd.real("totalPrecipitationPast24Hours");

  v.total_cloud = okta_of(rd.whole("cloudCoverTotal"));
  const auto sig = rd.whole("verticalSignificanceSurfaceObservations");
  v.low_amount = rd.whole("cloudAmount");
  v.lowest_cloud_m = rd.real("heightOfBaseOfCloud");
  v.cl = figure_of(rd.whole("cloudType"), kClBase);
  v.cm = figure_of(rd.whole("cloudType"), kCmBase);
  v.ch = figure_of(rd.whole("cloudType"), kChBase);
  v.cloud_group = sig && *sig != kSigNone && *sig != kSigObscured;
  return r;
}

void read_layers(Reader& rd, BufrReport& r, long layers) {
  SynopValues& v = r.values;
  for (long i = 0; i < layers; ++i) {
    rd.skip_past("verticalSignificanceSurfaceObservations");
    CloudLayer c;
    c.amount = rd.whole("cloudAmount");
    c.genus = rd.whole("cloudType");
    c.height_m = rd.real("heightOfBaseOfCloud");
    v.layers.push_back(c);
  }
  v.section3 = true;
  v.ground_state = rd.whole("stateOfGround");
  v.snow_depth_m = rd.real("totalSnowDepth");
  v.ground_minimum = rd.real("groundMinimumTemperaturePast12Hours");
  v.present_weather = rd.whole("presentWeather");
  if (v.present_weather == kNothingToReport) v.present_weather.reset();
  rd.skip_past("timePeriod");
  v.past_weather1 = rd.whole("pastWeather1");
  v.past_weather2 = rd.whole("pastWeather2");
  rd.skip_past("totalSunshine");
  rd.skip_past("totalSunshine");
  const auto hours = rd.whole("timePeriod");
  v.rain.amount = rd.real("totalPrecipitationOrTotalWaterEquivalent");
  v.rain.hours = hours ? -*hours : 0;
  rd.skip_past("totalPrecipitationOrTotalWaterEquivalent");
  v.max_temperature = rd.real("maximumTemperatureAtHeightAndOverPeriodSpecified");
  v.min_temperature = rd.real("minimumTemperatureAtHeightAndOverPeriodSpecified");
  v.wind_direction = rd.whole("windDirection");
  v.wind_speed = rd.real("windSpeed");
}

// "%.*f" of a value, or "missing".
std::string fixed(std::optional<double> v, int decimals, std::string_view unit) {
  if (!v) return "missing";
  char buf[64];
  std::snprintf(buf, sizeof buf, "%.*f", decimals, *v);
  return std::string(buf) + (unit.empty() ? "" : " ") + std::string(unit);
}

std::string whole_text(std::optional<int> v) { return v ? std::to_string(*v) : "missing"; }

std::string kelvin(std::optional<double> k) {
  if (!k) return "missing";
  return fixed(k, 2, "K") + " (" + fixed(*k - 273.15, 1, "C") + ")";
}

std::string pascal(std::optional<double> pa) {
  if (!pa) return "missing";
  return fixed(pa, 0, "Pa") + " (" + fixed(*pa / 100, 1, "hPa") + ")";
}

std::string precipitation(std::optional<double> mm) {
  if (!mm) return "missing";
  if (*mm < 0) return "trace";
  return fixed(mm, 1, "mm");
}

}  // namespace

namespace {

// A handle with the template laid out for this many cloud layers. Laying out
// the template costs a hundred times more than filling it, so each thread keeps
// one handle per layer count and fills it again for every message.
struct Template {
  Handle handle{nullptr, codes_handle_delete};
  LastSet last;
};

std::map<std::size_t, Template>& templates() {
  thread_local std::map<std::size_t, Template> kept;
  return kept;
}

Template& template_for(std::size_t layers) {
  auto it = templates().find(layers);
  if (it != templates().end()) return it->second;
  Handle h(codes_bufr_handle_new_from_samples(nullptr, "BUFR4"), codes_handle_delete);
  if (!h) throw BufrError("BUFR: ecCodes has no BUFR4 sample");
  codes_handle* c = h.get();
  const long factors[] = {static_cast<long>(layers), 0};
  check(codes_set_long_array(c, "inputDelayedDescriptorReplicationFactor", factors, 2), "replication");
  check(codes_set_long(c, "masterTablesVersionNumber", kMasterTable), "master table");
  check(codes_set_long(c, "dataCategory", kSurfaceLand), "data category");
  check(codes_set_long(c, "numberOfSubsets", 1), "subsets");
  check(codes_set_long(c, "observedData", 1), "observed data");
  check(codes_set_long(c, "compressedData", 0), "compression");
  const long seq[] = {301150, 307080};
  check(codes_set_long_array(c, "unexpandedDescriptors", seq, 2), "template");
  Template& t = templates()[layers];
  t.handle = std::move(h);
  return t;
}

// The sub-category and the typical time of section 1, written into the packed
// message: setting them through ecCodes on a handle that holds data costs a
// hundred times more than the whole of the data, since every element is told of
// the change. Section 1 of edition 4 starts after the 8 octets of section 0; its
// octet 12 is the international sub-category, octets 16 to 22 the year (two
// octets), month, day, hour, minute and second.
void set_typical_time(std::string& message, const BufrReport& r) {
  constexpr std::size_t kSection1 = 8;
  if (message.size() < kSection1 + 22) throw BufrError("BUFR: message too short for section 1");
  const auto octet = [&](std::size_t n, long v) { message[kSection1 + n - 1] = static_cast<char>(v & 0xff); };
  octet(12, sub_category(r.hour));
  octet(16, r.year >> 8);
  octet(17, r.year);
  octet(18, r.month);
  octet(19, r.day);
  octet(20, r.hour);
  octet(21, r.minute);
  octet(22, 0);
}

}  // namespace

std::string encode_bufr(const BufrReport& report) {
  const std::size_t layers = report.values.layers.size();
  Template& t = template_for(layers);
  codes_handle* c = t.handle.get();
  try {
    const Layout layout = layout_for(layers);  // the writer's cursor walks it
    Writer w(c, layout, t.last);
    put_values(w, report);
    check(codes_set_long(c, "pack", 1), "pack");
    const void* message = nullptr;
    size_t size = 0;
    check(codes_get_message(c, &message, &size), "message");
    std::string out(static_cast<const char*>(message), size);
    set_typical_time(out, report);
    return out;
  } catch (...) {
    // What the handle holds after a failed call is not known: the next message
    // starts from a fresh template.
    templates().erase(layers);
    throw;
  }
}

std::vector<BufrReport> decode_bufr(std::string_view bytes) {
  std::vector<BufrReport> out;
  std::size_t at = 0;
  while ((at = bytes.find("BUFR", at)) != std::string_view::npos) {
    if (at + 8 > bytes.size()) throw BufrError("BUFR: a message is cut short");
    const auto byte = [&](std::size_t i) { return static_cast<std::size_t>(static_cast<unsigned char>(bytes[at + i])); };
    const std::size_t length = byte(4) << 16 | byte(5) << 8 | byte(6);
    if (length < 8 || at + length > bytes.size()) throw BufrError("BUFR: a message is cut short");
    Handle h(codes_handle_new_from_message_copy(nullptr, bytes.data() + at, length), codes_handle_delete);
    if (!h) throw BufrError("BUFR: ecCodes cannot read the message");
    check(codes_set_long(h.get(), "unpack", 1), "unpack");
    long factors[4] = {0, 0, 0, 0};
    size_t n = 4;
    if (codes_get_long_array(h.get(), "delayedDescriptorReplicationFactor", factors, &n) != 0) n = 0;
    const long layers = n > 0 ? factors[0] : 0;
    const Layout layout = layout_for(static_cast<std::size_t>(layers));
    Reader rd(h.get(), layout);
    BufrReport r = read_values(rd);
    read_layers(rd, r, layers);
    out.push_back(std::move(r));
    at += length;
  }
  return out;
}

std::vector<std::string> bufr_words(const BufrReport& r) {
  const SynopValues& v = r.values;
  const BufrStation& s = r.station;
  std::vector<std::string> out;
  char buf[96];
  std::snprintf(buf, sizeof buf, "%04d-%02d-%02d %02d:%02d UTC", r.year, r.month, r.day, r.hour, r.minute);
  out.push_back("Station " + s.numcod + ", WIGOS 0-20000-0-" + s.wigos_local + (s.name.empty() ? "" : ", " + s.name));
  out.push_back(std::string("Time ") + buf);
  out.push_back("Latitude " + fixed(s.latitude, 5, "") + ", longitude " + fixed(s.longitude, 5, "") +
                ", height " + fixed(s.height_m, 1, "m"));
  out.push_back("Station pressure " + pascal(v.station_pressure));
  out.push_back("Sea-level pressure " + pascal(v.sea_level_pressure));
  out.push_back("Three-hour change " + pascal(v.tendency_pa) + ", characteristic " + whole_text(v.tendency_characteristic));
  out.push_back("Temperature " + kelvin(v.temperature));
  out.push_back("Dew point " + kelvin(v.dew_point));
  out.push_back("Humidity " + fixed(r.relative_humidity, 0, "%"));
  out.push_back("Visibility " + fixed(v.visibility_m, 0, "m"));
  out.push_back("Wind " + whole_text(v.wind_direction) + " degrees, " + fixed(v.wind_speed, 1, "m/s") +
                ", 10-minute mean");
  out.push_back("Total cloud " + whole_text(v.total_cloud) + " oktas; low or middle cloud " +
                whole_text(v.low_amount) + " oktas, base " + fixed(v.lowest_cloud_m, 0, "m"));
  out.push_back("Cloud types CL " + whole_text(v.cl) + ", CM " + whole_text(v.cm) + ", CH " + whole_text(v.ch));
  for (std::size_t i = 0; i < v.layers.size(); ++i)
    out.push_back("Layer " + std::to_string(i + 1) + ": " + whole_text(v.layers[i].amount) + " oktas, genus " +
                  whole_text(v.layers[i].genus) + ", base " + fixed(v.layers[i].height_m, 0, "m"));
  out.push_back("Present weather " + whole_text(v.present_weather) + ", past weather " + whole_text(v.past_weather1) +
                " " + whole_text(v.past_weather2));
  out.push_back("Precipitation " + precipitation(v.rain.amount) +
                (v.rain.amount ? " in " + std::to_string(v.rain.hours) + " hours" : std::string()));
  out.push_back("Precipitation in 24 hours " + precipitation(v.rain24));
  out.push_back("Maximum temperature " + kelvin(v.max_temperature) + ", minimum " + kelvin(v.min_temperature) +
                ", over 12 hours");
  out.push_back("State of ground " + whole_text(v.ground_state) + ", ground minimum " + kelvin(v.ground_minimum));
  std::string snow = "missing";
  if (v.snow_depth_m) snow = *v.snow_depth_m == -0.01 ? "under 0.5 cm" : *v.snow_depth_m == -0.02 ? "patchy" : fixed(*v.snow_depth_m * 100, 0, "cm");
  out.push_back("Snow depth " + snow);
  return out;
}

}  // namespace obsdesk
