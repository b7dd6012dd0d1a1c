#include "MainWindowDriver.h"
#include "ScriptedUserInterface.h"
#include "frmAbout.h"
#include "frmMain.h"
#include "frmProgress.h"
#include "model/Kinds.h"
#include "platform/Registry.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace vorlane;

class tst_frmMain : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    QLabel *label(const char *name)
    {
        return m_window->findChild<QLabel *>(QString::fromUtf8(name));
    }
    QPushButton *button(const char *name)
    {
        return m_window->findChild<QPushButton *>(QString::fromUtf8(name));
    }

private slots:
    void init()
    {
        m_doc = makeDocument();
        m_ui = std::make_unique<ScriptedUserInterface>();
        m_window = std::make_unique<frmMain>(*m_doc, *m_ui);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
    }

    void startsWithNoDataPage()
    {
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane"));
        QVERIFY(m_window->tabFrame(0)->isVisible());
        QCOMPARE(label("lblNoData")->text(), QStringLiteral("[ NO DATA LOADED]"));
        for (int tab = 1; tab <= 11; ++tab)
            QVERIFY(!m_window->tabFrame(tab)->isVisible());
        QCOMPARE(m_doc->ProjectInfo.projectOpen, int16_t(0));
        QVERIFY(!m_window->form().mnuSave->isEnabled());
        QVERIFY(!m_window->form().mnuSaveAs->isEnabled());
        QVERIFY(!m_window->form().mnuGenData->isEnabled());
        QVERIFY(!m_window->form().mnuGenDataAs->isEnabled());
        QVERIFY(m_window->form().mnuNew->isEnabled());
        QVERIFY(m_window->form().mnuOpen->isEnabled());
    }

    void controlsCarryTheirCaptions()
    {
        const auto &f = m_window->form();
        QCOMPARE(f.mnuFile->title(), QStringLiteral("&File"));
        QCOMPARE(f.mnuHelp->title(), QStringLiteral("&Help"));
        QCOMPARE(f.mnuGenData->text(), QStringLiteral("&Generate Data"));
        QCOMPARE(f.mnuGenDataAs->text(), QStringLiteral("Generate Data As..."));
        QCOMPARE(f.mnuOnlineHelp->text(), QStringLiteral("&Online Help"));
        QCOMPARE(f.mnuAbout->text(), QStringLiteral("&About"));
        QCOMPARE(f.mnuNew->shortcut(), QKeySequence(QStringLiteral("Ctrl+N")));
        QCOMPARE(f.mnuOpen->shortcut(), QKeySequence(QStringLiteral("Ctrl+O")));
        QCOMPARE(f.mnuSave->shortcut(), QKeySequence(QStringLiteral("Ctrl+S")));
        QCOMPARE(f.mnuSaveAs->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+S")));
        const QStringList tabs{"Application Data",
                               "Button Data",
                               "Cursor Data",
                               "Image Data",
                               "Text Data",
                               "Font Data",
                               "Music Data",
                               "SFX Data",
                               "Sprite Data",
                               "Scene Data",
                               "Error Log Data"};
        QCOMPARE(f.DataTabStrip->count(), 11);
        for (int i = 0; i < 11; ++i)
            QCOMPARE(f.DataTabStrip->tabText(i), tabs[i]);
        QCOMPARE(f.DataTabStrip->tabData(0).toString(), QStringLiteral("apptag"));
        QCOMPARE(f.cmdObjAdd->text(), QStringLiteral("Add Object"));
        QCOMPARE(f.cmdObjEdit->text(), QStringLiteral("Edit Properties"));
        QCOMPARE(f.cmdObjRemove->text(), QStringLiteral("Remove Object"));
        QCOMPARE(f.cmdAppWindowProps->text(), QStringLiteral("Edit Application Window Properties"));
        QCOMPARE(f.cmdAppSoundProps->text(), QStringLiteral("Edit Application Sound Properties"));
        QCOMPARE(f.cmdAppSplashProps->text(), QStringLiteral("Edit Splash Screen Properties"));
        QCOMPARE(f.cmdAppLogProps->text(), QStringLiteral("Edit Application Log Properties"));
        QCOMPARE(f.cmdLogEditType->text(), QStringLiteral("Edit Type Filters"));
        QCOMPARE(f.cmdLogEditFile->text(), QStringLiteral("Edit File Filters"));
        QCOMPARE(f.cmdLogEditCustom->text(), QStringLiteral("Edit Custom Filters"));
        for (int tab = 2; tab <= 10; ++tab) {
            QVERIFY(m_window->objectList(tab));
            QVERIFY(m_window->coverFrame(tab));
            QCOMPARE(m_window->findChild<QLabel *>(QStringLiteral("lblCover_%1").arg(tab))->text(),
                     QStringLiteral("[NO DATA]"));
        }
        // Design captions of the quick statistics.
        QCOMPARE(label("lblAppStatsScreenType")->text(), QStringLiteral("Screen Type: FULLSCREEN"));
        QCOMPARE(label("lblAppStatsSplash")->text(), QStringLiteral("Splash Screen: DISABLED"));
        QCOMPARE(label("lblAppStatsTileEngine")->text(), QStringLiteral("Tile Engine: DISABLED"));
        QCOMPARE(label("lblAppStatsLogging")->text(), QStringLiteral("Error Logging: DISABLED"));
        QCOMPARE(label("lblAppStatsFramerate")->text(), QStringLiteral("Framerate: 0"));
        QCOMPARE(label("lblAppStatsDepth")->text(), QStringLiteral("Screen Depth: 0"));
        QCOMPARE(label("lblAppStatsHeight")->text(), QStringLiteral("Screen Height: 0"));
        QCOMPARE(label("lblAppStatsWidth")->text(), QStringLiteral("Screen Width: 0"));
        QCOMPARE(label("lblTextStatsType")->text(), QStringLiteral("Text Type: NORMAL"));
        QCOMPARE(label("lblButtonStatsPosX")->text(), QStringLiteral("Button X:"));
        QCOMPARE(label("lblImageStatsPathTop")->text(), QStringLiteral("Image Path:"));
    }

    void tabClicksBeforeAProjectChangeNothing()
    {
        for (int tab = 2; tab <= 11; ++tab) {
            clickTab(*m_window, tab);
            QVERIFY(m_window->tabFrame(0)->isVisible());
            QVERIFY(!m_window->tabFrame(tab)->isVisible());
            QCOMPARE(m_window->form().DataTabStrip->currentIndex(), 0);
            QCOMPARE(m_window->currentTab(), 0);
            QVERIFY(!m_window->form().fraButtons->isVisible());
        }
    }

    void newProjectOpensTheApplicationPage()
    {
        newProject(*m_window);
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane - My Project"));
        QCOMPARE(m_doc->ProjectInfo.projectOpen, int16_t(-1));
        QCOMPARE(m_doc->AppSettings.windowCaption, std::string("QTA Application"));
        QCOMPARE(m_doc->AppSettings.screenType, int16_t(1));
        QVERIFY(!m_window->tabFrame(0)->isVisible());
        QVERIFY(m_window->tabFrame(1)->isVisible());
        QVERIFY(!m_window->form().fraButtons->isVisible());
        QVERIFY(m_window->form().mnuSaveAs->isEnabled());
        QVERIFY(m_window->form().mnuGenDataAs->isEnabled());
        QVERIFY(!m_window->form().mnuGenData->isEnabled());
    }

    void projectNameDialogRefusesAnEmptyName()
    {
        bool okEnabledWhenEmpty = true;
        whenModalShown<QDialog>([&](QDialog *dialog) {
            auto *box = dialog->findChild<QLineEdit *>(QStringLiteral("txtDataProjName"));
            auto *ok = dialog->findChild<QPushButton *>(QStringLiteral("cmdDataProjNameOK"));
            QCOMPARE(box->text(), QStringLiteral("My Project"));
            QVERIFY(ok->isEnabled());
            box->selectAll();
            QTest::keyClick(box, Qt::Key_Delete);
            okEnabledWhenEmpty = ok->isEnabled();
            QTest::keyClick(box, Qt::Key_Return); // OK is not usable: the dialog stays
            QVERIFY(dialog->isVisible());
            QTest::mouseClick(
                dialog->findChild<QPushButton *>(QStringLiteral("cmdDataProjNameCancel")),
                Qt::LeftButton);
        });
        m_window->form().mnuNew->trigger();
        QVERIFY(!okEnabledWhenEmpty);
        // Cancel changes nothing.
        QCOMPARE(m_doc->ProjectInfo.projectOpen, int16_t(0));
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane"));
        QVERIFY(m_window->tabFrame(0)->isVisible());
    }

    void switchingToAnEmptyKindDisablesRemoveAndLeavesEdit()
    {
        newProject(*m_window);
        m_window->form().cmdObjEdit->setEnabled(false);
        clickTab(*m_window, 4);
        QVERIFY(m_window->tabFrame(4)->isVisible());
        QVERIFY(!m_window->tabFrame(1)->isVisible());
        QCOMPARE(m_window->objectList(4)->count(), 0);
        QVERIFY(m_window->form().fraButtons->isVisible());
        QVERIFY(!m_window->form().cmdObjRemove->isEnabled());
        QVERIFY(!m_window->form().cmdObjEdit->isEnabled()); // left as it was
        m_window->form().cmdObjEdit->setEnabled(true);
        clickTab(*m_window, 5);
        QVERIFY(m_window->form().cmdObjEdit->isEnabled());
    }

    void switchingToAKindWithObjectsSelectsTheFirstLine()
    {
        newProject(*m_window);
        auto &buttons = m_doc->list(Kind::Button);
        buttons.lines = {{"btnA", 4}, {"btnB", 2}};
        m_doc->Buttons[4] = ButtonRec{};
        m_doc->Buttons[4].inUse = -1;
        m_doc->Buttons[4].id = "btnA";
        m_doc->Buttons[4].x = 17;
        m_doc->Buttons[4].y = -3;
        m_doc->Buttons[4].captionTextId = "null";
        m_window->showList(Kind::Button);
        clickTab(*m_window, 2);
        QCOMPARE(m_window->objectList(2)->currentRow(), 0);
        QVERIFY(m_window->form().cmdObjRemove->isEnabled());
        QVERIFY(!m_window->coverFrame(2)->isVisible());
        QCOMPARE(label("lblButtonStatsPosX")->text(), QStringLiteral("Button X: 17"));
        QCOMPARE(label("lblButtonStatsPosY")->text(), QStringLiteral("Button Y: -3"));
        QCOMPARE(label("lblButtonStatsCaption")->text(), QStringLiteral("Has Caption: NO"));
    }

    void everyKindShowsItsStatisticsOnceOpened()
    {
        newProject(*m_window);
        // The first label each kind's page fills, with a record value that shows in it.
        struct Case
        {
            Kind kind;
            const char *label;
            QString caption;
        };
        m_doc->Cursors[0].orientation = 3;
        m_doc->Images[0].path = "gfx/a.png";
        m_doc->Texts[0].fontId = "fntMain";
        m_doc->Fonts[0].path = "fonts/a.ttf";
        m_doc->MusicTracks[0].path = "music/a.ogg";
        m_doc->SoundEffects[0].path = "sfx/a.wav";
        m_doc->Sprites[0].imageId = "imgHero";
        m_doc->Scenes[0].layerCount = 4;
        m_doc->Buttons[0].x = 9;
        const Case cases[] = {
            {Kind::Button, "lblButtonStatsPosX", "Button X: 9"},
            {Kind::Cursor, "lblCursorStatsOrientation", "Cursor Orientation: LOWER-RIGHT"},
            {Kind::Image, "lblImageStatsPathBottom", "gfx/a.png"},
            {Kind::Text, "lblTextStatsFont", "Font: fntMain"},
            {Kind::Font, "lblFontStatsPath", "Font Path: fonts/a.ttf"},
            {Kind::Music, "lblMusicStatsPath", "Music Path: music/a.ogg"},
            {Kind::SFX, "lblSFXStatsPath", "SFX Path: sfx/a.wav"},
            {Kind::Sprite, "lblSpriteStatsImage", "Sprite Image: imgHero"},
            {Kind::Scene, "lblSceneStatsLayers", "# of Layers: 4"},
        };
        for (const Case &c : cases) {
            const int tab = tabOf(c.kind);
            clickTab(*m_window, tab);
            clickButton(m_window->form().cmdObjAdd);
            QVERIFY(m_window->coverFrame(tab)->isVisible());
            QVERIFY(label(c.label)->text() != c.caption);
            // Opened once in its editor: live, no longer new.
            slotOf(*m_doc, c.kind, 0).isNew = 0;
            slotOf(*m_doc, c.kind, 0).inUse = -1;
            clickLine(m_window->objectList(tab), 0);
            QVERIFY2(!m_window->coverFrame(tab)->isVisible(), c.label);
            QCOMPARE(label(c.label)->text(), c.caption);
        }
    }

    void unknownCodesLeaveTheirLabelsAsTheyWere()
    {
        newProject(*m_window);
        clickTab(*m_window, 3);
        for (int i = 0; i < 2; ++i)
            clickButton(m_window->form().cmdObjAdd);
        for (int slot : {0, 1}) {
            m_doc->Cursors[size_t(slot)].isNew = 0;
            m_doc->Cursors[size_t(slot)].inUse = -1;
        }
        m_doc->Cursors[0].orientation = 5;
        m_doc->Cursors[1].orientation = 6;
        clickLine(m_window->objectList(3), 0);
        QCOMPARE(label("lblCursorStatsOrientation")->text(),
                 QStringLiteral("Cursor Orientation: UPPER-LEFT"));
        clickLine(m_window->objectList(3), 1);
        QCOMPARE(label("lblCursorStatsOrientation")->text(),
                 QStringLiteral("Cursor Orientation: UPPER-LEFT"));
        m_doc->Cursors[1].orientation = 0;
        clickLine(m_window->objectList(3), 1);
        QCOMPARE(label("lblCursorStatsOrientation")->text(),
                 QStringLiteral("Cursor Orientation: UPPER-LEFT"));
    }

    void aLineStaysSelectedAfterACtrlClick()
    {
        newProject(*m_window);
        clickTab(*m_window, 2);
        clickButton(m_window->form().cmdObjAdd);
        QListWidget *list = m_window->objectList(2);
        const QPoint first = list->visualItemRect(list->item(0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, first);
        QCOMPARE(list->selectedItems().size(), 1);
        QCOMPARE(list->currentRow(), 0);
    }

    void clickingTheShownTabDoesNothing()
    {
        newProject(*m_window);
        clickTab(*m_window, 3);
        QCOMPARE(m_window->currentTab(), 3);
        clickTab(*m_window, 3);
        QCOMPARE(m_window->currentTab(), 3);
        QVERIFY(m_window->tabFrame(3)->isVisible());
    }

    void logTabHidesTheObjectButtons()
    {
        newProject(*m_window);
        clickTab(*m_window, 2);
        QVERIFY(m_window->form().fraButtons->isVisible());
        clickTab(*m_window, 11);
        QVERIFY(m_window->tabFrame(11)->isVisible());
        QVERIFY(!m_window->form().cmdObjAdd->isVisible());
        QVERIFY(!m_window->form().cmdObjEdit->isVisible());
        QVERIFY(!m_window->form().cmdObjRemove->isVisible());
        clickTab(*m_window, 1);
        QVERIFY(!m_window->form().fraButtons->isVisible());
    }

    void applicationTabShowsTheApplicationStatistics()
    {
        newProject(*m_window);
        m_doc->AppSettings.screenType = 2;
        m_doc->AppSettings.screenWidth = 640;
        m_doc->AppSettings.splashEnabled = 1;
        clickTab(*m_window, 2);
        clickTab(*m_window, 1);
        QCOMPARE(label("lblAppStatsScreenType")->text(), QStringLiteral("Screen Type: WINDOWED"));
        QCOMPARE(label("lblAppStatsWidth")->text(), QStringLiteral("Screen Width: 640"));
        QCOMPARE(label("lblAppStatsCaption")->text(),
                 QStringLiteral("Window Caption: QTA Application"));
        QCOMPARE(label("lblAppStatsSplash")->text(), QStringLiteral("Splash Screen: ENABLED"));
    }

    void rootFolderBoxWritesTheSettings()
    {
        newProject(*m_window);
        QTest::keyClicks(m_window->form().txtAppRootFolder, QStringLiteral(" C:\\game "));
        QCOMPARE(m_doc->AppSettings.rootFolder, std::string(" C:\\game "));
    }

    void addingObjectsNumbersThemAcrossKinds()
    {
        newProject(*m_window);
        clickTab(*m_window, 2);
        for (int i = 0; i < 3; ++i)
            clickButton(m_window->form().cmdObjAdd);
        QCOMPARE(listTexts(m_window->objectList(2)),
                 QStringList({"New_Object0", "New_Object1", "New_Object2"}));
        QCOMPARE(listSlots(m_window->objectList(2)), QList<int>({0, 1, 2}));
        QCOMPARE(m_window->objectList(2)->currentRow(), 2);
        QVERIFY(m_window->coverFrame(2)->isVisible());
        QVERIFY(m_window->form().cmdObjRemove->isEnabled());
        QVERIFY(m_window->form().cmdObjEdit->isEnabled());
        clickTab(*m_window, 4);
        clickButton(m_window->form().cmdObjAdd);
        QCOMPARE(listTexts(m_window->objectList(4)), QStringList({"New_Object3"}));
        QCOMPARE(listSlots(m_window->objectList(4)), QList<int>({0}));
    }

    void the101stButtonIsRefused()
    {
        newProject(*m_window);
        clickTab(*m_window, 2);
        for (int i = 0; i < 100; ++i)
            clickButton(m_window->form().cmdObjAdd);
        QCOMPARE(m_window->objectList(2)->count(), 100);
        QVERIFY(m_ui->messages.empty());
        clickButton(m_window->form().cmdObjAdd);
        QCOMPARE(m_window->objectList(2)->count(), 100);
        QCOMPARE(m_ui->messages.size(), size_t(1));
        QCOMPARE(m_ui->messages[0].text, std::string("No space left for buttons! (Max 100)"));
        QCOMPARE(m_ui->messages[0].title, std::string("Object Overload"));
        QVERIFY(m_ui->messages[0].icon == MessageIcon::Critical);
    }

    void removingTheOnlyObjectShowsTheCover()
    {
        newProject(*m_window);
        clickTab(*m_window, 7);
        clickButton(m_window->form().cmdObjAdd);
        m_doc->MusicTracks[0].isNew = 0; // opened once in its editor
        m_doc->MusicTracks[0].inUse = -1;
        clickLine(m_window->objectList(7), 0);
        QVERIFY(!m_window->coverFrame(7)->isVisible());
        m_window->form().cmdObjEdit->setEnabled(false);
        clickButton(m_window->form().cmdObjRemove);
        QCOMPARE(m_window->objectList(7)->count(), 0);
        QVERIFY(!m_window->form().cmdObjRemove->isEnabled());
        QVERIFY(m_window->form().cmdObjEdit->isEnabled());
        QVERIFY(m_window->coverFrame(7)->isVisible());
        QCOMPARE(m_doc->MusicTracks[0].inUse, int16_t(0));
    }

    void removingSlotZeroOfThreeSelectsTheNewFirstLine()
    {
        newProject(*m_window);
        clickTab(*m_window, 3);
        for (int i = 0; i < 3; ++i)
            clickButton(m_window->form().cmdObjAdd);
        clickLine(m_window->objectList(3), 0);
        clickButton(m_window->form().cmdObjRemove);
        QCOMPARE(listTexts(m_window->objectList(3)), QStringList({"New_Object1", "New_Object2"}));
        QCOMPARE(m_window->objectList(3)->currentRow(), 0);
    }

    void removeAfterAnEarlierRemoveTakesTheLineAtTheSlotPosition()
    {
        newProject(*m_window);
        clickTab(*m_window, 2);
        for (int i = 0; i < 3; ++i)
            clickButton(m_window->form().cmdObjAdd);
        clickLine(m_window->objectList(2), 0);
        clickButton(m_window->form().cmdObjRemove); // lines: New_Object1 (1), New_Object2 (2)
        clickLine(m_window->objectList(2), 0);      // New_Object1 in slot 1
        clickButton(m_window->form().cmdObjRemove);
        // Slot 1 was freed, but the line at position 1 went: New_Object2's line.
        QCOMPARE(listTexts(m_window->objectList(2)), QStringList({"New_Object1"}));
        QCOMPARE(m_doc->Buttons[1].isNew, int16_t(0));
        QCOMPARE(m_doc->Buttons[2].isNew, int16_t(-1));
        QCOMPARE(m_window->objectList(2)->currentRow(), 0);
    }

    void editSetsTheCurrentObjectIndexAndOpensTheEditor()
    {
        newProject(*m_window);
        clickTab(*m_window, 6);
        clickButton(m_window->form().cmdObjAdd);
        clickButton(m_window->form().cmdObjAdd);
        int opened = 0;
        m_window->setEditor(Kind::Font, [&](frmMain &) { ++opened; });
        clickLine(m_window->objectList(6), 1);
        clickButton(m_window->form().cmdObjEdit);
        QCOMPARE(m_doc->currentObjectIndex, int16_t(1));
        QCOMPARE(opened, 1);
        // A double click is a click followed by Edit.
        QListWidget *list = m_window->objectList(6);
        const QPoint first = list->visualItemRect(list->item(0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, first);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, first);
        QCOMPARE(m_doc->currentObjectIndex, int16_t(0));
        QCOMPARE(opened, 2);
    }

    void exitWithoutEverSavingAsksNothing()
    {
        newProject(*m_window);
        m_window->form().mnuExit->trigger();
        QVERIFY(m_ui->messages.empty());
        QVERIFY(!m_window->isVisible());
    }

    void exitAfterSavingAsksToSave()
    {
        newProject(*m_window);
        m_doc->ProjectInfo.projectFilePath = "/nonexistent-folder/p.dvb";
        m_ui->answers = {MessageAnswer::No};
        m_window->form().mnuExit->trigger();
        QCOMPARE(m_ui->messages.size(), size_t(1));
        QCOMPARE(m_ui->messages[0].text,
                 std::string("Would you like to save your project before exiting?"));
        QCOMPARE(m_ui->messages[0].title, std::string("Save Data"));
        QVERIFY(m_ui->messages[0].buttons == MessageButtons::YesNo);
        QVERIFY(m_ui->messages[0].icon == MessageIcon::Question);
    }

    void saveThatDropsEveryLineDisablesRemove()
    {
        newProject(*m_window);
        clickTab(*m_window, tabOf(Kind::Image));
        clickButton(m_window->form().cmdObjAdd);
        QVERIFY(m_window->form().cmdObjRemove->isEnabled());
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        m_ui->fileChoices = {dir.filePath(QStringLiteral("p.dvb")).toStdString()};
        m_ui->answers = {MessageAnswer::Yes}; // drop the object never opened
        m_window->form().mnuSaveAs->trigger();
        QCOMPARE(m_window->objectList(tabOf(Kind::Image))->count(), 0);
        // The shown list is empty, so Remove has nothing left to act on; Edit stays as it was.
        QVERIFY(!m_window->form().cmdObjRemove->isEnabled());
        QVERIFY(m_window->form().cmdObjEdit->isEnabled());
        m_doc->ProjectInfo.projectFilePath.clear();
    }

    void onlineHelpOpensTheManual()
    {
        QUrl opened;
        m_window->setUrlOpener([&](const QUrl &url) {
            opened = url;
            return true;
        });
        m_window->form().mnuOnlineHelp->trigger();
        // Run from the build folder, the editor opens the source tree's manual.
        QCOMPARE(opened,
                 QUrl::fromLocalFile(QStringLiteral(VORLANE_DOCS_DIR "/manual/index.html")));
        QVERIFY(QFileInfo::exists(opened.toLocalFile()));
        QVERIFY(m_ui->messages.empty());
    }

    void aboutBoxShowsTitleVersionAndDescription()
    {
        auto registry = systemRegistry();
        int started = 0;
        frmAbout about(*m_ui, *registry, [&](const QString &) {
            ++started;
            return true;
        });
        QCOMPARE(about.windowTitle(), QStringLiteral("About Vorlane"));
        auto *version = about.findChild<QLabel *>(QStringLiteral("lblVersion"));
        QVERIFY(version->text().startsWith(QStringLiteral("Version ")));
        QCOMPARE(about.findChild<QLabel *>(QStringLiteral("lblTitle"))->text(),
                 QStringLiteral("Vorlane"));
        QCOMPARE(about.findChild<QLabel *>(QStringLiteral("lblDescription"))->text(),
                 QStringLiteral("Vorlane is a development tool used to create, manage and edit "
                                "objects for use in the Korrin 2D game engine"));
        auto *sysInfo = about.findChild<QPushButton *>(QStringLiteral("cmdSysInfo"));
        QCOMPARE(sysInfo->text(), QStringLiteral("&System Info..."));
        QTest::mouseClick(sysInfo, Qt::LeftButton);
        QCOMPARE(started, 0);
        QCOMPARE(m_ui->messages.size(), size_t(1));
        QCOMPARE(m_ui->messages[0].text,
                 std::string("System Information Is Unavailable At This Time"));
        QVERIFY(m_ui->messages[0].icon == MessageIcon::None);
        QVERIFY(m_ui->messages[0].buttons == MessageButtons::OK);
        QVERIFY(!about.findChild<QLabel *>(QStringLiteral("picIcon"))->pixmap().isNull());
    }

    void progressWindowStartsAtZero()
    {
        frmProgress progress;
        QCOMPARE(progress.findChild<QProgressBar *>(QStringLiteral("prbProgress"))->value(), 0);
        progress.setMaximum(10);
        progress.setValue(4);
        progress.begin("Saving Data...");
        QCOMPARE(progress.windowTitle(), QStringLiteral("Saving Data..."));
        QCOMPARE(progress.value(), 0);
        progress.setLabel("Saving Button Data...");
        QCOMPARE(progress.findChild<QLabel *>(QStringLiteral("lblProgress"))->text(),
                 QStringLiteral("Saving Button Data..."));
        progress.end();
        QVERIFY(!progress.isVisible());
    }
};

QTEST_MAIN(tst_frmMain)
#include "tst_frmMain.moc"
