#include "MainWindowDriver.h"
#include "ProblemsPanel.h"
#include "ScriptedUserInterface.h"
#include "frmMain.h"

#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using namespace vorlane;

// The main window after a Save whose file would not read back intact: the problems panel and
// the status line say so, with no message box; File > Check Project shows the whole report.
class tst_ProblemsPanel : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;
    std::unique_ptr<QTemporaryDir> m_dir;

    std::string path(const char *name) const { return m_dir->filePath(name).toStdString(); }

    ProblemsPanel &panel() { return m_window->problemsPanel(); }
    QString summary() { return panel().findChild<QLabel *>("lblProblems")->text(); }
    QStringList lines() { return listTexts(panel().findChild<QListWidget *>("lstProblems")); }

    // Adds a button with `id` and makes it live, as its editor would on first opening.
    void addLiveButton(const std::string &id)
    {
        clickTab(*m_window, 2);
        clickButton(m_window->form().cmdObjAdd);
        auto &list = m_doc->list(Kind::Button);
        auto &button = m_doc->Buttons[static_cast<size_t>(list.lines.back().slot)];
        button = ButtonRec{};
        button.inUse = -1;
        button.id = id;
        button.cursorId = button.templateId = button.iconId = button.captionTextId = "null";
        button.soundUp = button.soundDown = button.soundOver = button.soundDisabled = "null";
        list.lines.back().text = id;
        m_window->showList(Kind::Button);
    }

    void saveAs(const std::string &file)
    {
        m_ui->fileChoices = {file};
        m_window->form().mnuSaveAs->trigger();
    }

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        m_doc = makeDocument();
        m_ui = std::make_unique<ScriptedUserInterface>();
        m_window = std::make_unique<frmMain>(*m_doc, *m_ui);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        newProject(*m_window);
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear();
        m_window.reset();
    }

    void theMenuHasCheckProject()
    {
        QCOMPARE(m_window->form().mnuCheckProject->text(), QStringLiteral("&Check Project"));
        QVERIFY(m_window->form().mnuFile->actions().contains(m_window->form().mnuCheckProject));
        QVERIFY(!panel().isVisible());
    }

    void savingAQuoteCommaTextShowsItWithoutAMessageBox()
    {
        addLiveButton("x\",y");
        const std::string file = path("game.dvb");
        saveAs(file);
        QVERIFY(QFile::exists(QString::fromStdString(file)));
        QCOMPARE(m_ui->messages.size(), size_t(1)); // the new-objects warning only
        QVERIFY(panel().isVisible());
        const QString expectedSummary = QString::fromStdString(
            "Saved \"" + file +
            "\" with 1 problem to look at: see File > Check Project for the full report");
        QCOMPARE(summary(), expectedSummary);
        QCOMPARE(m_window->statusBar()->currentMessage(), expectedSummary);
        QCOMPARE(lines(),
                 QStringList{QString::fromStdString(
                     file + ": button \"x\",y\": id holds a double quote followed by a comma, "
                            "which the project file cannot carry; the saved file will not read "
                            "back intact")});
    }

    void savingANeverEditedAnimationShowsTheCount()
    {
        clickTab(*m_window, 9);
        clickButton(m_window->form().cmdObjAdd);
        auto &list = m_doc->list(Kind::Sprite);
        SpriteRec &sprite = m_doc->Sprites[static_cast<size_t>(list.lines.back().slot)];
        sprite.inUse = -1;
        sprite.isNew = 0;
        sprite.id = "sprHero";
        sprite.imageId = sprite.currentAnimId = "null";
        sprite.anims[0].inUse = -1;
        sprite.anims[0].id = "walk";
        sprite.anims[1].isNew = -1; // added in the sprite editor, never opened
        sprite.animCount = 2;
        list.lines.back().text = "sprHero";
        const std::string file = path("sprites.dvb");
        saveAs(file);
        QCOMPARE(m_ui->messages.size(), size_t(1));
        QCOMPARE(lines(),
                 QStringList{QString::fromStdString(
                     file + ": sprite \"sprHero\": animCount is 2 but 1 animation in use; the "
                            "saved file will not read back intact")});

        // Put right, the next Save clears the panel and says so in the status line.
        sprite.animCount = 1;
        m_window->form().mnuSave->trigger();
        QVERIFY(!panel().isVisible());
        QCOMPARE(m_window->statusBar()->currentMessage(),
                 QString::fromStdString("Saved \"" + file + "\""));
    }

    void checkProjectShowsTheWholeReport()
    {
        addLiveButton("btnStart");
        m_doc->Buttons[0].cursorId = "curGone";
        m_window->form().txtAppRootFolder->clear();
        QTest::keyClicks(m_window->form().txtAppRootFolder, QStringLiteral("C:\\Game\\"));
        const std::string file = path("report.dvb");
        saveAs(file);
        // Neither problem hits the project file: the Save shows nothing.
        QVERIFY(!panel().isVisible());
        const size_t messages = m_ui->messages.size();

        m_window->form().mnuCheckProject->trigger();
        QCOMPARE(m_ui->messages.size(), messages);
        QVERIFY(panel().isVisible());
        QCOMPARE(summary(), QStringLiteral("Check Project: 2 problems found."));
        QCOMPARE(m_window->statusBar()->currentMessage(),
                 QStringLiteral("Check Project: 2 problems found."));
        QCOMPARE(lines(),
                 (QStringList{QString::fromStdString(
                                  file + ": application: rootFolder \"C:\\Game\\\" ends in a "
                                         "separator, so the data folder in app.cfg loses its "
                                         "first character"),
                              QString::fromStdString(
                                  file + ": button \"btnStart\": cursorId \"curGone\" names no "
                                         "cursor")}));

        m_doc->Buttons[0].cursorId = "null";
        m_window->form().txtAppRootFolder->clear();
        m_window->form().mnuCheckProject->trigger();
        QCOMPARE(summary(), QStringLiteral("Check Project: no problems found."));
        QCOMPARE(lines(), QStringList{});
    }

    void saveAsAddsTheProjectExtension()
    {
        const std::string typed = path("noext");
        saveAs(typed);
        QCOMPARE(m_doc->ProjectInfo.projectFilePath, typed + ".dvb");
        QVERIFY(QFile::exists(QString::fromStdString(typed + ".dvb")));
        QVERIFY(!QFile::exists(QString::fromStdString(typed)));
        QCOMPARE(m_ui->fileRequests.back().proposedName, std::string("My Project.dvb"));
    }

    void generateDataAsStartsInTheProjectsFolder()
    {
        saveAs(path("game.dvb"));
        m_ui->fileChoices = {std::nullopt};
        m_window->form().mnuGenDataAs->trigger();
        const FileDialogRequest &request = m_ui->fileRequests.back();
        QCOMPARE(request.folder, m_dir->path().toStdString());
        QCOMPARE(request.proposedName, std::string("[no filename needed]"));
    }

    void aReadOnlyProjectFileIsRefusedInTheSaveDataMessage()
    {
        const std::string file = path("locked.dvb");
        saveAs(file);
        QCOMPARE(::chmod(file.c_str(), 0444), 0);
        const QByteArray before = [&] {
            QFile f(QString::fromStdString(file));
            return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
        }();
        m_doc->ProjectInfo.projectName = "Changed";
        m_window->form().mnuSave->trigger();
        const Message &shown = m_ui->messages.back();
        QCOMPARE(shown.title, std::string("Save Data"));
        QCOMPARE(shown.text, "Could not save \"" + file + "\": it is read-only");
        QVERIFY(shown.icon == MessageIcon::Critical);
        QFile after(QString::fromStdString(file));
        QVERIFY(after.open(QIODevice::ReadOnly));
        QCOMPARE(after.readAll(), before);
    }
};

QTEST_MAIN(tst_ProblemsPanel)
#include "tst_ProblemsPanel.moc"
