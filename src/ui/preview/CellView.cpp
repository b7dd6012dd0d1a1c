#include "CellView.h"

#include "PreviewPainting.h"
#include "TextPainting.h"
#include "rules/PreviewTexts.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace vorlane {

CellView::CellView(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_box = new QWidget(this);
    m_box->setObjectName(QStringLiteral("picPreviewCell"));
    m_box->setMinimumSize(96, 96);
    m_box->setAttribute(Qt::WA_TransparentForMouseEvents);
    layout->addWidget(m_box, 1);
    m_message = new QLabel(this);
    m_message->setObjectName(QStringLiteral("lblPreviewCell"));
    m_message->setWordWrap(true);
    layout->addWidget(m_message);
    setFocusPolicy(Qt::NoFocus);
    setPicture(PictureSpec{});
}

void CellView::setPicture(const PictureSpec &spec)
{
    if (!m_loaded || spec.file != m_spec.file || m_picture.isNull())
        m_picture = PreviewPicture::load(spec);
    else
        m_picture = m_picture.rekeyed(spec);
    m_loaded = true;
    m_spec = spec;
    refresh();
}

void CellView::setTemplateCells(int rows, int columns)
{
    m_rows = rows;
    m_columns = columns;
    refresh();
}

void CellView::setCell(int cell, const QString &caption)
{
    m_cell = cell;
    m_caption = caption;
    m_note.clear();
    refresh();
}

void CellView::showNote(const QString &note)
{
    m_note = note;
    refresh();
}

CellGrid CellView::grid() const
{
    const QImage &image = m_picture.image();
    if (image.isNull())
        return CellGrid{};
    return templateGrid(
        image.width(), image.height(), m_rows, m_columns, m_spec.cellWidth, m_spec.cellHeight);
}

QImage CellView::cellImage() const
{
    if (!m_note.isEmpty())
        return QImage();
    const std::optional<CellRect> r = cellRect(grid(), m_cell);
    if (!r)
        return QImage();
    return m_picture.image().copy(r->x, r->y, r->width, r->height);
}

void CellView::setDecoration(const QImage &icon, const std::optional<TextLook> &caption)
{
    m_icon = icon;
    m_captionText = caption;
    update();
}

QImage CellView::composedCell() const
{
    QImage cell = cellImage();
    if (cell.isNull() || (m_icon.isNull() && !m_captionText))
        return cell;
    QPainter painter(&cell);
    if (!m_icon.isNull()) {
        const QPoint at((cell.width() - m_icon.width()) / 2, (cell.height() - m_icon.height()) / 2);
        painter.drawImage(at, m_icon);
    }
    if (m_captionText && !m_captionText->content.empty()) {
        painter.setFont(engineFont(*m_captionText));
        painter.setPen(foreColour(*m_captionText));
        painter.drawText(
            cell.rect(), Qt::AlignCenter, QString::fromStdString(m_captionText->content));
    }
    return cell;
}

QString CellView::message() const
{
    return m_message->text();
}

void CellView::refresh()
{
    QString text;
    if (!m_note.isEmpty())
        text = m_note;
    else if (m_picture.isNull())
        text = m_picture.problem();
    else if (!cellRect(grid(), m_cell))
        text = QString::fromStdString(noSuchCellText(m_cell, grid().count()));
    else
        text = (m_caption.isEmpty() ? QString() : m_caption + QStringLiteral(": ")) +
               tr("cell %1").arg(m_cell);
    m_message->setText(text);
    update();
}

void CellView::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    const QImage cell = composedCell();
    const QRect box = m_box->geometry();
    QPainter painter(this);
    if (cell.isNull()) {
        painter.setPen(QColor(150, 150, 150));
        painter.drawRect(box.adjusted(0, 0, -1, -1));
        return;
    }
    // The largest whole-number enlargement that fits, so that pixels stay square and sharp.
    const int scale =
        std::max(1, std::min(box.width() / cell.width(), box.height() / cell.height()));
    QSize size = cell.size() * scale;
    if (size.width() > box.width() || size.height() > box.height())
        size = cell.size().scaled(box.size(), Qt::KeepAspectRatio);
    const QRect area(box.left() + (box.width() - size.width()) / 2,
                     box.top() + (box.height() - size.height()) / 2,
                     size.width(),
                     size.height());
    paintCheckerboard(painter, area);
    painter.drawImage(area, cell);
}

} // namespace vorlane
