#include "screens/frm_display_kashf.h"

#include <stdexcept>

#include "screens/record.h"

namespace obsdesk {

FrmDisplayKashf::FrmDisplayKashf() : Screen("FrmDisplayKashf") {
  for (const Column& c : kashf_columns()) {
    Control* box = find(c.browser_box);
    if (box == nullptr) throw std::logic_error("no browser box for column " + std::string(c.column));
    box->locked = true;
    KASHF.bind(*box, std::string(c.column));
  }
  Text44.locked = true;

  place(Frame1, {&Text6, &Text45, &Text7, &Text8, &Text43, &Text9, &Text10, &Text42, &Text11});
  place(Frame2, {&Text17, &Text47, &Text16});
  place(Frame3, {&Text23, &Text54, &Text22});
  place(Frame16, {&Text49, &Text46});
  place(Frame5, {&Text32, &Text33, &Text34, &Text35, &Text36, &Text37});
  place(Frame6, {&Labrain, &Text50, &txtpast6, &Text51, &Text53});
  place(Frame8, {&Text63, &Text64, &Text65, &Text66, &Text67});
  place(Frame9, {&Text68, &Text69, &Text70, &Text52});
  place(Frame10, {&Text71, &Text72, &Text73});
  place(Frame12, {&TXTWW1, &TXTWW3, &TXTWW2});
  place(Frame15, {&Text59, &Text60});
  place(Frame17, {&TXTWW4, &TXTWW5, &TXTWW6});
  Image6.visible = false;
  txt1.visible = false;
  TXTSPE.visible = false;
  save.enabled = false;
  for (Control* c : Controls{&TXTFILENAMEKASHF, &TXTFILENAMEKASHFM, &TXTFILENAMEKASHFT, &txtkashf, &TXTmonth,
                     &txtpathnamebank})
    c->visible = false;
}

}  // namespace obsdesk
