#include "PreviewPainting.h"

#include <QPainter>
#include <QPen>

namespace vorlane {

void paintCheckerboard(QPainter &painter, const QRect &area, int square)
{
    painter.save();
    painter.setClipRect(area);
    painter.fillRect(area, QColor(204, 204, 204));
    for (int y = area.top(); y <= area.bottom(); y += square) {
        for (int x = area.left(); x <= area.right(); x += square) {
            if (((x - area.left()) / square + (y - area.top()) / square) % 2 == 1)
                painter.fillRect(QRect(x, y, square, square), QColor(153, 153, 153));
        }
    }
    painter.restore();
}

void paintLabelledOutline(QPainter &painter,
                          const QRect &area,
                          const QString &label,
                          const QColor &colour)
{
    painter.save();
    QPen pen(colour);
    pen.setStyle(Qt::DashLine);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    painter.setClipRect(area);
    painter.drawText(
        area.adjusted(3, 2, -3, -2), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, label);
    painter.restore();
}

void paintCellNumbers(QPainter &painter, const std::vector<QRect> &cells)
{
    painter.save();
    QFont font = painter.font();
    font.setPixelSize(10);
    painter.setFont(font);
    painter.setBrush(Qt::NoBrush);
    for (size_t i = 0; i < cells.size(); ++i) {
        const QRect &area = cells[i];
        painter.setPen(QColor(0, 160, 255));
        painter.drawRect(area.adjusted(0, 0, -1, -1));
        const QString number = QString::number(i + 1);
        const QRect label(area.left() + 1,
                          area.top() + 1,
                          painter.fontMetrics().horizontalAdvance(number) + 4,
                          painter.fontMetrics().height());
        if (label.width() < area.width() && label.height() < area.height()) {
            painter.fillRect(label, QColor(0, 0, 0, 160));
            painter.setPen(Qt::white);
            painter.drawText(label, Qt::AlignCenter, number);
        }
    }
    painter.restore();
}

} // namespace vorlane
