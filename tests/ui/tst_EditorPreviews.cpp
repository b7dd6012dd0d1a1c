#include "AnimationPlayer.h"
#include "EditorDriver.h"
#include "ImageSheetView.h"
#include "MainWindowDriver.h"
#include "ObjectSetup.h"
#include "PreviewSheet.h"
#include "RegisterEditors.h"
#include "SceneCanvas.h"
#include "ScenePreview.h"
#include "ScriptedUserInterface.h"
#include "frmAnim.h"
#include "frmImage.h"
#include "frmMain.h"
#include "frmScene.h"
#include "frmSprite.h"
#include "model/Kinds.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

namespace {

bool isCheckerboard(QRgb pixel)
{
    return pixel == qRgb(204, 204, 204) || pixel == qRgb(153, 153, 153);
}

} // namespace

// The previews inside the image, animation and scene editors, opened from the main window as
// a user opens them, on a 4 x 2 sheet of coloured cells the test draws (cell 5 magenta).
class tst_EditorPreviews : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString m_sheet;
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    // A listed, bound image "imgSheet" of the test's sheet, cut into 32 x 32 cells with
    // magenta as its colour key, drawn at (100, 50).
    int addSheetImage()
    {
        const int slot = addLiveObject(*m_window, Kind::Image, "imgSheet");
        ImageRec &image = m_doc->Images[static_cast<size_t>(slot)];
        image.path = m_sheet.toStdString();
        image.cellWidth = PreviewSheet::Cell;
        image.cellHeight = PreviewSheet::Cell;
        image.red = 255;
        image.green = 0;
        image.blue = 255;
        image.alpha = 255;
        image.bound = 1;
        image.visible = 1;
        image.positionX = 100;
        image.positionY = 50;
        return slot;
    }

    // Cells 1, 2 and 3 of the sheet, chosen in the animation editor's sequence.
    static void addFrames(frmAnim *editor)
    {
        for (const QString &text :
             {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}) {
            typeInto(editor->form().txtAnimSequenceAdd, text);
            clickButton(editor->form().cmdAnimSequenceAdd);
        }
    }

    // Opens the animation editor of sprite "hero" (whose image is the sheet) on its animation.
    bool editAnimation(std::function<void(frmAnim *)> action)
    {
        bool closed = false;
        clickTab(*m_window, tabOf(Kind::Sprite));
        editProperties<frmSprite>(*m_window, [&](frmSprite *sprite) {
            closed = clickToOpen<frmAnim>(sprite->form().cmdSpriteEditAnim, action);
        });
        return closed;
    }

    // The cells the player shows at each of `times`.
    static QList<int> cellsAt(AnimationPlayer *player, int64_t &now, const QList<int64_t> &times)
    {
        QList<int> cells;
        for (int64_t t : times) {
            now = t;
            player->tick();
            cells << player->shownCell();
        }
        return cells;
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

    void imagePreviewFollowsATypedCellSize()
    {
        const int slot = addSheetImage();
        QVERIFY(editProperties<frmImage>(*m_window, [](frmImage *editor) {
            ImageSheetView *view = editor->form().picImageSheet;
            QCOMPARE(view->grid(), (CellGrid{32, 32, 4, 2}));
            QCOMPARE(view->message(),
                     QStringLiteral("128 x 64 pixels, 8 cells (4 x 2), numbered from 1"));
            clearBox(editor->form().txtImageCellWidth);
            typeInto(editor->form().txtImageCellWidth, QStringLiteral("64"));
            QCOMPARE(view->grid(), (CellGrid{64, 32, 2, 2}));
            QCOMPARE(view->message(),
                     QStringLiteral("128 x 64 pixels, 4 cells (2 x 2), numbered from 1"));
            editor->close();
        }));
        // The preview only reads: the record holds what was typed, nothing else.
        QCOMPARE(m_doc->Images[static_cast<size_t>(slot)].cellWidth, int16_t(64));
        QCOMPARE(m_doc->Images[static_cast<size_t>(slot)].cellHeight, int16_t(32));
    }

    void imagePreviewFollowsATypedColourKey()
    {
        addSheetImage();
        QVERIFY(editProperties<frmImage>(*m_window, [](frmImage *editor) {
            ImageSheetView *view = editor->form().picImageSheet;
            QVERIFY(isCheckerboard(view->composed().pixel(PreviewSheet::centre(5))));
            QCOMPARE(view->composed().pixel(PreviewSheet::centre(1)), PreviewSheet::colour(1));
            // The key of cell 1: 220, 20, 20.
            const auto retype = [](QLineEdit *box, const QString &text) {
                clearBox(box);
                typeInto(box, text);
            };
            retype(editor->form().txtImageRed, QStringLiteral("220"));
            retype(editor->form().txtImageGreen, QStringLiteral("20"));
            retype(editor->form().txtImageBlue, QStringLiteral("20"));
            QVERIFY(isCheckerboard(view->composed().pixel(PreviewSheet::centre(1))));
            QCOMPARE(view->composed().pixel(PreviewSheet::centre(5)), PreviewSheet::colour(5));
            retype(editor->form().txtImageAlpha, QStringLiteral("0"));
            QVERIFY(isCheckerboard(view->composed().pixel(PreviewSheet::centre(2))));
            editor->close();
        }));
    }

    void imagePreviewNamesAMissingFile()
    {
        const int slot = addLiveObject(*m_window, Kind::Image, "imgGone");
        m_doc->Images[static_cast<size_t>(slot)].path = "art\\gone.png";
        QVERIFY(editProperties<frmImage>(*m_window, [](frmImage *editor) {
            QVERIFY(
                editor->form().picImageSheet->message().contains(QStringLiteral("art\\gone.png")));
            editor->close();
        }));
        QCOMPARE(m_ui->messages.size(), size_t(0));
    }

    void animationShowsTheSelectedRowsCellAndPlaysOverAControlledClock()
    {
        addSheetImage();
        clickTab(*m_window, tabOf(Kind::Sprite));
        clickButton(m_window->form().cmdObjAdd);
        SpriteRec &sprite = m_doc->Sprites[0];
        QVERIFY(editProperties<frmSprite>(*m_window, [](frmSprite *editor) {
            typeInto(editor->form().txtSpriteID, QStringLiteral("hero"));
            clickButton(editor->form().cmdSpriteNewAnim);
            clickToOpen<frmAnim>(editor->form().cmdSpriteEditAnim, [](frmAnim *) {});
            editor->close();
        }));
        sprite.imageId = "imgSheet";
        int64_t now = 0;
        QVERIFY(editAnimation([&now](frmAnim *editor) {
            AnimationPlayer *player = editor->form().picAnimPlayer;
            player->setClock(std::make_unique<ManualClock>(&now));
            addFrames(editor);
            clickLine(editor->form().lstAnimSequence, 1);
            QVERIFY(!player->isPlaying());
            QCOMPARE(player->shownCell(), 2);
            QCOMPARE(player->shownImage().pixel(16, 16), PreviewSheet::colour(2));

            clearBox(editor->form().txtAnimDelaysFrame);
            typeInto(editor->form().txtAnimDelaysFrame, QStringLiteral("100"));
            clickButton(player->playButton());
            QVERIFY(player->isPlaying());
            QCOMPARE(cellsAt(player, now, {0, 99, 100, 250, 299, 300, 1000}),
                     QList<int>({1, 1, 2, 3, 3, 3, 3}));
            QVERIFY(!player->isPlaying());

            // Reverse and over and over, as the boxes say.
            clickBox(editor->form().optAnimDirectionReverse);
            clickBox(editor->form().chkAnimRepeat);
            now = 0;
            clickButton(player->playButton());
            QCOMPARE(cellsAt(player, now, {0, 100, 200, 300}), QList<int>({3, 2, 1, 3}));
            clickButton(player->playButton());
            QVERIFY(!player->isPlaying());
            QCOMPARE(player->shownCell(), 2);

            // Down moves the selected frame; Delete takes it out of what plays.
            clickButton(editor->form().cmdAnimSequenceDelete);
            now = 0;
            clickButton(player->playButton());
            QCOMPARE(cellsAt(player, now, {0, 100}), QList<int>({3, 1}));
            clickButton(player->playButton());
            editor->close();
        }));
    }

    void scenePreviewShowsAnAddedLayerAndAClickSelectsItsLine()
    {
        addSheetImage();
        addLiveObject(*m_window, Kind::Text, "txtTitle");
        addObjectOn(*m_window, Kind::Scene);
        clickTab(*m_window, tabOf(Kind::Scene));
        QVERIFY(editProperties<frmScene>(*m_window, [](frmScene *editor) {
            const auto &f = editor->form();
            SceneCanvas *canvas = f.picScenePreview->canvas();
            QCOMPARE(canvas->screen(), (ScreenSize{640, 480}));
            QCOMPARE(canvas->sceneImage().pixel(116, 66), qRgb(0, 0, 0));

            chooseEntry(f.cmbSceneLayerObjects, 0);
            clickLine(f.lstSceneLayerObjects, 0);
            clickButton(f.cmdSceneLayerAdd);
            chooseEntry(f.cmbSceneLayerObjects, 2);
            clickLine(f.lstSceneLayerObjects, 0);
            clickButton(f.cmdSceneLayerAdd);
            QCOMPARE(listTexts(f.lstSceneLayers).size(), 2);
            // The sheet's cells at the image's position (100, 50).
            QCOMPARE(canvas->sceneImage().pixel(116, 66), PreviewSheet::colour(1));
            QCOMPARE(canvas->sceneImage().pixel(148, 98), PreviewSheet::colour(6));

            clickLine(f.lstSceneLayers, 0);
            QCOMPARE(f.lstSceneLayers->currentRow(), 0);
            const int imageSlot = f.lstSceneLayers->item(1)->data(Qt::UserRole).toInt();
            QCOMPARE(canvas->layerAt(QPoint(116, 66)), imageSlot);
            QTest::mouseClick(canvas, Qt::LeftButton, {}, canvas->toWidget(QPoint(116, 66)));
            QCOMPARE(f.lstSceneLayers->currentRow(), 1);
            QCOMPARE(f.lblSceneLayerType->text(), QStringLiteral("Images"));

            // Delete takes the image off the screen.
            clickButton(f.cmdSceneLayerDelete);
            QCOMPARE(canvas->layerAt(QPoint(116, 66)), -1);
            editor->close();
        }));
    }
};

QTEST_MAIN(tst_EditorPreviews)
#include "tst_EditorPreviews.moc"
