// The station model: a coded SYNOP drawn as the centre plots it on the map,
// so the observer sees the report as the forecaster will and can check a group
// that plots oddly before confirming.
//
// The layout is data first (element, place, position, text), then SVG. Around
// the station circle (radius 8 at 0,0; y grows downward):
//
//                 CH
//        TT       CM       PPP
//   VV   ww      (N)       ppp a
//        TdTd     CL  Nh   W1 W2
//                 h        RRR tR
//
// with the wind shaft from the circle toward the direction the wind blows from.
// ww 00 to 03 and W 0 to 2 are not plotted, nor a cloud type 0.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "symbols/synop_reader.h"

namespace obsdesk {

struct PlotElement {
  std::string element;  // "TT", "ww", "wind", ...
  std::string place;    // where the convention puts it: "upper left", "centre", ...
  double x = 0, y = 0;  // anchor in the model's units
  std::string text;     // the value as plotted, or the picture id of a symbol
  bool symbol = false;  // text is a picture id
  bool operator==(const PlotElement&) const = default;
};

struct StationModel {
  std::vector<PlotElement> elements;
  int wind_knots = 0;    // wind speed rounded to 5 knots for the barbs
  int wind_from = -1;    // degrees; -1 when calm, variable or not reported
  bool calm = false;
  std::vector<std::string> odd;  // the groups the reader could not read
};

StationModel station_model(const SynopReading& reading);
StationModel station_model(std::string_view synop_text);

// The station model of a coded SYNOP as a standalone SVG document (view box
// "-110 -80 220 160", the circle at 0,0); the groups that could not be read are
// listed under the model in red, the box growing by a line for each. This is
// what the desktop shows beside the code panel, redrawn when txtSYN changes.
std::string station_model_svg(std::string_view synop_text);
std::string station_model_svg(const StationModel& model);

}  // namespace obsdesk
