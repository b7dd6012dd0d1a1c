#pragma once

#include <QColor>
#include <QRect>
#include <QString>

#include <vector>

class QPainter;

namespace vorlane {

// The grey checkerboard that shows through transparent pixels.
void paintCheckerboard(QPainter &painter, const QRect &area, int square = 8);

// A dashed outline with a label inside, drawn where something cannot be shown.
void paintLabelledOutline(QPainter &painter,
                          const QRect &area,
                          const QString &label,
                          const QColor &colour = QColor(255, 140, 0));

// The frame of each cell and its number (cell 1 first) in its top-left corner, where the
// number fits inside the cell.
void paintCellNumbers(QPainter &painter, const std::vector<QRect> &cells);

} // namespace vorlane
