// Weather symbols and the station model come from the core as SVG text; this
// draws one on a pixmap for a label, a button icon or the hint window.
#pragma once

#include <QColor>
#include <QPixmap>
#include <string>

namespace obsdesk {

// The picture `width` pixels wide with its own proportions kept, on `background`,
// sharp at the screen's pixel `ratio`. Text that is no picture gives a pixmap of
// the background alone.
QPixmap svg_pixmap(const std::string& svg, int width, qreal ratio = 1.0,
                   const QColor& background = Qt::transparent);

}  // namespace obsdesk
