#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmButton.h"
#include "frmMain.h"
#include "model/Kinds.h"

#include <QDir>
#include <QFile>
#include <QLabel>
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

// Joins lines with CR LF after each, as every project and engine file ends its lines.
QByteArray crlf(const QList<QByteArray> &lines)
{
    QByteArray bytes;
    for (const QByteArray &line : lines)
        bytes += line + "\r\n";
    return bytes;
}

} // namespace

// The road a new user takes: a project with one button, saved and generated.
class tst_TypicalRoad : public QObject
{
    Q_OBJECT

private slots:
    void newButtonSaveAndGenerate()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        auto doc = makeDocument();
        ScriptedUserInterface ui;
        frmMain window(*doc, ui);
        registerEditors(window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        newProject(window);
        const QString root = dir.path();
        QTest::keyClicks(window.form().txtAppRootFolder, root);
        clickTab(window, tabOf(Kind::Button));
        clickButton(window.form().cmdObjAdd);
        QCOMPARE(listTexts(window.objectList(2)), QStringList({"New_Object0"}));

        const bool closed = editProperties<frmButton>(window, [](frmButton *editor) {
            const auto &f = editor->form();
            typeInto(f.txtButtonID, QStringLiteral("btnStart"));
            typeInto(f.txtButtonX, QStringLiteral("120"));
            typeInto(f.txtButtonY, QStringLiteral("48"));
            typeInto(f.cmbButtonTemplate, QStringLiteral("menuTiles"));
            typeInto(f.cmbButtonSoundUp, QStringLiteral("sndClick"));
            typeInto(f.cmbButtonSoundOver, QStringLiteral("sndHover"));
            QTest::keyClick(f.txtButtonY, Qt::Key_Escape);
        });
        QVERIFY(closed);
        QCOMPARE(listTexts(window.objectList(2)), QStringList({"btnStart"}));
        QVERIFY(!window.coverFrame(2)->isVisible());
        QCOMPARE(window.findChild<QLabel *>(QStringLiteral("lblButtonStatsPosX"))->text(),
                 QStringLiteral("Button X: 120"));
        QCOMPARE(window.findChild<QLabel *>(QStringLiteral("lblButtonStatsSound"))->text(),
                 QStringLiteral("Has Sounds: YES"));

        const QString projectFile = dir.filePath(QStringLiteral("game.dvb"));
        ui.fileChoices = {projectFile.toStdString()};
        window.form().mnuSaveAs->trigger();

        const QString out = dir.filePath(QStringLiteral("data"));
        QVERIFY(QDir().mkpath(out));
        ui.fileChoices = {(out + QStringLiteral("/[no filename needed]")).toStdString()};
        window.form().mnuGenDataAs->trigger();
        QCOMPARE(ui.messages.size(), size_t(2)); // the two warnings, no error
        doc->ProjectInfo.projectFilePath.clear();

        const QByteArray quotedRoot = "\"" + root.toUtf8() + "\"";
        QList<QByteArray> project{"\"My Project\"",
                                  "\"" + projectFile.toUtf8() + "\",\"\"",
                                  "1",
                                  "0",
                                  "0",
                                  "0",
                                  "0",
                                  "0",
                                  "0",
                                  "0",
                                  "0",
                                  quotedRoot + ",\"QTA Application\",\"null\",0,0,0,1,0,0",
                                  "0,0,0,0,\"null\"",
                                  "\"btnStart\",120,48,\"null\",1,0,1,0,0,\"menuTiles\",0,0,"
                                  "\"null\",\"null\",1,1,1,\"sndClick\",\"null\",\"sndHover\","
                                  "\"null\"",
                                  "0,0"};
        for (int i = 0; i < 7 + 11 + 1; ++i)
            project << "0";
        QCOMPARE(readAll(projectFile), crlf(project));

        QCOMPARE(readAll(out + "/app.cfg"),
                 crlf({"data/* QTA Application* null*  0  0  0  1  0  0", " 0  0  0  0 null*"}));
        QCOMPARE(readAll(out + "/button.dat"),
                 crlf({" 1",
                       "btnStart  120  48 null  1  0  1  0  0 menuTiles  0  0 null null  1  1  1 "
                       "sndClick null sndHover null"}));
        for (const char *name : {"image.dat",
                                 "cursor.dat",
                                 "text.dat",
                                 "font.dat",
                                 "music.dat",
                                 "sfx.dat",
                                 "sprite.dat",
                                 "scene.dat"})
            QCOMPARE(readAll(out + "/" + name), QByteArray("0\r\n"));
        QCOMPARE(readAll(out + "/log.cfg"), crlf({" 0", " 0"}));
    }
};

QTEST_MAIN(tst_TypicalRoad)
#include "tst_TypicalRoad.moc"
