#pragma once

#include "EditorForm.h"
#include "model/modGlobal.h"
#include "rules/ScenePlacement.h"
#include "rules/SceneRules.h"

#include "ui_frmScene.h"

namespace vorlane {

class frmMain;

// The scene editor: one SceneRec, its two options and its layers, each layer placing one
// text, sprite, image, button or music track of the project in the scene.
class frmScene : public EditorForm
{
    Q_OBJECT
public:
    // Edits the scene at the document's current object index.
    frmScene(Document &doc, frmMain *mainWindow = nullptr, QWidget *parent = nullptr);

    // Event handlers.
    void cmbSceneLayerObjects_Click();
    void lstSceneLayerObjects_Click();
    void lstSceneLayerObjects_DblClick();
    void cmdSceneLayerAdd_Click();
    void cmdSceneLayerDelete_Click();
    void cmdSceneLayerUp_Click();
    void cmdSceneLayerDown_Click();
    void lstSceneLayers_Click();

    SceneRec &record() { return m_scene; }
    const LayerList &layers() const { return m_layers; }
    const Ui::frmScene &form() const { return m_ui; }

protected:
    void newRecordDefaults() override;
    // Hands the scene back to the main window's list, then stores the number of layers.
    void handBack() override;

private:
    void declareBindings();
    void connectHandlers();
    // Shows the layer list again, with its selection.
    void showLayers();
    void applyButtons(const LayerButtons &buttons);
    // Lays the scene's listed layers out in the preview; it only reads the records.
    void showPreview();
    // Selects the line of the layer whose object was clicked in the preview.
    void picScenePreview_LayerClicked(int layerSlot);
    // A drag in the preview moves the layer's object: its own position fields change.
    void picScenePreview_DragStarted(int layerSlot);
    void picScenePreview_DragMoved(int layerSlot, const QPoint &screenDelta);
    void picScenePreview_DragFinished(int layerSlot);
    // Where a step of the main window's history is cut: with no name when a drag begins
    // (what came before is recorded apart), with the drag's name when it ends, so that the
    // drag is one step of its own.
    void cutHistoryStep(const std::string &name);
    // The slot of the selected line's layer; -1 for none.
    int selectedLayerSlot() const;

    Ui::frmScene m_ui;
    SceneRec &m_scene;
    LayerList m_layers;
    bool m_mirroring = false;
    // The drag under way: the object's position fields and where it stood at the press.
    std::optional<PositionFields> m_dragFields;
    ScenePoint m_dragStart;
};

} // namespace vorlane
