#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmAnim.h"
#include "frmMain.h"
#include "frmSprite.h"
#include "model/Kinds.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
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

// Joins lines with CR LF after each, as every project and engine file ends its lines.
QByteArray crlf(const QList<QByteArray> &lines)
{
    QByteArray bytes;
    for (const QByteArray &line : lines)
        bytes += line + "\r\n";
    return bytes;
}

// True when every message shown was one of the "Warning!" questions Save and Generate ask.
bool onlyWarnings(const ScriptedUserInterface &ui)
{
    for (const Message &message : ui.messages)
        if (message.title != "Warning!")
            return false;
    return true;
}

bool editAnimation(frmSprite *editor, std::function<void(frmAnim *)> action)
{
    return clickToOpen<frmAnim>(editor->form().cmdSpriteEditAnim, std::move(action));
}

void addFrames(frmAnim *editor, const QStringList &typed)
{
    for (const QString &text : typed) {
        typeInto(editor->form().txtAnimSequenceAdd, text);
        clickButton(editor->form().cmdAnimSequenceAdd);
    }
}

} // namespace

// A sprite with two animations made through both editors, reordered, saved, opened again and
// generated, as a new user would.
class tst_SpriteRoundTrip : public QObject
{
    Q_OBJECT

private slots:
    void spriteSavedOpenedAndGenerated()
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
        clickTab(window, tabOf(Kind::Sprite));
        clickButton(window.form().cmdObjAdd);

        const bool closed = editProperties<frmSprite>(window, [](frmSprite *editor) {
            const auto &f = editor->form();
            typeInto(f.txtSpriteID, QStringLiteral("hero"));
            typeInto(f.cmbSpriteImage, QStringLiteral("heroSheet"));
            typeInto(f.txtSpritePositionX, QStringLiteral("10"));
            typeInto(f.txtSpritePositionY, QStringLiteral("-20"));

            clickButton(f.cmdSpriteNewAnim);
            editAnimation(editor, [](frmAnim *anim) {
                const auto &a = anim->form();
                typeInto(a.txtAnimID, QStringLiteral("walk"));
                addFrames(anim, {"3", "5", "9"});
                clickLine(a.lstAnimSequence, 0);
                clickButton(a.cmdAnimSequenceDown);
                QCOMPARE(listTexts(a.lstAnimSequence), QStringList({"5", "3", "9"}));
                typeInto(a.txtAnimDelaysFrame, QStringLiteral("2"));
                typeInto(a.txtAnimDelaysAnim, QStringLiteral("4"));
                QTest::mouseClick(a.chkAnimRepeat, Qt::LeftButton);
                QTest::mouseClick(a.optAnimDirectionReverse, Qt::LeftButton);
            });
            clickButton(f.cmdSpriteNewAnim);
            editAnimation(editor, [](frmAnim *anim) {
                const auto &a = anim->form();
                typeInto(a.txtAnimID, QStringLiteral("jump"));
                addFrames(anim, {"1", "2"});
                typeInto(a.txtAnimDefaultFrame, QStringLiteral("1"));
                QTest::mouseClick(a.chkAnimPlay, Qt::LeftButton);
                QTest::keyClick(anim, Qt::Key_Escape);
            });
            QCOMPARE(listTexts(f.lstAnimObjects), QStringList({"walk", "jump"}));
            chooseEntry(f.cmbSpriteCurrentAnim, 0);
            QTest::keyClick(editor, Qt::Key_Escape);
        });
        QVERIFY(closed);
        QCOMPARE(listTexts(window.objectList(tabOf(Kind::Sprite))), QStringList({"hero"}));
        // The line is refreshed before the count is stored; selecting it shows the count.
        QCOMPARE(window.findChild<QLabel *>(QStringLiteral("lblSpriteStatsAnimCount"))->text(),
                 QStringLiteral("# of Anims: 0"));
        clickLine(window.objectList(tabOf(Kind::Sprite)), 0);
        QCOMPARE(window.findChild<QLabel *>(QStringLiteral("lblSpriteStatsAnimCount"))->text(),
                 QStringLiteral("# of Anims: 2"));

        const QString projectFile = dir.filePath(QStringLiteral("game.dvb"));
        ui.fileChoices = {projectFile.toStdString()};
        window.form().mnuSaveAs->trigger();
        QVERIFY(onlyWarnings(ui));

        QList<QByteArray> project{"\"My Project\"",
                                  "\"" + projectFile.toUtf8() + "\",\"\"",
                                  "0",
                                  "0",
                                  "0",
                                  "0",
                                  "0",
                                  "0",
                                  "0",
                                  "1",
                                  "0",
                                  "\"" + root.toUtf8() +
                                      "\",\"QTA Application\",\"null\",0,0,0,1,0,0",
                                  "0,0,0,0,\"null\"",
                                  "\"hero\",\"heroSheet\",\"walk\",10,-20,1,2",
                                  "\"walk\",3",
                                  "5",
                                  "3",
                                  "9",
                                  "2,4,1,1,-1,-1",
                                  "\"jump\",2",
                                  "1",
                                  "2",
                                  "0,0,0,0,1,1",
                                  "0,0"};
        for (int i = 0; i < 7 + 11 + 1; ++i)
            project << "0";
        const QByteArray saved = readAll(projectFile);
        QCOMPARE(saved, crlf(project));

        // Opened again, both editors show what was made, and saving gives the same file.
        ui.fileChoices = {projectFile.toStdString()};
        window.form().mnuOpen->trigger();
        QVERIFY(onlyWarnings(ui));
        clickTab(window, 1);
        clickTab(window, tabOf(Kind::Sprite));
        QCOMPARE(listTexts(window.objectList(tabOf(Kind::Sprite))), QStringList({"hero"}));
        editProperties<frmSprite>(window, [](frmSprite *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtSpriteID->text(), QStringLiteral("hero"));
            QCOMPARE(f.cmbSpriteImage->currentText(), QStringLiteral("heroSheet"));
            QCOMPARE(f.cmbSpriteCurrentAnim->currentText(), QStringLiteral("walk"));
            QCOMPARE(f.txtSpritePositionY->text(), QStringLiteral("-20"));
            QCOMPARE(listTexts(f.lstAnimObjects), QStringList({"walk", "jump"}));
            editAnimation(editor, [](frmAnim *anim) {
                const auto &a = anim->form();
                QCOMPARE(anim->windowTitle(), QStringLiteral("Animation Data - hero"));
                QCOMPARE(listTexts(a.lstAnimSequence), QStringList({"5", "3", "9"}));
                QVERIFY(a.optAnimDirectionReverse->isChecked());
                QCOMPARE(a.txtAnimDefaultFrame->text(), QString());
            });
        });
        window.form().mnuSave->trigger();
        QVERIFY(onlyWarnings(ui));
        QCOMPARE(readAll(projectFile), saved);

        const QString out = dir.filePath(QStringLiteral("data"));
        QVERIFY(QDir().mkpath(out));
        ui.fileChoices = {(out + QStringLiteral("/[no filename needed]")).toStdString()};
        window.form().mnuGenDataAs->trigger();
        doc->ProjectInfo.projectFilePath.clear();
        QVERIFY(onlyWarnings(ui));
        QCOMPARE(readAll(out + "/sprite.dat"),
                 crlf({" 1",
                       "hero heroSheet walk  10 -20  1  2",
                       "walk  3",
                       " 5",
                       " 3",
                       " 9",
                       " 2  4  1  1 -1 -1",
                       "jump  2",
                       " 1",
                       " 2",
                       " 0  0  0  0  1  1"}));
    }
};

QTEST_MAIN(tst_SpriteRoundTrip)
#include "tst_SpriteRoundTrip.moc"
