#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmAnim.h"
#include "frmMain.h"
#include "frmSprite.h"
#include "model/Kinds.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

// The animation editor opened as a user opens it: a new sprite "hero" in the sprite editor,
// New Animation, Edit Animation.
class tst_frmAnim : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    AnimRec &anim() { return m_doc->Sprites[0].anims[0]; }
    FrameRec &frame(int slot) { return anim().frames[static_cast<size_t>(slot)]; }

    // The cells of the used frame slots in slot order, as the files list them.
    QList<int> cellsInSlotOrder()
    {
        QList<int> cells;
        for (const FrameRec &f : anim().frames)
            if (f.inUse == -1)
                cells << f.cell;
        return cells;
    }

    // Opens the sprite editor and runs `inSprite` in it; the test's own animation is row 0.
    void inSpriteEditor(std::function<void(frmSprite *)> inSprite)
    {
        editProperties<frmSprite>(*m_window, std::move(inSprite));
    }

    static bool editAnimation(frmSprite *editor, std::function<void(frmAnim *)> action)
    {
        return clickToOpen<frmAnim>(editor->form().cmdSpriteEditAnim, std::move(action));
    }

    // Opens the animation editor on the animation of slot 0 and runs `action` in it.
    bool edit(std::function<void(frmAnim *)> action)
    {
        bool closed = false;
        inSpriteEditor([&](frmSprite *editor) { closed = editAnimation(editor, action); });
        return closed;
    }

    static void addFrames(frmAnim *editor, const QStringList &typed)
    {
        for (const QString &text : typed) {
            typeInto(editor->form().txtAnimSequenceAdd, text);
            clickButton(editor->form().cmdAnimSequenceAdd);
        }
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
        clickTab(*m_window, tabOf(Kind::Sprite));
        clickButton(m_window->form().cmdObjAdd);
        inSpriteEditor([](frmSprite *editor) {
            typeInto(editor->form().txtSpriteID, QStringLiteral("hero"));
            clickButton(editor->form().cmdSpriteNewAnim);
            QCOMPARE(listSlots(editor->form().lstAnimObjects), QList<int>({0}));
            editAnimation(editor, [](frmAnim *) {});
        });
        QCOMPARE(m_doc->Sprites[0].animCount, int16_t(1));
        QCOMPARE(anim().inUse, int16_t(-1));
        QCOMPARE(anim().isNew, int16_t(0));
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
    }

    void newAnimationCaptionAndDefaults()
    {
        // Back to a reserved slot: the first opening applies the defaults.
        anim().inUse = 0;
        anim().isNew = -1;
        anim().play = 0;
        anim().direction = 0;
        inSpriteEditor([this](frmSprite *sprite) {
            clickButton(sprite->form().cmdSpriteNewAnim); // slot 1, listed
            QCOMPARE(listSlots(sprite->form().lstAnimObjects), QList<int>({1}));
            editAnimation(sprite, [this](frmAnim *editor) {
                const auto &f = editor->form();
                QCOMPARE(editor->windowTitle(), QStringLiteral("Animation Data - hero"));
                const auto title = [editor](const char *name) {
                    return editor->findChild<QGroupBox *>(QString::fromUtf8(name))->title();
                };
                QCOMPARE(title("fraAnimID"), QStringLiteral("Animation ID"));
                QCOMPARE(title("fraAnimDelays"), QStringLiteral("Animation Delays"));
                QCOMPARE(title("fraAnimFlags"), QStringLiteral("Flags"));
                QCOMPARE(title("fraAnimDirection"), QStringLiteral("Direction"));
                QCOMPARE(title("fraAnimDefaultFrame"), QStringLiteral("Default Frame"));
                QCOMPARE(title("fraAnimSequence"), QStringLiteral("Animation Sequence"));
                QCOMPARE(f.lblAnimDelaysAnim->text(), QStringLiteral("Animation"));
                QCOMPARE(f.lblAnimDelaysFrame->text(), QStringLiteral("Frame"));
                QCOMPARE(f.lblAnimSequenceAdd->text(), QStringLiteral("Frame"));
                QCOMPARE(f.chkAnimPlay->text(), QStringLiteral("Play"));
                QCOMPARE(f.chkAnimRepeat->text(), QStringLiteral("Repeat"));
                QCOMPARE(f.optAnimDirectionForward->text(), QStringLiteral("Forward"));
                QCOMPARE(f.optAnimDirectionReverse->text(), QStringLiteral("Reverse"));

                QCOMPARE(f.txtAnimID->text(), QStringLiteral("Enter_ID"));
                QCOMPARE(f.txtAnimDelaysAnim->text(), QStringLiteral("0"));
                QCOMPARE(f.txtAnimDelaysFrame->text(), QStringLiteral("0"));
                QVERIFY(f.chkAnimPlay->isChecked());
                QVERIFY(!f.chkAnimRepeat->isChecked());
                QVERIFY(f.optAnimDirectionForward->isChecked());
                QCOMPARE(f.txtAnimDefaultFrame->text(), QString());
                QCOMPARE(f.lstAnimSequence->count(), 0);
                QCOMPARE(f.txtAnimSequenceAdd->text(), QString());
                for (QPushButton *button : {f.cmdAnimSequenceAdd,
                                            f.cmdAnimSequenceDelete,
                                            f.cmdAnimSequenceUp,
                                            f.cmdAnimSequenceDown})
                    QVERIFY2(!button->isEnabled(), qPrintable(button->objectName()));

                const AnimRec &a = m_doc->Sprites[0].anims[1];
                QCOMPARE(a.inUse, int16_t(-1));
                QCOMPARE(a.isNew, int16_t(0));
                QCOMPARE(a.id, std::string("Enter_ID"));
                QCOMPARE(a.play, int16_t(1));
                QCOMPARE(a.repeat, int16_t(0));
                QCOMPARE(a.direction, int16_t(1));
                QCOMPARE(a.defaultFrame, int16_t(-1));
                QCOMPARE(a.frameCount, int16_t(0));
            });
        });
    }

    void fieldsFollowTheirRules()
    {
        edit([this](frmAnim *editor) {
            const auto &f = editor->form();
            typeInto(f.txtAnimID, QStringLiteral("walk"));
            QCOMPARE(anim().id, std::string("walk"));
            clearBox(f.txtAnimID);
            QCOMPARE(f.txtAnimID->text(), QStringLiteral("Enter_ID"));
            QCOMPARE(anim().id, std::string("Enter_ID"));
            typeInto(f.txtAnimDelaysAnim, QStringLiteral("120ms"));
            QCOMPARE(anim().animDelay, int16_t(120));
            typeInto(f.txtAnimDelaysFrame, QStringLiteral("-3"));
            QCOMPARE(anim().frameDelay, int16_t(-3));
            clearBox(f.txtAnimDelaysFrame);
            QCOMPARE(f.txtAnimDelaysFrame->text(), QStringLiteral("0"));
            QCOMPARE(anim().frameDelay, int16_t(0));
            QTest::mouseClick(f.chkAnimPlay, Qt::LeftButton);
            QCOMPARE(anim().play, int16_t(0));
            QTest::mouseClick(f.chkAnimRepeat, Qt::LeftButton);
            QCOMPARE(anim().repeat, int16_t(1));
            QTest::mouseClick(f.optAnimDirectionReverse, Qt::LeftButton);
            QCOMPARE(anim().direction, int16_t(-1));
            QTest::mouseClick(f.optAnimDirectionForward, Qt::LeftButton);
            QCOMPARE(anim().direction, int16_t(1));
        });
    }

    void anyDirectionButForwardShowsReverse()
    {
        anim().direction = 0;
        edit([this](frmAnim *editor) {
            QVERIFY(editor->form().optAnimDirectionReverse->isChecked());
            QVERIFY(!editor->form().optAnimDirectionForward->isChecked());
            QCOMPARE(anim().direction, int16_t(0));
        });
    }

    void defaultFrameShowsMinusOneAsAnEmptyBox()
    {
        edit([this](frmAnim *editor) {
            QLineEdit *box = editor->form().txtAnimDefaultFrame;
            typeInto(box, QStringLiteral("3"));
            QCOMPARE(anim().defaultFrame, int16_t(3));
            clearBox(box);
            QCOMPARE(box->text(), QString());
            QCOMPARE(anim().defaultFrame, int16_t(-1));
            typeInto(box, QStringLiteral("7"));
            typeInto(box, QStringLiteral("-1"));
            QCOMPARE(box->text(), QString());
            QCOMPARE(anim().defaultFrame, int16_t(-1));
            typeInto(box, QStringLiteral("-2"));
            QCOMPARE(box->text(), QStringLiteral("-2"));
            QCOMPARE(anim().defaultFrame, int16_t(-2));
        });
        anim().defaultFrame = 5;
        edit([](frmAnim *editor) {
            QCOMPARE(editor->form().txtAnimDefaultFrame->text(), QStringLiteral("5"));
        });
    }

    void addIsEnabledOnlyWhileItsBoxHoldsText()
    {
        edit([](frmAnim *editor) {
            const auto &f = editor->form();
            QVERIFY(!f.cmdAnimSequenceAdd->isEnabled());
            typeInto(f.txtAnimSequenceAdd, QStringLiteral("x"));
            QVERIFY(f.cmdAnimSequenceAdd->isEnabled());
            clearBox(f.txtAnimSequenceAdd);
            QVERIFY(!f.cmdAnimSequenceAdd->isEnabled());
        });
    }

    void addListsTheTextAsTypedAndStoresTheNumber()
    {
        edit([this](frmAnim *editor) {
            const auto &f = editor->form();
            addFrames(editor, {"12abc"});
            QCOMPARE(listTexts(f.lstAnimSequence), QStringList({"12abc"}));
            QCOMPARE(listSlots(f.lstAnimSequence), QList<int>({0}));
            QCOMPARE(f.lstAnimSequence->currentRow(), 0);
            QCOMPARE(frame(0).inUse, int16_t(-1));
            QCOMPARE(frame(0).cell, int16_t(12));
            QCOMPARE(f.txtAnimSequenceAdd->text(), QString());
            QCOMPARE(editor->focusWidget(), f.txtAnimSequenceAdd);
            QVERIFY(!f.cmdAnimSequenceAdd->isEnabled());
            QVERIFY(f.cmdAnimSequenceDelete->isEnabled());
            QVERIFY(!f.cmdAnimSequenceDown->isEnabled());
            QVERIFY(!f.cmdAnimSequenceUp->isEnabled());
            addFrames(editor, {"4"});
            QCOMPARE(f.lstAnimSequence->currentRow(), 1);
            QVERIFY(f.cmdAnimSequenceDown->isEnabled());
            QVERIFY(f.cmdAnimSequenceUp->isEnabled());
        });
        QCOMPARE(anim().frameCount, int16_t(2));
        // Reopened, the frame shows its number alone.
        edit([](frmAnim *editor) {
            const auto &f = editor->form();
            QCOMPARE(listTexts(f.lstAnimSequence), QStringList({"12", "4"}));
            QCOMPARE(f.lstAnimSequence->currentRow(), 0);
            QVERIFY(f.cmdAnimSequenceDelete->isEnabled());
            QVERIFY(f.cmdAnimSequenceDown->isEnabled());
            QVERIFY(f.cmdAnimSequenceUp->isEnabled());
        });
    }

    void downOnTheFirstOfThreeExchangesRowsAndCells()
    {
        edit([this](frmAnim *editor) {
            const auto &f = editor->form();
            addFrames(editor, {"3", "5", "9"});
            clickLine(f.lstAnimSequence, 0);
            clickButton(f.cmdAnimSequenceDown);
            QCOMPARE(listTexts(f.lstAnimSequence), QStringList({"5", "3", "9"}));
            QCOMPARE(listSlots(f.lstAnimSequence), QList<int>({1, 0, 2}));
            QCOMPARE(f.lstAnimSequence->currentRow(), 1);
            QCOMPARE(cellsInSlotOrder(), QList<int>({5, 3, 9}));
            QVERIFY(f.cmdAnimSequenceDown->isEnabled());
            QVERIFY(f.cmdAnimSequenceUp->isEnabled());
        });
        // Reopened, the rows follow the slots.
        edit([](frmAnim *editor) {
            QCOMPARE(listTexts(editor->form().lstAnimSequence), QStringList({"5", "3", "9"}));
        });
    }

    void upOnTheLastOfThreeExchangesRowsAndCells()
    {
        edit([this](frmAnim *editor) {
            const auto &f = editor->form();
            addFrames(editor, {"3", "5", "9"});
            clickButton(f.cmdAnimSequenceUp); // the new row, 2, is selected
            QCOMPARE(listTexts(f.lstAnimSequence), QStringList({"3", "9", "5"}));
            QCOMPARE(listSlots(f.lstAnimSequence), QList<int>({0, 2, 1}));
            QCOMPARE(f.lstAnimSequence->currentRow(), 1);
            QCOMPARE(cellsInSlotOrder(), QList<int>({3, 9, 5}));
        });
    }

    void downOnTheLastRowAndUpOnTheFirstDoNothing()
    {
        edit([this](frmAnim *editor) {
            const auto &f = editor->form();
            addFrames(editor, {"3", "5"});
            clickButton(f.cmdAnimSequenceDown);
            QCOMPARE(listTexts(f.lstAnimSequence), QStringList({"3", "5"}));
            QCOMPARE(f.lstAnimSequence->currentRow(), 1);
            clickLine(f.lstAnimSequence, 0);
            clickButton(f.cmdAnimSequenceUp);
            QCOMPARE(listTexts(f.lstAnimSequence), QStringList({"3", "5"}));
            QCOMPARE(listSlots(f.lstAnimSequence), QList<int>({0, 1}));
            QCOMPARE(f.lstAnimSequence->currentRow(), 0);
            QCOMPARE(cellsInSlotOrder(), QList<int>({3, 5}));
        });
    }

    void deletingTheMiddleRowSelectsTheNewMiddleRow()
    {
        edit([this](frmAnim *editor) {
            const auto &f = editor->form();
            addFrames(editor, {"3", "5", "9"});
            clickLine(f.lstAnimSequence, 1);
            clickButton(f.cmdAnimSequenceDelete);
            QVERIFY(m_ui->messages.empty());
            QCOMPARE(listTexts(f.lstAnimSequence), QStringList({"3", "9"}));
            QCOMPARE(f.lstAnimSequence->currentRow(), 1);
            QCOMPARE(frame(1).inUse, int16_t(0));
            QCOMPARE(frame(1).cell, int16_t(5)); // the cell stays
        });
        QCOMPARE(anim().frameCount, int16_t(2));
    }

    void deletingTheLastRowSelectsTheRowAbove()
    {
        edit([](frmAnim *editor) {
            const auto &f = editor->form();
            addFrames(editor, {"3", "5", "9"});
            clickButton(f.cmdAnimSequenceDelete); // row 2, the new one
            QCOMPARE(listTexts(f.lstAnimSequence), QStringList({"3", "5"}));
            QCOMPARE(f.lstAnimSequence->currentRow(), 1);
            // Up and Down keep their state.
            QVERIFY(f.cmdAnimSequenceDown->isEnabled());
            QVERIFY(f.cmdAnimSequenceUp->isEnabled());
        });
    }

    void deletingTheOnlyRowDisablesDeleteUpDownAndAdd()
    {
        edit([this](frmAnim *editor) {
            const auto &f = editor->form();
            addFrames(editor, {"3", "5"});
            clickButton(f.cmdAnimSequenceDelete);
            typeInto(f.txtAnimSequenceAdd, QStringLiteral("8"));
            QVERIFY(f.cmdAnimSequenceAdd->isEnabled());
            clickButton(f.cmdAnimSequenceDelete);
            QCOMPARE(f.lstAnimSequence->count(), 0);
            for (QPushButton *button : {f.cmdAnimSequenceAdd,
                                        f.cmdAnimSequenceDelete,
                                        f.cmdAnimSequenceUp,
                                        f.cmdAnimSequenceDown})
                QVERIFY2(!button->isEnabled(), qPrintable(button->objectName()));
            QCOMPARE(editor->focusWidget(), f.txtAnimSequenceAdd);
            QCOMPARE(cellsInSlotOrder(), QList<int>());
        });
        QCOMPARE(anim().frameCount, int16_t(0));
    }

    void theHundredAndFirstFrameIsRefused()
    {
        edit([this](frmAnim *editor) {
            const auto &f = editor->form();
            for (int i = 0; i < 100; ++i)
                addFrames(editor, {QString::number(i)});
            QVERIFY(m_ui->messages.empty());
            QCOMPARE(f.lstAnimSequence->count(), 100);
            QCOMPARE(listSlots(f.lstAnimSequence).last(), 99);
            addFrames(editor, {"100"});
            QCOMPARE(m_ui->messages.size(), size_t(1));
            QCOMPARE(m_ui->messages[0].text, std::string("No space left for Frames! (Max 100)"));
            QCOMPARE(m_ui->messages[0].title, std::string("Object Overload"));
            QVERIFY(m_ui->messages[0].icon == MessageIcon::Critical);
            QVERIFY(m_ui->messages[0].buttons == MessageButtons::OK);
            QCOMPARE(f.lstAnimSequence->count(), 100);
            QCOMPARE(frame(100).inUse, int16_t(0));
            // Nothing else changed: the typed text waits in its box.
            QCOMPARE(f.txtAnimSequenceAdd->text(), QStringLiteral("100"));
        });
        QCOMPARE(anim().frameCount, int16_t(100));
    }

    void aSequenceOfMoreThanAHundredFramesTakesNoMore()
    {
        // Every frame slot used, as an animation read with 101 frames has them.
        for (int slot = 0; slot <= 100; ++slot)
            frame(slot) = {-1, static_cast<int16_t>(slot)};
        edit([this](frmAnim *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.lstAnimSequence->count(), 101);
            addFrames(editor, {"7"});
            QCOMPARE(m_ui->messages.size(), size_t(1));
            QCOMPARE(m_ui->messages[0].text, std::string("No space left for Frames! (Max 100)"));
            QCOMPARE(f.lstAnimSequence->count(), 101);
            QCOMPARE(m_doc->frameOverflow, int16_t(0));
            QCOMPARE(frame(0).cell, int16_t(0));
        });
        QCOMPARE(anim().frameCount, int16_t(101));
    }

    void escapeClosesOnlyTheAnimationEditorAndHandsBackTheRow()
    {
        inSpriteEditor([this](frmSprite *sprite) {
            const bool closed = editAnimation(sprite, [](frmAnim *editor) {
                typeInto(editor->form().txtAnimID, QStringLiteral("walk"));
                addFrames(editor, {"1", "2", "3"});
                QTest::keyClick(editor, Qt::Key_Escape);
            });
            QVERIFY(closed);
            QVERIFY(sprite->isVisible());
            QCOMPARE(listTexts(sprite->form().lstAnimObjects), QStringList({"walk"}));
            QCOMPARE(sprite->form().lstAnimObjects->currentRow(), 0);
            QCOMPARE(itemTexts(sprite->form().cmbSpriteCurrentAnim), QStringList({"walk"}));
            // The row is refreshed before the frame count is stored; selecting it again shows
            // the stored count.
            QCOMPARE(sprite->form().lblAnimStatsFrames->text(), QStringLiteral("# of Frames: 0"));
            QCOMPARE(anim().frameCount, int16_t(3));
            clickLine(sprite->form().lstAnimObjects, 0);
            QCOMPARE(sprite->form().lblAnimStatsFrames->text(), QStringLiteral("# of Frames: 3"));
        });
    }
};

QTEST_MAIN(tst_frmAnim)
#include "tst_frmAnim.moc"
