#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmButton.h"
#include "frmMain.h"
#include "frmScene.h"
#include "model/Kinds.h"

#include <QDir>
#include <QFile>
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

} // namespace

// A scene with a text, a sprite and a button as layers, reordered in the editor, saved,
// generated and opened again: the files and the reopened editor list the layers in the
// order of their slots, since Up and Down change only the editor's list.
class tst_SceneRoad : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    ScriptedUserInterface m_ui;
    std::unique_ptr<frmMain> m_window;

    // Adds an object of `kind` as it stands once opened in its editor.
    void addOpened(Kind kind, const std::string &id)
    {
        clickTab(*m_window, tabOf(kind));
        clickButton(m_window->form().cmdObjAdd);
        const SlotView view = slotOf(*m_doc, kind, m_doc->list(kind).lines.back().slot);
        view.inUse = -1;
        view.isNew = 0;
        view.id = id;
    }

private slots:
    void reorderedLayersAreSavedAndGeneratedInSlotOrder()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        m_doc = makeDocument();
        m_window = std::make_unique<frmMain>(*m_doc, m_ui);
        registerEditors(*m_window);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        newProject(*m_window);
        QTest::keyClicks(m_window->form().txtAppRootFolder, dir.path());

        addOpened(Kind::Text, "txtTitle");
        addOpened(Kind::Sprite, "sprHero");
        clickTab(*m_window, tabOf(Kind::Button));
        clickButton(m_window->form().cmdObjAdd);
        QVERIFY(editProperties<frmButton>(*m_window, [](frmButton *editor) {
            typeInto(editor->form().txtButtonID, QStringLiteral("btnStart"));
            QTest::keyClick(editor->form().txtButtonID, Qt::Key_Escape);
        }));

        clickTab(*m_window, tabOf(Kind::Scene));
        clickButton(m_window->form().cmdObjAdd);
        QVERIFY(editProperties<frmScene>(*m_window, [](frmScene *editor) {
            const auto &f = editor->form();
            typeInto(f.txtSceneID, QStringLiteral("scnTitle"));
            for (int kindRow : {0, 1, 3}) { // a text, a sprite, a button
                chooseEntry(f.cmbSceneLayerObjects, kindRow);
                clickLine(f.lstSceneLayerObjects, 0);
                clickButton(f.cmdSceneLayerAdd);
            }
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({0, 1, 2}));
            // The button goes to the top of the list.
            clickLine(f.lstSceneLayers, 2);
            clickButton(f.cmdSceneLayerUp);
            clickButton(f.cmdSceneLayerUp);
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"btnStart", "txtTitle", "sprHero"}));
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({2, 0, 1}));
            QTest::keyClick(f.lstSceneLayers, Qt::Key_Escape);
        }));
        QCOMPARE(listTexts(m_window->objectList(10)), QStringList({"scnTitle"}));

        const QString projectFile = dir.filePath(QStringLiteral("game.dvb"));
        m_ui.fileChoices = {projectFile.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        const QByteArray project = readAll(projectFile);
        QVERIFY2(project.contains(crlf({"\"scnTitle\",1,1,3",
                                        "\"txtTitle\",1",
                                        "\"sprHero\",2",
                                        "\"btnStart\",4",
                                        "0,0"})),
                 project.constData());

        const QString out = dir.filePath(QStringLiteral("data"));
        QVERIFY(QDir().mkpath(out));
        m_ui.fileChoices = {(out + QStringLiteral("/[no filename needed]")).toStdString()};
        m_window->form().mnuGenDataAs->trigger();
        QCOMPARE(readAll(out + "/scene.dat"),
                 crlf({" 1", "scnTitle  1  1  3", "txtTitle  1", "sprHero  2", "btnStart  4"}));
        for (const Message &message : m_ui.messages)
            QVERIFY2(message.title != "Load Error" && message.icon != MessageIcon::Critical,
                     message.text.c_str());

        // Opened again, the editor lists the layers in slot order.
        m_ui.fileChoices = {projectFile.toStdString()};
        m_window->form().mnuOpen->trigger();
        QCOMPARE(m_doc->ProjectInfo.projectFilePath, projectFile.toStdString());
        clickTab(*m_window, tabOf(Kind::Scene));
        QCOMPARE(listTexts(m_window->objectList(10)), QStringList({"scnTitle"}));
        QVERIFY(editProperties<frmScene>(*m_window, [](frmScene *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtSceneID->text(), QStringLiteral("scnTitle"));
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList({"txtTitle", "sprHero", "btnStart"}));
            QCOMPARE(listSlots(f.lstSceneLayers), QList<int>({0, 1, 2}));
            clickLine(f.lstSceneLayers, 2);
            QCOMPARE(f.lblSceneLayerType->text(), QStringLiteral("Buttons"));
            editor->close();
        }));
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
    }
};

QTEST_MAIN(tst_SceneRoad)
#include "tst_SceneRoad.moc"
