#pragma once

#include <QColor>
#include <QRect>
#include <QString>

class QPainter;

namespace vorlane {

// The grey checkerboard that shows through transparent pixels.
void paintCheckerboard(QPainter &painter, const QRect &area, int square = 8);

// A dashed outline with a label inside, drawn where something cannot be shown.
void paintLabelledOutline(QPainter &painter,
                          const QRect &area,
                          const QString &label,
                          const QColor &colour = QColor(255, 140, 0));

} // namespace vorlane
