#include "CellSheet.h"

#include "PreviewPainting.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace vorlane {

namespace {

// A small sheet is enlarged at most this much, so that its numbers stay readable.
constexpr double MaxEnlargement = 4.0;

} // namespace

CellSheet::CellSheet(QWidget *parent)
    : QWidget(parent)
{
    setMinimumSize(160, 96);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize CellSheet::sizeHint() const
{
    return QSize(256, 160);
}

void CellSheet::setPicture(const PictureSpec &spec)
{
    if (!m_loaded || spec.file != m_spec.file || m_picture.isNull())
        m_picture = PreviewPicture::load(spec);
    else if (!(spec == m_spec))
        m_picture = m_picture.rekeyed(spec);
    m_loaded = true;
    m_spec = spec;
    m_note.clear();
    update();
}

void CellSheet::setTemplateCells(int rows, int columns)
{
    m_rows = rows;
    m_columns = columns;
    update();
}

void CellSheet::setMarkedCells(std::vector<int> cells)
{
    m_marked = std::move(cells);
    update();
}

void CellSheet::setHighlightedCell(int cell)
{
    m_highlighted = cell;
    update();
}

void CellSheet::showNote(const QString &note)
{
    m_note = note;
    update();
}

CellGrid CellSheet::grid() const
{
    const QImage &image = m_picture.image();
    if (image.isNull() || !m_note.isEmpty())
        return CellGrid{};
    return templateGrid(
        image.width(), image.height(), m_rows, m_columns, m_spec.cellWidth, m_spec.cellHeight);
}

QString CellSheet::message() const
{
    if (!m_note.isEmpty())
        return m_note;
    return m_picture.isNull() ? m_picture.problem() : QString();
}

double CellSheet::scale() const
{
    const QImage &image = m_picture.image();
    if (image.isNull() || image.width() <= 0 || image.height() <= 0)
        return 1.0;
    return std::min({double(width() - 2) / image.width(),
                     double(height() - 2) / image.height(),
                     MaxEnlargement});
}

QRect CellSheet::pictureArea() const
{
    const QImage &image = m_picture.image();
    if (image.isNull() || !m_note.isEmpty())
        return QRect();
    const double s = scale();
    return QRect(1, 1, int(image.width() * s), int(image.height() * s));
}

QRect CellSheet::cellRectOnWidget(int cell) const
{
    const std::optional<CellRect> r = cellRect(grid(), cell);
    const QRect area = pictureArea();
    if (!r || area.isEmpty())
        return QRect();
    const double s = scale();
    const int left = area.left() + int(r->x * s);
    const int top = area.top() + int(r->y * s);
    return QRect(QPoint(left, top),
                 QPoint(area.left() + int((r->x + r->width) * s) - 1,
                        area.top() + int((r->y + r->height) * s) - 1));
}

int CellSheet::cellAt(const QPoint &widgetPoint) const
{
    const int count = grid().count();
    for (int cell = FirstCell; cell < FirstCell + count; ++cell) {
        if (cellRectOnWidget(cell).contains(widgetPoint))
            return cell;
    }
    return 0;
}

void CellSheet::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    const QRect area = pictureArea();
    if (area.isEmpty()) {
        painter.setPen(QColor(150, 150, 150));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.drawText(rect().adjusted(4, 4, -4, -4),
                         Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                         message());
        return;
    }
    paintCheckerboard(painter, area);
    painter.drawImage(area, m_picture.image());
    const int count = grid().count();
    std::vector<QRect> cells;
    for (int cell = FirstCell; cell < FirstCell + count; ++cell)
        cells.push_back(cellRectOnWidget(cell));
    for (int cell : m_marked) {
        if (cell >= FirstCell && cell < FirstCell + count)
            painter.fillRect(cells[static_cast<size_t>(cell - FirstCell)], QColor(0, 160, 255, 70));
    }
    paintCellNumbers(painter, cells);
    if (m_highlighted >= FirstCell && m_highlighted < FirstCell + count) {
        painter.setPen(QPen(QColor(255, 215, 0), 3));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(
            cells[static_cast<size_t>(m_highlighted - FirstCell)].adjusted(1, 1, -1, -1));
    }
}

void CellSheet::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int cell = cellAt(event->position().toPoint());
    if (cell > 0)
        emit cellClicked(cell);
}

void CellSheet::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int cell = cellAt(event->position().toPoint());
    if (cell > 0)
        emit cellDoubleClicked(cell);
}

} // namespace vorlane
