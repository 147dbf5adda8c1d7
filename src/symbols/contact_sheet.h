// The contact sheet: every symbol of every code table under its code figure, on
// one SVG page, for review against the international tables.
#pragma once

#include <string>

namespace obsdesk {

std::string contact_sheet_svg();

}  // namespace obsdesk
