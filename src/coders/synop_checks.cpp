// The rules of Cmdsynop before its click: the cloud rows checked against each
// other when it gets the focus, the pointer passing over it and the press.
#include "coders/synop.h"

#include "core/textnum.h"
#include "screens/desk.h"

namespace obsdesk {

namespace {

constexpr long kCoderButton = 0x80FF80;
constexpr long kOtherButton = 0xE0E0E0;

// A type text that names a cloud: neither "no cloud" nor "not seen".
bool type_set(std::string_view type) { return type != "       0" && type != "       /"; }

struct Row {
  Control *amount, *type, *height;
};

// A total cover of 9 (sky hidden) or 0 (clear) has no layers to check.
bool sky_has_layers(std::string_view n) { return n != "9" && n != "0"; }

void Cmdsynop_enter(Desk& ws) { synop_cloud_check(ws); }

// Over the button with the tendency filled: the coder's colours, and the
// weather pictures asked for.
void Cmdsynop_mouse_move(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text25.text.empty()) return;
  for (Control* b : Controls{&k.ZAKHIREH, &k.Command5, &k.Command4, &k.Command8, &k.Command1}) b->back_color = kOtherButton;
  k.Cmdsynop.back_color = kCoderButton;
  if (k.Image1.text.empty()) {
    ws.error("لطفاهواي حاضر انتخاب گردد");
    ws.focus(k.Text74);
  }
  if (k.Image2.text.empty()) {
    ws.error("لطفاهواي گذشته انتخاب گردد");
    ws.focus(k.Text74);
  }
}

// The observer list, refilled from the Station profile; blank names are left out.
void Cmdsynop_mouse_up(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  FrmOption& o = ws.FrmOption;
  k.Combo7.items.clear();
  for (Control* name : Controls{&o.Text5, &o.Text6, &o.Text7, &o.Text8, &o.Text9, &o.Text10, &o.Text11, &o.Text12})
    if (!trim(name->text).empty()) k.Combo7.items.push_back(name->text);
  // The prompt is put in place without a change: only a choice counts.
  k.Combo7.text = "نام ديدبان كشيك";
}

}  // namespace

bool synop_cloud_check(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (!sky_has_layers(k.Text5.text)) return true;
  const bool high = k.Text22.text != "X";
  const Row l1{&k.Text6, &k.Combo1, &k.Text7}, l2{&k.Text8, &k.Combo2, &k.Text9}, l3{&k.Text10, &k.Combo3, &k.Text11};
  const Row m{&k.Text17, &k.Combo6, &k.Text16}, h{&k.Text23, &k.Combo9, &k.Text22};
  auto fail = [&](Control& box, bool empty_it, std::string_view words) {
    ws.error(std::string(words));
    if (empty_it) ws.set(box, "");
    ws.focus(box);
    return false;
  };
  // Amount missing.
  std::vector<Row> rows = {l1, l2, l3, m};
  if (high) rows.push_back(h);
  for (const Row& r : rows)
    if ((type_set(r.type->text) || r.height->text != "0") && r.amount->text == "0")
      return fail(*r.amount, true, kCloudCheckAmount);
  // Height missing; on the SYNOP summary row it is TP that is emptied.
  for (const Row& r : {l1, l2, l3})
    if ((type_set(r.type->text) || r.amount->text != "0") && r.height->text == "0")
      return fail(*r.height, true, kCloudCheck);
  if ((type_set(k.Combo4.text) || k.Text49.text != "0") && k.txtmin.text == "0") return fail(k.Text49, true, kCloudCheck);
  rows = {m};
  if (high) rows.push_back(h);
  for (const Row& r : rows)
    if ((type_set(r.type->text) || r.amount->text != "0") && r.height->text == "0")
      return fail(*r.height, true, kCloudCheck);
  // Type missing: the list gets the focus, nothing is emptied.
  auto no_type = [](const Row& r) {
    return (r.type->text == "       0" || r.type->text == "       X") &&
           (r.amount->text != "0" || r.height->text != "0");
  };
  for (const Row& r : {l1, l2, l3})
    if (no_type(r)) return fail(*r.type, false, kCloudCheck);
  if ((k.Combo4.text == "       0" || k.Combo4.text == "       /") && (k.Text49.text != "0" || k.txtmin.text != "0"))
    return fail(k.Combo4, false, kCloudCheck);
  if (k.Text17.text != "9" && no_type(m)) return fail(k.Combo6, false, kCloudCheck);
  if (high && no_type(h)) return fail(k.Combo9, false, kCloudCheck);
  return true;
}

void wire_synop_pointer(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  k.Cmdsynop.on(Event::Enter, Cmdsynop_enter);
  k.Cmdsynop.on(Event::MouseMove, Cmdsynop_mouse_move);
  k.Cmdsynop.on(Event::MouseUp, Cmdsynop_mouse_up);
}

}  // namespace obsdesk
