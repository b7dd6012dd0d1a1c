#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmMain.h"
#include "frmScene.h"
#include "model/Kinds.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

using namespace vorlane;

namespace {

// The enabled states of Add, Delete, Up and Down, in that order.
QList<bool> layerButtons(const Ui::frmScene &f)
{
    return {f.cmdSceneLayerAdd->isEnabled(),
            f.cmdSceneLayerDelete->isEnabled(),
            f.cmdSceneLayerUp->isEnabled(),
            f.cmdSceneLayerDown->isEnabled()};
}

} // namespace

// The scene editor opened from the main window as a user opens it: New project, the Scene
// tab, Add Object, Edit Properties.
class tst_frmScene : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    SceneRec &scene(int slot = 0) { return m_doc->Scenes[static_cast<size_t>(slot)]; }
    QLabel *mainLabel(const char *name)
    {
        return m_window->findChild<QLabel *>(QString::fromUtf8(name));
    }

    void addObject(Kind kind)
    {
        clickTab(*m_window, tabOf(kind));
        clickButton(m_window->form().cmdObjAdd);
    }

    // Adds an object of `kind` and gives it the state it has once opened in its editor.
    void addOpened(Kind kind, const std::string &id)
    {
        addObject(kind);
        const SlotView view = slotOf(*m_doc, kind, m_doc->list(kind).lines.back().slot);
        view.inUse = -1;
        view.isNew = 0;
        view.id = id;
    }

    // The scene in slot 0, already edited once, with layers in `usedSlots` named "L" and
    // their slot, of kind 2 (sprites), and the given layerCount.
    void prepareScene(const std::vector<int> &usedSlots, int layerCount)
    {
        SceneRec &s = scene();
        s.inUse = -1;
        s.isNew = 0;
        s.id = "scnMenu";
        s.useCursor = 0;
        s.useMusic = 1;
        s.layerCount = static_cast<int16_t>(layerCount);
        for (int slot : usedSlots) {
            LayerRec &layer = s.layers[static_cast<size_t>(slot)];
            layer.inUse = -1;
            layer.objectKind = 2;
            layer.objectId = "L" + std::to_string(slot);
        }
    }

    bool edit(std::function<void(frmScene *)> action)
    {
        clickTab(*m_window, tabOf(Kind::Scene));
        return editProperties<frmScene>(*m_window, std::move(action));
    }

    // Chooses entry `kindRow` of the kind box, then object `objectRow`, then Add.
    static void addLayer(frmScene *editor, int kindRow, int objectRow)
    {
        const auto &f = editor->form();
        if (f.cmbSceneLayerObjects->currentIndex() != kindRow)
            chooseEntry(f.cmbSceneLayerObjects, kindRow);
        clickLine(f.lstSceneLayerObjects, objectRow);
        clickButton(f.cmdSceneLayerAdd);
    }

private slots:
    void init()
    {
        m_doc = makeDocument();
        m_ui = std::make_unique<ScriptedUserInterface>();
        m_window = std::make_unique<frmMain>(*m_doc, *m_ui);
        registerEditors(*m_window);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        newProject(*m_window);
        addOpened(Kind::Text, "txtTitle");
        addOpened(Kind::Sprite, "sprHero");
        addOpened(Kind::Button, "btnStart");
        addObject(Kind::Scene);
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
    }

    void controlsCarryTheirCaptions()
    {
        edit([](frmScene *editor) {
            const auto &f = editor->form();
            QCOMPARE(editor->windowTitle(), QStringLiteral("Scene Data"));
            QCOMPARE(f.frmSceneID->title(), QStringLiteral("Scene ID"));
            QCOMPARE(f.frmSceneOptions->title(), QStringLiteral("Scene Options"));
            QCOMPARE(f.frmSceneLayers->title(), QStringLiteral("Scene Layers"));
            QCOMPARE(f.frmSceneLayerObjects->title(), QStringLiteral("Scene Layer Objects"));
            QCOMPARE(f.chkSceneOptionsMusic->text(), QStringLiteral("Stop all music"));
            QCOMPARE(f.chkSceneOptionsCursor->text(), QStringLiteral("Show mouse cursor"));
            QCOMPARE(itemTexts(f.cmbSceneLayerObjects),
                     QStringList({"Texts", "Sprites", "Images", "Buttons", "Music"}));
            QCOMPARE(f.cmbSceneLayerObjects->currentIndex(), -1);
            QVERIFY(f.txtSceneID && f.lstSceneLayers && f.lstSceneLayerObjects);
            QCOMPARE(f.cmdSceneLayerAdd->objectName(), QStringLiteral("cmdSceneLayerAdd"));
            QCOMPARE(f.cmdSceneLayerDelete->objectName(), QStringLiteral("cmdSceneLayerDelete"));
            QCOMPARE(f.cmdSceneLayerUp->objectName(), QStringLiteral("cmdSceneLayerUp"));
            QCOMPARE(f.cmdSceneLayerDown->objectName(), QStringLiteral("cmdSceneLayerDown"));
            QCOMPARE(f.lblSceneLayerType->objectName(), QStringLiteral("lblSceneLayerType"));
            QCOMPARE(f.lblSceneLayerType->text(), QString());
            // Enter in the identifier box must not press a layer button.
            for (QPushButton *button : {f.cmdSceneLayerAdd,
                                        f.cmdSceneLayerDelete,
                                        f.cmdSceneLayerUp,
                                        f.cmdSceneLayerDown})
                QVERIFY2(!button->autoDefault(), qPrintable(button->objectName()));
        });
    }

    void freshSceneOpensWithDefaults()
    {
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtSceneID->text(), QStringLiteral("Enter_ID"));
            QVERIFY(f.chkSceneOptionsMusic->isChecked());
            QVERIFY(f.chkSceneOptionsCursor->isChecked());
            QCOMPARE(f.lstSceneLayers->count(), 0);
            QCOMPARE(f.lstSceneLayerObjects->count(), 0);
            QCOMPARE(layerButtons(f), QList<bool>({false, false, false, false}));
            const SceneRec &s = scene();
            QCOMPARE(s.id, std::string("Enter_ID"));
            QCOMPARE(s.useCursor, int16_t(1));
            QCOMPARE(s.useMusic, int16_t(1));
            QCOMPARE(s.layerCount, int16_t(0));
            QCOMPARE(s.isNew, int16_t(0));
            QCOMPARE(s.inUse, int16_t(-1));
        });
        // Closed without a change, the scene still exists and shows its statistics.
        QCOMPARE(listTexts(m_window->objectList(10)), QStringList({"Enter_ID"}));
        QVERIFY(!m_window->coverFrame(10)->isVisible());
        QCOMPARE(mainLabel("lblSceneStatsLayers")->text(), QStringLiteral("# of Layers: 0"));
        QCOMPARE(mainLabel("lblSceneStatsCursor")->text(), QStringLiteral("Show Mouse: YES"));
        QCOMPARE(mainLabel("lblSceneStatsMusic")->text(), QStringLiteral("Stop Music: YES"));
    }

    void freshSceneKeepsLayersLeftInItsSlot()
    {
        // Slot 0 held a scene with layers before; opening the new scene there sets its own
        // fields only, and the leftover layers keep their slots.
        prepareScene({0, 1, 2}, 3);
        scene().inUse = 0;
        scene().isNew = -1;
        edit([this](frmScene *editor) {
            QCOMPARE(editor->form().lstSceneLayers->count(), 0);
            QCOMPARE(scene().layerCount, int16_t(0));
            for (int slot : {0, 1, 2})
                QCOMPARE(scene().layers[static_cast<size_t>(slot)].inUse, int16_t(-1));
            QCOMPARE(scene().layers[3].inUse, int16_t(0));
            addLayer(editor, 0, 0);
            QCOMPARE(listTexts(editor->form().lstSceneLayers), QStringList({"txtTitle"}));
            QCOMPARE(listSlots(editor->form().lstSceneLayers), QList<int>({3}));
            QCOMPARE(scene().layers[3].objectId, std::string("txtTitle"));
            QCOMPARE(scene().layers[0].objectId, std::string("L0"));
            QCOMPARE(m_doc->layerOverflow, int16_t(0));
        });
        QCOMPARE(scene().layerCount, int16_t(1));
        QCOMPARE(scene().layers[1].inUse, int16_t(-1));
    }

    void leftoverLayersInEverySlotBringInTheOverflowCounter()
    {
        std::vector<int> used;
        for (int slot = 0; slot <= 100; ++slot)
            used.push_back(slot);
        prepareScene(used, 101);
        scene().inUse = 0;
        scene().isNew = -1;
        QCOMPARE(m_doc->layerOverflow, int16_t(0)); // New set it to 0
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.lstSceneLayers->count(), 0);
            addLayer(editor, 1, 0);
            QVERIFY(m_ui->messages.empty());
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"sprHero"}));
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({0}));
            QCOMPARE(scene().layers[0].objectId, std::string("sprHero"));
            QCOMPARE(scene().layers[0].objectKind, int16_t(2));
            QCOMPARE(scene().layers[1].objectId, std::string("L1"));
            QCOMPARE(m_doc->layerOverflow, int16_t(1));
            addLayer(editor, 0, 0);
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({0, 1}));
            QCOMPARE(scene().layers[1].objectId, std::string("txtTitle"));
            QCOMPARE(m_doc->layerOverflow, int16_t(2));
        });
        QCOMPARE(scene().layerCount, int16_t(2));
    }

    void emptyingTheIdPutsEnterIdBack()
    {
        edit([this](frmScene *editor) {
            QLineEdit *id = editor->form().txtSceneID;
            typeInto(id, QStringLiteral("scnTitle"));
            QCOMPARE(scene().id, std::string("scnTitle"));
            clearBox(id);
            QCOMPARE(id->text(), QStringLiteral("Enter_ID"));
            QCOMPARE(scene().id, std::string("Enter_ID"));
        });
    }

    void checkBoxesStoreTheirOptions()
    {
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            QTest::mouseClick(f.chkSceneOptionsMusic, Qt::LeftButton);
            QCOMPARE(scene().useMusic, int16_t(0));
            QCOMPARE(scene().useCursor, int16_t(1));
            QTest::mouseClick(f.chkSceneOptionsCursor, Qt::LeftButton);
            QCOMPARE(scene().useCursor, int16_t(0));
            QTest::mouseClick(f.chkSceneOptionsMusic, Qt::LeftButton);
            QCOMPARE(scene().useMusic, int16_t(1));
        });
        QCOMPARE(mainLabel("lblSceneStatsCursor")->text(), QStringLiteral("Show Mouse: NO"));
        QCOMPARE(mainLabel("lblSceneStatsMusic")->text(), QStringLiteral("Stop Music: YES"));
        // Reopened, the options are shown as stored, not reset.
        edit([](frmScene *editor) {
            QVERIFY(editor->form().chkSceneOptionsMusic->isChecked());
            QVERIFY(!editor->form().chkSceneOptionsCursor->isChecked());
        });
    }

    void choosingAKindOffersItsObjectsInListOrder()
    {
        addObject(Kind::Text); // never opened: not offered
        addOpened(Kind::Text, "txtScore");
        addOpened(Kind::Image, "imgSky");
        addOpened(Kind::Music, "musTheme");
        addOpened(Kind::Cursor, "curHand");
        // The text list's order differs from the slot order: txtScore (slot 2) comes first.
        std::vector<ListLine> &texts = m_doc->list(Kind::Text).lines;
        std::swap(texts[0], texts[2]);
        m_window->showList(Kind::Text);

        edit([](frmScene *editor) {
            const auto &f = editor->form();
            const QList<QStringList> expected{
                {"txtScore", "txtTitle"}, {"sprHero"}, {"imgSky"}, {"btnStart"}, {"musTheme"}};
            for (int row = 0; row < 5; ++row) {
                chooseEntry(f.cmbSceneLayerObjects, row);
                QCOMPARE(f.cmbSceneLayerObjects->currentIndex(), row);
                QCOMPARE(listTexts(f.lstSceneLayerObjects), expected[row]);
            }
        });
    }

    void addIsOnOnceAnObjectIsChosen()
    {
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            chooseEntry(f.cmbSceneLayerObjects, 0);
            QVERIFY(!f.cmdSceneLayerAdd->isEnabled());
            clickLine(f.lstSceneLayerObjects, 0);
            QVERIFY(f.cmdSceneLayerAdd->isEnabled());
            // Another kind refills the object list with nothing chosen; Add stays on.
            chooseEntry(f.cmbSceneLayerObjects, 3);
            QCOMPARE(listTexts(f.lstSceneLayerObjects), QStringList({"btnStart"}));
            QVERIFY(f.lstSceneLayerObjects->selectedItems().isEmpty());
            QVERIFY(f.cmdSceneLayerAdd->isEnabled());
            // Add, or a double click, with no object chosen places nothing.
            clickButton(f.cmdSceneLayerAdd);
            editor->lstSceneLayerObjects_DblClick();
            QCOMPARE(f.lstSceneLayers->count(), 0);
            QVERIFY(m_ui->messages.empty());
            for (const LayerRec &layer : scene().layers)
                QCOMPARE(layer.inUse, int16_t(0));
            QVERIFY(f.cmdSceneLayerAdd->isEnabled());
            QCOMPARE(layerButtons(f), QList<bool>({true, false, false, false}));
            // Once an object is chosen, Add places it with the kind now chosen.
            clickLine(f.lstSceneLayerObjects, 0);
            clickButton(f.cmdSceneLayerAdd);
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"btnStart"}));
            QCOMPARE(scene().layers[0].objectKind, int16_t(4));
        });
    }

    void addPlacesLayersInTheFirstFreeSlots()
    {
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            addLayer(editor, 0, 0);
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"txtTitle"}));
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({0}));
            QCOMPARE(f.lstSceneLayers->currentRow(), 0);
            QVERIFY(f.lstSceneLayers->item(0)->isSelected());
            QCOMPARE(f.lblSceneLayerType->text(), QStringLiteral("Texts"));
            QCOMPARE(layerButtons(f), QList<bool>({true, true, false, false}));

            addLayer(editor, 1, 0);
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"txtTitle", "sprHero"}));
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({0, 1}));
            QCOMPARE(f.lstSceneLayers->currentRow(), 1);
            QCOMPARE(f.lblSceneLayerType->text(), QStringLiteral("Sprites"));
            // After Add: Delete, Down (more than one line) and Up (not the first line).
            QCOMPARE(layerButtons(f), QList<bool>({true, true, true, true}));

            const SceneRec &s = scene();
            QCOMPARE(s.layers[0].inUse, int16_t(-1));
            QCOMPARE(s.layers[0].objectKind, int16_t(1));
            QCOMPARE(s.layers[0].objectId, std::string("txtTitle"));
            QCOMPARE(s.layers[1].inUse, int16_t(-1));
            QCOMPARE(s.layers[1].objectKind, int16_t(2));
            QCOMPARE(s.layers[1].objectId, std::string("sprHero"));
            QCOMPARE(s.layers[2].inUse, int16_t(0));
            QCOMPARE(s.layerCount, int16_t(0)); // stored when the editor closes
            QCOMPARE(m_doc->layerOverflow, int16_t(0));
        });
        QCOMPARE(scene().layerCount, int16_t(2));
        // The line was refreshed before the count was stored: the statistics shown on closing
        // carry the count from before, the next selection of the line the new one.
        QCOMPARE(mainLabel("lblSceneStatsLayers")->text(), QStringLiteral("# of Layers: 0"));
        clickLine(m_window->objectList(10), 0);
        QCOMPARE(mainLabel("lblSceneStatsLayers")->text(), QStringLiteral("# of Layers: 2"));
    }

    void addFillsTheGapLeftByADeletedLayer()
    {
        prepareScene({0, 1, 2}, 3);
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            clickLine(f.lstSceneLayers, 1);
            clickButton(f.cmdSceneLayerDelete);
            addLayer(editor, 3, 0);
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"L0", "L2", "btnStart"}));
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({0, 2, 1}));
            QCOMPARE(scene().layers[1].objectKind, int16_t(4));
            QCOMPARE(scene().layers[1].objectId, std::string("btnStart"));
            QCOMPARE(f.lblSceneLayerType->text(), QStringLiteral("Buttons"));
        });
    }

    void doubleClickOnAnObjectAddsIt()
    {
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            chooseEntry(f.cmbSceneLayerObjects, 3);
            QListWidget *objects = f.lstSceneLayerObjects;
            const QPoint point = objects->visualItemRect(objects->item(0)).center();
            QTest::mouseClick(objects->viewport(), Qt::LeftButton, {}, point);
            QTest::mouseDClick(objects->viewport(), Qt::LeftButton, {}, point);
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"btnStart"}));
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({0}));
            QCOMPARE(scene().layers[0].objectKind, int16_t(4));
        });
    }

    void hundredFirstLayerIsRefused()
    {
        std::vector<int> used;
        for (int slot = 0; slot < 100; ++slot)
            used.push_back(slot);
        prepareScene(used, 100);
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.lstSceneLayers->count(), 100);
            addLayer(editor, 0, 0);
            QCOMPARE(m_ui->messages.size(), size_t(1));
            const Message &message = m_ui->messages.front();
            QCOMPARE(message.text, std::string("No space left for Layers! (Max 100)"));
            QCOMPARE(message.title, std::string("Object Overload"));
            QCOMPARE(message.icon, MessageIcon::Critical);
            QCOMPARE(message.buttons, MessageButtons::OK);
            QCOMPARE(f.lstSceneLayers->count(), 100);
            QCOMPARE(scene().layers[100].inUse, int16_t(0));
            QCOMPARE(m_doc->layerOverflow, int16_t(0));
        });
        QCOMPARE(scene().layerCount, int16_t(100));
    }

    void noFreeLayerSlotUsesTheOverflowCounter()
    {
        // Every slot is in use but the scene lists none of them (its layerCount is 0).
        std::vector<int> used;
        for (int slot = 0; slot <= 100; ++slot)
            used.push_back(slot);
        prepareScene(used, 0);
        m_doc->layerOverflow = 3;
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.lstSceneLayers->count(), 0);
            addLayer(editor, 1, 0);
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"sprHero"}));
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({3}));
            QCOMPARE(scene().layers[3].objectId, std::string("sprHero"));
            QCOMPARE(scene().layers[3].objectKind, int16_t(2));
            QCOMPARE(scene().layers[4].objectId, std::string("L4"));
            QCOMPARE(m_doc->layerOverflow, int16_t(4));
            QVERIFY(m_ui->messages.empty());
        });
    }

    void overflowCounterPastTheTableIsRefused()
    {
        std::vector<int> used;
        for (int slot = 0; slot <= 100; ++slot)
            used.push_back(slot);
        prepareScene(used, 0);
        m_doc->layerOverflow = 101;
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            addLayer(editor, 0, 0);
            QCOMPARE(m_ui->messages.size(), size_t(1));
            QCOMPARE(m_ui->messages.front().text,
                     std::string("No space left for Layers! (Max 100)"));
            QCOMPARE(m_ui->messages.front().title, std::string("Object Overload"));
            QCOMPARE(f.lstSceneLayers->count(), 0);
            QCOMPARE(m_doc->layerOverflow, int16_t(101));
            QCOMPARE(scene().layers[100].objectId, std::string("L100"));
        });
        QCOMPARE(scene().layerCount, int16_t(0));
    }

    void openingListsLayersInSlotOrder()
    {
        prepareScene({9, 2, 5}, 3);
        edit([](frmScene *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtSceneID->text(), QStringLiteral("scnMenu"));
            QVERIFY(!f.chkSceneOptionsCursor->isChecked());
            QVERIFY(f.chkSceneOptionsMusic->isChecked());
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"L2", "L5", "L9"}));
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({2, 5, 9}));
            QCOMPARE(f.lstSceneLayers->currentRow(), -1);
            // Delete with a line; Up and Down with two or more.
            QCOMPARE(layerButtons(f), QList<bool>({false, true, true, true}));
        });
    }

    void openingWithNoLayerCountShowsNoLayers()
    {
        prepareScene({0, 1}, 0);
        edit([](frmScene *editor) {
            QCOMPARE(editor->form().lstSceneLayers->count(), 0);
            QCOMPARE(layerButtons(editor->form()), QList<bool>({false, false, false, false}));
        });
    }

    void oneLayerEnablesDeleteOnly()
    {
        prepareScene({4}, 1);
        edit([](frmScene *editor) {
            QCOMPARE(layerButtons(editor->form()), QList<bool>({false, true, false, false}));
        });
    }

    void deletingTheLastOfThreeSelectsTheNewLast()
    {
        prepareScene({0, 1, 2}, 3);
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            clickLine(f.lstSceneLayers, 2);
            clickButton(f.cmdSceneLayerDelete);
            QVERIFY(m_ui->messages.empty()); // no confirmation
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"L0", "L1"}));
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({0, 1}));
            QCOMPARE(f.lstSceneLayers->currentRow(), 1);
            QVERIFY(f.lstSceneLayers->item(1)->isSelected());
            QCOMPARE(scene().layers[2].inUse, int16_t(0));
            QCOMPARE(scene().layers[2].objectKind, int16_t(2));
            QCOMPARE(scene().layers[2].objectId, std::string("L2"));
            QCOMPARE(f.lblSceneLayerType->text(), QStringLiteral("Sprites"));
        });
        QCOMPARE(scene().layerCount, int16_t(2));
    }

    void deletingAMiddleLineSelectsTheLineAtItsPlace()
    {
        prepareScene({0, 1, 2}, 3);
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            clickLine(f.lstSceneLayers, 1);
            clickButton(f.cmdSceneLayerDelete);
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"L0", "L2"}));
            QCOMPARE(f.lstSceneLayers->currentRow(), 1);
            QCOMPARE(scene().layers[1].inUse, int16_t(0));
        });
    }

    void deletingTheOnlyLayerDisablesAllFourButtons()
    {
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            addLayer(editor, 0, 0);
            QCOMPARE(layerButtons(f), QList<bool>({true, true, false, false}));
            clickButton(f.cmdSceneLayerDelete);
            QCOMPARE(f.lstSceneLayers->count(), 0);
            QCOMPARE(layerButtons(f), QList<bool>({false, false, false, false}));
            QCOMPARE(f.lblSceneLayerType->text(), QString());
            QCOMPARE(scene().layers[0].inUse, int16_t(0));
            // The object is still chosen; choosing it again turns Add back on.
            clickLine(f.lstSceneLayerObjects, 0);
            QVERIFY(f.cmdSceneLayerAdd->isEnabled());
        });
        QCOMPARE(scene().layerCount, int16_t(0));
    }

    void upOnTheSecondLineExchangesTheLinesOnly()
    {
        prepareScene({0, 1, 2}, 3);
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            clickLine(f.lstSceneLayers, 1);
            clickButton(f.cmdSceneLayerUp);
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"L1", "L0", "L2"}));
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({1, 0, 2}));
            QCOMPARE(f.lstSceneLayers->currentRow(), 0);
            QVERIFY(f.lstSceneLayers->item(0)->isSelected());
            // Both layer records keep their slots.
            QCOMPARE(scene().layers[0].objectId, std::string("L0"));
            QCOMPARE(scene().layers[1].objectId, std::string("L1"));
            QCOMPARE(scene().layers[0].inUse, int16_t(-1));
            QCOMPARE(scene().layers[1].inUse, int16_t(-1));
            // The moved line is now the first: Up off, Down on.
            QCOMPARE(layerButtons(f), QList<bool>({false, true, false, true}));
        });
        QCOMPARE(scene().layerCount, int16_t(3));
    }

    void downMovesTheLineBelowAndStopsAtTheEnd()
    {
        prepareScene({0, 1, 2}, 3);
        edit([](frmScene *editor) {
            const auto &f = editor->form();
            clickLine(f.lstSceneLayers, 0);
            clickButton(f.cmdSceneLayerDown);
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({1, 0, 2}));
            QCOMPARE(f.lstSceneLayers->currentRow(), 1);
            QCOMPARE(layerButtons(f), QList<bool>({false, true, true, true}));
            clickButton(f.cmdSceneLayerDown);
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({1, 2, 0}));
            QCOMPARE(f.lstSceneLayers->currentRow(), 2);
            QCOMPARE(layerButtons(f), QList<bool>({false, true, true, false}));
            // The last line goes no further, even when asked.
            editor->cmdSceneLayerDown_Click();
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({1, 2, 0}));
            QCOMPARE(f.lstSceneLayers->currentRow(), 2);
        });
    }

    void upOnTheFirstLineDoesNothing()
    {
        prepareScene({0, 1}, 2);
        edit([](frmScene *editor) {
            const auto &f = editor->form();
            clickLine(f.lstSceneLayers, 0);
            editor->cmdSceneLayerUp_Click();
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({0, 1}));
            QCOMPARE(f.lstSceneLayers->currentRow(), 0);
        });
    }

    void buttonsWithNoSelectedLineDoNothing()
    {
        prepareScene({0, 1}, 2);
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            // Opening enables Delete, Up and Down with no line selected yet.
            QCOMPARE(f.lstSceneLayers->currentRow(), -1);
            clickButton(f.cmdSceneLayerDelete);
            clickButton(f.cmdSceneLayerUp);
            clickButton(f.cmdSceneLayerDown);
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({0, 1}));
            QCOMPARE(scene().layers[0].inUse, int16_t(-1));
            QCOMPARE(scene().layers[1].inUse, int16_t(-1));
            QVERIFY(m_ui->messages.empty());
        });
        QCOMPARE(scene().layerCount, int16_t(2));
    }

    void selectingALineShowsItsKindAndSetsUpAndDown()
    {
        prepareScene({0, 1, 2}, 3);
        scene().layers[0].objectKind = 1;
        scene().layers[1].objectKind = 5;
        scene().layers[2].objectKind = 3;
        edit([](frmScene *editor) {
            const auto &f = editor->form();
            clickLine(f.lstSceneLayers, 0);
            QCOMPARE(f.lblSceneLayerType->text(), QStringLiteral("Texts"));
            QCOMPARE(layerButtons(f), QList<bool>({false, true, false, true}));
            clickLine(f.lstSceneLayers, 1);
            QCOMPARE(f.lblSceneLayerType->text(), QStringLiteral("Music"));
            QCOMPARE(layerButtons(f), QList<bool>({false, true, true, true}));
            QTest::keyClick(f.lstSceneLayers, Qt::Key_Down);
            QCOMPARE(f.lstSceneLayers->currentRow(), 2);
            QCOMPARE(f.lblSceneLayerType->text(), QStringLiteral("Images"));
            QCOMPARE(layerButtons(f), QList<bool>({false, true, true, false}));
        });
    }

    void layerOfAnUnknownKindShowsNoType()
    {
        prepareScene({0, 1}, 2);
        scene().layers[1].objectKind = 9;
        edit([](frmScene *editor) {
            const auto &f = editor->form();
            clickLine(f.lstSceneLayers, 0);
            QCOMPARE(f.lblSceneLayerType->text(), QStringLiteral("Sprites"));
            clickLine(f.lstSceneLayers, 1);
            QCOMPARE(f.lblSceneLayerType->text(), QString());
        });
    }

    void closingHandsTheSceneBack()
    {
        addObject(Kind::Scene);
        addObject(Kind::Scene);
        // Edit the middle scene of three.
        clickLine(m_window->objectList(10), 1);
        const bool closed = edit([](frmScene *editor) {
            const auto &f = editor->form();
            typeInto(f.txtSceneID, QStringLiteral("scnLevel1"));
            QTest::mouseClick(f.chkSceneOptionsCursor, Qt::LeftButton);
            addLayer(editor, 0, 0);
            addLayer(editor, 1, 0);
            addLayer(editor, 3, 0);
            QTest::keyClick(f.txtSceneID, Qt::Key_Escape);
        });
        QVERIFY(closed);
        QCOMPARE(listTexts(m_window->objectList(10)),
                 QStringList({"New_Object3", "scnLevel1", "New_Object5"}));
        QCOMPARE(listSlots(m_window->objectList(10)), QList<int>({0, 1, 2}));
        QCOMPARE(m_window->objectList(10)->currentRow(), 1);
        const SceneRec &s = scene(1);
        QCOMPARE(s.id, std::string("scnLevel1"));
        QCOMPARE(s.layerCount, int16_t(3));
        QCOMPARE(s.useCursor, int16_t(0));
        QVERIFY(!m_window->coverFrame(10)->isVisible());
        // The options are already stored; the number of layers is stored after the hand-back.
        QCOMPARE(mainLabel("lblSceneStatsLayers")->text(), QStringLiteral("# of Layers: 0"));
        QCOMPARE(mainLabel("lblSceneStatsCursor")->text(), QStringLiteral("Show Mouse: NO"));
        QCOMPARE(mainLabel("lblSceneStatsMusic")->text(), QStringLiteral("Stop Music: YES"));
        clickLine(m_window->objectList(10), 1);
        QCOMPARE(mainLabel("lblSceneStatsLayers")->text(), QStringLiteral("# of Layers: 3"));

        // Reopened and closed with one layer fewer, the statistics show 3 until the line
        // is selected again.
        QVERIFY(edit([](frmScene *editor) {
            const auto &f = editor->form();
            clickLine(f.lstSceneLayers, 0);
            clickButton(f.cmdSceneLayerDelete);
            QTest::keyClick(f.lstSceneLayers, Qt::Key_Escape);
        }));
        QCOMPARE(scene(1).layerCount, int16_t(2));
        QCOMPARE(mainLabel("lblSceneStatsLayers")->text(), QStringLiteral("# of Layers: 3"));
        clickLine(m_window->objectList(10), 1);
        QCOMPARE(mainLabel("lblSceneStatsLayers")->text(), QStringLiteral("# of Layers: 2"));
    }

    void doubleClickOnTheSceneListOpensTheEditor()
    {
        clickTab(*m_window, tabOf(Kind::Scene));
        auto shown = std::make_shared<bool>(false);
        whenModalShown<frmScene>([shown](frmScene *editor) {
            *shown = true;
            typeInto(editor->form().txtSceneID, QStringLiteral("scnEnd"));
            editor->close();
        });
        // A double click begins with a click of its own.
        QListWidget *list = m_window->objectList(10);
        const QPoint first = list->visualItemRect(list->item(0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, first);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, first);
        QVERIFY(*shown);
        QCOMPARE(listTexts(list), QStringList({"scnEnd"}));
        QCOMPARE(scene().id, std::string("scnEnd"));
    }

    void reopeningKeepsTheEditedScene()
    {
        edit([](frmScene *editor) {
            typeInto(editor->form().txtSceneID, QStringLiteral("scnTitle"));
            addLayer(editor, 0, 0);
        });
        edit([this](frmScene *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtSceneID->text(), QStringLiteral("scnTitle"));
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"txtTitle"}));
            QCOMPARE(scene().layerCount, int16_t(1));
        });
    }
};

QTEST_MAIN(tst_frmScene)
#include "tst_frmScene.moc"
