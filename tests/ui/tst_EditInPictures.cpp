#include "AnimationPlayer.h"
#include "CellSheet.h"
#include "CellView.h"
#include "CursorPreview.h"
#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "ObjectSetup.h"
#include "PreviewSheet.h"
#include "RegisterEditors.h"
#include "SceneCanvas.h"
#include "ScenePreview.h"
#include "ScriptedUserInterface.h"
#include "TextPreview.h"
#include "frmAnim.h"
#include "frmButton.h"
#include "frmCursor.h"
#include "frmMain.h"
#include "frmScene.h"
#include "frmSprite.h"
#include "frmText.h"
#include "model/Kinds.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

namespace {

QByteArray readAll(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray("<missing>");
    return file.readAll();
}

// Presses on `from`, moves through the half-way point to `to` and releases there, as a hand
// drags.
void drag(QWidget *widget, QPoint from, QPoint to)
{
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    QTest::mouseMove(widget, (from + to) / 2);
    QTest::mouseMove(widget, to);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
}

// Moves the pointer over `widget` with no button down. (QTest moves the system's cursor for
// that, which the offscreen platform does not follow.)
void hover(QWidget *widget, QPoint at)
{
    QMouseEvent move(QEvent::MouseMove,
                     QPointF(at),
                     QPointF(widget->mapToGlobal(at)),
                     Qt::NoButton,
                     Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

bool hasColour(const QImage &image, QRgb colour)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == colour)
                return true;
    return false;
}

} // namespace

// Editing in the pictures of the editors, as a user does it with the mouse: dragging objects
// in the scene preview, picking cells on the animation and button sheets; and the cursor's
// hot point and the text as the engine draws them. The pictures are a 4 x 2 sheet of coloured
// 32 x 32 cells the test draws (cell 5 magenta, the colour key).
class tst_EditInPictures : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString m_sheet;
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    // A listed, bound image of the sheet, cut into 32 x 32 cells, drawn at (100, 50).
    int addSheetImage(const std::string &id = "imgSheet")
    {
        const int slot = addLiveObject(*m_window, Kind::Image, id);
        ImageRec &image = m_doc->Images[static_cast<size_t>(slot)];
        image.path = m_sheet.toStdString();
        image.cellWidth = PreviewSheet::Cell;
        image.cellHeight = PreviewSheet::Cell;
        image.red = 255;
        image.blue = 255;
        image.alpha = 255;
        image.bound = 1;
        image.visible = 1;
        image.positionX = 100;
        image.positionY = 50;
        return slot;
    }

    // A scene on the layers btnPlay (button), _zone (hot spot), txtTitle (text), sprHero
    // (sprite) and imgSheet (image), added in the editor; returns the scene's slot.
    void addSceneObjects()
    {
        addSheetImage();
        ButtonRec &play =
            m_doc->Buttons[static_cast<size_t>(addLiveObject(*m_window, Kind::Button, "btnPlay"))];
        play.templateId = "imgSheet";
        play.frameUp = 2;
        play.x = 300;
        play.y = 300;
        play.visible = 1;
        ButtonRec &zone =
            m_doc->Buttons[static_cast<size_t>(addLiveObject(*m_window, Kind::Button, "_zone"))];
        zone.isHotSpot = 1;
        zone.x = 400;
        zone.y = 40;
        zone.hotSpotWidth = 60;
        zone.hotSpotHeight = 40;
        TextRec &title =
            m_doc->Texts[static_cast<size_t>(addLiveObject(*m_window, Kind::Text, "txtTitle"))];
        title.content = "HELLO";
        title.x = 20;
        title.y = 400;
        title.pointSize = 30;
        title.foreRed = 255;
        title.visible = 1;
        SpriteRec &hero =
            m_doc->Sprites[static_cast<size_t>(addLiveObject(*m_window, Kind::Sprite, "sprHero"))];
        hero.imageId = "imgSheet";
        hero.positionX = 500;
        hero.positionY = 300;
        hero.visible = 1;
    }

    // Adds a layer of the kind at `kindRow` of the object list, object at `objectRow`.
    static void addLayer(frmScene *editor, int kindRow, int objectRow)
    {
        chooseEntry(editor->form().cmbSceneLayerObjects, kindRow);
        clickLine(editor->form().lstSceneLayerObjects, objectRow);
        clickButton(editor->form().cmdSceneLayerAdd);
    }

    static int layerSlot(frmScene *editor, int row)
    {
        return editor->form().lstSceneLayers->item(row)->data(Qt::UserRole).toInt();
    }

    // Drags the object of the layer at `row` by `screenDelta` pixels of the screen.
    static void dragLayer(frmScene *editor, int row, QPoint screenDelta)
    {
        SceneCanvas *canvas = editor->form().picScenePreview->canvas();
        const QRect drawn = canvas->objectRect(layerSlot(editor, row));
        QVERIFY(!drawn.isEmpty());
        const QPoint from = drawn.topLeft() + QPoint(3, 3);
        const int zoom = canvas->zoom();
        QVERIFY(zoom > 0);
        drag(canvas, from, from + screenDelta * zoom / 100);
    }

    // Opens the zoom box's list and clicks the entry `caption`, in the middle of the list's
    // width (the entries of a narrow list reach beyond it).
    static void chooseZoom(frmScene *editor, const QString &caption)
    {
        QComboBox *zoom = editor->form().picScenePreview->zoomBox();
        zoom->showPopup();
        QAbstractItemView *view = zoom->view();
        QVERIFY(QTest::qWaitForWindowExposed(view->window()));
        const QModelIndex index = view->model()->index(zoom->findText(caption), 0);
        const QPoint at(view->viewport()->width() / 2, view->visualRect(index).center().y());
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(zoom->currentText(), caption);
    }

    // Saves the project to a file and opens that file again, so that what follows reads what
    // the file holds.
    void saveAndReopen(const QString &name)
    {
        const std::string file = QDir(m_dir.path()).filePath(name).toStdString();
        m_ui->fileChoices = {file};
        m_window->form().mnuSaveAs->trigger();
        m_ui->fileChoices = {file};
        m_window->form().mnuOpen->trigger();
        QCOMPARE(m_doc->ProjectInfo.projectFilePath, file);
    }

    bool editAnimation(std::function<void(frmAnim *)> action)
    {
        bool closed = false;
        clickTab(*m_window, tabOf(Kind::Sprite));
        editProperties<frmSprite>(*m_window, [&](frmSprite *sprite) {
            closed = clickToOpen<frmAnim>(sprite->form().cmdSpriteEditAnim, action);
        });
        return closed;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        m_sheet = PreviewSheet::write(m_dir.path());
    }
    void init()
    {
        m_doc = makeDocument();
        m_ui = std::make_unique<ScriptedUserInterface>();
        m_window = std::make_unique<frmMain>(*m_doc, *m_ui);
        registerEditors(*m_window);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        newProject(*m_window);
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
    }

    void draggingMovesEachObjectsOwnFieldsWhateverTheZoom()
    {
        addSceneObjects();
        addObjectOn(*m_window, Kind::Scene);
        clickTab(*m_window, tabOf(Kind::Scene));
        QVERIFY(editProperties<frmScene>(*m_window, [this](frmScene *editor) {
            const auto &f = editor->form();
            addLayer(editor, 3, 0); // Buttons: btnPlay
            addLayer(editor, 3, 1); // Buttons: _zone
            addLayer(editor, 0, 0); // Texts: txtTitle
            addLayer(editor, 1, 0); // Sprites: sprHero
            addLayer(editor, 2, 0); // Images: imgSheet
            QCOMPARE(listTexts(f.lstSceneLayers),
                     QStringList({"btnPlay", "_zone", "txtTitle", "sprHero", "imgSheet"}));
            ScenePreview *preview = f.picScenePreview;
            QCOMPARE(preview->snapBox()->text(), QStringLiteral("Snap to 8 px"));
            QVERIFY(!preview->snapBox()->isChecked());
            QCOMPARE(preview->zoomBox()->currentText(), QStringLiteral("Fit"));

            chooseZoom(editor, QStringLiteral("200%"));
            QCOMPARE(preview->canvas()->size(), QSize(1280, 960));
            dragLayer(editor, 0, QPoint(40, 24));
            // The drag selects the dragged object's line, as a click does.
            QCOMPARE(f.lstSceneLayers->currentRow(), 0);
            QCOMPARE(preview->canvas()->selectedLayer(), layerSlot(editor, 0));
            chooseZoom(editor, QStringLiteral("50%"));
            QCOMPARE(preview->canvas()->size(), QSize(320, 240));
            dragLayer(editor, 1, QPoint(-20, 8)); // the hot spot, like a button
            chooseZoom(editor, QStringLiteral("100%"));
            dragLayer(editor, 2, QPoint(16, -100));
            dragLayer(editor, 3, QPoint(-400, 2));
            clickBox(preview->snapBox());
            dragLayer(editor, 4, QPoint(13, -5));
            // The preview draws the image where its fields now put it: (112, 48).
            QCOMPARE(preview->canvas()->sceneImage().pixel(112 + 16, 48 + 16),
                     PreviewSheet::colour(1));
            editor->close();
        }));
        QCOMPARE(m_doc->Buttons[0].x, int16_t(340));
        QCOMPARE(m_doc->Buttons[0].y, int16_t(324));
        QCOMPARE(m_doc->Buttons[1].x, int16_t(380));
        QCOMPARE(m_doc->Buttons[1].y, int16_t(48));
        QCOMPARE(m_doc->Texts[0].x, int16_t(36));
        QCOMPARE(m_doc->Texts[0].y, int16_t(300));
        QCOMPARE(m_doc->Sprites[0].positionX, int16_t(100));
        QCOMPARE(m_doc->Sprites[0].positionY, int16_t(302));
        // Snapped: 100 + 13 = 113 goes to 112, 50 - 5 = 45 to 48.
        QCOMPARE(m_doc->Images[0].positionX, int16_t(112));
        QCOMPARE(m_doc->Images[0].positionY, int16_t(48));

        const QString projectFile = QDir(m_dir.path()).filePath(QStringLiteral("drag.dvb"));
        m_ui->fileChoices = {projectFile.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        const QByteArray project = readAll(projectFile);
        QVERIFY2(project.contains("\r\n\"btnPlay\",340,324,"), project.constData());
        QVERIFY2(project.contains("\r\n\"_zone\",380,48,"), project.constData());
    }

    void aDragIsOneStepOfItsOwnThatUndoTakesBack()
    {
        addSceneObjects();
        addObjectOn(*m_window, Kind::Scene);
        clickTab(*m_window, tabOf(Kind::Scene));
        QVERIFY(editProperties<frmScene>(*m_window, [](frmScene *editor) {
            addLayer(editor, 3, 0); // Buttons: btnPlay
            editor->close();
        }));
        // Opened again: closing it changes nothing more, so the drag is the last step.
        QVERIFY(editProperties<frmScene>(*m_window, [](frmScene *editor) {
            chooseZoom(editor, QStringLiteral("100%"));
            dragLayer(editor, 0, QPoint(40, 24));
            editor->close();
        }));
        QCOMPARE(m_doc->Buttons[0].x, int16_t(340));
        QCOMPARE(m_doc->Buttons[0].y, int16_t(324));
        QAction *undo = m_window->form().mnuUndo;
        QAction *redo = m_window->form().mnuRedo;
        QCOMPARE(undo->text(), QStringLiteral("Undo Move Button \"btnPlay\""));

        undo->trigger();
        // The move alone goes back: the layer added before it stays.
        QCOMPARE(m_doc->Buttons[0].x, int16_t(300));
        QCOMPARE(m_doc->Buttons[0].y, int16_t(300));
        const SceneRec &scene =
            m_doc->Scenes[static_cast<size_t>(m_doc->list(Kind::Scene).lines.back().slot)];
        QCOMPARE(scene.layerCount, int16_t(1));
        QCOMPARE(redo->text(), QStringLiteral("Redo Move Button \"btnPlay\""));
        QVERIFY(undo->text().startsWith(QStringLiteral("Undo Edit Scene ")));

        redo->trigger();
        QCOMPARE(m_doc->Buttons[0].x, int16_t(340));
        QCOMPARE(m_doc->Buttons[0].y, int16_t(324));
    }

    void aClickWithoutMovingAndOpeningStoreNothing()
    {
        addSceneObjects();
        const int scene = addLiveObject(*m_window, Kind::Scene, "scnTitle");
        SceneRec &rec = m_doc->Scenes[static_cast<size_t>(scene)];
        rec.layers[0] = LayerRec{-1, 4, "btnPlay"};
        rec.layers[1] = LayerRec{-1, 3, "imgSheet"};
        rec.layerCount = 2;
        // A first opening fills what the records lack (empty references store "null"); from
        // then on, opening and looking store nothing.
        const auto openAndClose = [this]() {
            clickTab(*m_window, tabOf(Kind::Button));
            QVERIFY(editProperties<frmButton>(*m_window, [](frmButton *e) { e->close(); }));
            clickTab(*m_window, tabOf(Kind::Text));
            QVERIFY(editProperties<frmText>(*m_window, [](frmText *e) { e->close(); }));
            clickTab(*m_window, tabOf(Kind::Scene));
            QVERIFY(editProperties<frmScene>(*m_window, [](frmScene *e) { e->close(); }));
        };
        openAndClose();
        const auto before = std::make_unique<Document>(*m_doc);
        openAndClose();
        QVERIFY(*m_doc == *before);
        QVERIFY(editProperties<frmScene>(*m_window, [](frmScene *editor) {
            SceneCanvas *canvas = editor->form().picScenePreview->canvas();
            const QPoint on = canvas->objectRect(0).center();
            // The pointer over the button highlights it.
            hover(canvas, on);
            QCOMPARE(canvas->hoveredLayer(), 0);
            hover(canvas, QPoint(1, 1));
            QCOMPARE(canvas->hoveredLayer(), -1);
            hover(canvas, on);
            QTest::mouseClick(canvas, Qt::LeftButton, {}, on);
            QCOMPARE(editor->form().lstSceneLayers->currentRow(), 0);
            QCOMPARE(canvas->selectedLayer(), 0);
            clickLine(editor->form().lstSceneLayers, 1);
            QCOMPARE(canvas->selectedLayer(), 1);
            editor->close();
        }));
        QVERIFY(*m_doc == *before);
    }

    void aCellClickedOnTheSheetIsTypedIntoTheFrameBox()
    {
        addSheetImage();
        clickTab(*m_window, tabOf(Kind::Sprite));
        clickButton(m_window->form().cmdObjAdd);
        QVERIFY(editProperties<frmSprite>(*m_window, [](frmSprite *editor) {
            typeInto(editor->form().txtSpriteID, QStringLiteral("hero"));
            clickButton(editor->form().cmdSpriteNewAnim);
            clickToOpen<frmAnim>(editor->form().cmdSpriteEditAnim, [](frmAnim *) {});
            editor->close();
        }));
        m_doc->Sprites[0].imageId = "imgSheet";
        QVERIFY(editAnimation([](frmAnim *editor) {
            const auto &f = editor->form();
            CellSheet *sheet = f.picAnimSheet;
            QCOMPARE(sheet->grid(), (CellGrid{32, 32, 4, 2}));
            QVERIFY(!f.cmdAnimSequenceAdd->isEnabled());
            QTest::mouseClick(sheet, Qt::LeftButton, {}, sheet->cellRectOnWidget(6).center());
            QCOMPARE(f.txtAnimSequenceAdd->text(), QStringLiteral("6"));
            QVERIFY(f.cmdAnimSequenceAdd->isEnabled());
            QCOMPARE(listTexts(f.lstAnimSequence), QStringList());
            clickButton(f.cmdAnimSequenceAdd);
            // A double click adds the cell at once.
            QTest::mouseDClick(sheet, Qt::LeftButton, {}, sheet->cellRectOnWidget(3).center());
            QCOMPARE(listTexts(f.lstAnimSequence), QStringList({"6", "3"}));
            QCOMPARE(f.txtAnimSequenceAdd->text(), QString());
            QCOMPARE(sheet->markedCells(), (std::vector<int>{6, 3}));
            // The frame shown is highlighted: the selected row's while stopped, then each
            // frame as it plays.
            QCOMPARE(sheet->highlightedCell(), 3);
            clickLine(f.lstAnimSequence, 0);
            QCOMPARE(sheet->highlightedCell(), 6);
            int64_t now = 0;
            AnimationPlayer *player = f.picAnimPlayer;
            player->setClock(std::make_unique<ManualClock>(&now));
            clearBox(f.txtAnimDelaysFrame);
            typeInto(f.txtAnimDelaysFrame, QStringLiteral("100"));
            clickButton(player->playButton());
            QCOMPARE(sheet->highlightedCell(), 6);
            now = 150;
            player->tick();
            QCOMPARE(sheet->highlightedCell(), 3);
            editor->close();
        }));
        saveAndReopen(QStringLiteral("frames.dvb"));
        QCOMPARE(m_doc->Sprites[0].id, std::string("hero"));
        const AnimRec &anim = m_doc->Sprites[0].anims[0];
        QCOMPARE(anim.frames[0].inUse, int16_t(-1));
        QCOMPARE(anim.frames[0].cell, int16_t(6));
        QCOMPARE(anim.frames[1].inUse, int16_t(-1));
        QCOMPARE(anim.frames[1].cell, int16_t(3));
        QCOMPARE(anim.frames[2].inUse, int16_t(0));
        QCOMPARE(anim.frameCount, int16_t(2));
    }

    void aTemplateCellGoesIntoTheChosenStatesBox()
    {
        addSheetImage();
        const int icon = addSheetImage("imgIcon");
        m_doc->Images[static_cast<size_t>(icon)].cellWidth = 8;
        m_doc->Images[static_cast<size_t>(icon)].cellHeight = 8;
        TextRec &caption =
            m_doc->Texts[static_cast<size_t>(addLiveObject(*m_window, Kind::Text, "txtOk"))];
        caption.content = "OK";
        caption.pointSize = 20;
        caption.foreGreen = 255;
        caption.styleNormal = 1;
        ButtonRec &button =
            m_doc->Buttons[static_cast<size_t>(addLiveObject(*m_window, Kind::Button, "btnOk"))];
        button.templateId = "imgSheet";
        button.frameUp = 1;
        button.currentFrame = 1;
        button.visible = 1;
        button.captionVisible = 1;
        button.iconVisible = 1;
        button.iconId = "imgIcon";
        button.captionTextId = "txtOk";
        clickTab(*m_window, tabOf(Kind::Button));
        QVERIFY(editProperties<frmButton>(*m_window, [](frmButton *editor) {
            const auto &f = editor->form();
            CellSheet *sheet = f.picButtonSheet;
            QVERIFY(f.optButtonUp->isChecked());
            QCOMPARE(sheet->highlightedCell(), 1);
            // The icon's first 8 x 8 cell (red) in the middle of the up cell, the caption in
            // green over it.
            const QImage cell = f.picButtonCell->composedCell();
            QCOMPARE(cell.size(), QSize(32, 32));
            QCOMPARE(cell.pixel(1, 1), PreviewSheet::colour(1));
            QVERIFY(hasColour(cell, qRgb(0, 255, 0)));
            clickBox(f.optButtonOver);
            QTest::mouseClick(sheet, Qt::LeftButton, {}, sheet->cellRectOnWidget(7).center());
            QCOMPARE(f.txtButtonOver->text(), QStringLiteral("7"));
            QCOMPARE(f.txtButtonUp->text(), QStringLiteral("1"));
            QCOMPARE(sheet->highlightedCell(), 7);
            QCOMPARE(f.picButtonCell->cell(), 7);
            clickBox(f.optButtonDisabled);
            QTest::mouseClick(sheet, Qt::LeftButton, {}, sheet->cellRectOnWidget(8).center());
            QCOMPARE(f.txtButtonDisabled->text(), QStringLiteral("8"));
            // Hidden, the caption is not drawn.
            clickBox(f.chkButtonCaptionVisible);
            QVERIFY(!hasColour(f.picButtonCell->composedCell(), qRgb(0, 255, 0)));
            clickBox(f.chkButtonCaptionVisible);
            editor->close();
        }));
        saveAndReopen(QStringLiteral("states.dvb"));
        const ButtonRec &stored = m_doc->Buttons[0];
        QCOMPARE(stored.id, std::string("btnOk"));
        QCOMPARE(stored.frameUp, int16_t(1));
        QCOMPARE(stored.frameOver, int16_t(7));
        QCOMPARE(stored.frameDisabled, int16_t(8));
        QCOMPARE(stored.frameDown, int16_t(0));
        // Choosing Disabled copied its cell as it stood then.
        QCOMPARE(stored.currentFrame, int16_t(0));
    }

    void theCursorsHotPointStandsWhereItsOrientationPutsIt()
    {
        addSheetImage();
        CursorRec &cursor =
            m_doc->Cursors[static_cast<size_t>(addLiveObject(*m_window, Kind::Cursor, "curHand"))];
        cursor.imageId = "imgSheet";
        cursor.orientation = 1;
        clickTab(*m_window, tabOf(Kind::Cursor));
        QVERIFY(editProperties<frmCursor>(*m_window, [](frmCursor *editor) {
            auto *preview = editor->findChild<CursorPreview *>(QStringLiteral("picCursorPreview"));
            QVERIFY(preview);
            QCOMPARE(preview->cursorImage().size(), QSize(32, 32));
            QCOMPARE(preview->hotPoint(), (HotPoint{16, 16}));
            clickBox(editor->orientationOption(5));
            QCOMPARE(preview->hotPoint(), (HotPoint{0, 0}));
            clickBox(editor->orientationOption(3));
            QCOMPARE(preview->hotPoint(), (HotPoint{31, 31}));
            const QRect hot = preview->hotPointRect();
            const QImage shown = preview->grab().toImage();
            // The hot pixel is framed in red; inside the frame the picture's own colour.
            QCOMPARE(shown.pixel(hot.center()), PreviewSheet::colour(1));
            QCOMPARE(shown.pixel(hot.topLeft() - QPoint(2, 2)), qRgb(255, 0, 0));
            editor->close();
        }));
        QCOMPARE(m_doc->Cursors[0].orientation, int16_t(3));
    }

    void theTextIsDrawnAsTheEngineDrawsIt()
    {
        const QString dejaVu = QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
        const int font = addLiveObject(*m_window, Kind::Font, "fntMenu");
        m_doc->Fonts[static_cast<size_t>(font)].path = "fonts\\gone.ttf";
        TextRec &text =
            m_doc->Texts[static_cast<size_t>(addLiveObject(*m_window, Kind::Text, "txtTitle"))];
        text.content = "Hi*";
        text.fontId = "fntMenu";
        text.pointSize = 20;
        text.foreGreen = 255;
        text.backBlue = 255;
        text.styleNormal = 1;
        m_doc->ProjectInfo.projectFilePath =
            QDir(m_dir.path()).filePath(QStringLiteral("t.dvb")).toStdString();
        clickTab(*m_window, tabOf(Kind::Text));
        QVERIFY(editProperties<frmText>(*m_window, [this, dejaVu](frmText *editor) {
            const auto &f = editor->form();
            auto *preview = editor->findChild<TextPreview *>(QStringLiteral("picTextPreview"));
            QVERIFY(preview);
            QVERIFY(!preview->fontLoaded());
            QCOMPARE(preview->fontNote(),
                     QStringLiteral("The font file cannot be loaded: \"fonts\\gone.ttf\" "
                                    "(looked for %1/fonts/gone.ttf); the default font is drawn "
                                    "instead")
                         .arg(m_dir.path()));
            QCOMPARE(preview->marksNote(),
                     QStringLiteral("\"*\" ends a text in the engine's files: the engine stops "
                                    "reading there"));
            QCOMPARE(preview->markRects().size(), size_t(1));
            QCOMPARE(preview->shownFont().pixelSize(), 20);

            // Typed by an input method: the box receives the whole text at once.
            f.txtTextContent->setText(QStringLiteral("A\u4E2DB"));
            QCOMPARE(preview->marksNote(),
                     QStringLiteral("The engine cannot read \"\u4E2D\": written as \"?\""));
            QCOMPARE(preview->markRects().size(), size_t(1));
            clickBox(f.chkTextStylesBold);
            QVERIFY(preview->shownFont().bold());
            typeInto(f.txtTextClipWidth, QStringLiteral("200"));
            typeInto(f.txtTextClipHeight, QStringLiteral("60"));
            QCOMPARE(preview->clipRect().size(), QSize(200, 60));
            QVERIFY(preview->clipRect().contains(preview->textRect()));
            // Inside the clip rectangle, under the line, the background colour shows.
            QImage shown = preview->grab().toImage();
            QCOMPARE(shown.pixel(preview->clipRect().bottomRight() - QPoint(3, 3)),
                     qRgb(0, 0, 255));
            // A clip rectangle narrower than the text cuts it.
            typeInto(f.txtTextClipWidth, QStringLiteral("10"));
            QCOMPARE(preview->textRect().width(), 10);
            shown = preview->grab().toImage();
            QVERIFY(!hasColour(shown.copy(preview->clipRect().right() + 2,
                                          preview->textRect().top(),
                                          30,
                                          preview->textRect().height()),
                               qRgb(0, 255, 0)));
            QVERIFY(hasColour(shown.copy(preview->clipRect()), qRgb(0, 255, 0)));

            if (QFileInfo::exists(dejaVu)) {
                m_doc->Fonts[0].path = dejaVu.toStdString();
                typeInto(f.txtTextPoint, QStringLiteral("24"));
                QVERIFY(preview->fontLoaded());
                QCOMPARE(preview->shownFont().family(), QStringLiteral("DejaVu Sans"));
                QCOMPARE(preview->fontNote(),
                         QStringLiteral("Font: DejaVu Sans (\"%1\")").arg(dejaVu));
            }
            editor->close();
        }));
        QCOMPARE(m_doc->Texts[0].clipWidth, int16_t(10));
        QCOMPARE(m_doc->Texts[0].clipHeight, int16_t(60));
        QCOMPARE(m_doc->Texts[0].content,
                 std::string("A\xE4\xB8\xAD"
                             "B"));
        QCOMPARE(m_doc->Texts[0].styleBold, int16_t(1));
    }
};

QTEST_MAIN(tst_EditInPictures)
#include "tst_EditInPictures.moc"
