#include "SceneCanvas.h"

#include "PreviewPainting.h"
#include "PreviewPicture.h"
#include "TextPainting.h"
#include "model/Kinds.h"
#include "rules/CellGrid.h"
#include "rules/PreviewTexts.h"

#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace vorlane {

namespace {

// A cell-less object whose file cannot be shown gets an outline of this size.
constexpr int OutlineSide = 64;

QString qt(const std::string &text)
{
    return QString::fromStdString(text);
}

} // namespace

SceneCanvas::SceneCanvas(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("picScenePreview"));
    setMinimumSize(320, 240);
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
    m_image = QImage(m_screen.width, m_screen.height, QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::black);
}

QSize SceneCanvas::sizeHint() const
{
    return QSize(m_screen.width, m_screen.height);
}

void SceneCanvas::setScene(const Document &doc, const SceneRec &scene)
{
    setScene(doc, scene, engineLayerSlots(scene));
}

void SceneCanvas::setScene(const Document &doc, const SceneRec &scene, std::vector<int> layerSlots)
{
    m_screen = previewScreen(doc.AppSettings);
    render(doc, scenePlan(doc, scene, std::move(layerSlots)));
    if (m_zoom > 0)
        setZoom(m_zoom); // the screen's size may have changed
    updateGeometry();
    update();
}

void SceneCanvas::render(const Document &, const std::vector<SceneItem> &items)
{
    m_image = QImage(m_screen.width, m_screen.height, QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::black);
    m_hits.clear();
    m_notes.clear();
    QPainter painter(&m_image);
    for (const SceneItem &item : items) {
        const QString id = qt(item.objectId);
        const QPoint at(item.x, item.y);
        painter.setOpacity(item.visible ? 1.0 : 0.35);
        QRect area;
        switch (item.kind) {
        case SceneItemKind::Music:
            m_notes << tr("Layer %1: music %2 is not drawn").arg(item.layerSlot).arg(id);
            continue;
        case SceneItemKind::Missing: {
            const std::optional<Kind> kind = layerObjectKind(item.objectKind);
            m_notes << tr("Layer %1: %2")
                           .arg(item.layerSlot)
                           .arg(kind ? qt(noObjectText(kindInfo(*kind).name, item.objectId))
                                     : tr("kind %1 holds no objects").arg(item.objectKind));
            continue;
        }
        case SceneItemKind::HotSpot: {
            area = QRect(at, QSize(std::max(item.width, 1), std::max(item.height, 1)));
            QPen pen(QColor(0, 255, 255));
            pen.setStyle(Qt::DashLine);
            painter.setPen(pen);
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(area.adjusted(0, 0, -1, -1));
            break;
        }
        case SceneItemKind::Text: {
            painter.setFont(engineFont(item));
            const QString content = qt(item.content);
            area = painter.fontMetrics().boundingRect(
                QRect(at, QSize(m_screen.width, m_screen.height)),
                Qt::AlignLeft | Qt::AlignTop,
                content);
            if (content.isEmpty()) {
                area = QRect(at, QSize(OutlineSide, painter.fontMetrics().height()));
                paintLabelledOutline(painter, area, id);
                break;
            }
            painter.setPen(foreColour(item));
            painter.drawText(area, Qt::AlignLeft | Qt::AlignTop, content);
            break;
        }
        case SceneItemKind::Image:
        case SceneItemKind::Sprite:
        case SceneItemKind::Button: {
            const QString what =
                item.kind == SceneItemKind::Image ? QString() : tr(" cell %1").arg(item.cell);
            if (!item.hasPicture) {
                area = QRect(at, QSize(OutlineSide, OutlineSide));
                paintLabelledOutline(
                    painter, area, id + QStringLiteral("\n") + qt(noObjectText("image", "")));
                break;
            }
            const Picture &cached = picture(item.picture);
            const PreviewPicture &picture = cached.picture;
            if (picture.isNull()) {
                const int w = item.picture.cellWidth > 0 ? item.picture.cellWidth : OutlineSide;
                const int h = item.picture.cellHeight > 0 ? item.picture.cellHeight : OutlineSide;
                area = QRect(at, QSize(w, h));
                paintLabelledOutline(painter,
                                     area,
                                     id + QStringLiteral("\n") + tr("missing: ") +
                                         qt(item.picture.storedPath));
                m_notes << tr("Layer %1: %2").arg(item.layerSlot).arg(picture.problem());
                break;
            }
            const QImage &image = cached.drawn;
            if (item.kind == SceneItemKind::Image) {
                area = QRect(at, image.size());
                painter.drawImage(at, image);
                break;
            }
            const CellGrid grid = templateGrid(image.width(),
                                               image.height(),
                                               item.rows,
                                               item.columns,
                                               item.picture.cellWidth,
                                               item.picture.cellHeight);
            const std::optional<CellRect> cell = cellRect(grid, item.cell);
            if (!cell) {
                area = QRect(at,
                             QSize(grid.cellWidth > 0 ? grid.cellWidth : OutlineSide,
                                   grid.cellHeight > 0 ? grid.cellHeight : OutlineSide));
                paintLabelledOutline(painter, area, id + QStringLiteral("\n") + what.trimmed());
                m_notes << tr("Layer %1: %2")
                               .arg(item.layerSlot)
                               .arg(qt(noSuchCellText(item.cell, grid.count())));
                break;
            }
            area = QRect(at, QSize(cell->width, cell->height));
            painter.drawImage(at, image, QRect(cell->x, cell->y, cell->width, cell->height));
            break;
        }
        }
        m_hits.emplace_back(area, item.layerSlot);
    }
}

const SceneCanvas::Picture &SceneCanvas::picture(const PictureSpec &spec)
{
    const QString key = spec.file ? qt(*spec.file) : QString();
    auto found = m_pictures.find(key);
    if (found == m_pictures.end() || found->picture.isNull()) {
        Picture loaded{spec, PreviewPicture::load(spec), QImage()};
        found = m_pictures.insert(key, loaded);
    } else if (!(found->spec == spec)) {
        found->picture = found->picture.rekeyed(spec);
        found->spec = spec;
        found->drawn = QImage();
    }
    if (found->drawn.isNull() && !found->picture.isNull())
        found->drawn = found->picture.image().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return *found;
}

QList<int> SceneCanvas::zoomSteps()
{
    return {0, 50, 100, 200};
}

void SceneCanvas::setZoom(int percent)
{
    if (!zoomSteps().contains(percent))
        return;
    m_zoom = percent;
    if (m_zoom == 0) {
        setMinimumSize(320, 240);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    } else {
        setFixedSize(m_screen.width * m_zoom / 100, m_screen.height * m_zoom / 100);
    }
    updateGeometry();
    update();
}

QRect SceneCanvas::shownArea() const
{
    if (m_zoom > 0)
        return QRect(0, 0, m_screen.width * m_zoom / 100, m_screen.height * m_zoom / 100);
    const QSize size =
        QSize(m_screen.width, m_screen.height).scaled(this->size(), Qt::KeepAspectRatio);
    return QRect(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
}

QPoint SceneCanvas::toWidget(const QPoint &screenPoint) const
{
    const QRect area = shownArea();
    return QPoint(
        area.left() + (screenPoint.x() * area.width() + area.width() / 2) / m_screen.width,
        area.top() + (screenPoint.y() * area.height() + area.height() / 2) / m_screen.height);
}

QRect SceneCanvas::toWidget(const QRect &screenArea) const
{
    const QRect area = shownArea();
    const auto at = [&](int x, int y) {
        return QPoint(area.left() + x * area.width() / m_screen.width,
                      area.top() + y * area.height() / m_screen.height);
    };
    return QRect(
        at(screenArea.left(), screenArea.top()),
        at(screenArea.left() + screenArea.width(), screenArea.top() + screenArea.height()) -
            QPoint(1, 1));
}

QPoint SceneCanvas::toScreen(const QPoint &widgetPoint) const
{
    const QRect area = shownArea();
    if (area.isEmpty())
        return QPoint();
    const QPoint p = widgetPoint - area.topLeft();
    return QPoint(static_cast<int>(std::floor(double(p.x()) * m_screen.width / area.width())),
                  static_cast<int>(std::floor(double(p.y()) * m_screen.height / area.height())));
}

QRect SceneCanvas::objectArea(int layerSlot) const
{
    for (auto hit = m_hits.rbegin(); hit != m_hits.rend(); ++hit) {
        if (hit->second == layerSlot)
            return hit->first;
    }
    return QRect();
}

QRect SceneCanvas::objectRect(int layerSlot) const
{
    const QRect area = objectArea(layerSlot);
    return area.isEmpty() ? QRect() : toWidget(area);
}

int SceneCanvas::layerAt(const QPoint &screenPoint) const
{
    for (auto hit = m_hits.rbegin(); hit != m_hits.rend(); ++hit) {
        if (hit->first.contains(screenPoint))
            return hit->second;
    }
    return -1;
}

void SceneCanvas::setSelectedLayer(int layerSlot)
{
    if (m_selected == layerSlot)
        return;
    m_selected = layerSlot;
    update();
}

void SceneCanvas::setHovered(int layerSlot)
{
    if (m_hovered == layerSlot)
        return;
    m_hovered = layerSlot;
    update();
}

void SceneCanvas::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(shownArea(), m_image);
    // The selected layer in a solid outline, the object under the pointer in a dashed one.
    const auto outline = [&](int layerSlot, const QColor &colour, Qt::PenStyle style) {
        const QRect area = objectRect(layerSlot);
        if (area.isEmpty())
            return;
        QPen pen(colour, 2);
        pen.setStyle(style);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(area);
    };
    outline(m_selected, QColor(255, 215, 0), Qt::SolidLine);
    if (m_hovered != m_selected)
        outline(m_hovered, QColor(255, 255, 255), Qt::DashLine);
}

void SceneCanvas::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QRect area = shownArea();
    if (area.isEmpty() || !area.contains(event->position().toPoint()))
        return;
    const int layer = layerAt(toScreen(event->position().toPoint()));
    if (layer < 0)
        return;
    emit layerClicked(layer);
    m_dragged = layer;
    m_pressedAt = event->position().toPoint();
    setHovered(layer);
    emit dragStarted(layer);
}

void SceneCanvas::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint at = event->position().toPoint();
    if (m_dragged < 0) {
        setHovered(shownArea().contains(at) ? layerAt(toScreen(at)) : -1);
        return;
    }
    const QRect area = shownArea();
    const QPoint moved = at - m_pressedAt;
    const QPoint delta(qRound(double(moved.x()) * m_screen.width / area.width()),
                       qRound(double(moved.y()) * m_screen.height / area.height()));
    emit dragMoved(m_dragged, delta);
}

void SceneCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || m_dragged < 0)
        return;
    const int layer = m_dragged;
    m_dragged = -1;
    emit dragFinished(layer);
    const QPoint at = event->position().toPoint();
    setHovered(shownArea().contains(at) ? layerAt(toScreen(at)) : -1);
}

void SceneCanvas::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    if (m_dragged < 0)
        setHovered(-1);
}

} // namespace vorlane
