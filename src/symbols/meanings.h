// The short meaning of a symbol, for the hint window of the boards: what the
// code says, in the words of the international code tables, short enough for
// one line under the code.
#pragma once

#include <string_view>

namespace obsdesk {

// The meaning of a picture id ("ww63": "Rain, not freezing, continuous,
// moderate"), or "" for an id with no meaning in the tables.
std::string_view symbol_meaning(std::string_view picture_id);

}  // namespace obsdesk
