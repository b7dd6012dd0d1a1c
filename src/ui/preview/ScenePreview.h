#pragma once

#include "rules/ScenePlan.h"

#include <QWidget>

#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QScrollArea;

namespace vorlane {

class SceneCanvas;

// The scene canvas with a zoom box and the "Snap to 8 px" check box above it and the lines on
// layers that draw nothing under it, ready to stand beside a layer list: it reports the layer
// of a clicked object and the drags of objects. It only reads records; the check box and the
// zoom are stored nowhere.
class ScenePreview : public QWidget
{
    Q_OBJECT
public:
    explicit ScenePreview(QWidget *parent = nullptr);

    // Lays out `layerSlots` of `scene` (the slots of a layer list's lines, in any order).
    void setScene(const Document &doc, const SceneRec &scene, std::vector<int> layerSlots);

    SceneCanvas *canvas() const { return m_canvas; }
    QComboBox *zoomBox() const { return m_zoomBox; }
    QCheckBox *snapBox() const { return m_snap; }
    bool snapToGrid() const;
    QString notesText() const;

signals:
    void layerClicked(int layerSlot);

private:
    void cmbSceneZoom_Click(int index);

    SceneCanvas *m_canvas = nullptr;
    QComboBox *m_zoomBox = nullptr;
    QCheckBox *m_snap = nullptr;
    QScrollArea *m_scroll = nullptr;
    QLabel *m_notes = nullptr;
};

} // namespace vorlane
