#include "MainWindowDriver.h"
#include "ScriptedUserInterface.h"
#include "frmMain.h"

#include <QDir>
#include <QFile>
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

void writeAll(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class tst_Lifecycle : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;
    std::unique_ptr<QTemporaryDir> m_dir;

    QString path(const QString &name) const { return m_dir->filePath(name); }

    // Adds a button and makes it live, as its editor would on first opening.
    void addLiveButton(const std::string &id)
    {
        clickTab(*m_window, 2);
        clickButton(m_window->form().cmdObjAdd);
        auto &list = m_doc->list(Kind::Button);
        const int16_t slot = list.lines.back().slot;
        auto &button = m_doc->Buttons[static_cast<size_t>(slot)];
        button = ButtonRec{};
        button.inUse = -1;
        button.id = id;
        button.cursorId = button.templateId = button.iconId = button.captionTextId = "null";
        button.soundUp = button.soundDown = button.soundOver = button.soundDisabled = "null";
        list.lines.back().text = id;
        m_window->showList(Kind::Button);
    }

    // Runs File > New; true when it went on to the project name dialog, which is then
    // cancelled. A dialog that never comes is not waited for later.
    bool runNew()
    {
        auto armed = std::make_shared<bool>(true);
        auto shown = std::make_shared<bool>(false);
        whenModalShown<QDialog>([armed, shown](QDialog *dialog) {
            if (!*armed)
                return;
            *shown = true;
            dialog->reject();
        });
        m_window->form().mnuNew->trigger();
        *armed = false;
        return *shown;
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
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear();
        m_window.reset();
    }

    void newWhileANeverSavedProjectIsOpenOffersSaveAsFirst()
    {
        newProject(*m_window);
        m_ui->answers = {MessageAnswer::Yes};
        m_ui->fileChoices = {std::nullopt}; // the Save As dialog is cancelled
        const bool nameDialogShown = runNew();
        QCOMPARE(m_ui->messages.size(), size_t(1));
        QCOMPARE(m_ui->messages[0].text,
                 std::string("Save your data? Any unsaved data will be lost!"));
        QCOMPARE(m_ui->messages[0].title, std::string("Save Data"));
        QVERIFY(m_ui->messages[0].buttons == MessageButtons::YesNo);
        QVERIFY(m_ui->messages[0].icon == MessageIcon::Question);
        QCOMPARE(m_ui->fileRequests.size(), size_t(1));
        const FileDialogRequest &request = m_ui->fileRequests[0];
        QVERIFY(request.mode == FileDialogRequest::Mode::Save);
        QCOMPARE(request.filterName, std::string("Data Files"));
        QCOMPARE(request.pattern, std::string("*.dvb"));
        QCOMPARE(request.proposedName, std::string("My Project.dvb"));
        // The save did not happen, so New stops there and keeps the project.
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane - My Project"));
        QVERIFY(!nameDialogShown);
    }

    void newStopsWhenTheOfferedSaveOfAReadOnlyFileFails()
    {
        newProject(*m_window);
        addLiveButton("btnKeep");
        const QString file = path(QStringLiteral("game.dvb"));
        m_ui->fileChoices = {file.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        const QByteArray saved = readAll(file);
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadUser));
        addLiveButton("btnLater");
        m_ui->messages.clear();
        m_ui->answers = {MessageAnswer::Yes, MessageAnswer::Yes};
        const bool nameDialogShown = runNew();
        QCOMPARE(m_ui->messages.size(), size_t(3));
        QCOMPARE(m_ui->messages[0].text,
                 std::string("Save your data? Any unsaved data will be lost!"));
        QCOMPARE(m_ui->messages[2].text,
                 "Could not save \"" + file.toStdString() + "\": it is read-only");
        QCOMPARE(m_ui->messages[2].title, std::string("Save Data"));
        QVERIFY(!nameDialogShown);
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane - My Project"));
        QCOMPARE(listTexts(m_window->objectList(2)), QStringList({"btnKeep", "btnLater"}));
        QCOMPARE(m_doc->ProjectInfo.projectFilePath, file.toStdString());
        QCOMPARE(readAll(file), saved);
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner));
    }

    void newStopsWhenTheNewObjectsWarningIsAnsweredNo()
    {
        newProject(*m_window);
        addLiveButton("btnKeep");
        clickButton(m_window->form().cmdObjAdd); // a new object the warning would remove
        const QString file = path(QStringLiteral("game.dvb"));
        m_ui->fileChoices = {file.toStdString()};
        m_ui->answers = {MessageAnswer::No}; // keep the new object: nothing is written
        m_window->form().mnuSaveAs->trigger();
        QVERIFY(!QFile::exists(file));
        m_ui->messages.clear();
        m_ui->answers = {MessageAnswer::Yes, MessageAnswer::No};
        const bool nameDialogShown = runNew();
        QCOMPARE(m_ui->messages.size(), size_t(2));
        QCOMPARE(m_ui->messages[0].text,
                 std::string("Save your data? Any unsaved data will be lost!"));
        QCOMPARE(m_ui->messages[1].text,
                 std::string("Any new objects not opened in an editor window will be removed. "
                             "Continue?"));
        QVERIFY(!nameDialogShown);
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane - My Project"));
        QCOMPARE(m_window->objectList(2)->count(), 2);
        QCOMPARE(m_doc->Buttons[0].inUse, int16_t(-1));
        QVERIFY(!QFile::exists(file));
    }

    void newGoesOnWhenTheOfferedSaveIsWritten()
    {
        newProject(*m_window);
        addLiveButton("btnKeep");
        const QString file = path(QStringLiteral("game.dvb"));
        m_ui->fileChoices = {file.toStdString()};
        m_ui->answers = {MessageAnswer::Yes, MessageAnswer::Yes};
        newProject(*m_window, QStringLiteral("Next"));
        QVERIFY(readAll(file).contains("\"btnKeep\""));
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane - Next"));
        QCOMPARE(m_window->objectList(2)->count(), 0);
    }

    void newWithNoDiscardsWithoutFurtherQuestion()
    {
        newProject(*m_window);
        addLiveButton("btnKeep");
        m_ui->answers = {MessageAnswer::No};
        newProject(*m_window, QStringLiteral("Fresh"));
        QCOMPARE(m_ui->messages.size(), size_t(1));
        QVERIFY(m_ui->fileRequests.empty());
        QCOMPARE(m_window->objectList(2)->count(), 0);
        QCOMPARE(m_doc->Buttons[0].inUse, int16_t(0));
    }

    void newKeepsRootFolderGeneratePathAndLogFilters()
    {
        newProject(*m_window);
        QTest::keyClicks(m_window->form().txtAppRootFolder, QStringLiteral("/games/demo"));
        m_doc->ProjectInfo.generatePath = "/games/demo/data/";
        m_doc->AppSettings.logTypeFilters[3] = 1;
        m_doc->AppSettings.windowCaption = "Changed";
        m_ui->answers = {MessageAnswer::No};
        newProject(*m_window, QStringLiteral("Next"));
        QCOMPARE(m_doc->AppSettings.rootFolder, std::string("/games/demo"));
        QCOMPARE(m_window->form().txtAppRootFolder->text(), QStringLiteral("/games/demo"));
        QCOMPARE(m_doc->ProjectInfo.generatePath, std::string("/games/demo/data/"));
        QCOMPARE(m_doc->AppSettings.logTypeFilters[3], int16_t(1));
        QCOMPARE(m_doc->AppSettings.windowCaption, std::string("QTA Application"));
    }

    void saveAsThenOpenRestoresTheProject()
    {
        newProject(*m_window);
        addLiveButton("btnStart");
        clickButton(m_window->form().cmdObjAdd); // a new object that Save drops
        const QString file = path(QStringLiteral("game.dvb"));
        m_ui->fileChoices = {file.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        QVERIFY(QFile::exists(file));
        QVERIFY(m_window->form().mnuSave->isEnabled());
        QCOMPARE(m_doc->ProjectInfo.projectFilePath, file.toStdString());
        QCOMPARE(m_ui->messages.back().text,
                 std::string("Any new objects not opened in an editor window will be removed. "
                             "Continue?"));
        QCOMPARE(listTexts(m_window->objectList(2)), QStringList({"btnStart"}));

        // A fresh window opens it.
        auto doc2 = makeDocument();
        ScriptedUserInterface ui2;
        frmMain second(*doc2, ui2);
        ui2.fileChoices = {file.toStdString()};
        second.form().mnuOpen->trigger();
        QVERIFY(ui2.messages.empty());
        QCOMPARE(second.windowTitle(), QStringLiteral("Vorlane - My Project"));
        QCOMPARE(listTexts(second.objectList(2)), QStringList({"btnStart"}));
        QVERIFY(second.form().mnuSave->isEnabled());
        QCOMPARE(doc2->ProjectInfo.projectOpen, int16_t(-1));
        QCOMPARE(ui2.fileRequests[0].filterName, std::string("Data Files"));
        QVERIFY(ui2.fileRequests[0].mode == FileDialogRequest::Mode::Open);
        doc2->ProjectInfo.projectFilePath.clear();
    }

    void openingASecondProjectKeepsTheFirstCaption()
    {
        newProject(*m_window, QStringLiteral("Alpha"));
        const QString alpha = path(QStringLiteral("alpha.dvb"));
        m_ui->fileChoices = {alpha.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        m_ui->answers = {MessageAnswer::No};
        newProject(*m_window, QStringLiteral("Beta"));
        addLiveButton("betaButton");
        const QString beta = path(QStringLiteral("beta.dvb"));
        m_ui->fileChoices = {beta.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane - Beta"));

        m_ui->fileChoices = {alpha.toStdString()};
        m_window->form().mnuOpen->trigger();
        QCOMPARE(m_doc->ProjectInfo.projectName, std::string("Alpha"));
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane - Beta"));
        QCOMPARE(m_window->objectList(2)->count(), 0);
        QCOMPARE(m_window->currentTab(), 1);
        QVERIFY(m_window->tabFrame(1)->isVisible());
    }

    void aCopiedProjectSavesToItsRecordedPath()
    {
        newProject(*m_window);
        const QString original = path(QStringLiteral("original.dvb"));
        m_ui->fileChoices = {original.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        const QString copy = path(QStringLiteral("copy.dvb"));
        QVERIFY(QFile::copy(original, copy));
        QVERIFY(QFile::remove(original));

        m_ui->fileChoices = {copy.toStdString()};
        m_window->form().mnuOpen->trigger();
        QCOMPARE(m_doc->ProjectInfo.projectFilePath, original.toStdString());
        m_window->form().mnuSave->trigger();
        QVERIFY(QFile::exists(original));
    }

    void anEmptyFileShowsTheLoadError()
    {
        const QString empty = path(QStringLiteral("empty.dvb"));
        writeAll(empty, {});
        m_ui->fileChoices = {empty.toStdString()};
        m_window->form().mnuOpen->trigger();
        QCOMPARE(m_ui->messages.size(), size_t(1));
        QCOMPARE(m_ui->messages[0].text, std::string("Could not load data - file empty!"));
        QCOMPARE(m_ui->messages[0].title, std::string("Load Error"));
        QVERIFY(m_ui->messages[0].icon == MessageIcon::Exclamation);
        QCOMPARE(m_doc->ProjectInfo.projectOpen, int16_t(0));
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane"));
    }

    void aDamagedFileNamesItsLineAndTheProgramGoesOn()
    {
        const QString damaged = path(QStringLiteral("damaged.dvb"));
        writeAll(damaged, "\"P\"\r\n\"p.dvb\",\"\"\r\n0\r\n0\r\nx\r\n");
        m_ui->fileChoices = {damaged.toStdString()};
        m_window->form().mnuOpen->trigger();
        QCOMPARE(m_ui->messages.size(), size_t(1));
        QCOMPARE(m_ui->messages[0].title, std::string("Load Error"));
        QVERIFY(QString::fromStdString(m_ui->messages[0].text)
                    .contains(QStringLiteral("damaged.dvb:5")));
        // The program keeps running: New still works.
        newProject(*m_window);
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane - My Project"));
    }

    void exitKeepsTheWindowOpenWhenTheSaveFails()
    {
        newProject(*m_window);
        m_doc->ProjectInfo.projectFilePath = path(QStringLiteral("missing/p.dvb")).toStdString();
        m_ui->answers = {MessageAnswer::Yes, MessageAnswer::Yes};
        m_window->form().mnuExit->trigger();
        QVERIFY(m_window->isVisible());
        QCOMPARE(m_ui->messages.back().title, std::string("Save Data"));
        // With a file that can be written, Yes saves and the window closes.
        m_doc->ProjectInfo.projectFilePath = path(QStringLiteral("p.dvb")).toStdString();
        m_ui->answers = {MessageAnswer::Yes, MessageAnswer::Yes};
        m_window->form().mnuExit->trigger();
        QVERIFY(QFile::exists(path(QStringLiteral("p.dvb"))));
        QVERIFY(!m_window->isVisible());
    }

    void aFailedOpenForgetsThePathSoNothingIsOverwritten()
    {
        const QString damaged = path(QStringLiteral("damaged.dvb"));
        const QByteArray bytes = "\"P\"\r\n\"p.dvb\",\"\"\r\n0\r\n0\r\nx\r\n";
        writeAll(damaged, bytes);
        m_ui->fileChoices = {damaged.toStdString()};
        m_window->form().mnuOpen->trigger();
        m_ui->messages.clear();
        m_window->form().mnuExit->trigger(); // no path: no question, nothing written
        QVERIFY(m_ui->messages.empty());
        QCOMPARE(readAll(damaged), bytes);
    }

    void saveIntoAMissingFolderReportsTheReason()
    {
        newProject(*m_window);
        const QString file = path(QStringLiteral("missing/p.dvb"));
        m_ui->fileChoices = {file.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        QCOMPARE(m_ui->messages.back().title, std::string("Save Data"));
        QVERIFY(m_ui->messages.back().text.find("No such file or directory") != std::string::npos);
        QVERIFY(QString::fromStdString(m_ui->messages.back().text).contains(file));
    }

    void generateDataAsWritesTheElevenFilesAndGenerateDataRepeats()
    {
        newProject(*m_window);
        QTest::keyClicks(m_window->form().txtAppRootFolder, m_dir->path());
        addLiveButton("btnPlay");
        QVERIFY(!m_window->form().mnuGenData->isEnabled());
        const QString out = path(QStringLiteral("data"));
        QVERIFY(QDir().mkpath(out));
        m_ui->fileChoices = {(out + QStringLiteral("/[no filename needed]")).toStdString()};
        m_window->form().mnuGenDataAs->trigger();
        QCOMPARE(m_ui->fileRequests.back().filterName, std::string("Game Data Files"));
        QCOMPARE(m_ui->fileRequests.back().pattern, std::string("*.dat"));
        QCOMPARE(m_ui->fileRequests.back().proposedName, std::string("[no filename needed]"));
        QVERIFY(m_window->form().mnuGenData->isEnabled());
        const QStringList files{"app.cfg",
                                "button.dat",
                                "image.dat",
                                "cursor.dat",
                                "text.dat",
                                "font.dat",
                                "music.dat",
                                "sfx.dat",
                                "sprite.dat",
                                "scene.dat",
                                "log.cfg"};
        for (const QString &name : files)
            QVERIFY2(QFile::exists(out + "/" + name), qPrintable(name));
        QCOMPARE(readAll(out + "/image.dat"), QByteArray("0\r\n"));
        QVERIFY(readAll(out + "/app.cfg").startsWith("data/* QTA Application* null* "));
        QVERIFY(readAll(out + "/button.dat").startsWith(" 1\r\nbtnPlay "));

        for (const QString &name : files)
            QVERIFY(QFile::remove(out + "/" + name));
        const size_t dialogs = m_ui->fileRequests.size();
        m_window->form().mnuGenData->trigger();
        QCOMPARE(m_ui->fileRequests.size(), dialogs); // no folder asked again
        for (const QString &name : files)
            QVERIFY2(QFile::exists(out + "/" + name), qPrintable(name));
    }

    void cancellingTheGenerateDialogLeavesGenerateDataAsItWas()
    {
        newProject(*m_window);
        m_ui->fileChoices = {std::nullopt};
        m_window->form().mnuGenDataAs->trigger();
        QVERIFY(!m_window->form().mnuGenData->isEnabled());
    }
};

QTEST_MAIN(tst_Lifecycle)
#include "tst_Lifecycle.moc"
