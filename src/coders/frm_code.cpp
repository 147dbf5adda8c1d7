#include "coders/frm_code.h"

namespace obsdesk {

FrmCode::FrmCode() : Screen("FrmCode") {
  SSTab1.items = {"0", "1", "2"};
  SSTab1.text = "0";
  place(Frame1, {&TXTUTC, &TXTCCCC, &TXTYYGG, &TXTAUTO, &txtdddff, &TXTDNDX, &TXTVVVv, &TXTVXVXVXDV, &Text5, &Text4, &Text47, &TXTSKC, &Text55, &Text56, &Text57, &Text58, &Text59, &Text60, &Text61, &Text3, &Text30, &Text2, &Text1, &Txt_NLC, &TXT_QNT, &TxtQNT});
  place(Frame2, {&Text29, &Text9, &Text10, &Text11, &Text12, &Text13, &Text14, &Text15, &Text16, &Text17, &Text18, &Text19, &Text20, &Text21, &Text22, &Text23, &Text25, &Text8, &Text24, &Text26, &Text33, &Text27, &Text28, &Text32});
  place(Frame7, {&Text75, &Text76, &Text77, &Text78, &Text79, &Text80, &Text81, &Text82, &Text83, &Text84, &Text85, &Text86, &Text87, &Text88, &Text89, &Text90, &Text91, &Text92, &Text93, &Text94, &Text95, &Text96, &Text97, &Text98, &Text99, &Text100, &Text101, &Text102, &Text103, &Text104, &Text105, &Frame12});
  place(Frame12, {&Text41, &Text42, &Text43, &Text44, &Text45, &Text46});
  // A blank SYNOP box is five blanks, a blank METAR box is empty.
  for (Control* c : {&Text76, &Text77, &Text78, &Text79, &Text80, &Text81, &Text82, &Text83, &Text84, &Text85, &Text86, &Text87, &Text89, &Text90, &Text91, &Text92, &Text93, &Text94, &Text95, &Text96, &Text97, &Text98, &Text99, &Text100, &Text101, &Text102, &Text104, &Text105, &Text41, &Text42, &Text43, &Text44, &Text45, &Text46}) c->text = "     ";
  Text75.text = "  ";
  Text103.text = "   ";
  Text88.text = "333";
  Text6.text = "999";
  // The one character that closes the S line, which is 200 characters with it.
  Text7.text = " ";
}

}  // namespace obsdesk
