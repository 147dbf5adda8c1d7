#include "symbols/contact_sheet.h"

#include "symbols/symbols.h"

namespace obsdesk {

std::string contact_sheet_svg() {
  constexpr int kColumns = 10, kCell = 80, kRow = 100, kTitle = 36, kMargin = 20;
  std::string body;
  int y = kMargin;
  for (const SymbolTable& t : symbol_tables()) {
    body += "<text x=\"" + std::to_string(kMargin) + "\" y=\"" + std::to_string(y + 24) +
            "\" font-size=\"20\" font-weight=\"bold\">" + t.title + "</text>";
    y += kTitle;
    for (std::size_t i = 0; i < t.ids.size(); ++i) {
      const int cx = kMargin + static_cast<int>(i % kColumns) * kCell + kCell / 2;
      const int cy = y + static_cast<int>(i / kColumns) * kRow + 36;
      body += "<rect x=\"" + std::to_string(cx - 36) + "\" y=\"" + std::to_string(cy - 36) +
              "\" width=\"72\" height=\"72\" fill=\"none\" stroke=\"#ccc\"/>";
      body += "<g transform=\"translate(" + std::to_string(cx) + "," + std::to_string(cy) +
              ")\" fill=\"none\" stroke=\"#000\" stroke-width=\"3\" stroke-linecap=\"round\" "
              "stroke-linejoin=\"round\">";
      if (const Figure* f = symbol_figure(t.ids[i])) append_figure_svg(body, *f);
      body += "</g>";
      body += "<text x=\"" + std::to_string(cx) + "\" y=\"" + std::to_string(cy + 56) +
              "\" font-size=\"16\" text-anchor=\"middle\">" + symbol_code(t.ids[i]) + "</text>";
    }
    y += static_cast<int>((t.ids.size() + kColumns - 1) / kColumns) * kRow + 8;
  }
  const int width = 2 * kMargin + kColumns * kCell;
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + std::to_string(width) + "\" height=\"" +
         std::to_string(y + kMargin) + "\" viewBox=\"0 0 " + std::to_string(width) + " " + std::to_string(y + kMargin) +
         "\"><rect width=\"100%\" height=\"100%\" fill=\"#fff\"/><g font-family=\"sans-serif\" fill=\"#000\">" + body +
         "</g></svg>\n";
}

}  // namespace obsdesk
