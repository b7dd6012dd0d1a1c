#include "DialogDriver.h"
#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "ScriptedUserInterface.h"
#include "frmAppLogProps.h"
#include "frmAppSoundProps.h"
#include "frmAppSplashProps.h"
#include "frmAppWindowProps.h"
#include "frmLogCustom.h"
#include "frmLogFile.h"
#include "frmLogType.h"
#include "frmMain.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace vorlane;

namespace {

QByteArray readAll(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray("<missing>");
    return file.readAll();
}

// Joins lines with CR LF after each, as every engine file ends its lines.
QByteArray crlf(const QList<QByteArray> &lines)
{
    QByteArray bytes;
    for (const QByteArray &line : lines)
        bytes += line + "\r\n";
    return bytes;
}

// What the settings below make of the two configuration files.
const QByteArray ExpectedAppCfg = crlf({
    "data/* Space Game* icons/game.ico*  800  600  16  2  60  1",
    " 640  480  0 images/splash.png  3000  255  0  255",
    " 44100  16  1  1 logs/game.log*",
});
const QByteArray ExpectedLogCfg = crlf({
    " 2",
    "Application: *",
    "!DEBUG!: *",
    " 5",
    "capp.cpp*",
    "CSceneMngr.cpp*",
    "cvideo.cpp*",
    "mouse*",
    "key press*",
});

struct Session
{
    std::unique_ptr<Document> doc = makeDocument();
    ScriptedUserInterface ui;
    std::unique_ptr<frmMain> window = std::make_unique<frmMain>(*doc, ui);

    Session()
    {
        window->show();
        if (!QTest::qWaitForWindowExposed(window.get()))
            qWarning("the main window was never shown");
    }
    ~Session()
    {
        doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
    }
    const Ui::frmMain &form() const { return window->form(); }

    void generateInto(const QString &folder)
    {
        ui.fileChoices = {(folder + QStringLiteral("/[no filename needed]")).toStdString()};
        form().mnuGenDataAs->trigger();
    }
};

} // namespace

// A new user's road through the settings: every dialog set through its controls, the engine
// files generated, the project saved, opened again and generated once more.
class tst_SettingsRoad : public QObject
{
    Q_OBJECT

private slots:
    void settingsReachTheEngineFilesAndSurviveSaveAndOpen()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString out = dir.filePath(QStringLiteral("data"));
        QVERIFY(QDir().mkpath(out));
        const QString projectFile = dir.filePath(QStringLiteral("game.dvb"));

        {
            Session s;
            newProject(*s.window);
            QTest::keyClicks(s.form().txtAppRootFolder, dir.path());

            QVERIFY(
                openDialog<frmAppWindowProps>(s.form().cmdAppWindowProps, [](frmAppWindowProps *d) {
                    const auto &f = d->form();
                    typeInto(f.txtAppWindowPropsCaption, QStringLiteral("Space Game"));
                    clickIndicator(f.optAppScreentypeWindow);
                    typeInto(f.txtAppWindowPropsIcon, QStringLiteral("icons/game.ico"));
                    typeInto(f.txtAppScreenPropsWidth, QStringLiteral("800"));
                    typeInto(f.txtAppScreenPropsHeight, QStringLiteral("600"));
                    typeInto(f.txtAppScreenPropsBPP, QStringLiteral("16"));
                    typeInto(f.txtAppScreenFPS, QStringLiteral("60"));
                    clickIndicator(f.chkAppScreenEngineUse);
                    pressEscape(d);
                }));
            QCOMPARE(s.window->findChild<QLabel *>(QStringLiteral("lblAppStatsCaption"))->text(),
                     QStringLiteral("Window Caption: Space Game"));
            openDialog<frmAppSoundProps>(s.form().cmdAppSoundProps, [](frmAppSoundProps *d) {
                typeInto(d->form().txtAppSoundMix, QStringLiteral("44100"));
                typeInto(d->form().txtAppSoundChannels, QStringLiteral("16"));
            });
            openDialog<frmAppSplashProps>(s.form().cmdAppSplashProps, [](frmAppSplashProps *d) {
                const auto &f = d->form();
                clickIndicator(f.chkAppSplash);
                typeInto(f.txtAppSplashTimer, QStringLiteral("3000"));
                typeInto(f.txtAppSplashScreenWidth, QStringLiteral("640"));
                typeInto(f.txtAppSplashScreenBPP, QStringLiteral("32")); // overwritten next
                typeInto(f.txtAppSplashScreenHeight, QStringLiteral("480"));
                typeInto(f.txtAppSplashImagePropsPath, QStringLiteral("images/splash.png"));
                typeInto(f.txtAppSplashImagePropsRed, QStringLiteral("300"));
                typeInto(f.txtAppSplashImagePropsGreen, QStringLiteral("0"));
                typeInto(f.txtAppSplashImagePropsBlue, QStringLiteral("255"));
            });
            openDialog<frmAppLogProps>(s.form().cmdAppLogProps, [](frmAppLogProps *d) {
                clickIndicator(d->form().chkAppLog);
                typeInto(d->form().txtAppLogPath, QStringLiteral("logs/game.log"));
            });

            clickTab(*s.window, 11);
            openDialog<frmLogType>(s.form().cmdLogEditType, [](frmLogType *d) {
                clickIndicator(d->form().chkLogFilter_6);
                clickIndicator(d->form().chkLogFilter_0);
            });
            openDialog<frmLogFile>(s.form().cmdLogEditFile, [](frmLogFile *d) {
                clickIndicator(d->form().chkFileFilter_10);
                clickIndicator(d->form().chkFileFilter_0);
                clickIndicator(d->form().chkFileFilter_4);
            });
            openDialog<frmLogCustom>(s.form().cmdLogEditCustom, [](frmLogCustom *d) {
                const auto &f = d->form();
                for (const char *name : {"mouse", "key press"}) {
                    typeInto(f.txtCustomFilterName, QString::fromUtf8(name));
                    clickButton(f.cmdCustomCreateFilter);
                }
            });

            s.generateInto(out);
            QCOMPARE(s.ui.messages.size(), size_t(1)); // the warning, no error
            QCOMPARE(readAll(out + "/app.cfg"), ExpectedAppCfg);
            QCOMPARE(readAll(out + "/log.cfg"), ExpectedLogCfg);

            s.ui.fileChoices = {projectFile.toStdString()};
            s.form().mnuSaveAs->trigger();
            QVERIFY(QFile::exists(projectFile));
        }

        QVERIFY(QFile::remove(out + "/app.cfg"));
        QVERIFY(QFile::remove(out + "/log.cfg"));

        Session s;
        s.ui.fileChoices = {projectFile.toStdString()};
        s.form().mnuOpen->trigger();
        QCOMPARE(s.doc->ProjectInfo.projectOpen, -1);
        QCOMPARE(s.window->findChild<QLabel *>(QStringLiteral("lblAppStatsScreenType"))->text(),
                 QStringLiteral("Screen Type: WINDOWED"));
        // The dialogs show what was set.
        openDialog<frmAppWindowProps>(s.form().cmdAppWindowProps, [](frmAppWindowProps *d) {
            QCOMPARE(d->form().txtAppWindowPropsCaption->text(), QStringLiteral("Space Game"));
            QCOMPARE(d->form().txtAppScreenPropsWidth->text(), QStringLiteral("800"));
            QVERIFY(d->form().optAppScreentypeWindow->isChecked());
        });
        openDialog<frmAppSplashProps>(s.form().cmdAppSplashProps, [](frmAppSplashProps *d) {
            QCOMPARE(d->form().txtAppSplashImagePropsRed->text(), QStringLiteral("255"));
            QVERIFY(d->form().chkAppSplash->isChecked());
        });
        clickTab(*s.window, 11);
        openDialog<frmLogType>(s.form().cmdLogEditType, [](frmLogType *d) {
            QVERIFY(d->form().chkLogFilter_6->isChecked());
            QVERIFY(d->form().chkLogFilter_0->isChecked());
            QVERIFY(!d->form().chkLogFilter_3->isChecked());
        });
        openDialog<frmLogCustom>(s.form().cmdLogEditCustom, [](frmLogCustom *d) {
            QCOMPARE(listTexts(d->form().lstCustomFilter), QStringList({"mouse", "key press"}));
        });

        QCOMPARE(QString::fromStdString(s.doc->AppSettings.rootFolder), dir.path());
        s.generateInto(out);
        QCOMPARE(readAll(out + "/app.cfg"), ExpectedAppCfg);
        QCOMPARE(readAll(out + "/log.cfg"), ExpectedLogCfg);
    }
};

QTEST_MAIN(tst_SettingsRoad)
#include "tst_SettingsRoad.moc"
