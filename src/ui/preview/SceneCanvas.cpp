#include "SceneCanvas.h"

#include "PreviewPainting.h"
#include "PreviewPicture.h"
#include "model/Kinds.h"
#include "rules/CellGrid.h"
#include "rules/PreviewTexts.h"

#include <QFontDatabase>
#include <QHash>
#include <QMouseEvent>
#include <QPainter>

namespace vorlane {

namespace {

// A cell-less object whose file cannot be shown gets an outline of this size.
constexpr int OutlineSide = 64;

QString qt(const std::string &text)
{
    return QString::fromStdString(text);
}

// The family of a font file, loaded once per file; empty when it cannot be loaded.
QString fontFamily(const std::string &file)
{
    static QHash<QString, QString> families;
    const QString path = qt(file);
    auto found = families.constFind(path);
    if (found != families.constEnd())
        return *found;
    const int id = QFontDatabase::addApplicationFont(path);
    const QStringList names = id < 0 ? QStringList() : QFontDatabase::applicationFontFamilies(id);
    const QString family = names.isEmpty() ? QString() : names.front();
    families.insert(path, family);
    return family;
}

QFont textFont(const SceneItem &item)
{
    QFont font;
    if (item.fontFile) {
        const QString family = fontFamily(*item.fontFile);
        if (!family.isEmpty())
            font.setFamily(family);
    }
    // One point of the engine's text is one pixel of its screen.
    font.setPixelSize(item.pointSize > 0 ? item.pointSize : 12);
    font.setBold(item.bold);
    font.setItalic(item.italic);
    font.setUnderline(item.underline);
    return font;
}

} // namespace

SceneCanvas::SceneCanvas(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("picScenePreview"));
    setMinimumSize(320, 240);
    setFocusPolicy(Qt::NoFocus);
    m_image = QImage(m_screen.width, m_screen.height, QImage::Format_ARGB32);
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
    updateGeometry();
    update();
}

void SceneCanvas::render(const Document &, const std::vector<SceneItem> &items)
{
    m_image = QImage(m_screen.width, m_screen.height, QImage::Format_ARGB32);
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
            painter.setFont(textFont(item));
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
            painter.setPen(QColor(std::clamp(item.foreRed, 0, 255),
                                  std::clamp(item.foreGreen, 0, 255),
                                  std::clamp(item.foreBlue, 0, 255)));
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
            const PreviewPicture picture = PreviewPicture::load(item.picture);
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
            const QImage &image = picture.image();
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

QRect SceneCanvas::shownArea() const
{
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

int SceneCanvas::layerAt(const QPoint &screenPoint) const
{
    for (auto hit = m_hits.rbegin(); hit != m_hits.rend(); ++hit) {
        if (hit->first.contains(screenPoint))
            return hit->second;
    }
    return -1;
}

void SceneCanvas::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(shownArea(), m_image);
}

void SceneCanvas::mousePressEvent(QMouseEvent *event)
{
    const QRect area = shownArea();
    if (area.isEmpty() || !area.contains(event->position().toPoint()))
        return;
    const QPoint p = event->position().toPoint() - area.topLeft();
    const QPoint screenPoint(p.x() * m_screen.width / area.width(),
                             p.y() * m_screen.height / area.height());
    const int layer = layerAt(screenPoint);
    if (layer >= 0)
        emit layerClicked(layer);
}

} // namespace vorlane
