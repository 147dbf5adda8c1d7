// The weather symbols of the boards and the entry screen, by picture id: the id
// a control of the core carries ("ww63", "W5", "E3", "Ep5", ...) names the
// symbol the desktop draws on it.
//
//   ww00 to ww99   present weather ww
//   W0 to W9       past weather W1, W2
//   E0 to E9       state of the ground without snow or ice E
//   Ep0 to Ep9     state of the ground with snow or ice E'
//   CL1 to CL9, CM1 to CM9, CH1 to CH9   cloud types (0, no such cloud, draws nothing)
//   N0 to N9       total cloud cover, the station circle
//   a0 to a8       pressure tendency characteristic, also ntf0 to ntf8 (the traces
//                  of the tendency dialog)
//   sky_b ... sky_oy  the sky letters; clear-sky  the cloudless circle
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "symbols/figure.h"

namespace obsdesk {

// The figure of a picture id, or nullptr for an id that names no symbol (an
// empty picture, or a code with no symbol such as CL0).
const Figure* symbol_figure(std::string_view picture_id);

// The symbol of a picture id as a standalone SVG document (view box
// "-32 -32 64 64"), or "" when the id names no symbol. This is what a board
// button, an entry-screen image and the hint window draw, at any size.
std::string symbol_svg(std::string_view picture_id);

// One code table of symbols, in code order, for the contact sheet and the
// checks that the codes of one table all differ.
struct SymbolTable {
  std::string name;              // "ww", "W", ...
  std::string title;             // "Present weather ww", ...
  std::vector<std::string> ids;  // picture ids in code order
};
const std::vector<SymbolTable>& symbol_tables();

// The cloud symbol of a cloud-type list text of the entry screen ("CU     1",
// "NS     2", "CC,CS  9"): the level's prefix ("CL", "CM" or "CH") and the
// figure the text ends in. "" for type 0, for "X" (hidden by a lower layer) and
// for an empty text: no symbol is drawn.
std::string cloud_picture(std::string_view level, std::string_view type_text);

// The code figure shown under a symbol on the sheet: "63" for ww63, "5" for Ep5.
std::string symbol_code(std::string_view picture_id);

}  // namespace obsdesk
