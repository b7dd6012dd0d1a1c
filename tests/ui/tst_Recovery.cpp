#include "MainWindowDriver.h"
#include "RecoveryKeeper.h"
#include "ScriptedUserInterface.h"
#include "frmMain.h"
#include "io/SystemFileOps.h"
#include "platform/ProcessLiveness.h"
#include "project/ProjectWriter.h"
#include "project/RecoveryStore.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <memory>

#include <sys/wait.h>
#include <unistd.h>

using namespace vorlane;

namespace {

QByteArray readAll(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

QByteArray bytesOf(const std::string &text)
{
    return QByteArray::fromStdString(text);
}

// The id of a process that has ended: a child that exited and was reaped.
int endedProcessId()
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    int status = 0;
    ::waitpid(child, &status, 0);
    return static_cast<int>(child);
}

} // namespace

class tst_Recovery : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_state;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    QString path(const QString &name) const { return m_dir->filePath(name); }
    std::string recoveryFolder() const
    {
        return m_state->path().toStdString() + "/vorlane/recovery";
    }
    // This editor's recovery file.
    QString ownFile() const
    {
        return QString::fromStdString(
            recoveryFolder() + "/" +
            recoveryFileName(currentProcessId(), processStartTime(currentProcessId())));
    }

    // A new project named "Demo", saved as demo.dvb, and then a button added: a change not
    // saved yet.
    void openDemoWithAChange()
    {
        newProject(*m_window, QStringLiteral("Demo"));
        m_ui->fileChoices.push_back(path(QStringLiteral("demo.dvb")).toStdString());
        m_window->mnuSaveAs_Click();
        QVERIFY(!m_window->hasUnsavedChanges());
        clickTab(*m_window, 2);
        clickButton(m_window->form().cmdObjAdd);
        QVERIFY(m_window->hasUnsavedChanges());
    }

    // A project left in a recovery file by the editor `pid` started at `startTime`.
    std::string leaveRecoveryFile(int pid, long long startTime)
    {
        auto left = makeDocument();
        left->ProjectInfo.projectName = "Lost Game";
        left->ProjectInfo.projectFilePath = path(QStringLiteral("lost.dvb")).toStdString();
        left->ProjectInfo.projectOpen = -1;
        left->Images[4].inUse = -1;
        left->Images[4].id = "imgHero";
        left->Images[4].path = "hero.png";
        left->list(Kind::Image).lines.push_back({"imgHero", 4});
        left->objectCount(Kind::Image) = 1;
        RecoveryStore store(recoveryFolder(), pid, startTime, systemFileOps());
        const FileWriteResult written = store.write(*left);
        if (!written.ok)
            qWarning("%s", written.reason.c_str());
        return store.ownPath();
    }

private slots:
    void init()
    {
        m_state = std::make_unique<QTemporaryDir>();
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_state->isValid() && m_dir->isValid());
        qputenv("XDG_STATE_HOME", m_state->path().toUtf8());
        m_doc = makeDocument();
        m_ui = std::make_unique<ScriptedUserInterface>();
        m_window = std::make_unique<frmMain>(*m_doc, *m_ui);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    void cleanup()
    {
        m_window.reset();
        qunsetenv("XDG_STATE_HOME");
    }

    void theFileLiesInTheStateFolderNamedAfterTheEditor()
    {
        m_window->startRecovery();
        QVERIFY(m_window->recoveryKeeper());
        QCOMPARE(QString::fromStdString(m_window->recoveryKeeper()->store().ownPath()), ownFile());
        QCOMPARE(m_window->recoveryKeeper()->timer().interval(), 2000);
        QVERIFY(m_window->recoveryKeeper()->timer().isActive());
        QVERIFY(m_ui->messages.empty()); // nothing to recover, nothing asked
    }

    void aChangeIsWrittenAtTheNextComparison()
    {
        m_window->startRecovery();
        openDemoWithAChange();
        QVERIFY(!QFile::exists(ownFile()));
        m_window->recoveryKeeper()->poll();
        QVERIFY(QFile::exists(ownFile()));
        QCOMPARE(readAll(ownFile()), bytesOf(projectFileBytes(*m_doc)));
        QVERIFY(ownFile() != path(QStringLiteral("demo.dvb")));
        // The project's own file still holds the project as saved, without the button.
        QVERIFY(readAll(path(QStringLiteral("demo.dvb"))) != readAll(ownFile()));
        // Each later change is written too.
        clickButton(m_window->form().cmdObjAdd);
        m_window->recoveryKeeper()->poll();
        QCOMPARE(readAll(ownFile()), bytesOf(projectFileBytes(*m_doc)));
        QCOMPARE(m_doc->list(Kind::Button).lines.size(), size_t{2});
    }

    void aChangeIsWrittenWithinTenSeconds()
    {
        m_window->startRecovery();
        openDemoWithAChange();
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(ownFile()), 10000);
        QCOMPARE(readAll(ownFile()), bytesOf(projectFileBytes(*m_doc)));
    }

    void nothingIsWrittenWhileNothingIsUnsaved()
    {
        m_window->startRecovery();
        newProject(*m_window, QStringLiteral("Demo"));
        m_ui->fileChoices.push_back(path(QStringLiteral("demo.dvb")).toStdString());
        m_window->mnuSaveAs_Click();
        QVERIFY(!m_window->hasUnsavedChanges());
        m_window->recoveryKeeper()->poll();
        QVERIFY(!QFile::exists(ownFile()));
    }

    void aNewProjectNeverSavedIsKept()
    {
        // Closing a project that was never saved asks nothing: its state is what the file keeps.
        m_window->startRecovery();
        newProject(*m_window, QStringLiteral("Demo"));
        QVERIFY(m_window->hasUnsavedChanges());
        m_window->recoveryKeeper()->poll();
        QVERIFY(QFile::exists(ownFile()));
        QVERIFY(m_window->close());
        QVERIFY(QFile::exists(ownFile()));
    }

    void savingRemovesTheFileAndAcleanCloseLeavesNone()
    {
        m_window->startRecovery();
        openDemoWithAChange();
        m_window->recoveryKeeper()->poll();
        QVERIFY(QFile::exists(ownFile()));
        m_window->mnuSave_Click();
        QVERIFY(!m_window->hasUnsavedChanges());
        m_window->recoveryKeeper()->poll();
        QVERIFY(!QFile::exists(ownFile()));
        m_ui->answers = {
            MessageAnswer::No}; // "Would you like to save your project before exiting?"
        QVERIFY(m_window->close());
        QVERIFY(!QFile::exists(ownFile()));
    }

    void aCleanCloseRemovesTheFile()
    {
        m_window->startRecovery();
        openDemoWithAChange();
        m_window->recoveryKeeper()->poll();
        QVERIFY(QFile::exists(ownFile()));
        // Yes saves on the way out: nothing is left unsaved.
        m_ui->answers = {MessageAnswer::Yes, MessageAnswer::Yes};
        QVERIFY(m_window->close());
        QVERIFY(!QFile::exists(ownFile()));
    }

    void aCloseWithUnsavedChangesKeepsTheLastState()
    {
        m_window->startRecovery();
        openDemoWithAChange();
        m_window->recoveryKeeper()->poll();
        clickButton(m_window->form().cmdObjAdd); // not compared yet when the editor closes
        m_ui->answers = {MessageAnswer::No};
        QVERIFY(m_window->close());
        QVERIFY(QFile::exists(ownFile()));
        QCOMPARE(readAll(ownFile()), bytesOf(projectFileBytes(*m_doc)));
        QCOMPARE(m_doc->list(Kind::Button).lines.size(), size_t{2});
    }

    void yesRecoversTheProjectOfAnEditorThatEnded()
    {
        const int ended = endedProcessId();
        const QString left = QString::fromStdString(leaveRecoveryFile(ended, 77));
        QVERIFY(QFile::exists(left));
        m_ui->answers = {MessageAnswer::Yes};
        m_window->startRecovery();
        QCOMPARE(m_ui->messages.size(), size_t{1});
        const Message &asked = m_ui->messages[0];
        QCOMPARE(QString::fromStdString(asked.title), QStringLiteral("Recover Project"));
        QVERIFY(asked.text.starts_with(
            "Vorlane ended without saving the project \"Lost Game\". Its state at its last "
            "change, on "));
        QVERIFY(asked.buttons == MessageButtons::YesNo);
        // The project is open as it was left, with its own path, and its changes unsaved.
        QCOMPARE(m_doc->ProjectInfo.projectName, std::string("Lost Game"));
        QCOMPARE(QString::fromStdString(m_doc->ProjectInfo.projectFilePath),
                 path(QStringLiteral("lost.dvb")));
        QCOMPARE(QString::fromStdString(projectSavePath(*m_doc)), path(QStringLiteral("lost.dvb")));
        QCOMPARE(m_doc->list(Kind::Image).lines.size(), size_t{1});
        const auto slot = static_cast<size_t>(m_doc->list(Kind::Image).lines[0].slot);
        QCOMPARE(m_doc->Images[slot].id, std::string("imgHero"));
        QCOMPARE(m_doc->Images[slot].path, std::string("hero.png"));
        QCOMPARE(listTexts(m_window->objectList(4)), QStringList{QStringLiteral("imgHero")});
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vorlane - Lost Game"));
        QVERIFY(m_window->hasUnsavedChanges());
        QVERIFY(!QFile::exists(left));
        // From now on it is this editor's to keep.
        m_window->recoveryKeeper()->poll();
        QCOMPARE(readAll(ownFile()), bytesOf(projectFileBytes(*m_doc)));
        QVERIFY(!QFile::exists(path(QStringLiteral("lost.dvb"))));
    }

    void yesOnAFileThatCannotBeOpenedKeepsIt()
    {
        const QString left = QString::fromStdString(leaveRecoveryFile(endedProcessId(), 77));
        QFile emptied(left);
        QVERIFY(emptied.open(QIODevice::WriteOnly | QIODevice::Truncate));
        emptied.close();
        m_ui->answers = {MessageAnswer::Yes};
        m_window->startRecovery();
        QCOMPARE(m_ui->messages.size(), size_t{2});
        QCOMPARE(QString::fromStdString(m_ui->messages[0].title),
                 QStringLiteral("Recover Project"));
        QCOMPARE(QString::fromStdString(m_ui->messages[1].text),
                 QStringLiteral("Could not load data - file empty!"));
        // Nothing was recovered from it, so it stays for another try.
        QVERIFY(QFile::exists(left));
    }

    void noDiscardsTheFile()
    {
        const QString left = QString::fromStdString(leaveRecoveryFile(endedProcessId(), 77));
        m_ui->answers = {MessageAnswer::No};
        m_window->startRecovery();
        QCOMPARE(m_ui->messages.size(), size_t{1});
        QCOMPARE(QString::fromStdString(m_ui->messages[0].title),
                 QStringLiteral("Recover Project"));
        QVERIFY(!QFile::exists(left));
        QCOMPARE(m_doc->ProjectInfo.projectOpen, int16_t{0});
        QVERIFY(m_doc->list(Kind::Image).lines.empty());
        QVERIFY(!m_window->hasUnsavedChanges());
    }

    void theFileOfARunningEditorIsNeverTouched()
    {
        const int parent = static_cast<int>(::getppid());
        const QString live =
            QString::fromStdString(leaveRecoveryFile(parent, processStartTime(parent)));
        const QByteArray bytes = readAll(live);
        QVERIFY(!bytes.isEmpty());
        m_window->startRecovery();
        QVERIFY(m_ui->messages.empty());
        openDemoWithAChange();
        m_window->recoveryKeeper()->poll();
        m_ui->answers = {MessageAnswer::No};
        QVERIFY(m_window->close());
        QCOMPARE(readAll(live), bytes);
        QVERIFY(QFile::exists(ownFile()));
    }
};

QTEST_MAIN(tst_Recovery)
#include "tst_Recovery.moc"
