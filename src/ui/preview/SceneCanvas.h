#pragma once

#include "rules/ScenePlan.h"

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
// Clicking a drawn object reports its layer. It only reads the records it is given.
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
    // Where a point of the screen lies on the widget, which draws the screen scaled to fit.
    QPoint toWidget(const QPoint &screenPoint) const;
    // Lines on layers that draw nothing: objects not found, music.
    const QStringList &notes() const { return m_notes; }

    QSize sizeHint() const override;

signals:
    void layerClicked(int layerSlot);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    QRect shownArea() const;
    void render(const Document &doc, const std::vector<SceneItem> &items);

    ScreenSize m_screen = DefaultScreen;
    QImage m_image;
    std::vector<std::pair<QRect, int>> m_hits; // in drawing order
    QStringList m_notes;
};

} // namespace vorlane
