#include "AnimationPlayer.h"
#include "CellView.h"
#include "EditorDriver.h"
#include "ImageSheetView.h"
#include "MainWindowDriver.h"
#include "PreviewSheet.h"
#include "RegisterEditors.h"
#include "SceneCanvas.h"
#include "ScenePreview.h"
#include "ScriptedUserInterface.h"
#include "frmAnim.h"
#include "frmButton.h"
#include "frmImage.h"
#include "frmMain.h"
#include "frmScene.h"
#include "frmSprite.h"
#include "model/Kinds.h"

#include <QDir>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

namespace {

const QString Example = QStringLiteral(VORLANE_EXAMPLES "/demo.dvb");

// Whether every label and button of `area` shows its whole text: a label on one line is at
// least as wide as its text, a wrapped one as high as its text needs at its width.
QStringList cutTexts(QWidget *area)
{
    QStringList cut;
    for (QLabel *label : area->findChildren<QLabel *>()) {
        if (!label->isVisible() || label->text().isEmpty() || !label->pixmap().isNull())
            continue;
        const QRect room = label->contentsRect();
        const QFontMetrics metrics(label->font());
        const bool fits = label->wordWrap()
                              ? label->height() >= label->heightForWidth(label->width())
                              : room.width() >= metrics.horizontalAdvance(label->text());
        if (!fits)
            cut << label->objectName() + ": " + label->text();
    }
    for (QPushButton *button : area->findChildren<QPushButton *>()) {
        if (!button->isVisible())
            continue;
        if (button->width() < button->minimumSizeHint().width())
            cut << button->objectName() + ": " + button->text();
    }
    return cut;
}

// Shrinks a window to the smallest size its layout allows and lays it out.
void shrink(QWidget *window)
{
    window->resize(window->minimumSizeHint());
    QApplication::processEvents();
}

} // namespace

// The example project that ships with Vorlane, opened as a user opens it, from a working
// folder that is not the example's.
class tst_ExampleProject : public QObject
{
    Q_OBJECT

private:
    QString m_startFolder;
    std::unique_ptr<QTemporaryDir> m_elsewhere;
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    void openExample(const QString &path)
    {
        m_ui->fileChoices = {path.toStdString()};
        m_window->form().mnuOpen->trigger();
        QVERIFY(m_ui->messages.empty());
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane - Demo Game"));
    }

    // Selects the object `id` of `kind` in its list.
    void select(Kind kind, const char *id)
    {
        clickTab(*m_window, tabOf(kind));
        QListWidget *list = m_window->objectList(tabOf(kind));
        const QList<QListWidgetItem *> found =
            list->findItems(QString::fromUtf8(id), Qt::MatchExactly);
        QCOMPARE(found.size(), 1);
        clickLine(list, list->row(found.first()));
    }

    // The animation editor on the hero's first animation, "walk".
    bool editWalk(std::function<void(frmAnim *)> action)
    {
        select(Kind::Sprite, "sprHero");
        return editProperties<frmSprite>(*m_window, [&action](frmSprite *sprite) {
            clickLine(sprite->form().lstAnimObjects, 0);
            QCOMPARE(sprite->form().lstAnimObjects->currentItem()->text(), QStringLiteral("walk"));
            clickToOpen<frmAnim>(sprite->form().cmdSpriteEditAnim, action);
            sprite->close();
        });
    }

private slots:
    void init()
    {
        m_startFolder = QDir::currentPath();
        m_elsewhere = std::make_unique<QTemporaryDir>();
        QVERIFY(m_elsewhere->isValid());
        QVERIFY(QDir::setCurrent(m_elsewhere->path()));
        m_doc = makeDocument();
        m_ui = std::make_unique<ScriptedUserInterface>();
        m_window = std::make_unique<frmMain>(*m_doc, *m_ui);
        registerEditors(*m_window);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
        QDir::setCurrent(m_startFolder);
        m_elsewhere.reset();
    }

    void everyPictureShowsFromAnotherWorkingFolder_data()
    {
        QTest::addColumn<bool>("relative");
        QTest::newRow("full path") << false;
        QTest::newRow("relative path") << true;
    }
    void everyPictureShowsFromAnotherWorkingFolder()
    {
        QFETCH(bool, relative);
        openExample(relative ? QDir::current().relativeFilePath(Example) : Example);

        for (const char *id : {"imgBackground", "imgMenuButtons", "imgHero", "imgCursor"}) {
            select(Kind::Image, id);
            QVERIFY(editProperties<frmImage>(*m_window, [id](frmImage *editor) {
                ImageSheetView *sheet = editor->form().picImageSheet;
                QVERIFY2(!sheet->composed().isNull(), id);
                editor->close();
            }));
        }

        select(Kind::Button, "btnPlay");
        QVERIFY(editProperties<frmButton>(*m_window, [](frmButton *editor) {
            CellView *cell = editor->form().picButtonCell;
            QVERIFY(!cell->cellImage().isNull());
            QCOMPARE(cell->cellImage().size(), QSize(128, 40));
            editor->close();
        }));

        QVERIFY(editWalk([](frmAnim *editor) {
            AnimationPlayer *player = editor->form().picAnimPlayer;
            QCOMPARE(player->shownCell(), 1);
            QCOMPARE(player->shownImage().size(), QSize(32, 48));
            editor->close();
        }));

        select(Kind::Scene, "scnTitle");
        QVERIFY(editProperties<frmScene>(*m_window, [](frmScene *editor) {
            SceneCanvas *canvas = editor->form().picScenePreview->canvas();
            QCOMPARE(canvas->sceneImage().size(), QSize(640, 480));
            // Only the music track is not drawn: every picture and the font were found.
            QCOMPARE(canvas->notes(),
                     QStringList{QStringLiteral("Layer 6: music musTitle is not drawn")});
            // The sky of the background at the top left, not an empty screen.
            QVERIFY(canvas->sceneImage().pixel(2, 2) != qRgb(0, 0, 0));
            editor->close();
        }));
    }

    void generateSaysWhatItWroteAndWhere()
    {
        openExample(Example);
        const QString folder = m_elsewhere->path() + QStringLiteral("/demo/data/");
        QVERIFY(QDir().mkpath(folder));
        m_ui->fileChoices = {(folder + QStringLiteral("[no filename needed]")).toStdString()};
        m_window->form().mnuGenDataAs->trigger();
        QVERIFY(m_ui->messages.size() == 1); // the question before generating
        QCOMPARE(m_window->statusBar()->currentMessage(),
                 QStringLiteral("Generated 11 files into %1").arg(folder));
        QCOMPARE(QDir(folder).entryList(QDir::Files).size(), 11);

        m_window->statusBar()->clearMessage();
        m_window->form().mnuGenData->trigger();
        QCOMPARE(m_window->statusBar()->currentMessage(),
                 QStringLiteral("Generated 11 files into %1").arg(folder));
    }

    void animationPreviewTextsAreWholeAndStayInPlace()
    {
        openExample(Example);
        int64_t now = 0;
        QVERIFY(editWalk([&now](frmAnim *editor) {
            const auto &f = editor->form();
            AnimationPlayer *player = f.picAnimPlayer;
            player->setClock(std::make_unique<ManualClock>(&now));
            auto *delay = player->findChild<QLabel *>(QStringLiteral("lblPreviewDelay"));
            QCOMPARE(delay->text(), QStringLiteral("Frame delay: 120 ms"));

            shrink(editor);
            QCOMPARE(cutTexts(editor), QStringList());
            typeInto(f.txtAnimDelaysFrame, QStringLiteral("-32768"));
            QApplication::processEvents();
            QCOMPARE(delay->text(), QStringLiteral("Frame delay: -32768 ms"));
            QCOMPARE(cutTexts(editor), QStringList());
            typeInto(f.txtAnimDelaysFrame, QStringLiteral("120"));
            QApplication::processEvents();

            // Played frame after frame, nothing in the window moves or changes its size.
            const QRect column = f.fraAnimPreview->geometry();
            const QRect button = player->playButton()->geometry();
            const QRect label = delay->geometry();
            const QSize window = editor->size();
            clickButton(player->playButton());
            QVERIFY(player->isPlaying());
            for (int step = 0; step < 6; ++step) {
                now = step * 120;
                player->tick();
                QApplication::processEvents();
                QCOMPARE(f.fraAnimPreview->geometry(), column);
                QCOMPARE(player->playButton()->geometry(), button);
                QCOMPARE(delay->geometry(), label);
                QCOMPARE(editor->size(), window);
                QCOMPARE(cutTexts(editor), QStringList());
            }
            clickButton(player->playButton());
            QApplication::processEvents();
            QCOMPARE(f.fraAnimPreview->geometry(), column);
            QCOMPARE(cutTexts(editor), QStringList());
            editor->close();
        }));
    }

    // The other previews show their texts whole at their window's smallest size as well.
    void otherPreviewTextsAreWholeAtTheSmallestSize()
    {
        openExample(Example);
        select(Kind::Image, "imgMenuButtons");
        QVERIFY(editProperties<frmImage>(*m_window, [](frmImage *editor) {
            shrink(editor);
            QCOMPARE(cutTexts(editor), QStringList());
            editor->close();
        }));
        select(Kind::Button, "btnPlay");
        QVERIFY(editProperties<frmButton>(*m_window, [](frmButton *editor) {
            shrink(editor);
            QCOMPARE(cutTexts(editor), QStringList());
            editor->close();
        }));
        select(Kind::Scene, "scnTitle");
        QVERIFY(editProperties<frmScene>(*m_window, [](frmScene *editor) {
            shrink(editor);
            QCOMPARE(cutTexts(editor), QStringList());
            editor->close();
        }));
    }
};

QTEST_MAIN(tst_ExampleProject)
#include "tst_ExampleProject.moc"
