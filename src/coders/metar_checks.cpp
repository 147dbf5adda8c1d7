// The checks that run when a METAR or SPECI coder button receives the focus. A
// failure shows its words and moves the focus; the observer may still click later.
#include <vector>

#include "coders/metar.h"
#include "core/seams.h"
#include "core/textnum.h"
#include "core/workstation.h"

namespace obsdesk {

namespace {

const char* const kSameWeather = "هر دو هواي فعلي انتخابي يكسان ميباشد";
const char* const kChooseWeather = "لطفاهواي حاضر انتخاب گردد";
const char* const kWeatherAgainstClearSky = "هواي حاضر با ميزان ابر ناكي هماهنگي ندارد";
// The words of a cloud row; the amount rows have two blanks before "را".
const char* const kCheckCloudAmount = "مــقدار ، نــوع و يا ارتفاع ابــر  را چــك نمـائيـــد";
const char* const kCheckCloud = "مــقدار ، نــوع و يا ارتفاع ابــر را چــك نمـائيـــد";

// One cloud row: amount, type list and height.
struct Row {
  TextBox& amount;
  ComboBox& type;
  TextBox& height;
};

// A type is set when it is neither the empty item nor "not seen".
bool type_set(const ComboBox& c) { return c.text != "       0" && c.text != "       /"; }

bool fail(Workstation& ws, const char* words, Control& box, bool empty_it) {
  ws.error(words);
  if (empty_it) ws.set(box, "");
  ws.focus(box);
  return false;
}

}  // namespace

bool cloud_rows_ok(Workstation& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string n = k.Text5.text;
  if (n == "9" || n == "0") return true;
  const bool high_seen = k.Text22.text != "X";
  const Row l1{k.Text6, k.Combo1, k.Text7}, l2{k.Text8, k.Combo2, k.Text9}, l3{k.Text10, k.Combo3, k.Text11};
  const Row middle{k.Text17, k.Combo6, k.Text16}, high{k.Text23, k.Combo9, k.Text22};
  std::vector<Row> rows = {l1, l2, l3, middle};
  if (high_seen) rows.push_back(high);

  // An amount missing where a type or height is given.
  for (const Row& r : rows)
    if ((type_set(r.type) || r.height.text != "0") && r.amount.text == "0")
      return fail(ws, kCheckCloudAmount, r.amount, true);

  // A height missing where a type or amount is given.
  for (const Row& r : {l1, l2, l3})
    if ((type_set(r.type) || r.amount.text != "0") && r.height.text == "0")
      return fail(ws, kCheckCloud, r.height, true);
  // The SYNOP cloud: a missing minimum height empties the amount box; it stays so.
  if ((type_set(k.Combo4) || k.Text49.text != "0") && k.txtmin.text == "0")
    return fail(ws, kCheckCloud, k.Text49, true);
  std::vector<Row> upper = {middle};
  if (high_seen) upper.push_back(high);
  for (const Row& r : upper)
    if ((type_set(r.type) || r.amount.text != "0") && r.height.text == "0")
      return fail(ws, kCheckCloud, r.height, true);

  // A type missing where an amount or height is given.
  auto no_type = [](const ComboBox& c, std::string_view other) { return c.text == "       0" || c.text == other; };
  for (const Row& r : {l1, l2, l3})
    if (no_type(r.type, "       X") && (r.amount.text != "0" || r.height.text != "0"))
      return fail(ws, kCheckCloud, r.type, false);
  if (no_type(k.Combo4, "       /") && (k.Text49.text != "0" || k.txtmin.text != "0"))
    return fail(ws, kCheckCloud, k.Combo4, false);
  if (middle.amount.text != "9" && no_type(middle.type, "       X") &&
      (middle.amount.text != "0" || middle.height.text != "0"))
    return fail(ws, kCheckCloud, middle.type, false);
  if (high_seen && no_type(high.type, "       X") && (high.amount.text != "0" || high.height.text != "0"))
    return fail(ws, kCheckCloud, high.type, false);
  return true;
}

bool metar_focus_checks(Workstation& ws) {
  FrmKashf& k = ws.FrmKashf;
  // The two METAR weather choices, compared by the picture each shows.
  if (!k.Image10.text.empty() && k.Image10.text == k.Image8.text && k.LabVC.text == "None") {
    ws.error(kSameWeather);
    ws.focus(k.Text74);
    return false;
  }
  if (!cloud_rows_ok(ws)) return false;
  if (k.Image10.text.empty() && ws.FrmDisplayKashf.TXTWW1.text.empty()) {
    ws.error(kChooseWeather);
    return false;
  }
  if (k.Text5.text == "0" && present_weather_code(ws) > 49) {
    ws.error(kWeatherAgainstClearSky);
    ws.focus(k.Text5);
    return false;
  }
  return true;
}

void Command4_enter(Workstation& ws) { metar_focus_checks(ws); }

void Command4_click(Workstation& ws) { run_metar_coder(ws, MetarForm::Metar); }

}  // namespace obsdesk
