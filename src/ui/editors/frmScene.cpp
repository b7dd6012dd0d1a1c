#include "frmScene.h"

#include "SceneCanvas.h"
#include "ScenePreview.h"
#include "frmMain.h"
#include "rules/UserInterface.h"

#include <QListWidget>

#include <cstddef>
#include <vector>

namespace vorlane {

namespace {

constexpr int SlotRole = Qt::UserRole;

// A line once chosen stays selected: Ctrl+click must not leave a button acting on a line
// that no longer looks selected.
void keepLineSelected(QListWidget *list)
{
    QObject::connect(list, &QListWidget::itemSelectionChanged, list, [list]() {
        if (list->selectedItems().isEmpty() && list->currentItem())
            list->currentItem()->setSelected(true);
    });
}

} // namespace

frmScene::frmScene(Document &doc, frmMain *mainWindow, QWidget *parent)
    : EditorForm(doc, Kind::Scene, mainWindow, parent ? parent : mainWindow)
    , m_scene(doc.Scenes.at(static_cast<size_t>(doc.currentObjectIndex)))
{
    m_ui.setupUi(this);
    // No kind is chosen until the user chooses one, so no object is offered yet.
    m_ui.cmbSceneLayerObjects->setCurrentIndex(-1);
    declareBindings();
    connectHandlers();
}

void frmScene::newRecordDefaults()
{
    setSceneDefaults(m_scene);
}

// The bindings in the order the load fills them.
void frmScene::declareBindings()
{
    bindIdentifier(m_ui.txtSceneID, m_scene.id);
    loadStep([this]() {
        m_layers = sceneLayerList(m_scene);
        showLayers();
        applyButtons(buttonsAfterLoad(m_layers));
    });
    bindCheck(m_ui.chkSceneOptionsCursor, m_scene.useCursor);
    bindCheck(m_ui.chkSceneOptionsMusic, m_scene.useMusic);
}

void frmScene::connectHandlers()
{
    connect(m_ui.cmbSceneLayerObjects,
            &QComboBox::activated,
            this,
            &frmScene::cmbSceneLayerObjects_Click);

    // A line counts as chosen when it is selected, by the mouse or the keyboard; a line that
    // only has the focus (the list was tabbed into) is not.
    QListWidget *objects = m_ui.lstSceneLayerObjects;
    keepLineSelected(objects);
    connect(objects, &QListWidget::itemSelectionChanged, this, [this, objects]() {
        if (!objects->selectedItems().isEmpty())
            lstSceneLayerObjects_Click();
    });
    connect(objects, &QListWidget::itemClicked, this, &frmScene::lstSceneLayerObjects_Click);
    connect(
        objects, &QListWidget::itemDoubleClicked, this, &frmScene::lstSceneLayerObjects_DblClick);

    QListWidget *layers = m_ui.lstSceneLayers;
    keepLineSelected(layers);
    connect(layers, &QListWidget::itemSelectionChanged, this, [this, layers]() {
        if (m_mirroring)
            return;
        const QList<QListWidgetItem *> selected = layers->selectedItems();
        m_layers.selected = selected.isEmpty() ? -1 : layers->row(selected.first());
        lstSceneLayers_Click();
    });
    // A click on the line that is already selected counts as a selection too.
    connect(layers, &QListWidget::itemClicked, this, [this, layers](QListWidgetItem *item) {
        m_layers.selected = layers->row(item);
        lstSceneLayers_Click();
    });

    connect(m_ui.picScenePreview,
            &ScenePreview::layerClicked,
            this,
            &frmScene::picScenePreview_LayerClicked);
    SceneCanvas *canvas = m_ui.picScenePreview->canvas();
    connect(canvas, &SceneCanvas::dragStarted, this, &frmScene::picScenePreview_DragStarted);
    connect(canvas, &SceneCanvas::dragMoved, this, &frmScene::picScenePreview_DragMoved);
    connect(canvas, &SceneCanvas::dragFinished, this, &frmScene::picScenePreview_DragFinished);

    connect(m_ui.cmdSceneLayerAdd, &QPushButton::clicked, this, &frmScene::cmdSceneLayerAdd_Click);
    connect(m_ui.cmdSceneLayerDelete,
            &QPushButton::clicked,
            this,
            &frmScene::cmdSceneLayerDelete_Click);
    connect(m_ui.cmdSceneLayerUp, &QPushButton::clicked, this, &frmScene::cmdSceneLayerUp_Click);
    connect(
        m_ui.cmdSceneLayerDown, &QPushButton::clicked, this, &frmScene::cmdSceneLayerDown_Click);
}

void frmScene::showLayers()
{
    QListWidget *list = m_ui.lstSceneLayers;
    m_mirroring = true;
    list->clear();
    for (const ListLine &line : m_layers.lines) {
        auto *item = new QListWidgetItem(QString::fromStdString(line.text));
        item->setData(SlotRole, static_cast<int>(line.slot));
        list->addItem(item);
    }
    list->setCurrentRow(m_layers.selected);
    m_mirroring = false;
    showPreview();
}

void frmScene::showPreview()
{
    std::vector<int> listed;
    for (const ListLine &line : m_layers.lines)
        listed.push_back(line.slot);
    m_ui.picScenePreview->setScene(document(), m_scene, std::move(listed));
    m_ui.picScenePreview->canvas()->setSelectedLayer(selectedLayerSlot());
}

int frmScene::selectedLayerSlot() const
{
    if (m_layers.selected < 0 || static_cast<size_t>(m_layers.selected) >= m_layers.lines.size())
        return -1;
    return m_layers.lines[static_cast<size_t>(m_layers.selected)].slot;
}

void frmScene::picScenePreview_DragStarted(int layerSlot)
{
    m_dragFields.reset();
    if (layerSlot < 0 || layerSlot > LastLayerSlot)
        return;
    m_dragFields = layerPosition(document(), m_scene.layers[static_cast<size_t>(layerSlot)]);
    if (!m_dragFields)
        return;
    m_dragStart = m_dragFields->point();
    cutHistoryStep({});
}

void frmScene::picScenePreview_DragMoved(int, const QPoint &screenDelta)
{
    if (!m_dragFields)
        return;
    const ScenePoint to = droppedAt(m_dragStart,
                                    ScenePoint{screenDelta.x(), screenDelta.y()},
                                    m_ui.picScenePreview->snapToGrid());
    if (placeAt(*m_dragFields, to))
        showPreview();
}

void frmScene::picScenePreview_DragFinished(int layerSlot)
{
    if (!m_dragFields)
        return;
    const bool moved = !(m_dragFields->point() == m_dragStart);
    m_dragFields.reset();
    if (moved)
        cutHistoryStep(moveStepName(m_scene.layers[static_cast<size_t>(layerSlot)]));
}

void frmScene::cutHistoryStep(const std::string &name)
{
    // A drag is a step of its own inside the editor's session; an editor opened without a
    // main window has no history.
    if (frmMain *main = mainWindow())
        main->history().cutStep(name);
}

void frmScene::picScenePreview_LayerClicked(int layerSlot)
{
    for (size_t row = 0; row < m_layers.lines.size(); ++row) {
        if (m_layers.lines[row].slot == layerSlot) {
            m_ui.lstSceneLayers->setCurrentRow(static_cast<int>(row));
            // Selecting the line already selected is a click on it all the same.
            m_layers.selected = static_cast<int>(row);
            lstSceneLayers_Click();
            return;
        }
    }
}

void frmScene::applyButtons(const LayerButtons &buttons)
{
    const auto apply = [](QPushButton *button, const std::optional<bool> &enabled) {
        if (enabled)
            button->setEnabled(*enabled);
    };
    apply(m_ui.cmdSceneLayerAdd, buttons.add);
    apply(m_ui.cmdSceneLayerDelete, buttons.remove);
    apply(m_ui.cmdSceneLayerUp, buttons.up);
    apply(m_ui.cmdSceneLayerDown, buttons.down);
}

void frmScene::cmbSceneLayerObjects_Click()
{
    QListWidget *objects = m_ui.lstSceneLayerObjects;
    objects->clear();
    for (const std::string &id :
         layerObjectChoices(document(), m_ui.cmbSceneLayerObjects->currentIndex()))
        objects->addItem(QString::fromStdString(id));
}

void frmScene::lstSceneLayerObjects_Click()
{
    m_ui.cmdSceneLayerAdd->setEnabled(true);
}

void frmScene::lstSceneLayerObjects_DblClick()
{
    cmdSceneLayerAdd_Click();
}

void frmScene::cmdSceneLayerAdd_Click()
{
    // With no object chosen (another kind was chosen since) there is nothing to place.
    const QList<QListWidgetItem *> chosen = m_ui.lstSceneLayerObjects->selectedItems();
    const int choice = m_ui.cmbSceneLayerObjects->currentIndex();
    if (chosen.isEmpty() || !layerObjectKind(choice + 1))
        return;
    const QListWidgetItem *object = chosen.first();
    const LayerAddResult result = addLayer(m_scene,
                                           document().layerOverflow,
                                           m_layers,
                                           static_cast<int16_t>(choice + 1),
                                           object->text().toStdString());
    if (result.refusal) {
        userInterface().showMessage(*result.refusal);
        return;
    }
    showLayers();
    lstSceneLayers_Click();
    applyButtons(buttonsAfterAdd(m_layers));
}

void frmScene::cmdSceneLayerDelete_Click()
{
    if (!deleteLayer(m_scene, m_layers))
        return;
    showLayers();
    lstSceneLayers_Click();
    applyButtons(buttonsAfterDelete(m_layers));
}

void frmScene::cmdSceneLayerUp_Click()
{
    if (!moveLayerUp(m_layers))
        return;
    showLayers();
    lstSceneLayers_Click();
}

void frmScene::cmdSceneLayerDown_Click()
{
    if (!moveLayerDown(m_layers))
        return;
    showLayers();
    lstSceneLayers_Click();
}

void frmScene::lstSceneLayers_Click()
{
    std::string caption;
    if (m_layers.selected >= 0 && static_cast<size_t>(m_layers.selected) < m_layers.lines.size()) {
        const int16_t slot = m_layers.lines[static_cast<size_t>(m_layers.selected)].slot;
        if (slot >= 0 && slot <= LastLayerSlot)
            caption = layerTypeCaption(m_scene.layers[static_cast<size_t>(slot)].objectKind);
    }
    m_ui.lblSceneLayerType->setText(QString::fromStdString(caption));
    m_ui.picScenePreview->canvas()->setSelectedLayer(selectedLayerSlot());
    applyButtons(buttonsAfterSelection(m_layers));
}

void frmScene::handBack()
{
    // The main window's line is refreshed first, so its statistics still show the number of
    // layers from before; the line's next selection shows the new one.
    EditorForm::handBack();
    m_scene.layerCount = static_cast<int16_t>(m_layers.lines.size());
}

} // namespace vorlane
