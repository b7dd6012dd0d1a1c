#include "BoundForm.h"
#include "DialogDriver.h"
#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "ObjectSetup.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmAnim.h"
#include "frmLogCustom.h"
#include "frmMain.h"
#include "frmScene.h"
#include "frmSprite.h"
#include "model/Kinds.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

namespace {

// What a window shows in its lists and drop-downs, line by line.
QStringList shownLines(QWidget *window)
{
    QStringList lines;
    for (QListWidget *list : window->findChildren<QListWidget *>()) {
        lines << list->objectName() + " selected " + QString::number(list->currentRow());
        for (int row = 0; row < list->count(); ++row)
            lines << list->objectName() + ": " + list->item(row)->text();
    }
    for (QComboBox *box : window->findChildren<QComboBox *>()) {
        lines << box->objectName() + " shows " + box->currentText();
        lines << box->objectName() + " offers " + itemTexts(box).join(QLatin1Char(','));
    }
    return lines;
}

// Presses Return and then Enter (on the keypad) in every box of `window` that takes them,
// and checks after each key that nothing in the document or on screen changed and that the
// window is still open. Returns how many boxes were tried.
int pressReturnInEveryBox(QWidget *window, const Document &doc)
{
    int tried = 0;
    for (QLineEdit *box : window->findChildren<QLineEdit *>()) {
        if (!box->isVisible() || !box->isEnabled())
            continue;
        ++tried;
        const QByteArray name =
            (box->parentWidget() && qobject_cast<QComboBox *>(box->parentWidget())
                 ? box->parentWidget()->objectName()
                 : box->objectName())
                .toUtf8();
        for (const auto &[key, modifiers] :
             {std::pair{Qt::Key_Return, Qt::KeyboardModifiers()},
              std::pair{Qt::Key_Enter, Qt::KeyboardModifiers(Qt::KeypadModifier)}}) {
            const auto before = std::make_unique<Document>(doc);
            const QStringList linesBefore = shownLines(window);
            const QString textBefore = box->text();
            box->setFocus();
            QTest::keyClick(box, key, modifiers);
            if (!(*before == doc))
                QTest::qFail("a key changed the document in " + name, __FILE__, __LINE__);
            if (shownLines(window) != linesBefore)
                QTest::qFail("a key changed a list in " + name, __FILE__, __LINE__);
            if (box->text() != textBefore)
                QTest::qFail("a key changed the text of " + name, __FILE__, __LINE__);
            if (!window->isVisible())
                QTest::qFail("a key closed the window from " + name, __FILE__, __LINE__);
        }
    }
    return tried;
}

} // namespace

// Return and Enter click no button and change nothing in any editor or settings window:
// Escape is the only key those windows handle.
class tst_ReturnKey : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    SpriteRec &sprite() { return m_doc->Sprites[0]; }

    // A sprite, opened once, with the live animation "walk" in slot 0.
    void spriteWithAnimation()
    {
        addObjectOn(*m_window, Kind::Sprite);
        editProperties<frmSprite>(*m_window, [](frmSprite *) {});
        AnimRec &anim = sprite().anims[0];
        anim.inUse = -1;
        anim.isNew = 0;
        anim.id = "walk";
        sprite().animCount = 1;
    }

private slots:
    void init()
    {
        m_doc = makeDocument();
        m_ui = std::make_unique<ScriptedUserInterface>();
        m_window = std::make_unique<frmMain>(*m_doc, *m_ui);
        registerEditors(*m_window);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        newProject(*m_window);
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
    }

    void spriteEditorClicksNoButton()
    {
        spriteWithAnimation();
        const int16_t counter = m_doc->newObjectCounter;
        editProperties<frmSprite>(*m_window, [this](frmSprite *editor) {
            const auto &f = editor->form();
            QVERIFY(f.cmdSpriteNewAnim->isEnabled());
            QVERIFY(f.cmdSpriteRemoveAnim->isEnabled());
            QVERIFY(f.cmdSpriteEditAnim->isEnabled());
            typeInto(f.txtSpriteID, QStringLiteral("sprHero"));
            QCOMPARE(pressReturnInEveryBox(editor, *m_doc), 5);
            QCOMPARE(listTexts(f.lstAnimObjects), QStringList{QStringLiteral("walk")});
            QVERIFY(QApplication::activeModalWidget() == editor); // no animation editor opened
        });
        QCOMPARE(m_doc->newObjectCounter, counter);
        QCOMPARE(sprite().animCount, int16_t(1));
        QCOMPARE(sprite().anims[1].inUse, int16_t(0));
        QCOMPARE(sprite().anims[1].isNew, int16_t(0));
    }

    void animationEditorClicksNoButton()
    {
        spriteWithAnimation();
        editProperties<frmSprite>(*m_window, [this](frmSprite *editor) {
            clickToOpen<frmAnim>(editor->form().cmdSpriteEditAnim, [this](frmAnim *anim) {
                const auto &f = anim->form();
                typeInto(f.txtAnimSequenceAdd, QStringLiteral("3"));
                clickButton(f.cmdAnimSequenceAdd);
                typeInto(f.txtAnimSequenceAdd, QStringLiteral("5"));
                clickButton(f.cmdAnimSequenceAdd);
                typeInto(f.txtAnimSequenceAdd, QStringLiteral("7"));
                QVERIFY(f.cmdAnimSequenceAdd->isEnabled());
                QVERIFY(f.cmdAnimSequenceDelete->isEnabled());
                QCOMPARE(pressReturnInEveryBox(anim, *m_doc), 5);
                QCOMPARE(listTexts(f.lstAnimSequence),
                         (QStringList{QStringLiteral("3"), QStringLiteral("5")}));
                QCOMPARE(f.txtAnimSequenceAdd->text(), QStringLiteral("7"));
            });
        });
        const AnimRec &anim = sprite().anims[0];
        QCOMPARE(anim.frameCount, int16_t(2));
        QCOMPARE(anim.frames[2].inUse, int16_t(0));
    }

    void sceneEditorClicksNoButton()
    {
        addLiveObject(*m_window, Kind::Image, "imgBackground");
        addObjectOn(*m_window, Kind::Scene);
        editProperties<frmScene>(*m_window, [this](frmScene *editor) {
            const auto &f = editor->form();
            typeInto(f.txtSceneID, QStringLiteral("scnTitle"));
            chooseEntry(f.cmbSceneLayerObjects, 2); // Images
            clickLine(f.lstSceneLayerObjects, 0);
            clickButton(f.cmdSceneLayerAdd);
            clickLine(f.lstSceneLayerObjects, 0);
            QVERIFY(f.cmdSceneLayerAdd->isEnabled());
            QVERIFY(f.cmdSceneLayerDelete->isEnabled());
            QCOMPARE(pressReturnInEveryBox(editor, *m_doc), 1);
            QCOMPARE(listTexts(f.lstSceneLayers), QStringList{QStringLiteral("imgBackground")});
        });
        QCOMPARE(m_doc->Scenes[0].layerCount, int16_t(1));
    }

    void customFilterWindowKeepsTheSelectedFilter()
    {
        clickTab(*m_window, 11);
        openDialog<frmLogCustom>(m_window->form().cmdLogEditCustom, [this](frmLogCustom *d) {
            const auto &f = d->form();
            typeInto(f.txtCustomFilterName, QStringLiteral("Loading"));
            clickButton(f.cmdCustomCreateFilter);
            f.lstCustomFilter->setCurrentRow(0);
            typeInto(f.txtCustomFilterName, QStringLiteral("Saving"));
            QVERIFY(f.cmdCustomRemove->isEnabled());
            QVERIFY(f.cmdCustomCreateFilter->isEnabled());
            QCOMPARE(pressReturnInEveryBox(d, *m_doc), 1);
            QCOMPARE(listTexts(f.lstCustomFilter), QStringList{QStringLiteral("Loading")});
            QCOMPARE(f.lstCustomFilter->currentRow(), 0);
        });
        QCOMPARE(m_doc->AppSettings.CustomFilters[0].inUse, int16_t(-1));
        QCOMPARE(m_doc->AppSettings.CustomFilters[0].text, std::string("Loading"));
        QCOMPARE(m_doc->AppSettings.CustomFilters[1].inUse, int16_t(0));
        QCOMPARE(m_doc->AppSettings.customFilterCount, int16_t(1));
    }

    void otherEditorsTakeNoReturn_data()
    {
        QTest::addColumn<int>("kind");
        for (Kind kind : {Kind::Button,
                          Kind::Image,
                          Kind::Cursor,
                          Kind::Text,
                          Kind::Font,
                          Kind::Music,
                          Kind::SFX})
            QTest::newRow(kindInfo(kind).dataFile) << static_cast<int>(kind);
    }
    void otherEditorsTakeNoReturn()
    {
        QFETCH(int, kind);
        addObjectOn(*m_window, static_cast<Kind>(kind));
        editProperties<BoundForm>(*m_window, [this](BoundForm *editor) {
            QVERIFY(pressReturnInEveryBox(editor, *m_doc) >= 1);
        });
    }

    void settingsWindowsTakeNoReturn()
    {
        // Every box enabled: the splash and log boxes follow their check boxes.
        m_doc->AppSettings.splashEnabled = 1;
        m_doc->AppSettings.logEnabled = 1;
        clickTab(*m_window, 1);
        const auto &m = m_window->form();
        for (QPushButton *opener :
             {m.cmdAppWindowProps, m.cmdAppSoundProps, m.cmdAppSplashProps, m.cmdAppLogProps}) {
            openDialog<BoundForm>(opener, [this](BoundForm *dialog) {
                QVERIFY(pressReturnInEveryBox(dialog, *m_doc) >= 1);
            });
        }
    }

    // Qt would make the first button of a dialog its default one; none of these windows has one.
    void noButtonIsDefault()
    {
        spriteWithAnimation();
        editProperties<frmSprite>(*m_window, [](frmSprite *editor) {
            for (QPushButton *button : editor->findChildren<QPushButton *>()) {
                QVERIFY(!button->isDefault());
                QVERIFY(!button->autoDefault());
            }
        });
    }

    // The first letter of an offered identifier stays what was typed: the drop-down completes
    // nothing, and Return does not take a completion either.
    void typedLetterIsStoredAsTyped()
    {
        const int image = addLiveObject(*m_window, Kind::Image, "imgHero");
        m_doc->Images[static_cast<size_t>(image)].bound = 1;
        addObjectOn(*m_window, Kind::Sprite);
        editProperties<frmSprite>(*m_window, [this](frmSprite *editor) {
            const auto &f = editor->form();
            QCOMPARE(itemTexts(f.cmbSpriteImage), QStringList{QStringLiteral("imgHero")});
            typeInto(f.txtSpriteID, QStringLiteral("sprHero"));
            typeInto(f.cmbSpriteImage, QStringLiteral("i"));
            QCOMPARE(f.cmbSpriteImage->currentText(), QStringLiteral("i"));
            QCOMPARE(sprite().imageId, std::string("i"));
            QTest::keyClick(f.cmbSpriteImage->lineEdit(), Qt::Key_Return);
            QCOMPARE(f.cmbSpriteImage->currentText(), QStringLiteral("i"));
            QCOMPARE(sprite().imageId, std::string("i"));
        });

        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString file = dir.filePath(QStringLiteral("typed.dvb"));
        m_ui->fileChoices = {file.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        QFile saved(file);
        QVERIFY(saved.open(QIODevice::ReadOnly));
        const QByteArray bytes = saved.readAll();
        QVERIFY2(bytes.contains("\"sprHero\",\"i\",\"null\",0,0,1,0\r\n"), bytes.constData());
    }
};

QTEST_MAIN(tst_ReturnKey)
#include "tst_ReturnKey.moc"
