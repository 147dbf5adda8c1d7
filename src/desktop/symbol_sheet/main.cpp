// obsdesk-symbol-sheet IN.svg OUT.png [WIDTH]: draws an SVG page on a white
// image of WIDTH pixels (default 1600), keeping its proportions, and saves it
// as PNG. Runs without a display (QT_QPA_PLATFORM=offscreen is set when no
// platform is named).
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  if (argc < 3 || argc > 4) {
    std::fprintf(stderr, "usage: obsdesk-symbol-sheet IN.svg OUT.png [WIDTH]\n");
    return 2;
  }
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);

  QSvgRenderer svg(QString::fromLocal8Bit(argv[1]));
  if (!svg.isValid()) {
    std::fprintf(stderr, "obsdesk-symbol-sheet: not a readable SVG file: %s\n", argv[1]);
    return 1;
  }
  const int width = argc == 4 ? std::atoi(argv[3]) : 1600;
  if (width < 16 || width > 20000) {
    std::fprintf(stderr, "obsdesk-symbol-sheet: width out of range: %s\n", argv[3]);
    return 2;
  }
  const QSizeF page = svg.viewBoxF().size();
  const int height = static_cast<int>(width * page.height() / page.width() + 0.5);
  QImage image(width, height, QImage::Format_ARGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  svg.render(&painter);
  painter.end();
  if (!image.save(QString::fromLocal8Bit(argv[2]), "PNG")) {
    std::fprintf(stderr, "obsdesk-symbol-sheet: cannot write %s\n", argv[2]);
    return 1;
  }
  return 0;
}
