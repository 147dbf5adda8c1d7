#include "screens/frm_code.h"

#include <algorithm>
#include <iterator>

#include "bank/sqlite.h"

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

namespace {

// The METAR frame's boxes and their twins in the SPECI frame, by column.
constexpr PanelMirror kFrames[] = {
    {"UTC", "TXTUTC", "Text29", "UTC_SPECI"},
    {"CCCC", "TXTCCCC", "Text9", "CCCC_SPECI"},
    {"YYGGGGZ", "TXTYYGG", "Text10", "YYGGGGZ_SPECI"},
    {"AUTO", "TXTAUTO", "Text11", "AUTO_SPECI"},
    {"DDDFFGFMFM", "txtdddff", "Text12", "DDDFFGFMFM_SPECI"},
    {"DNDNVDXDX", "TXTDNDX", "Text13", "DNDNVDXDX_SPECI"},
    {"VVVV/COVOK", "TXTVVVv", "Text14", "VVVV/COVOK_SPECI"},
    {"VXVXVXDV", "TXTVXVXVXDV", "Text15", "VXVXVXDV_SPECI"},
    {"RDRDRD/VRVRVR", "Text5", "Text16", "RDRDRD/VRVRVR_SPECI"},
    {"W'W'1", "Text4", "Text17", "W'W'1_SPECI"},
    {"W'W'2", "Text47", "Text18", "W'W'2_SPECI"},
    {"SKC/NSC", "TXTSKC", "Text19", "SKC/NSC_SPECI"},
    {"VVHSHS", "Text55", "Text20", "VVHSHS_SPECI"},
    {"NNNHHH1", "Text56", "Text21", "NNNHHH1_SPECI"},
    {"NNNHHH2", "Text57", "Text22", "NNNHHH2_SPECI"},
    {"NNNHHH3", "Text58", "Text23", "NNNHHH3_SPECI"},
    {"NNNHHH4", "Text59", "Text25", "NNNHHH4_SPECI"},
    {"NNNHHH5", "Text60", "Text8", "NNNHHH5_SPECI"},
    {"TT/TDTD", "Text61", "Text24", "TT/TDTD_SPECI"},
    {"QPHPHPH", "Text3", "Text26", "QPHPHPH_SPECI"},
    {"QPHPHPH2", "Text30", "Text33", "QPHPHPH2_SPECI"},
    {"REW'W'", "Text2", "Text27", "REW'W'_SPECI"},
    {"WSRWYDRDR", "Text1", "Text28", "WSRWYDRDR_SPECI"},
    {"NLC", "Txt_NLC", "Text32", "NLC_SPECI"},
};

// The SYNOP frame, by column.
constexpr PanelField kSynopFrame[] = {
    {"Text75", "UTC_SYNOP"},      {"Text76", "IRIXHVV"},         {"Text77", "NDDFF"},
    {"Text78", "OOFFF"},          {"Text79", "1SNTTT"},          {"Text80", "2SNTDTDTD"},
    {"Text81", "3P0P0P0"},        {"Text82", "4PPPP"},           {"Text83", "5APPP"},
    {"Text84", "6RRRTR"},         {"Text85", "7WWW1W2"},         {"Text86", "8NHCLCMCH"},
    {"Text87", "9GGGG"},          {"Text88", "F32"},             {"Text89", "1SNTXTXTX"},
    {"Text90", "2SNTNTNTN"},      {"Text91", "3ESNTGTG"},        {"Text92", "4E'SSS"},
    {"Text93", "4A3HHH"},         {"Text94", "5EEEIE"},          {"Text95", "55SSS"},
    {"Text96", "J5F24F24F24F24"}, {"Text97", "7R24R24R24R24"},   {"Text98", "8NSCHSHS"},
    {"Text99", "8NSCHSHS1"},      {"Text100", "8NSCHSHS2"},      {"Text101", "8NSCHSHS3"},
    {"Text102", "9SNIWIWIW"},     {"Text103", "RH"},             {"Text104", "maxDDDFF"},
    {"Text105", "gustyDDDFF"},    {"Text41", "1snttt1"},         {"Text42", "1snttt2"},
    {"Text43", "1snttt3"},        {"Text44", "1snttt4"},         {"Text45", "1snttt5"},
    {"Text46", "1snttt6"},
};

bool is_synop_column(std::string_view column) {
  return std::any_of(std::begin(kSynopFrame), std::end(kSynopFrame),
                     [&](const PanelField& f) { return f.column == column; });
}
}  // namespace

std::span<const PanelMirror> panel_mirrors() { return kFrames; }

const std::vector<PanelField>& cood_fields() {
  static const std::vector<PanelField> fields = [] {
    std::vector<PanelField> out;
    for (const PanelMirror& r : kFrames) out.push_back({r.metar_box, r.column});
    for (const PanelMirror& r : kFrames) out.push_back({r.speci_box, r.speci_column});
    for (const PanelField& f : kSynopFrame) out.push_back(f);
    return out;
  }();
  return fields;
}

std::string cood_blank(std::string_view column) {
  if (!is_synop_column(column)) return "";
  if (column == "UTC_SYNOP") return "  ";
  if (column == "RH") return "   ";
  if (column == "F32") return "333";
  return "     ";
}

void create_cood_table(Database& db) {
  std::string cols, names, marks;
  for (const PanelField& f : cood_fields()) {
    cols += (cols.empty() ? "" : ", ") + quote_name(f.column) + " TEXT";
    names += (names.empty() ? "" : ",") + quote_name(f.column);
    marks += marks.empty() ? "?" : ",?";
  }
  db.exec("CREATE TABLE COOD (" + cols + ")");
  auto st = db.prepare("INSERT INTO COOD (" + names + ") VALUES (" + marks + ")");
  int i = 1;
  for (const PanelField& f : cood_fields()) st.bind(i++, cood_blank(f.column));
  st.run();
}

}  // namespace obsdesk
