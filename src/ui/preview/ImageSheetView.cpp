#include "ImageSheetView.h"

#include "PreviewPainting.h"
#include "rules/PreviewTexts.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>

namespace vorlane {

ImageSheetView::ImageSheetView(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *zoomRow = new QHBoxLayout;
    auto *zoomLabel = new QLabel(tr("Zoom"), this);
    m_zoomBox = new QComboBox(this);
    m_zoomBox->setObjectName(QStringLiteral("cmbPreviewZoom"));
    for (int step : zoomSteps())
        m_zoomBox->addItem(QStringLiteral("%1%").arg(step), step);
    m_zoomBox->setCurrentIndex(static_cast<int>(zoomSteps().indexOf(m_zoom)));
    zoomLabel->setBuddy(m_zoomBox);
    zoomRow->addWidget(zoomLabel);
    zoomRow->addWidget(m_zoomBox);
    zoomRow->addStretch();
    layout->addLayout(zoomRow);

    m_canvas = new QLabel(this);
    m_canvas->setObjectName(QStringLiteral("picPreviewSheet"));
    m_canvas->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_scroll = new QScrollArea(this);
    m_scroll->setWidget(m_canvas);
    m_scroll->setWidgetResizable(false);
    m_scroll->setMinimumSize(200, 160);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    layout->addWidget(m_scroll, 1);

    m_message = new QLabel(this);
    m_message->setObjectName(QStringLiteral("lblPreviewMessage"));
    m_message->setWordWrap(true);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_message);

    connect(m_zoomBox, &QComboBox::activated, this, [this](int index) {
        setZoom(m_zoomBox->itemData(index).toInt());
    });
    setPicture(PictureSpec{});
}

QList<int> ImageSheetView::zoomSteps()
{
    return {25, 50, 100, 200, 300, 400, 800};
}

void ImageSheetView::setPicture(const PictureSpec &spec)
{
    if (!m_loaded || spec.file != m_spec.file || m_picture.isNull())
        m_picture = PreviewPicture::load(spec);
    else
        m_picture = m_picture.rekeyed(spec);
    m_loaded = true;
    m_spec = spec;
    const QImage &image = m_picture.image();
    m_grid = image.isNull()
                 ? CellGrid{}
                 : gridOfCells(image.width(), image.height(), spec.cellWidth, spec.cellHeight);
    showComposed();
}

void ImageSheetView::setZoom(int percent)
{
    const int index = static_cast<int>(zoomSteps().indexOf(percent));
    if (index < 0)
        return;
    m_zoom = percent;
    m_zoomBox->setCurrentIndex(index);
    showComposed();
}

QString ImageSheetView::message() const
{
    return m_message->text();
}

QImage ImageSheetView::composed() const
{
    const QImage &image = m_picture.image();
    if (image.isNull())
        return QImage();
    const double scale = m_zoom / 100.0;
    const QSize size(std::max(1, int(image.width() * scale)),
                     std::max(1, int(image.height() * scale)));
    QImage out(size, QImage::Format_ARGB32);
    QPainter painter(&out);
    paintCheckerboard(painter, out.rect());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(out.rect(), image);
    // The grid and the numbers, over the picture.
    std::vector<QRect> cells;
    for (int cell = FirstCell; cell < FirstCell + m_grid.count(); ++cell) {
        const CellRect r = *cellRect(m_grid, cell);
        cells.emplace_back(
            int(r.x * scale), int(r.y * scale), int(r.width * scale), int(r.height * scale));
    }
    paintCellNumbers(painter, cells);
    return out;
}

void ImageSheetView::showComposed()
{
    const QImage image = composed();
    if (image.isNull()) {
        m_canvas->setPixmap(QPixmap());
        m_canvas->resize(1, 1);
        m_message->setText(m_picture.problem());
        return;
    }
    m_canvas->setPixmap(QPixmap::fromImage(image));
    m_canvas->resize(image.size());
    const QImage &picture = m_picture.image();
    m_message->setText(QString::fromStdString(
        sheetSummaryText(picture.width(), picture.height(), m_grid.columns, m_grid.rows)));
}

} // namespace vorlane
