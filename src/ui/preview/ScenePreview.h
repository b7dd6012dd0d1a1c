#pragma once

#include "rules/ScenePlan.h"

#include <QWidget>

#include <vector>

class QLabel;

namespace vorlane {

class SceneCanvas;

// The scene canvas with the lines on layers that draw nothing under it, ready to stand
// beside a layer list: it reports the layer of a clicked object. It only reads records.
class ScenePreview : public QWidget
{
    Q_OBJECT
public:
    explicit ScenePreview(QWidget *parent = nullptr);

    // Lays out `layerSlots` of `scene` (the slots of a layer list's lines, in any order).
    void setScene(const Document &doc, const SceneRec &scene, std::vector<int> layerSlots);

    SceneCanvas *canvas() const { return m_canvas; }
    QString notesText() const;

signals:
    void layerClicked(int layerSlot);

private:
    SceneCanvas *m_canvas = nullptr;
    QLabel *m_notes = nullptr;
};

} // namespace vorlane
