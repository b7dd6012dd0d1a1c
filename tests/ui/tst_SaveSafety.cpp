#include "MainWindowDriver.h"
#include "ProblemsPanel.h"
#include "ScriptedUserInterface.h"
#include "frmMain.h"
#include "project/ProjectWriter.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>
#include <ctime>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>

using namespace vorlane;

// Save and the file on disk: a recorded path that names someone's notes is left alone, and a
// change made behind the window's back is shown at once and kept by the next Save.
namespace {

QByteArray readAll(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

bool writeAll(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// 2026-11-24 13:05:42 UTC.
constexpr std::time_t ChangedAt = 1795525542;

const std::string Refusal = "it is not a Vorlane project file, so nothing was written to it; to "
                            "replace it, choose it in Save As";

} // namespace

class tst_SaveSafety : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;
    std::unique_ptr<QTemporaryDir> m_dir;

    QString path(const QString &name) const { return m_dir->filePath(name); }

private slots:
    void initTestCase()
    {
        // Names and lines carry the time of a change: shown in UTC here.
        ::setenv("TZ", "UTC", 1);
        ::tzset();
    }
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

    void ctrlSLeavesSomeonesNotesThatTheProjectRecordsAndSaveAsReplacesThem()
    {
        const QString notes = path(QStringLiteral("notes.txt"));
        const QByteArray notesBytes = "Buy milk\r\nCall the bank\r\n";
        QVERIFY(writeAll(notes, notesBytes));
        // A downloaded project that records the notes as its file.
        auto downloaded = makeDocument();
        downloaded->ProjectInfo.projectName = "Downloaded";
        downloaded->ProjectInfo.projectFilePath = notes.toStdString();
        const QString game = path(QStringLiteral("game.dvb"));
        QVERIFY(writeAll(game, QByteArray::fromStdString(projectFileBytes(*downloaded))));
        m_ui->fileChoices = {game.toStdString()};
        m_window->form().mnuOpen->trigger();
        QCOMPARE(m_doc->ProjectInfo.projectFilePath, notes.toStdString());

        m_ui->messages.clear();
        m_ui->answers = {MessageAnswer::Yes};
        // The progress window of Open has come and gone: the main window is active again.
        QApplication::setActiveWindow(m_window.get());
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QVERIFY(m_window->form().mnuSave->isEnabled());
        QCOMPARE(m_window->form().mnuSave->shortcut(), QKeySequence(QStringLiteral("Ctrl+S")));
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_ui->messages.size(), size_t(2));
        QCOMPARE(m_ui->messages[1].text,
                 "Could not save \"" + notes.toStdString() + "\": " + Refusal);
        QCOMPARE(m_ui->messages[1].title, std::string("Save Data"));
        QVERIFY(m_ui->messages[1].icon == MessageIcon::Critical);
        QVERIFY(m_ui->messages[1].buttons == MessageButtons::OK);
        QCOMPARE(readAll(notes), notesBytes);
        QVERIFY(!QFile::exists(notes + ".bak1"));

        // Chosen in Save As (whose dialog asked before replacing), the notes are replaced and
        // kept as the newest backup.
        m_ui->messages.clear();
        m_ui->fileChoices = {notes.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        QCOMPARE(m_ui->messages.size(), size_t(1)); // the new-objects warning only
        QVERIFY(readAll(notes).startsWith("\"Downloaded\"\r\n"));
        QCOMPARE(readAll(notes + ".bak1"), notesBytes);
    }

    void aChangeBehindTheWindowsBackIsShownAtOnceAndKeptByTheNextSave()
    {
        newProject(*m_window);
        const QString game = path(QStringLiteral("game.dvb"));
        m_ui->fileChoices = {game.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        QVERIFY(QFile::exists(game));
        const size_t asked = m_ui->messages.size();

        // Another program writes its own version and renames it over the file.
        const QByteArray theirs = readAll(game) + "\"their line\"\r\n";
        const QString other = path(QStringLiteral("other.tmp"));
        QVERIFY(writeAll(other, theirs));
        const timespec times[2] = {{ChangedAt, 0}, {ChangedAt, 0}};
        QCOMPARE(::utimensat(AT_FDCWD, other.toLocal8Bit().constData(), times, 0), 0);
        QCOMPARE(::rename(other.toLocal8Bit().constData(), game.toLocal8Bit().constData()), 0);

        const QString line = QStringLiteral("\"%1\" was changed by another program; the next Save "
                                            "keeps its version as "
                                            "\"game.dvb.theirs-20261124-1305\"")
                                 .arg(game);
        ProblemsPanel &panel = m_window->problemsPanel();
        QTRY_VERIFY(panel.problems().contains(line));
        QVERIFY(panel.isVisible());
        QCOMPARE(panel.summary(), QStringLiteral("The project file was changed on disk."));
        QCOMPARE(panel.problems().count(line), 1);
        QCOMPARE(m_ui->messages.size(), asked); // no message box

        m_ui->answers = {MessageAnswer::Yes};
        m_window->form().mnuSave->trigger();
        const QString kept = game + ".theirs-20261124-1305";
        QCOMPARE(readAll(kept), theirs);
        QVERIFY(!readAll(game).contains("their line"));
        QCOMPARE(panel.problems(),
                 QStringList({QStringLiteral("\"%1\" was saved; the version another program "
                                             "wrote is kept as \"%2\"")
                                  .arg(game, kept)}));

        // The window's own saves are no change: nothing more is said, and the kept version
        // stays while the backups move on.
        for (int i = 0; i < 4; ++i) {
            m_ui->answers = {MessageAnswer::Yes};
            m_window->form().mnuSave->trigger();
        }
        QTest::qWait(300);
        QVERIFY(!panel.isVisible());
        QVERIFY(panel.problems().isEmpty());
        QCOMPARE(readAll(kept), theirs);
    }

    void aProjectJustOpenedIsNotAChange()
    {
        newProject(*m_window);
        const QString game = path(QStringLiteral("game.dvb"));
        m_ui->fileChoices = {game.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        m_ui->fileChoices = {game.toStdString()};
        m_window->form().mnuOpen->trigger();
        QTest::qWait(300);
        QVERIFY(!m_window->problemsPanel().isVisible());
        m_ui->answers = {MessageAnswer::Yes};
        m_window->form().mnuSave->trigger();
        QVERIFY(!QFile::exists(game + ".theirs-20261124-1305"));
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList({"game.dvb", "game.dvb.bak1"}));
    }
};

QTEST_MAIN(tst_SaveSafety)
#include "tst_SaveSafety.moc"
