#include "MainWindowDriver.h"
#include "ModalDriver.h"
#include "ObjectSetup.h"
#include "ProblemsPanel.h"
#include "ScriptedUserInterface.h"
#include "UsedByPanel.h"
#include "frmFind.h"
#include "frmMain.h"
#include "frmRename.h"

#include <QLabel>
#include <QListWidget>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

using namespace vorlane;

// The main window's Used By panel, Edit > Rename Object, Edit > Find Object and the problems
// panel brought up to date after every change.
class tst_References : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;
    // Every editor opening: the kind and the slot in the current object index.
    std::vector<ObjectRef> m_opened;
    int m_image = 0, m_sky = 0, m_button = 0, m_sprite = 0;

    QListWidget *usedBy() { return m_window->findChild<QListWidget *>("lstUsedBy"); }
    QListWidget *problems() { return m_window->findChild<QListWidget *>("lstProblems"); }
    QString problemSummary() { return m_window->findChild<QLabel *>("lblProblems")->text(); }
    QString status() { return m_window->statusBar()->currentMessage(); }

    static void doubleClickLine(QListWidget *list, int row)
    {
        const QPoint at = list->visualItemRect(list->item(row)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
    }

    void select(Kind kind, int row)
    {
        clickTab(*m_window, tabOf(kind));
        clickLine(m_window->objectList(tabOf(kind)), row);
    }

    ButtonRec &button() { return m_doc->Buttons[static_cast<size_t>(m_button)]; }

    // Runs Rename on the selected object and `action` on its dialog.
    void rename(std::function<void(frmRename *)> action)
    {
        bool shown = false;
        whenModalShown<frmRename>([&](frmRename *dialog) {
            shown = true;
            action(dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
        m_window->form().mnuRename->trigger();
        QVERIFY(shown);
    }

    static void typeName(frmRename *dialog, const QString &name)
    {
        dialog->form().txtRenameID->selectAll();
        QTest::keyClick(dialog->form().txtRenameID, Qt::Key_Backspace);
        QTest::keyClicks(dialog->form().txtRenameID, name);
    }

    void bindEditors()
    {
        for (Kind kind : ListOrder)
            m_window->setEditor(kind, [this, kind](frmMain &window) {
                m_opened.push_back({kind, window.document().currentObjectIndex});
            });
    }

private slots:
    void init()
    {
        m_doc = makeDocument();
        m_ui = std::make_unique<ScriptedUserInterface>();
        m_window = std::make_unique<frmMain>(*m_doc, *m_ui);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        newProject(*m_window);
        m_opened.clear();
        bindEditors();
        m_image = addLiveObject(*m_window, Kind::Image, "imgHero");
        m_doc->Images[static_cast<size_t>(m_image)].path = "null";
        m_sky = addLiveObject(*m_window, Kind::Image, "imgSky");
        m_doc->Images[static_cast<size_t>(m_sky)].path = "null";
        m_sprite = addLiveObject(*m_window, Kind::Sprite, "sprHero");
        SpriteRec &sprite = m_doc->Sprites[static_cast<size_t>(m_sprite)];
        sprite.imageId = "imgHero";
        sprite.currentAnimId = "null";
        m_button = addLiveObject(*m_window, Kind::Button, "btnPlay");
        ButtonRec &b = button();
        b.cursorId = b.captionTextId = b.soundUp = b.soundDown = "null";
        b.soundOver = b.soundDisabled = "null";
        b.templateId = b.iconId = "imgHero";
        for (Kind kind : {Kind::Image, Kind::Sprite, Kind::Button}) {
            for (ListLine &line : m_doc->list(kind).lines)
                line.text = slotOf(*m_doc, kind, line.slot).id;
            m_window->showList(kind);
        }
        m_window->refreshChecks();
    }
    void cleanup() { m_window.reset(); }

    void editMenuFollowsTheFileMenu()
    {
        const QList<QAction *> menus = m_window->form().menubar->actions();
        QVERIFY(menus.size() >= 3);
        QCOMPARE(menus[0], m_window->form().mnuFile->menuAction());
        QCOMPARE(menus[1], m_window->form().mnuEdit->menuAction());
        QCOMPARE(m_window->form().mnuEdit->objectName(), QStringLiteral("mnuEdit"));
        QCOMPARE(m_window->form().mnuEdit->title(), QStringLiteral("&Edit"));
        QCOMPARE(m_window->form().mnuRename->text(), QStringLiteral("&Rename Object..."));
        QCOMPARE(m_window->form().mnuRename->shortcut(), QKeySequence(Qt::Key_F2));
        QCOMPARE(m_window->form().mnuFind->text(), QStringLiteral("&Find Object..."));
        QCOMPARE(m_window->form().mnuFind->shortcut(), QKeySequence(QKeySequence::Find));
    }

    void usedByFollowsTheSelection()
    {
        select(Kind::Image, 0);
        QCOMPARE(listTexts(usedBy()),
                 (QStringList{"Button \"btnPlay\": template",
                              "Button \"btnPlay\": icon",
                              "Sprite \"sprHero\": image"}));
        select(Kind::Image, 1);
        QCOMPARE(listTexts(usedBy()), QStringList{"Not used by any object"});
        select(Kind::Button, 0);
        QCOMPARE(listTexts(usedBy()), QStringList{"Not used by any object"});
        clickTab(*m_window, 1);
        QCOMPARE(listTexts(usedBy()), QStringList{});
    }

    void usedByFollowsAnEditorsChange()
    {
        select(Kind::Image, 1);
        m_window->setEditor(Kind::Image, [this](frmMain &) {
            // The editor is open on imgSky, while the button takes it as its icon.
            button().iconId = "imgSky";
        });
        clickButton(m_window->form().cmdObjEdit);
        QCOMPARE(listTexts(usedBy()), QStringList{"Button \"btnPlay\": icon"});
    }

    void doubleClickInUsedByOpensTheReferringObject()
    {
        select(Kind::Image, 0);
        doubleClickLine(usedBy(), 2);
        QCOMPARE(m_opened.size(), size_t(1));
        QCOMPARE(m_opened[0], (ObjectRef{Kind::Sprite, m_sprite}));
        QCOMPARE(m_window->currentTab(), tabOf(Kind::Sprite));
        QCOMPARE(m_doc->list(Kind::Sprite).selected, 0);
    }

    void renameCountsAndRefuses()
    {
        select(Kind::Image, 0);
        rename([](frmRename *dialog) {
            QCOMPARE(dialog->form().txtRenameID->text(), QStringLiteral("imgHero"));
            QCOMPARE(dialog->form().lblRenameReferences->text(),
                     QStringLiteral("3 references will follow"));
            typeName(dialog, QStringLiteral("imgSky"));
            QTest::mouseClick(dialog->form().cmdRenameOK, Qt::LeftButton);
            QVERIFY(dialog->isVisible());
            QVERIFY(dialog->form().lblRenameRefusal->isVisible());
            QCOMPARE(dialog->form().lblRenameRefusal->text(),
                     QStringLiteral("Another image is already called \"imgSky\"."));
            typeName(dialog, QString());
            QVERIFY(!dialog->form().lblRenameRefusal->isVisible());
            QTest::mouseClick(dialog->form().cmdRenameOK, Qt::LeftButton);
            QCOMPARE(dialog->form().lblRenameRefusal->text(),
                     QStringLiteral("The identifier is empty."));
            typeName(dialog, QStringLiteral("img\"Hero"));
            QTest::mouseClick(dialog->form().cmdRenameOK, Qt::LeftButton);
            QCOMPARE(dialog->form().lblRenameRefusal->text(),
                     QStringLiteral("The identifier holds a double quote, which the project "
                                    "file cannot hold."));
            QVERIFY(dialog->isVisible());
        });
        QCOMPARE(m_doc->Images[static_cast<size_t>(m_image)].id, std::string("imgHero"));
        select(Kind::Image, 1);
        rename([](frmRename *dialog) {
            QCOMPARE(dialog->form().lblRenameReferences->text(),
                     QStringLiteral("No reference will follow"));
        });
        select(Kind::Sprite, 0);
        rename([](frmRename *dialog) {
            QCOMPARE(dialog->form().lblRenameReferences->text(),
                     QStringLiteral("No reference will follow"));
        });
    }

    void renameAppliesEverywhere()
    {
        select(Kind::Image, 0);
        rename([](frmRename *dialog) {
            typeName(dialog, QStringLiteral("imgPlayer"));
            QTest::mouseClick(dialog->form().cmdRenameOK, Qt::LeftButton);
            QVERIFY(!dialog->isVisible());
        });
        QCOMPARE(listTexts(m_window->objectList(tabOf(Kind::Image))),
                 (QStringList{"imgPlayer", "imgSky"}));
        QCOMPARE(button().templateId, std::string("imgPlayer"));
        QCOMPARE(button().iconId, std::string("imgPlayer"));
        QCOMPARE(m_doc->Sprites[static_cast<size_t>(m_sprite)].imageId, std::string("imgPlayer"));
        QCOMPARE(listTexts(usedBy()).size(), 3);
        QVERIFY(!m_window->problemsPanel().isVisible());
    }

    void cancelRenamesNothing()
    {
        select(Kind::Button, 0);
        rename([](frmRename *dialog) {
            typeName(dialog, QStringLiteral("btnStart"));
            QTest::mouseClick(dialog->form().cmdRenameCancel, Qt::LeftButton);
            QVERIFY(!dialog->isVisible());
        });
        QCOMPARE(button().id, std::string("btnPlay"));
        QCOMPARE(listTexts(m_window->objectList(tabOf(Kind::Button))), QStringList{"btnPlay"});
    }

    void aLongIdentifierIsShownWholeAndKept()
    {
        const std::string longId = "img" + std::string(40000, 'x');
        m_doc->Images[static_cast<size_t>(m_sky)].id = longId;
        m_doc->list(Kind::Image).lines[1].text = longId;
        m_window->showList(Kind::Image);
        select(Kind::Image, 1);
        rename([](frmRename *dialog) {
            QCOMPARE(dialog->form().txtRenameID->text().size(), 40003);
            // OK without typing keeps the name as it was, whole.
            QTest::mouseClick(dialog->form().cmdRenameOK, Qt::LeftButton);
        });
        QCOMPARE(m_doc->Images[static_cast<size_t>(m_sky)].id, longId);
    }

    void findSelectsTheObjectInItsTab()
    {
        select(Kind::Button, 0);
        m_window->form().mnuFind->trigger();
        frmFind *find = m_window->findWindow();
        QVERIFY(find);
        QVERIFY(find->isVisible());
        QTest::keyClicks(find->form().txtFind, QStringLiteral("HER"));
        QCOMPARE(listTexts(find->form().lstFind),
                 (QStringList{"Image \"imgHero\"", "Sprite \"sprHero\""}));
        QTest::keyClick(find->form().txtFind, Qt::Key_Return);
        QCOMPARE(m_window->currentTab(), tabOf(Kind::Image));
        QCOMPARE(m_doc->list(Kind::Image).selected, 0);
        doubleClickLine(find->form().lstFind, 1);
        QCOMPARE(m_window->currentTab(), tabOf(Kind::Sprite));
        QCOMPARE(m_doc->list(Kind::Sprite).selected, 0);
        QTest::keyClicks(find->form().txtFind, QStringLiteral("x"));
        QCOMPARE(listTexts(find->form().lstFind), QStringList{});
        QVERIFY(m_opened.empty());
    }

    void aProblemShowsAndGoesAsEditorsClose()
    {
        QVERIFY(!m_window->problemsPanel().isVisible());
        QCOMPARE(status(), QStringLiteral("No problems"));
        select(Kind::Button, 0);
        m_window->setEditor(Kind::Button, [this](frmMain &) { button().templateId = "imgGone"; });
        clickButton(m_window->form().cmdObjEdit);
        QVERIFY(m_window->problemsPanel().isVisible());
        QCOMPARE(listTexts(problems()),
                 QStringList{"My Project: button \"btnPlay\": templateId \"imgGone\" names no "
                             "image"});
        QCOMPARE(problemSummary(), QStringLiteral("1 problem"));
        QCOMPARE(status(), QStringLiteral("1 problem"));
        m_window->setEditor(Kind::Button, [this](frmMain &) { button().templateId = "imgSky"; });
        clickButton(m_window->form().cmdObjEdit);
        QVERIFY(!m_window->problemsPanel().isVisible());
        QCOMPARE(listTexts(problems()), QStringList{});
        QCOMPARE(status(), QStringLiteral("No problems"));
    }

    void removingAUsedObjectShowsTheBrokenReference()
    {
        select(Kind::Image, 0);
        clickButton(m_window->form().cmdObjRemove);
        QCOMPARE(listTexts(problems()),
                 (QStringList{"My Project: button \"btnPlay\": templateId \"imgHero\" names no "
                              "image",
                              "My Project: button \"btnPlay\": iconId \"imgHero\" names no image",
                              "My Project: sprite \"sprHero\": imageId \"imgHero\" names no "
                              "image"}));
        QVERIFY(m_window->problemsPanel().isVisible());
        QCOMPARE(status(), QStringLiteral("3 problems"));
    }

    void addingAnObjectRefreshesTheReport()
    {
        // Changed behind the window's back: the next step brings the report up to date.
        m_doc->Sprites[static_cast<size_t>(m_sprite)].imageId = "imgGone";
        addObjectOn(*m_window, Kind::Text);
        QCOMPARE(listTexts(problems()),
                 QStringList{"My Project: sprite \"sprHero\": imageId \"imgGone\" names no "
                             "image"});
    }

    void renamingCanMendABrokenReference()
    {
        button().iconId = "imgPlayer";
        addObjectOn(*m_window, Kind::Text);
        QCOMPARE(listTexts(problems()).size(), 1);
        select(Kind::Image, 1);
        rename([](frmRename *dialog) {
            typeName(dialog, QStringLiteral("imgPlayer"));
            QTest::mouseClick(dialog->form().cmdRenameOK, Qt::LeftButton);
        });
        QCOMPARE(listTexts(problems()), QStringList{});
        QVERIFY(!m_window->problemsPanel().isVisible());
    }

    void aSettingChangedShowsItsProblem()
    {
        clickTab(*m_window, 1);
        whenModalShown<QDialog>([](QDialog *dialog) {
            auto *caption = dialog->findChild<QLineEdit *>("txtAppWindowPropsCaption");
            caption->selectAll();
            QTest::keyClicks(caption, QStringLiteral("Quest*"));
            dialog->close();
        });
        clickButton(m_window->form().cmdAppWindowProps);
        QCOMPARE(listTexts(problems()),
                 QStringList{"My Project: application: windowCaption holds \"*\", which the "
                             "engine reads as the end of the text"});
        QVERIFY(m_window->problemsPanel().isVisible());
    }

    void aMissingFileIsAWarning()
    {
        m_doc->Images[static_cast<size_t>(m_sky)].path = "/nowhere/sky.png";
        addObjectOn(*m_window, Kind::Text);
        QCOMPARE(listTexts(problems()),
                 QStringList{"warning: My Project: image \"imgSky\": path \"/nowhere/sky.png\": "
                             "file \"/nowhere/sky.png\" does not exist"});
        QCOMPARE(status(), QStringLiteral("1 warning"));
    }

    void aPanelClosedByTheUserStaysClosedForAProblemItShowed()
    {
        button().templateId = "imgGone";
        addObjectOn(*m_window, Kind::Text);
        QVERIFY(m_window->problemsPanel().isVisible());
        m_window->problemsPanel().close();
        addObjectOn(*m_window, Kind::Text);
        QVERIFY(!m_window->problemsPanel().isVisible());
        QCOMPARE(listTexts(problems()).size(), 1);
        // A new problem brings it back.
        button().iconId = "imgGone";
        addObjectOn(*m_window, Kind::Text);
        QVERIFY(m_window->problemsPanel().isVisible());
    }

    void doubleClickOnAProblemOpensItsObject()
    {
        m_doc->Sprites[static_cast<size_t>(m_sprite)].imageId = "imgGone";
        addObjectOn(*m_window, Kind::Text);
        QCOMPARE(listTexts(problems()).size(), 1);
        doubleClickLine(problems(), 0);
        QCOMPARE(m_opened.size(), size_t(1));
        QCOMPARE(m_opened[0], (ObjectRef{Kind::Sprite, m_sprite}));
        QCOMPARE(m_window->currentTab(), tabOf(Kind::Sprite));
    }

    void saveReportLinesOpenTheirObjectsToo()
    {
        QTemporaryDir dir;
        button().id = "x\",y";
        m_doc->list(Kind::Button).lines[0].text = "x\",y";
        m_ui->fileChoices = {dir.filePath("game.dvb").toStdString()};
        m_window->form().mnuSaveAs->trigger();
        QCOMPARE(listTexts(problems()).size(), 1);
        QVERIFY(listTexts(problems())[0].contains("id holds a double quote followed by a comma"));
        doubleClickLine(problems(), 0);
        QCOMPARE(m_opened.size(), size_t(1));
        QCOMPARE(m_opened[0], (ObjectRef{Kind::Button, m_button}));
        m_doc->ProjectInfo.projectFilePath.clear();
    }

    void openingAProjectShowsItsProblems()
    {
        QTemporaryDir dir;
        const std::string file = dir.filePath("game.dvb").toStdString();
        button().captionTextId = "txtGone";
        m_ui->fileChoices = {file};
        m_window->form().mnuSaveAs->trigger();
        m_window->problemsPanel().close();
        m_ui->fileChoices = {file};
        m_window->form().mnuOpen->trigger();
        QCOMPARE(listTexts(problems()),
                 QStringList{QString::fromStdString(
                     file + ": button \"btnPlay\": captionTextId \"txtGone\" names no text")});
        QCOMPARE(status(), QStringLiteral("1 problem"));
        m_doc->ProjectInfo.projectFilePath.clear();
    }

    void undoTakesARenameBackWholeAndRedoBringsItAgain()
    {
        // The icon names an image no one is called yet: after the rename it is one more
        // reference, which Undo must give back as it was, not rename back.
        button().iconId = "imgPlayer";
        addObjectOn(*m_window, Kind::Text);
        const QStringList broken{
            "My Project: button \"btnPlay\": iconId \"imgPlayer\" names no image"};
        QCOMPARE(listTexts(problems()), broken);
        select(Kind::Image, 0);
        const QStringList before{"Button \"btnPlay\": template", "Sprite \"sprHero\": image"};
        const QStringList after{"Button \"btnPlay\": template",
                                "Button \"btnPlay\": icon",
                                "Sprite \"sprHero\": image"};
        QCOMPARE(listTexts(usedBy()), before);
        rename([](frmRename *dialog) {
            typeName(dialog, QStringLiteral("imgPlayer"));
            QTest::mouseClick(dialog->form().cmdRenameOK, Qt::LeftButton);
        });
        QCOMPARE(m_doc->Images[static_cast<size_t>(m_image)].id, std::string("imgPlayer"));
        QCOMPARE(listTexts(usedBy()), after);
        QCOMPARE(listTexts(problems()), QStringList{});
        QCOMPARE(status(), QStringLiteral("No problems"));
        QCOMPARE(m_window->form().mnuUndo->text(), QStringLiteral("Undo Rename Image \"imgHero\""));

        m_window->form().mnuUndo->trigger();
        QCOMPARE(m_doc->Images[static_cast<size_t>(m_image)].id, std::string("imgHero"));
        QCOMPARE(listTexts(m_window->objectList(tabOf(Kind::Image))),
                 (QStringList{"imgHero", "imgSky"}));
        QCOMPARE(button().templateId, std::string("imgHero"));
        QCOMPARE(button().iconId, std::string("imgPlayer"));
        QCOMPARE(m_doc->Sprites[static_cast<size_t>(m_sprite)].imageId, std::string("imgHero"));
        QCOMPARE(listTexts(usedBy()), before);
        QCOMPARE(listTexts(problems()), broken);
        QCOMPARE(status(), QStringLiteral("1 problem"));
        // The rename was one step: the one before it is the Add.
        QCOMPARE(m_window->form().mnuUndo->text(), QStringLiteral("Undo Add Text"));
        QCOMPARE(m_window->form().mnuRedo->text(), QStringLiteral("Redo Rename Image \"imgHero\""));

        m_window->form().mnuRedo->trigger();
        QCOMPARE(m_doc->Images[static_cast<size_t>(m_image)].id, std::string("imgPlayer"));
        QCOMPARE(listTexts(m_window->objectList(tabOf(Kind::Image))),
                 (QStringList{"imgPlayer", "imgSky"}));
        QCOMPARE(button().templateId, std::string("imgPlayer"));
        QCOMPARE(button().iconId, std::string("imgPlayer"));
        QCOMPARE(m_doc->Sprites[static_cast<size_t>(m_sprite)].imageId, std::string("imgPlayer"));
        QCOMPARE(listTexts(usedBy()), after);
        QCOMPARE(listTexts(problems()), QStringList{});
        QCOMPARE(status(), QStringLiteral("No problems"));
    }

    void findFollowsUndoAndRedo()
    {
        m_window->form().mnuFind->trigger();
        frmFind *find = m_window->findWindow();
        QVERIFY(find);
        QTest::keyClicks(find->form().txtFind, QStringLiteral("play"));
        QCOMPARE(listTexts(find->form().lstFind), QStringList{"Button \"btnPlay\""});
        select(Kind::Image, 0);
        rename([](frmRename *dialog) {
            typeName(dialog, QStringLiteral("imgPlayer"));
            QTest::mouseClick(dialog->form().cmdRenameOK, Qt::LeftButton);
        });
        QCOMPARE(listTexts(find->form().lstFind),
                 (QStringList{"Button \"btnPlay\"", "Image \"imgPlayer\""}));
        m_window->form().mnuUndo->trigger();
        QCOMPARE(listTexts(find->form().lstFind), QStringList{"Button \"btnPlay\""});
        m_window->form().mnuRedo->trigger();
        QCOMPARE(listTexts(find->form().lstFind),
                 (QStringList{"Button \"btnPlay\"", "Image \"imgPlayer\""}));
    }

    void aProblemMendedInAnEditorComesBackWithUndo()
    {
        button().templateId = "imgGone";
        addObjectOn(*m_window, Kind::Text);
        const QStringList broken{
            "My Project: button \"btnPlay\": templateId \"imgGone\" names no image"};
        QCOMPARE(listTexts(problems()), broken);
        QVERIFY(m_window->problemsPanel().isVisible());
        select(Kind::Button, 0);
        m_window->setEditor(Kind::Button, [this](frmMain &) { button().templateId = "imgSky"; });
        clickButton(m_window->form().cmdObjEdit);
        QCOMPARE(listTexts(problems()), QStringList{});
        QVERIFY(!m_window->problemsPanel().isVisible());
        QCOMPARE(status(), QStringLiteral("No problems"));

        m_window->form().mnuUndo->trigger();
        QCOMPARE(button().templateId, std::string("imgGone"));
        QCOMPARE(listTexts(problems()), broken);
        QVERIFY(m_window->problemsPanel().isVisible());
        QCOMPARE(problemSummary(), QStringLiteral("1 problem"));
        QCOMPARE(status(), QStringLiteral("1 problem"));

        m_window->form().mnuRedo->trigger();
        QCOMPARE(button().templateId, std::string("imgSky"));
        QCOMPARE(listTexts(problems()), QStringList{});
        QVERIFY(!m_window->problemsPanel().isVisible());
        QCOMPARE(status(), QStringLiteral("No problems"));
    }

    void usedByFollowsAnUndoneEdit()
    {
        select(Kind::Image, 1);
        QCOMPARE(listTexts(usedBy()), QStringList{"Not used by any object"});
        m_window->setEditor(Kind::Image, [this](frmMain &) { button().iconId = "imgSky"; });
        clickButton(m_window->form().cmdObjEdit);
        QCOMPARE(listTexts(usedBy()), QStringList{"Button \"btnPlay\": icon"});
        m_window->form().mnuUndo->trigger();
        QCOMPARE(listTexts(usedBy()), QStringList{"Not used by any object"});
        m_window->form().mnuRedo->trigger();
        QCOMPARE(listTexts(usedBy()), QStringList{"Button \"btnPlay\": icon"});
    }

    void checkProjectLinesOpenTheirObjectsToo()
    {
        button().soundUp = "sfxGone";
        m_window->form().mnuCheckProject->trigger();
        QCOMPARE(listTexts(problems()),
                 QStringList{"My Project: button \"btnPlay\": soundUp \"sfxGone\" names no sound "
                             "effect"});
        doubleClickLine(problems(), 0);
        QCOMPARE(m_opened.size(), size_t(1));
        QCOMPARE(m_opened[0], (ObjectRef{Kind::Button, m_button}));
    }
};

QTEST_MAIN(tst_References)
#include "tst_References.moc"
