#pragma once

#include "PreviewPicture.h"
#include "rules/ScenePlan.h"

#include <QHash>
#include <QImage>
#include <QRect>
#include <QStringList>
#include <QWidget>

#include <vector>

namespace vorlane {

// A scene as the engine lays it out: a screen of the application's size on which the layers
// are drawn in slot order. Images are drawn whole, sprites with the first cell of their
// current animation, graphic buttons with their up cell, hot spots as outlined rectangles and
// texts in their colour and size; an object whose file cannot be shown is a labelled outline.
// Clicking a drawn object reports its layer; dragging it reports how far it went, in pixels of
// the screen whatever the zoom, and its owner moves it. The object under the pointer is
// highlighted and the selected layer outlined. It only reads the records it is given.
class SceneCanvas : public QWidget
{
    Q_OBJECT
public:
    explicit SceneCanvas(QWidget *parent = nullptr);

    // Lays out `layerSlots` of `scene` (all its used layers the engine reads when none are
    // given) on the screen of `doc`'s application settings.
    void setScene(const Document &doc, const SceneRec &scene, std::vector<int> layerSlots);
    void setScene(const Document &doc, const SceneRec &scene);

    ScreenSize screen() const { return m_screen; }
    // The scene at its own size, one pixel of the screen to one pixel of the image.
    const QImage &sceneImage() const { return m_image; }
    // The layer drawn uppermost at a point of the screen; -1 where no object is drawn.
    int layerAt(const QPoint &screenPoint) const;
    // Where a point of the screen lies on the widget, which draws the screen scaled to fit
    // or at its zoom.
    QPoint toWidget(const QPoint &screenPoint) const;
    // The point of the screen under a point of the widget.
    QPoint toScreen(const QPoint &widgetPoint) const;
    // Where the object of a layer is drawn: on the screen, and on the widget. Empty when the
    // layer draws nothing.
    QRect objectArea(int layerSlot) const;
    QRect objectRect(int layerSlot) const;

    // 0 fits the screen into the widget; else the percent the screen is drawn at, the widget
    // then taking that size. One of zoomSteps().
    void setZoom(int percent);
    int zoom() const { return m_zoom; }
    static QList<int> zoomSteps();

    // The layer outlined as selected (-1 for none).
    void setSelectedLayer(int layerSlot);
    int selectedLayer() const { return m_selected; }
    // The layer of the object under the pointer, highlighted (-1 for none).
    int hoveredLayer() const { return m_hovered; }
    // The layer being dragged (-1 when no drag is under way).
    int draggedLayer() const { return m_dragged; }
    // Lines on layers that draw nothing: objects not found, music.
    const QStringList &notes() const { return m_notes; }

    QSize sizeHint() const override;

signals:
    void layerClicked(int layerSlot);
    // A press on an object starts a drag; each move tells how far the pointer has gone
    // since the press, in pixels of the screen; the release ends it.
    void dragStarted(int layerSlot);
    void dragMoved(int layerSlot, const QPoint &screenDelta);
    void dragFinished(int layerSlot);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QRect shownArea() const;
    QRect toWidget(const QRect &screenArea) const;
    void render(const Document &doc, const std::vector<SceneItem> &items);
    // The picture of a file, read once while the canvas lives (a drag draws every layer again
    // at each move), with a premultiplied copy, which Qt draws without converting it.
    struct Picture
    {
        PictureSpec spec;
        PreviewPicture picture;
        QImage drawn;
    };
    const Picture &picture(const PictureSpec &spec);
    void setHovered(int layerSlot);

    ScreenSize m_screen = DefaultScreen;
    QImage m_image;
    std::vector<std::pair<QRect, int>> m_hits; // in drawing order
    QStringList m_notes;
    int m_zoom = 0;
    int m_selected = -1;
    int m_hovered = -1;
    int m_dragged = -1;
    QPoint m_pressedAt;
    QHash<QString, Picture> m_pictures;
};

} // namespace vorlane
