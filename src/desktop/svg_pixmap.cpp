#include "desktop/svg_pixmap.h"

#include <QPainter>
#include <QSvgRenderer>

namespace obsdesk {

QPixmap svg_pixmap(const std::string& svg, int width, qreal ratio, const QColor& background) {
  QSvgRenderer renderer(QByteArray::fromStdString(svg));
  const QSizeF box = renderer.viewBoxF().size();
  const QSize size = box.isEmpty() ? QSize(width, width) : (box * (width / box.width())).toSize();
  QPixmap pix(size * ratio);
  pix.setDevicePixelRatio(ratio);
  pix.fill(background);
  QPainter painter(&pix);
  renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
  return pix;
}

}  // namespace obsdesk
