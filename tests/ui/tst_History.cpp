#include "DialogDriver.h"
#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmAppWindowProps.h"
#include "frmButton.h"
#include "frmLogCustom.h"
#include "frmMain.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace vorlane;

namespace {

QByteArray readAll(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

std::unique_ptr<Document> copyOf(const Document &doc)
{
    auto copy = makeDocument();
    *copy = doc;
    return copy;
}

} // namespace

class tst_History : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;
    std::unique_ptr<QTemporaryDir> m_dir;

    QString path(const QString &name) const { return m_dir->filePath(name); }
    QAction *undo() const { return m_window->form().mnuUndo; }
    QAction *redo() const { return m_window->form().mnuRedo; }
    QString mark() const
    {
        return m_window->findChild<QLabel *>(QStringLiteral("lblUnsaved"))->text();
    }
    void leaveRootFolderBox()
    {
        QTest::keyClick(m_window->form().txtAppRootFolder, Qt::Key_Return);
    }

    void saveAs(const QString &file)
    {
        m_ui->fileChoices = {file.toStdString()};
        m_window->form().mnuSaveAs->trigger();
    }

    void openFile(const QString &file)
    {
        m_ui->fileChoices = {file.toStdString()};
        m_window->form().mnuOpen->trigger();
    }

    // Checks that Undo gives back `before` and Redo `after`, field for field.
    void undoAndRedo(const Document &before, const Document &after)
    {
        QVERIFY(undo()->isEnabled());
        undo()->trigger();
        QVERIFY(*m_doc == before);
        QVERIFY(redo()->isEnabled());
        redo()->trigger();
        QVERIFY(*m_doc == after);
    }

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        m_doc = makeDocument();
        m_ui = std::make_unique<ScriptedUserInterface>();
        m_window = std::make_unique<frmMain>(*m_doc, *m_ui);
        registerEditors(*m_window);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear();
        m_window.reset();
    }

    void theEditMenuFollowsTheFileMenu()
    {
        const QList<QAction *> menus = m_window->menuBar()->actions();
        QCOMPARE(menus.size(), 3);
        QCOMPARE(menus[0]->menu()->objectName(), QStringLiteral("mnuFile"));
        QCOMPARE(menus[1]->menu()->objectName(), QStringLiteral("mnuEdit"));
        QCOMPARE(menus[2]->menu()->objectName(), QStringLiteral("mnuHelp"));
        QCOMPARE(m_window->form().mnuEdit->title(), QStringLiteral("&Edit"));
        const QList<QAction *> entries = m_window->form().mnuEdit->actions();
        // Undo and Redo, then, past a separator, Rename Object and Find Object.
        QCOMPARE(entries.size(), 5);
        QCOMPARE(entries[0]->objectName(), QStringLiteral("mnuUndo"));
        QCOMPARE(entries[1]->objectName(), QStringLiteral("mnuRedo"));
        QVERIFY(entries[2]->isSeparator());
        QCOMPARE(entries[3]->objectName(), QStringLiteral("mnuRename"));
        QCOMPARE(entries[4]->objectName(), QStringLiteral("mnuFind"));
        QCOMPARE(undo()->shortcuts(),
                 QList<QKeySequence>({QKeySequence(QStringLiteral("Ctrl+Z"))}));
        QCOMPARE(redo()->shortcuts(),
                 QList<QKeySequence>({QKeySequence(QStringLiteral("Ctrl+Shift+Z")),
                                      QKeySequence(QStringLiteral("Ctrl+Y"))}));
        QCOMPARE(undo()->text(), QStringLiteral("Undo"));
        QCOMPARE(redo()->text(), QStringLiteral("Redo"));
        QVERIFY(!undo()->isEnabled());
        QVERIFY(!redo()->isEnabled());
        QCOMPARE(mark(), QString());
    }

    void theHistoryBeginsAtTheFirstNew()
    {
        newProject(*m_window);
        QVERIFY(!undo()->isEnabled());
        QCOMPARE(undo()->text(), QStringLiteral("Undo"));
        // A project never saved differs from any file.
        QCOMPARE(mark(), QStringLiteral("Unsaved changes"));
    }

    void addIsUndoneAndRedone()
    {
        newProject(*m_window);
        clickTab(*m_window, 4);
        const auto before = copyOf(*m_doc);
        clickButton(m_window->form().cmdObjAdd);
        const auto after = copyOf(*m_doc);
        QCOMPARE(undo()->text(), QStringLiteral("Undo Add Image"));
        QVERIFY(!redo()->isEnabled());
        undo()->trigger();
        QVERIFY(*m_doc == *before);
        QCOMPARE(m_window->objectList(4)->count(), 0);
        QVERIFY(!m_window->form().cmdObjRemove->isEnabled());
        QVERIFY(m_window->coverFrame(4)->isVisible());
        QCOMPARE(undo()->text(), QStringLiteral("Undo"));
        QVERIFY(!undo()->isEnabled());
        QCOMPARE(redo()->text(), QStringLiteral("Redo Add Image"));
        redo()->trigger();
        QVERIFY(*m_doc == *after);
        QCOMPARE(listTexts(m_window->objectList(4)), QStringList({"New_Object0"}));
        QVERIFY(m_window->form().cmdObjRemove->isEnabled());
        QCOMPARE(redo()->text(), QStringLiteral("Redo"));
    }

    void removeIsNamedByTheIdAndUndone()
    {
        newProject(*m_window);
        clickTab(*m_window, 5);
        clickButton(m_window->form().cmdObjAdd);
        clickButton(m_window->form().cmdObjAdd);
        clickLine(m_window->objectList(5), 0);
        const auto before = copyOf(*m_doc);
        clickButton(m_window->form().cmdObjRemove);
        const auto after = copyOf(*m_doc);
        QCOMPARE(undo()->text(), QStringLiteral("Undo Remove Text \"New_Object0\""));
        undoAndRedo(*before, *after);
        undo()->trigger();
        QCOMPARE(listTexts(m_window->objectList(5)), QStringList({"New_Object0", "New_Object1"}));
    }

    void aNewStepClearsWhatCouldBeRedone()
    {
        newProject(*m_window);
        clickTab(*m_window, 2);
        clickButton(m_window->form().cmdObjAdd);
        undo()->trigger();
        QVERIFY(redo()->isEnabled());
        clickTab(*m_window, 6);
        clickButton(m_window->form().cmdObjAdd);
        QVERIFY(!redo()->isEnabled());
        QCOMPARE(redo()->text(), QStringLiteral("Redo"));
        QCOMPARE(undo()->text(), QStringLiteral("Undo Add Font"));
    }

    void anEditorSessionIsOneStepNamedByTheIdItClosesWith()
    {
        newProject(*m_window);
        clickTab(*m_window, 2);
        clickButton(m_window->form().cmdObjAdd);
        const auto before = copyOf(*m_doc);
        editProperties<frmButton>(*m_window, [](frmButton *editor) {
            typeInto(editor->form().txtButtonID, QStringLiteral("btnPlay"));
            pressEscape(editor);
        });
        const auto after = copyOf(*m_doc);
        QCOMPARE(listTexts(m_window->objectList(2)), QStringList({"btnPlay"}));
        QCOMPARE(undo()->text(), QStringLiteral("Undo Edit Button \"btnPlay\""));
        undo()->trigger();
        // The current object is chosen before the session: it is no part of the step.
        QVERIFY(*m_doc == *before);
        QCOMPARE(listTexts(m_window->objectList(2)), QStringList({"New_Object0"}));
        QCOMPARE(undo()->text(), QStringLiteral("Undo Add Button"));
        redo()->trigger();
        QVERIFY(*m_doc == *after);
        QCOMPARE(listTexts(m_window->objectList(2)), QStringList({"btnPlay"}));
    }

    void aStepInsideASessionBelongsToIt()
    {
        newProject(*m_window);
        m_window->setEditor(Kind::Sprite, [](frmMain &window) {
            Document &doc = window.document();
            SpriteRec &sprite = doc.Sprites[static_cast<size_t>(doc.currentObjectIndex)];
            sprite.id = "sprHero";
            window.runStep("Edit Animation", [&sprite]() { sprite.anims[1].id = "walk"; });
            window.document().list(Kind::Sprite).lines[0].text = "sprHero";
        });
        clickTab(*m_window, 9);
        clickButton(m_window->form().cmdObjAdd);
        const auto before = copyOf(*m_doc);
        clickButton(m_window->form().cmdObjEdit);
        QCOMPARE(undo()->text(), QStringLiteral("Undo Edit Sprite \"sprHero\""));
        undo()->trigger();
        QVERIFY(*m_doc == *before);
        QCOMPARE(undo()->text(), QStringLiteral("Undo Add Sprite"));
    }

    void aDragCutInsideASessionIsAStepOfItsOwn()
    {
        newProject(*m_window);
        m_window->setEditor(Kind::Scene, [](frmMain &window) {
            Document &doc = window.document();
            SceneRec &scene = doc.Scenes[static_cast<size_t>(doc.currentObjectIndex)];
            scene.id = "scnMain";
            doc.list(Kind::Scene).lines[0].text = "scnMain";
            window.history().cutStep({});
            scene.layers[1].objectId = "imgHero";
            window.history().cutStep("Move \"imgHero\"");
            window.showList(Kind::Scene); // the hand-back, as the editor closes
        });
        clickTab(*m_window, 10);
        clickButton(m_window->form().cmdObjAdd);
        clickButton(m_window->form().cmdObjEdit);
        // Nothing changed after the drag: the session's last cut recorded it all.
        QCOMPARE(undo()->text(), QStringLiteral("Undo Move \"imgHero\""));
        QCOMPARE(listTexts(m_window->objectList(10)), QStringList({"scnMain"}));
        QCOMPARE(mark(), QStringLiteral("Unsaved changes"));
        undo()->trigger();
        // What was done before the drag is named by the line that was opened.
        QCOMPARE(undo()->text(), QStringLiteral("Undo Edit Scene \"New_Object0\""));
        undo()->trigger();
        QCOMPARE(listTexts(m_window->objectList(10)), QStringList({"New_Object0"}));
    }

    void anEditorSessionThatChangesNothingIsNoStep()
    {
        newProject(*m_window);
        m_window->setEditor(Kind::Font, [](frmMain &) {});
        clickTab(*m_window, 6);
        clickButton(m_window->form().cmdObjAdd);
        clickButton(m_window->form().cmdObjEdit);
        QCOMPARE(undo()->text(), QStringLiteral("Undo Add Font"));
    }

    void aSettingsDialogSessionIsOneStep()
    {
        newProject(*m_window);
        clickTab(*m_window, 1);
        const auto before = copyOf(*m_doc);
        openDialog<frmAppWindowProps>(
            m_window->form().cmdAppWindowProps, [](frmAppWindowProps *dialog) {
                auto *box =
                    dialog->findChild<QLineEdit *>(QStringLiteral("txtAppWindowPropsCaption"));
                typeInto(box, QStringLiteral("My Game"));
                typeInto(box, QStringLiteral("My Game 2"));
            });
        QCOMPARE(m_doc->AppSettings.windowCaption, std::string("My Game 2"));
        const auto after = copyOf(*m_doc);
        QCOMPARE(undo()->text(), QStringLiteral("Undo Window Properties"));
        undoAndRedo(*before, *after);
        undo()->trigger();
        QCOMPARE(m_doc->AppSettings.windowCaption, std::string("QTA Application"));
    }

    void aLogFilterWindowSessionIsOneStep()
    {
        newProject(*m_window);
        clickTab(*m_window, 11);
        const auto before = copyOf(*m_doc);
        openDialog<frmLogCustom>(m_window->form().cmdLogEditCustom, [](frmLogCustom *dialog) {
            typeInto(dialog->form().txtCustomFilterName, QStringLiteral("spam"));
            clickButton(dialog->form().cmdCustomCreateFilter);
            clickButton(dialog->form().cmdCustomCreateFilter);
        });
        QCOMPARE(m_doc->AppSettings.customFilterCount, int16_t(2));
        const auto after = copyOf(*m_doc);
        QCOMPARE(undo()->text(), QStringLiteral("Undo Custom Filters"));
        undoAndRedo(*before, *after);
    }

    void theShortcutsUndoAndRedo()
    {
        newProject(*m_window);
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        clickTab(*m_window, 2);
        const auto before = copyOf(*m_doc);
        clickButton(m_window->form().cmdObjAdd);
        const auto after = copyOf(*m_doc);
        QWidget *list = m_window->objectList(2);
        QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(*m_doc == *before);
        QTest::keyClick(list, Qt::Key_Y, Qt::ControlModifier);
        QVERIFY(*m_doc == *after);
        QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(*m_doc == *after);
    }

    void aRunOfTypingInTheRootFolderBoxIsOneStep()
    {
        newProject(*m_window);
        clickTab(*m_window, 1);
        const auto before = copyOf(*m_doc);
        QTest::keyClicks(m_window->form().txtAppRootFolder, QStringLiteral("/games"));
        // While the run is open Undo already offers it.
        QVERIFY(undo()->isEnabled());
        QCOMPARE(undo()->text(), QStringLiteral("Undo Type Root Folder"));
        leaveRootFolderBox();
        const auto after = copyOf(*m_doc);
        QTest::keyClicks(m_window->form().txtAppRootFolder, QStringLiteral("/demo"));
        leaveRootFolderBox();
        const auto second = copyOf(*m_doc);
        QCOMPARE(m_doc->AppSettings.rootFolder, std::string("/games/demo"));
        undo()->trigger();
        QVERIFY(*m_doc == *after);
        QCOMPARE(m_window->form().txtAppRootFolder->text(), QStringLiteral("/games"));
        undo()->trigger();
        QVERIFY(*m_doc == *before);
        QCOMPARE(m_window->form().txtAppRootFolder->text(), QString());
        QVERIFY(!undo()->isEnabled());
        redo()->trigger();
        redo()->trigger();
        QVERIFY(*m_doc == *second);
        QCOMPARE(m_window->form().txtAppRootFolder->text(), QStringLiteral("/games/demo"));
    }

    void undoEndsAnOpenRunOfTypingFirst()
    {
        newProject(*m_window);
        clickTab(*m_window, 1);
        QTest::keyClicks(m_window->form().txtAppRootFolder, QStringLiteral("/x"));
        undo()->trigger();
        QCOMPARE(m_doc->AppSettings.rootFolder, std::string());
        QCOMPARE(m_window->form().txtAppRootFolder->text(), QString());
        QCOMPARE(redo()->text(), QStringLiteral("Redo Type Root Folder"));
    }

    void newAndOpenAreUndoneToThePreviousProject()
    {
        newProject(*m_window, QStringLiteral("First"));
        clickTab(*m_window, 2);
        clickButton(m_window->form().cmdObjAdd);
        // Made live as its editor would, so that Save keeps it.
        ButtonRec &button =
            m_doc->Buttons[static_cast<size_t>(m_doc->list(Kind::Button).lines[0].slot)];
        button.isNew = 0;
        button.id = "btnKeep";
        m_doc->list(Kind::Button).lines[0].text = "btnKeep";
        const QString first = path(QStringLiteral("first.dvb"));
        saveAs(first);
        QCOMPARE(mark(), QString());
        const auto firstDoc = copyOf(*m_doc);

        m_ui->answers = {MessageAnswer::No};
        newProject(*m_window, QStringLiteral("Second"));
        const auto secondDoc = copyOf(*m_doc);
        QCOMPARE(undo()->text(), QStringLiteral("Undo New Project"));
        QCOMPARE(mark(), QStringLiteral("Unsaved changes"));
        undo()->trigger();
        QVERIFY(*m_doc == *firstDoc);
        QCOMPARE(listTexts(m_window->objectList(2)), QStringList({"btnKeep"}));
        QCOMPARE(mark(), QString());
        redo()->trigger();
        QVERIFY(*m_doc == *secondDoc);
        QCOMPARE(m_window->objectList(2)->count(), 0);

        openFile(first);
        const auto opened = copyOf(*m_doc);
        QCOMPARE(undo()->text(), QStringLiteral("Undo Open \"first.dvb\""));
        QCOMPARE(mark(), QString());
        undoAndRedo(*secondDoc, *opened);
        QCOMPARE(listTexts(m_window->objectList(2)), QStringList({"btnKeep"}));
        // Undo and redo touch no file.
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList({"first.dvb"}));
    }

    void anOpenThatFailsHalfWayIsAStepToo()
    {
        newProject(*m_window, QStringLiteral("First"));
        const auto before = copyOf(*m_doc);
        const QString damaged = path(QStringLiteral("damaged.dvb"));
        QFile file(damaged);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("\"P\"\r\n\"p.dvb\",\"\"\r\n0\r\n0\r\nx\r\n");
        file.close();
        openFile(damaged);
        QCOMPARE(m_ui->messages.back().title, std::string("Load Error"));
        QCOMPARE(undo()->text(), QStringLiteral("Undo Open \"damaged.dvb\""));
        QCOMPARE(mark(), QStringLiteral("Unsaved changes"));
        const auto after = copyOf(*m_doc);
        undoAndRedo(*before, *after);
    }

    void saveRemovesNewObjectsAsAStepAndMarksTheDocumentSaved()
    {
        newProject(*m_window);
        clickTab(*m_window, 2);
        clickButton(m_window->form().cmdObjAdd);
        const auto before = copyOf(*m_doc);
        const QString file = path(QStringLiteral("game.dvb"));
        saveAs(file);
        const QByteArray saved = readAll(file);
        QVERIFY(!saved.isEmpty());
        QCOMPARE(m_window->objectList(2)->count(), 0);
        QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("Saved \"%1\"").arg(file));
        QCOMPARE(mark(), QString());
        QCOMPARE(undo()->text(), QStringLiteral("Undo Remove New Objects"));
        undo()->trigger();
        // The lines come back; the path Save As chose stays.
        QCOMPARE(m_doc->lists, before->lists);
        QCOMPARE(m_doc->ProjectInfo.projectFilePath, file.toStdString());
        QCOMPARE(listTexts(m_window->objectList(2)), QStringList({"New_Object0"}));
        QCOMPARE(mark(), QStringLiteral("Unsaved changes"));
        redo()->trigger();
        QCOMPARE(mark(), QString());
        QCOMPARE(readAll(file), saved);
    }

    void generateRemovesNewObjectsAsAStep()
    {
        newProject(*m_window);
        clickTab(*m_window, 3);
        clickButton(m_window->form().cmdObjAdd);
        const auto before = copyOf(*m_doc);
        const QString out = path(QStringLiteral("data"));
        QVERIFY(QDir().mkpath(out));
        m_ui->fileChoices = {(out + QStringLiteral("/[no filename needed]")).toStdString()};
        m_window->form().mnuGenDataAs->trigger();
        QVERIFY(QFile::exists(out + QStringLiteral("/image.dat")));
        QCOMPARE(m_window->objectList(3)->count(), 0);
        QCOMPARE(undo()->text(), QStringLiteral("Undo Remove New Objects"));
        undo()->trigger();
        QCOMPARE(m_doc->lists, before->lists);
        QCOMPARE(listTexts(m_window->objectList(3)), QStringList({"New_Object0"}));
    }

    void theMarkFollowsTheSavedState()
    {
        newProject(*m_window);
        const QString file = path(QStringLiteral("game.dvb"));
        saveAs(file);
        QCOMPARE(mark(), QString());
        clickTab(*m_window, 2);
        clickButton(m_window->form().cmdObjAdd);
        QCOMPARE(mark(), QStringLiteral("Unsaved changes"));
        undo()->trigger();
        QCOMPARE(mark(), QString());
        redo()->trigger();
        QCOMPARE(mark(), QStringLiteral("Unsaved changes"));
        // Choosing a line is no change of the project.
        undo()->trigger();
        clickTab(*m_window, 1);
        QCOMPARE(mark(), QString());
    }

    void undoShowsTheRestoredQuickStatistics()
    {
        newProject(*m_window);
        clickTab(*m_window, 1);
        const QString statsBefore = QStringLiteral("Window Caption: QTA Application");
        openDialog<frmAppWindowProps>(
            m_window->form().cmdAppWindowProps, [](frmAppWindowProps *dialog) {
                typeInto(dialog->findChild<QLineEdit *>(QStringLiteral("txtAppWindowPropsCaption")),
                         QStringLiteral("Other"));
            });
        m_window->UpdateAppStats();
        QCOMPARE(m_window->form().lblAppStatsCaption->text(),
                 QStringLiteral("Window Caption: Other"));
        undo()->trigger();
        QCOMPARE(m_window->form().lblAppStatsCaption->text(), statsBefore);
    }
};

QTEST_MAIN(tst_History)
#include "tst_History.moc"
