#include "screens/frm_kashf.h"

#include "screens/record.h"

namespace obsdesk {

FrmKashf::FrmKashf() : Screen("FrmKashf") {
  Combo5.items.assign(kReportKinds.begin(), kReportKinds.end());
  Combo1.items = low_cloud_types();
  Combo2.items = low_cloud_types();
  Combo3.items = low3_cloud_types();
  Combo4.items = synop_cloud_types();
  Combo6.items = middle_cloud_types();
  Combo9.items = high_cloud_types();
  CMbMAX.items = visibility_directions();
  CMbMIN.items = visibility_directions();
  Cmb_NLC.items = layer_list();
  Cmb_NLC.text = std::string(kLayerHead);

  place(Frame1, {&Text6, &Combo1, &Text7, &Text8, &Combo2, &Text9, &Text10, &Combo3, &Text11});
  place(Frame2, {&Text17, &Combo6, &Text16});
  place(Frame3, {&Text23, &Combo9, &Text22});
  place(Frame16, {&Text49, &Combo4});
  place(FraNegar, {&Text41});
  place(Frame15, {&Text59, &Text60});
  place(Frame6, {&Labrain, &Text50, &Text42, &txtpast6, &Text51, &Text53});
  place(Frame5, {&Text32, &Text33, &Text34, &Text35, &Text36, &Text37});
  place(FraTmaxS, {&Text43});
  place(Frame8, {&Text63, &Text64, &Text65, &Text66, &Text67});
  place(Frame9, {&Text68, &Text69, &Text70, &Image3});
  place(Frame10, {&Text71, &Text72, &Text73});
  place(Frame12, {&Image10, &Image8, &Image7, &Image4, &LabVC});
  place(Frame17, {&Image1, &Image2, &Image9});

  mask(Framesyn1, {&Text39, &Text40});
  mask(Framesyn2, {&TXTGUSTY});
  mask(Framesyn3, {&TxtVM, &CMbMAX, &Text26, &CMbMIN});
  mask(Frameh1, {&Text2, &Text3, &Text40, &Text39, &TXTGUSTY});
  mask(Frameh2, {&Text4, &TxtVM, &Text26, &CMbMAX, &CMbMIN});
  mask(Frameh3, {&Text5, &Text12, &Text6, &Combo1, &Text7, &Text8, &Combo2, &Text9, &Text10, &Combo3,
                 &Text11, &Text49, &Combo4, &txtmin, &Text17, &Combo6, &Text16, &Text23, &Combo9, &Text22});
  mask(Frameh4, {&Text28, &Text13, &Text14, &Text41, &Text25, &Text38});
  mask(Frameh5, {&Text13});
  for (Control* m : Controls{&Framesyn1, &Framesyn2, &Framesyn3, &Frameh1, &Frameh2, &Frameh3, &Frameh4, &Frameh5})
    m->visible = false;

  // Shown by the hour and the report kind; hidden until then.
  FraNegar.visible = false;
  for (Control* c : Controls{&Text51, &Text53,
                     &txtpast6, &Text42,
                     &FraTmaxS, &Frame5,
                     &Frame8, &Frame9,
                     &Frame10, &Frame15,
                     &Txttond, &Txtmaxwind,
                     &Label98, &Label96,
                     &Txttimesun, &Label109,
                     &Image6, &LabVC,
                     &Image4, &cmdsynop1218})
    c->visible = false;

  // Computed boxes are locked; the hidden ones are never seen.
  for (Control* c : Controls{&Text15, &Text18, &Text19, &Text20, &Text21, &Text24, &Text29, &Text30, &Text31,
                     &txtpast6, &Text51, &Text53, &Text12})
    c->locked = true;
  for (Control* c : Controls{&TXTYYMMDDTT, &TEXTMIN, &TWW, &txtpi, &TXTe, &txtloge, &txtfilenameMET,
                     &txtFileNameDAY, &txtFileNamemonth, &txtFileNamemonthG, &txtfilenametotal,
                     &TXTFILENAMETOTALG, &TXTFILENAMESYN, &TXTFILENAMESPE, &TxtResolution})
    c->visible = false;
  Text44.locked = true;
  ZAKHIREH.enabled = false;
}

}  // namespace obsdesk
