// The station catalogue: the provinces of the start screen's list and, for each
// province, the weather stations the observer picks from when looking for a
// station profile. A fixed table built into the program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace obsdesk {

// The provinces in the order of ComboOstan.
const std::vector<std::string>& provinces();

// The province ComboOstan shows until a choice is made.
inline constexpr std::string_view kFirstProvince = "GUILAN";

struct StationGroup {
  std::string_view province;             // in capitals
  std::vector<std::string_view> names;  // in list order; a leading blank is part of a name
};

// Every group, in the catalogue's own order (not the order of the provinces).
const std::vector<StationGroup>& station_groups();

// The names of a province's group. The match is on the whole text in capitals;
// a text that matches no group gives an empty list.
std::vector<std::string> stations_of(std::string_view province);

}  // namespace obsdesk
