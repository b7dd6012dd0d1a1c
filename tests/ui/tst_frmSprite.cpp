#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmAnim.h"
#include "frmMain.h"
#include "frmSprite.h"
#include "model/Kinds.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

// The sprite editor opened from the main window as a user opens it: New project, the Sprite
// tab, Add Object, Edit Properties.
class tst_frmSprite : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    SpriteRec &sprite() { return m_doc->Sprites[0]; }
    AnimRec &anim(int slot) { return sprite().anims[static_cast<size_t>(slot)]; }

    bool edit(std::function<void(frmSprite *)> action)
    {
        return editProperties<frmSprite>(*m_window, std::move(action));
    }
    static bool editAnimation(frmSprite *editor, std::function<void(frmAnim *)> action)
    {
        return clickToOpen<frmAnim>(editor->form().cmdSpriteEditAnim, std::move(action));
    }

    // An animation as the animation editor leaves it.
    void useAnim(int slot, const std::string &id)
    {
        anim(slot).inUse = -1;
        anim(slot).isNew = 0;
        anim(slot).id = id;
    }

    // The sprite, opened once, with `ids` as its animations in slots 0, 1, ...
    void spriteWithAnimations(const std::vector<std::string> &ids)
    {
        edit([](frmSprite *) {});
        for (size_t slot = 0; slot < ids.size(); ++slot)
            useAnim(static_cast<int>(slot), ids[slot]);
        sprite().animCount = static_cast<int16_t>(ids.size());
    }

    QString label(QWidget *window, const char *name)
    {
        return window->findChild<QLabel *>(QString::fromUtf8(name))->text();
    }

    void addImage(const std::string &id, int16_t bound, bool opened)
    {
        clickTab(*m_window, tabOf(Kind::Image));
        clickButton(m_window->form().cmdObjAdd);
        ImageRec &image =
            m_doc->Images[static_cast<size_t>(m_doc->list(Kind::Image).lines.back().slot)];
        image.id = id;
        image.bound = bound;
        if (opened) {
            image.inUse = -1;
            image.isNew = 0;
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
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
    }

    void controlsCarryTheirCaptions()
    {
        edit([this](frmSprite *editor) {
            const auto &f = editor->form();
            QCOMPARE(editor->windowTitle(), QStringLiteral("Sprite Data"));
            const auto title = [editor](const char *name) {
                return editor->findChild<QGroupBox *>(QString::fromUtf8(name))->title();
            };
            QCOMPARE(title("fraSpriteID"), QStringLiteral("Sprite ID"));
            QCOMPARE(title("fraSpriteImage"), QStringLiteral("Sprite Image"));
            QCOMPARE(title("fraSpriteCurrentAnim"), QStringLiteral("Current Animation"));
            QCOMPARE(title("fraSpritePosition"), QStringLiteral("Spirite Position"));
            QCOMPARE(title("fraSpriteProps"), QStringLiteral("Spite Properties"));
            QCOMPARE(title("fraAnimObjects"), QStringLiteral("Animation Objects"));
            QCOMPARE(title("fraAnimStats"), QStringLiteral("Animation Quick Stats"));
            QCOMPARE(f.chkSpritePropsVisible->text(), QStringLiteral("Visible"));
            QCOMPARE(f.cmdSpriteNewAnim->text(), QStringLiteral("New Animation"));
            QCOMPARE(f.cmdSpriteRemoveAnim->text(), QStringLiteral("Remove Animation"));
            QCOMPARE(f.cmdSpriteEditAnim->text(), QStringLiteral("Edit Animation"));
            QCOMPARE(label(editor, "lblAnimStatsDirection"), QStringLiteral("Anim Direction:"));
            QCOMPARE(label(editor, "lblAnimStatsPlaying"), QStringLiteral("Playing:"));
            QCOMPARE(label(editor, "lblAnimStatsRepeat"), QStringLiteral("Repeat:"));
            QCOMPARE(label(editor, "lblAnimStatsDefFrame"), QStringLiteral("Default Frame:"));
            QCOMPARE(label(editor, "lblAnimStatsAnimDelay"), QStringLiteral("Anim Delay:"));
            QCOMPARE(label(editor, "lblAnimStatsFrameDelay"), QStringLiteral("Frame Delay:"));
            QCOMPARE(label(editor, "lblAnimStatsFrames"), QStringLiteral("# of Frames:"));
            QCOMPARE(f.lblAnimNoData->text(), QStringLiteral("[NO DATA]"));
            QVERIFY(f.fraAnimCover->isVisible());
            QVERIFY(f.txtSpritePositionX && f.txtSpritePositionY && f.cmbSpriteImage &&
                    f.cmbSpriteCurrentAnim && f.txtSpriteID && f.lstAnimObjects);
        });
    }

    void newSpriteOpensWithItsDefaults()
    {
        edit([this](frmSprite *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtSpriteID->text(), QStringLiteral("Enter_ID"));
            QCOMPARE(f.cmbSpriteImage->currentText(), QString());
            QCOMPARE(f.cmbSpriteCurrentAnim->currentText(), QString());
            QCOMPARE(f.txtSpritePositionX->text(), QStringLiteral("0"));
            QCOMPARE(f.txtSpritePositionY->text(), QStringLiteral("0"));
            QVERIFY(f.chkSpritePropsVisible->isChecked());
            QCOMPARE(f.lstAnimObjects->count(), 0);
            QVERIFY(f.cmdSpriteNewAnim->isEnabled());
            QVERIFY(!f.cmdSpriteRemoveAnim->isEnabled());
            QVERIFY(!f.cmdSpriteEditAnim->isEnabled());
            const SpriteRec &s = sprite();
            QCOMPARE(s.inUse, int16_t(-1));
            QCOMPARE(s.isNew, int16_t(0));
            QCOMPARE(s.id, std::string("Enter_ID"));
            QCOMPARE(s.imageId, std::string("null"));
            QCOMPARE(s.currentAnimId, std::string("null"));
            QCOMPARE(s.animCount, int16_t(0));
            QCOMPARE(s.visible, int16_t(1));
        });
    }

    void fieldsFollowTheirRules()
    {
        edit([this](frmSprite *editor) {
            const auto &f = editor->form();
            typeInto(f.txtSpriteID, QStringLiteral("hero"));
            QCOMPARE(sprite().id, std::string("hero"));
            clearBox(f.txtSpriteID);
            QCOMPARE(f.txtSpriteID->text(), QStringLiteral("Enter_ID"));
            QCOMPARE(sprite().id, std::string("Enter_ID"));
            typeInto(f.cmbSpriteImage, QStringLiteral("sheet"));
            QCOMPARE(sprite().imageId, std::string("sheet"));
            typeInto(f.cmbSpriteImage, QStringLiteral("null"));
            QCOMPARE(f.cmbSpriteImage->currentText(), QString());
            QCOMPARE(sprite().imageId, std::string("null"));
            typeInto(f.cmbSpriteCurrentAnim, QStringLiteral("walk"));
            QCOMPARE(sprite().currentAnimId, std::string("walk"));
            clearBox(f.cmbSpriteCurrentAnim);
            QCOMPARE(sprite().currentAnimId, std::string("null"));
            typeInto(f.txtSpritePositionX, QStringLiteral("-12px"));
            QCOMPARE(sprite().positionX, int16_t(-12));
            typeInto(f.txtSpritePositionY, QStringLiteral("40"));
            clearBox(f.txtSpritePositionY);
            QCOMPARE(f.txtSpritePositionY->text(), QStringLiteral("0"));
            QCOMPARE(sprite().positionY, int16_t(0));
            QTest::mouseClick(f.chkSpritePropsVisible, Qt::LeftButton);
            QCOMPARE(sprite().visible, int16_t(0));
        });
    }

    void imageListOffersOnlyBoundImagesThatAreNotNew()
    {
        addImage("sheetB", 1, true);
        addImage("loose", 0, true);
        addImage("fresh", 1, false);
        addImage("sheetA", 1, true);
        clickTab(*m_window, tabOf(Kind::Sprite));
        edit([](frmSprite *editor) {
            QCOMPARE(itemTexts(editor->form().cmbSpriteImage), QStringList({"sheetB", "sheetA"}));
            chooseEntry(editor->form().cmbSpriteImage, 1);
        });
        QCOMPARE(sprite().imageId, std::string("sheetA"));
    }

    void newAnimationContinuesTheRunningNumber()
    {
        // Add Object used "New_Object0".
        edit([this](frmSprite *editor) {
            const auto &f = editor->form();
            clickButton(f.cmdSpriteNewAnim);
            QCOMPARE(listTexts(f.lstAnimObjects), QStringList({"New_Object1"}));
            QCOMPARE(listSlots(f.lstAnimObjects), QList<int>({0}));
            QCOMPARE(f.lstAnimObjects->currentRow(), 0);
            QVERIFY(f.cmdSpriteRemoveAnim->isEnabled());
            QVERIFY(f.cmdSpriteEditAnim->isEnabled());
            QCOMPARE(anim(0).isNew, int16_t(-1));
            QCOMPARE(anim(0).inUse, int16_t(0));
            // The new, never opened animation shows the cover.
            QVERIFY(f.fraAnimCover->isVisible());
            clickButton(f.cmdSpriteNewAnim);
            QCOMPARE(listTexts(f.lstAnimObjects), QStringList({"New_Object1", "New_Object2"}));
            QCOMPARE(listSlots(f.lstAnimObjects), QList<int>({0, 1}));
            QCOMPARE(f.lstAnimObjects->currentRow(), 1);
        });
        QCOMPARE(m_doc->newObjectCounter, int16_t(3));
        clickButton(m_window->form().cmdObjAdd);
        QCOMPARE(listTexts(m_window->objectList(tabOf(Kind::Sprite))).last(),
                 QStringLiteral("New_Object3"));
    }

    void theHundredAndFirstAnimationIsRefused()
    {
        edit([this](frmSprite *editor) {
            const auto &f = editor->form();
            for (int i = 0; i < 100; ++i)
                clickButton(f.cmdSpriteNewAnim);
            QVERIFY(m_ui->messages.empty());
            QCOMPARE(f.lstAnimObjects->count(), 100);
            QCOMPARE(listSlots(f.lstAnimObjects).last(), 99);
            QCOMPARE(f.lstAnimObjects->item(99)->text(), QStringLiteral("New_Object100"));
            clickButton(f.cmdSpriteNewAnim);
            QCOMPARE(m_ui->messages.size(), size_t(1));
            QCOMPARE(m_ui->messages[0].text,
                     std::string("No space left for animations! (Max 100)"));
            QCOMPARE(m_ui->messages[0].title, std::string("Object Overload"));
            QVERIFY(m_ui->messages[0].icon == MessageIcon::Critical);
            QVERIFY(m_ui->messages[0].buttons == MessageButtons::OK);
            QCOMPARE(f.lstAnimObjects->count(), 100);
            QCOMPARE(anim(100).isNew, int16_t(0));
            QCOMPARE(m_doc->newObjectCounter, int16_t(101));
        });
    }

    void anAnimationNeverEditedIsGoneOnReopeningButCounted()
    {
        edit([](frmSprite *editor) {
            clickButton(editor->form().cmdSpriteNewAnim);
            clickButton(editor->form().cmdSpriteNewAnim);
        });
        QCOMPARE(sprite().animCount, int16_t(2));
        // The line is refreshed before the count is stored; its next selection shows the count.
        QCOMPARE(label(m_window.get(), "lblSpriteStatsAnimCount"), QStringLiteral("# of Anims: 0"));
        clickLine(m_window->objectList(tabOf(Kind::Sprite)), 0);
        QCOMPARE(label(m_window.get(), "lblSpriteStatsAnimCount"), QStringLiteral("# of Anims: 2"));
        edit([this](frmSprite *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.lstAnimObjects->count(), 0);
            QVERIFY(!f.cmdSpriteRemoveAnim->isEnabled());
            QVERIFY(!f.cmdSpriteEditAnim->isEnabled());
            QCOMPARE(anim(0).inUse, int16_t(0));
            QCOMPARE(anim(0).isNew, int16_t(-1));
        });
        QCOMPARE(sprite().animCount, int16_t(0));
    }

    void animCountZeroShowsNoRowsEvenWithUsedSlots()
    {
        edit([](frmSprite *) {});
        useAnim(0, "walk");
        useAnim(4, "run");
        sprite().animCount = 0;
        edit([](frmSprite *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.lstAnimObjects->count(), 0);
            QCOMPARE(f.cmbSpriteCurrentAnim->count(), 0);
            QVERIFY(!f.cmdSpriteRemoveAnim->isEnabled());
            QVERIFY(!f.cmdSpriteEditAnim->isEnabled());
        });
    }

    void rowsListTheUsedSlotsWithRowZeroSelected()
    {
        edit([](frmSprite *) {});
        useAnim(7, "run");
        useAnim(3, "walk");
        anim(3).frameCount = 4;
        sprite().animCount = 2;
        edit([](frmSprite *editor) {
            const auto &f = editor->form();
            QCOMPARE(listTexts(f.lstAnimObjects), QStringList({"walk", "run"}));
            QCOMPARE(listSlots(f.lstAnimObjects), QList<int>({3, 7}));
            QCOMPARE(f.lstAnimObjects->currentRow(), 0);
            QVERIFY(f.cmdSpriteRemoveAnim->isEnabled());
            QVERIFY(f.cmdSpriteEditAnim->isEnabled());
            // Selecting row 0 showed its statistics.
            QVERIFY(!f.fraAnimCover->isVisible());
            QCOMPARE(f.lblAnimStatsFrames->text(), QStringLiteral("# of Frames: 4"));
        });
    }

    void currentAnimationListGoesBySlotNumber()
    {
        edit([](frmSprite *) {});
        useAnim(3, "walk");
        useAnim(7, "run");
        anim(0).id = "gone"; // freed earlier, its id kept
        anim(1).id = "reserved";
        anim(1).isNew = -1;
        sprite().animCount = 2;
        sprite().currentAnimId = "run";
        edit([this](frmSprite *editor) {
            const auto &f = editor->form();
            QCOMPARE(itemTexts(f.cmbSpriteCurrentAnim), QStringList({"gone"}));
            QCOMPARE(f.cmbSpriteCurrentAnim->currentText(), QStringLiteral("run"));
            QCOMPARE(sprite().currentAnimId, std::string("run"));
        });
    }

    void removingTheLastRowSelectsTheRowAbove()
    {
        spriteWithAnimations({"a", "b", "c"});
        edit([this](frmSprite *editor) {
            const auto &f = editor->form();
            clickLine(f.lstAnimObjects, 2);
            clickButton(f.cmdSpriteRemoveAnim);
            QVERIFY(m_ui->messages.empty()); // no confirmation
            QCOMPARE(listTexts(f.lstAnimObjects), QStringList({"a", "b"}));
            QCOMPARE(f.lstAnimObjects->currentRow(), 1);
            QCOMPARE(anim(2).inUse, int16_t(0));
            QCOMPARE(anim(2).isNew, int16_t(0));
            QCOMPARE(anim(2).id, std::string("c"));
            clickLine(f.lstAnimObjects, 0);
            clickButton(f.cmdSpriteRemoveAnim);
            QCOMPARE(listTexts(f.lstAnimObjects), QStringList({"b"}));
            QCOMPARE(listSlots(f.lstAnimObjects), QList<int>({1}));
            QCOMPARE(f.lstAnimObjects->currentRow(), 0);
            QVERIFY(f.cmdSpriteRemoveAnim->isEnabled());
        });
        QCOMPARE(sprite().animCount, int16_t(1));
    }

    void removingTheOnlyRowDisablesRemoveAndEdit()
    {
        spriteWithAnimations({"a"});
        edit([this](frmSprite *editor) {
            const auto &f = editor->form();
            QVERIFY(!f.fraAnimCover->isVisible());
            clickButton(f.cmdSpriteRemoveAnim);
            QCOMPARE(f.lstAnimObjects->count(), 0);
            QVERIFY(!f.cmdSpriteRemoveAnim->isEnabled());
            QVERIFY(!f.cmdSpriteEditAnim->isEnabled());
            QVERIFY(f.fraAnimCover->isVisible());
            QCOMPARE(anim(0).inUse, int16_t(0));
        });
        QCOMPARE(sprite().animCount, int16_t(0));
    }

    void rowClickFillsTheAnimationQuickStats()
    {
        spriteWithAnimations({"walk", "idle"});
        AnimRec &walk = anim(0);
        walk.frameCount = 3;
        walk.frameDelay = 5;
        walk.animDelay = -2;
        walk.defaultFrame = -1;
        walk.repeat = 1;
        walk.play = 0;
        walk.direction = 1;
        AnimRec &idle = anim(1);
        idle.frameCount = 0;
        idle.frameDelay = 0;
        idle.animDelay = 9;
        idle.defaultFrame = 2;
        idle.repeat = -1; // only 1 counts as YES
        idle.play = 1;
        idle.direction = -1;
        edit([](frmSprite *editor) {
            const auto &f = editor->form();
            clickLine(f.lstAnimObjects, 1);
            QVERIFY(!f.fraAnimCover->isVisible());
            QCOMPARE(f.lblAnimStatsFrames->text(), QStringLiteral("# of Frames: 0"));
            QCOMPARE(f.lblAnimStatsFrameDelay->text(), QStringLiteral("Frame Delay: 0"));
            QCOMPARE(f.lblAnimStatsAnimDelay->text(), QStringLiteral("Anim Delay: 9"));
            QCOMPARE(f.lblAnimStatsDefFrame->text(), QStringLiteral("Default Frame: 2"));
            QCOMPARE(f.lblAnimStatsRepeat->text(), QStringLiteral("Repeating: NO"));
            QCOMPARE(f.lblAnimStatsPlaying->text(), QStringLiteral("Playing: YES"));
            QCOMPARE(f.lblAnimStatsDirection->text(), QStringLiteral("Anim Direction: REVERSE"));
            clickLine(f.lstAnimObjects, 0);
            QCOMPARE(f.lblAnimStatsFrames->text(), QStringLiteral("# of Frames: 3"));
            QCOMPARE(f.lblAnimStatsFrameDelay->text(), QStringLiteral("Frame Delay: 5"));
            QCOMPARE(f.lblAnimStatsAnimDelay->text(), QStringLiteral("Anim Delay: -2"));
            QCOMPARE(f.lblAnimStatsDefFrame->text(), QStringLiteral("Def Frame: NONE"));
            QCOMPARE(f.lblAnimStatsRepeat->text(), QStringLiteral("Repeating: YES"));
            QCOMPARE(f.lblAnimStatsPlaying->text(), QStringLiteral("Playing: NO"));
            QCOMPARE(f.lblAnimStatsDirection->text(), QStringLiteral("Anim Direction: FORWARD"));

            // A new animation covers the panel; its labels keep their captions.
            clickButton(f.cmdSpriteNewAnim);
            QVERIFY(f.fraAnimCover->isVisible());
            QCOMPARE(f.lblAnimStatsFrames->text(), QStringLiteral("# of Frames: 3"));
            clickLine(f.lstAnimObjects, 1);
            QVERIFY(!f.fraAnimCover->isVisible());
        });
    }

    void editAnimationOpensTheSelectedAnimationAndClosingRefreshesTheRow()
    {
        spriteWithAnimations({"walk"});
        edit([this](frmSprite *editor) {
            const auto &f = editor->form();
            typeInto(f.txtSpriteID, QStringLiteral("hero"));
            clickButton(f.cmdSpriteNewAnim);
            QCOMPARE(f.cmbSpriteCurrentAnim->count(), 1);
            const bool closed = editAnimation(editor, [this](frmAnim *anim) {
                QCOMPARE(m_doc->currentAnimIndex, int16_t(1));
                QCOMPARE(anim->windowTitle(), QStringLiteral("Animation Data - hero"));
                typeInto(anim->form().txtAnimID, QStringLiteral("jump"));
                typeInto(anim->form().txtAnimSequenceAdd, QStringLiteral("4"));
                clickButton(anim->form().cmdAnimSequenceAdd);
                typeInto(anim->form().txtAnimSequenceAdd, QStringLiteral("6"));
                clickButton(anim->form().cmdAnimSequenceAdd);
                QTest::keyClick(anim->form().txtAnimID, Qt::Key_Escape);
            });
            QVERIFY(closed);
            QVERIFY(editor->isVisible()); // only the animation editor closed
            QCOMPARE(listTexts(f.lstAnimObjects), QStringList({"walk", "jump"}));
            QCOMPARE(listSlots(f.lstAnimObjects), QList<int>({0, 1}));
            QCOMPARE(f.lstAnimObjects->currentRow(), 1);
            QCOMPARE(itemTexts(f.cmbSpriteCurrentAnim), QStringList({"walk", "jump"}));
            QVERIFY(!f.fraAnimCover->isVisible());
            // The row is refreshed before the frame count is stored.
            QCOMPARE(f.lblAnimStatsFrames->text(), QStringLiteral("# of Frames: 0"));
            QCOMPARE(anim(1).inUse, int16_t(-1));
            QCOMPARE(anim(1).isNew, int16_t(0));
            QCOMPARE(anim(1).frameCount, int16_t(2));
            clickLine(f.lstAnimObjects, 1);
            QCOMPARE(f.lblAnimStatsFrames->text(), QStringLiteral("# of Frames: 2"));
        });
        QCOMPARE(listTexts(m_window->objectList(tabOf(Kind::Sprite))), QStringList({"hero"}));
        QCOMPARE(sprite().animCount, int16_t(2));
        QCOMPARE(label(m_window.get(), "lblSpriteStatsAnimCount"), QStringLiteral("# of Anims: 1"));
        clickLine(m_window->objectList(tabOf(Kind::Sprite)), 0);
        QCOMPARE(label(m_window.get(), "lblSpriteStatsAnimCount"), QStringLiteral("# of Anims: 2"));
    }

    void currentAnimationTextStaysWhenAnAnimationCloses()
    {
        spriteWithAnimations({"walk", "run"});
        edit([this](frmSprite *editor) {
            const auto &f = editor->form();
            chooseEntry(f.cmbSpriteCurrentAnim, 1);
            QCOMPARE(sprite().currentAnimId, std::string("run"));
            clickLine(f.lstAnimObjects, 1);
            editAnimation(editor, [](frmAnim *anim) {
                typeInto(anim->form().txtAnimID, QStringLiteral("sprint"));
            });
            QCOMPARE(itemTexts(f.cmbSpriteCurrentAnim), QStringList({"walk", "sprint"}));
            QCOMPARE(f.cmbSpriteCurrentAnim->currentText(), QStringLiteral("run"));
            QCOMPARE(sprite().currentAnimId, std::string("run"));
        });
    }

    void doubleClickOnARowOpensTheAnimationEditor()
    {
        spriteWithAnimations({"walk", "run"});
        edit([this](frmSprite *editor) {
            QListWidget *list = editor->form().lstAnimObjects;
            // Shared, so a window that shows late never writes into a finished test.
            auto shownId = std::make_shared<QString>();
            whenModalShown<frmAnim>([shownId](frmAnim *anim) {
                *shownId = anim->form().txtAnimID->text();
                anim->close();
            });
            const QPoint at = list->visualItemRect(list->item(1)).center();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
            QCOMPARE(*shownId, QStringLiteral("run"));
            QCOMPARE(m_doc->currentAnimIndex, int16_t(1));
        });
    }

    void mainWindowDoubleClickOpensTheSpriteEditor()
    {
        QListWidget *list = m_window->objectList(tabOf(Kind::Sprite));
        auto shown = std::make_shared<bool>(false);
        whenModalShown<frmSprite>([shown](frmSprite *editor) {
            *shown = true;
            typeInto(editor->form().txtSpriteID, QStringLiteral("coin"));
            QTest::keyClick(editor, Qt::Key_Escape);
        });
        const QPoint at = list->visualItemRect(list->item(0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
        QVERIFY(*shown);
        QCOMPARE(listTexts(list), QStringList({"coin"}));
        QVERIFY(!m_window->coverFrame(tabOf(Kind::Sprite))->isVisible());
        QCOMPARE(label(m_window.get(), "lblSpriteStatsImage"), QStringLiteral("Sprite Image:"));
        QCOMPARE(label(m_window.get(), "lblSpriteStatsAnimCount"), QStringLiteral("# of Anims: 0"));
    }

    void escapeClosesAndTheMainListShowsTheNewIdentifier()
    {
        clickButton(m_window->form().cmdObjAdd);
        clickButton(m_window->form().cmdObjAdd);
        QListWidget *list = m_window->objectList(tabOf(Kind::Sprite));
        clickLine(list, 1);
        const bool closed = edit([](frmSprite *editor) {
            typeInto(editor->form().txtSpriteID, QStringLiteral("bat"));
            typeInto(editor->form().txtSpritePositionX, QStringLiteral("64"));
            QTest::keyClick(editor->form().txtSpritePositionX, Qt::Key_Escape);
        });
        QVERIFY(closed);
        QCOMPARE(listTexts(list), QStringList({"New_Object0", "bat", "New_Object2"}));
        QCOMPARE(listSlots(list), QList<int>({0, 1, 2}));
        QCOMPARE(list->currentRow(), 1);
        QCOMPARE(label(m_window.get(), "lblSpriteStatsPosX"), QStringLiteral("Sprite X: 64"));
    }

    void overflowSlotPastTheTableIsRefused()
    {
        edit([](frmSprite *) {});
        for (int slot = 0; slot <= 100; ++slot)
            useAnim(slot, "a");
        sprite().animCount = 0; // the list shows none of them
        m_doc->animOverflow = 101;
        edit([this](frmSprite *editor) {
            clickButton(editor->form().cmdSpriteNewAnim);
            QCOMPARE(m_ui->messages.size(), size_t(1));
            QCOMPARE(m_ui->messages[0].text,
                     std::string("No space left for animations! (Max 100)"));
            QCOMPARE(m_ui->messages[0].title, std::string("Object Overload"));
            QCOMPARE(editor->form().lstAnimObjects->count(), 0);
            QCOMPARE(m_doc->animOverflow, int16_t(101));
        });
    }
};

QTEST_MAIN(tst_frmSprite)
#include "tst_frmSprite.moc"
