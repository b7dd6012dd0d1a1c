#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmButton.h"
#include "frmMain.h"
#include "model/Kinds.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

// The button editor opened from the main window as a user opens it: New project, the Button
// tab, Add Object, Edit Properties.
class tst_frmButton : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    ButtonRec &button(int slot = 0) { return m_doc->Buttons[static_cast<size_t>(slot)]; }

    void addObject(int tab)
    {
        clickTab(*m_window, tab);
        clickButton(m_window->form().cmdObjAdd);
    }

    // Adds an object on `tab` and gives it the state it has once opened in its editor.
    template<class Record>
    Record &addOpened(int tab, Record &(*at)(Document &, int), const std::string &id)
    {
        addObject(tab);
        const ObjectList &list = m_doc->list(kindOfTab(tab));
        Record &record = at(*m_doc, list.lines.back().slot);
        record.inUse = -1;
        record.isNew = 0;
        record.id = id;
        return record;
    }
    static ImageRec &image(Document &doc, int slot) { return doc.Images[size_t(slot)]; }
    static CursorRec &cursor(Document &doc, int slot) { return doc.Cursors[size_t(slot)]; }
    static TextRec &text(Document &doc, int slot) { return doc.Texts[size_t(slot)]; }
    static SFXRec &sfx(Document &doc, int slot) { return doc.SoundEffects[size_t(slot)]; }

    bool edit(std::function<void(frmButton *)> action)
    {
        return editProperties<frmButton>(*m_window, std::move(action));
    }

    static std::vector<QWidget *> graphicOnly(const Ui::frmButton &f)
    {
        return {f.cmbButtonTemplate,
                f.txtButtonUp,
                f.txtButtonDown,
                f.txtButtonOver,
                f.txtButtonDisabled,
                f.optButtonDown,
                f.optButtonOver,
                f.cmbButtonIcon,
                f.cmbButtonCaption,
                f.chkButtonVisible,
                f.chkButtonIconVisible,
                f.chkButtonCaptionVisible,
                f.cmbButtonSoundUp,
                f.cmbButtonSoundOver,
                f.cmbButtonSoundDown,
                f.cmbButtonSoundDisabled,
                f.cmbButtonCursor};
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
        addObject(tabOf(Kind::Button));
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
    }

    void controlsCarryTheirCaptions()
    {
        edit([](frmButton *editor) {
            const auto &f = editor->form();
            QCOMPARE(editor->windowTitle(), QStringLiteral("Button Data"));
            const auto title = [editor](const char *name) {
                return editor->findChild<QGroupBox *>(QString::fromUtf8(name))->title();
            };
            QCOMPARE(title("fraButtonID"), QStringLiteral("Button ID"));
            QCOMPARE(title("fraButtonType"), QStringLiteral("Button Type"));
            QCOMPARE(title("fraButtonTemplate"), QStringLiteral("Button Template"));
            QCOMPARE(title("fraButtonStates"), QStringLiteral("Button States"));
            QCOMPARE(title("fraButtonState"), QStringLiteral("Button State"));
            QCOMPARE(title("fraButtonIcon"), QStringLiteral("Button Icon"));
            QCOMPARE(title("fraButtonCaption"), QStringLiteral("Button Caption"));
            QCOMPARE(title("fraButtonCursor"), QStringLiteral("ButtonCursor"));
            QCOMPARE(title("fraButtonVisibilities"), QStringLiteral("Visibilities"));
            QCOMPARE(title("fraButtonSounds"), QStringLiteral("Button Sounds"));
            QCOMPARE(title("fraButtonPosition"), QStringLiteral("Button Position"));
            QVERIFY(f.frmButtonSwitch);
            QCOMPARE(f.optButton->text(), QStringLiteral("Button"));
            QCOMPARE(f.optHotspot->text(), QStringLiteral("Hot Spot"));
            QCOMPARE(f.lblButtonOver->text(), QStringLiteral("Over"));
            QCOMPARE(f.lblButtonDown->text(), QStringLiteral("Down"));
            QCOMPARE(f.lblButtonDisabled->text(), QStringLiteral("Disabled"));
            QCOMPARE(f.optButtonOver->text(), QStringLiteral("Over"));
            QCOMPARE(f.optButtonDown->text(), QStringLiteral("Down"));
            QCOMPARE(f.optButtonDisabled->text(), QStringLiteral("Disabled"));
            QCOMPARE(f.chkButtonVisible->text(), QStringLiteral("Button"));
            QCOMPARE(f.chkButtonIconVisible->text(), QStringLiteral("Icon"));
            QCOMPARE(f.chkButtonCaptionVisible->text(), QStringLiteral("Caption"));
            QCOMPARE(f.lblButtonSoundUp->text(), QStringLiteral("Button Up"));
            QCOMPARE(f.lblButtonSoundOver->text(), QStringLiteral("Button Over"));
            QCOMPARE(f.lblButtonSoundDown->text(), QStringLiteral("Button Down"));
            QCOMPARE(f.lblButtonSoundDisabled->text(), QStringLiteral("Button Disabled"));
            QVERIFY(f.txtButtonX && f.txtButtonY && f.txtButtonSwitch1 && f.txtButtonSwitch2);
        });
    }

    void newButtonOpensAsGraphicButton()
    {
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtButtonID->text(), QStringLiteral("Enter_ID"));
            QVERIFY(f.optButton->isChecked());
            QVERIFY(!f.optHotspot->isChecked());
            QCOMPARE(f.frmButtonSwitch->title(), QStringLiteral("Template Cells"));
            QCOMPARE(f.lblButtonSwitch1->text(), QStringLiteral("Rows"));
            QCOMPARE(f.lblButtonSwitch2->text(), QStringLiteral("Columns"));
            QCOMPARE(f.txtButtonSwitch1->text(), QStringLiteral("0"));
            QCOMPARE(f.txtButtonSwitch2->text(), QStringLiteral("0"));
            QCOMPARE(f.txtButtonUp->text(), QStringLiteral("1"));
            QCOMPARE(f.txtButtonOver->text(), QStringLiteral("0"));
            QCOMPARE(f.txtButtonDown->text(), QStringLiteral("0"));
            QCOMPARE(f.txtButtonDisabled->text(), QStringLiteral("0"));
            QVERIFY(f.optButtonUp->isChecked());
            QVERIFY(!f.optButtonOver->isChecked());
            QVERIFY(!f.optButtonDown->isChecked());
            QVERIFY(!f.optButtonDisabled->isChecked());
            QCOMPARE(f.txtButtonX->text(), QStringLiteral("0"));
            QCOMPARE(f.txtButtonY->text(), QStringLiteral("0"));
            QVERIFY(f.chkButtonVisible->isChecked());
            QVERIFY(f.chkButtonIconVisible->isChecked());
            QVERIFY(f.chkButtonCaptionVisible->isChecked());
            for (QComboBox *box : {f.cmbButtonTemplate,
                                   f.cmbButtonIcon,
                                   f.cmbButtonCaption,
                                   f.cmbButtonCursor,
                                   f.cmbButtonSoundUp,
                                   f.cmbButtonSoundOver,
                                   f.cmbButtonSoundDown,
                                   f.cmbButtonSoundDisabled})
                QCOMPARE(box->currentText(), QString());
            for (QWidget *control : graphicOnly(f))
                QVERIFY2(control->isEnabled(), qPrintable(control->objectName()));

            const ButtonRec &b = button();
            QCOMPARE(b.inUse, int16_t(-1));
            QCOMPARE(b.isNew, int16_t(0));
            QCOMPARE(b.id, std::string("Enter_ID"));
            QCOMPARE(b.currentFrame, int16_t(1));
            QCOMPARE(b.frameUp, int16_t(1));
            QCOMPARE(b.templateRows, int16_t(0));
            QCOMPARE(b.visible, int16_t(1));
            // Showing "null" in the template box empties it, and the emptied template box
            // writes "null" into the caption, leaving the template empty.
            QCOMPARE(b.templateId, std::string());
            QCOMPARE(b.captionTextId, std::string("null"));
            QCOMPARE(b.iconId, std::string("null"));
            QCOMPARE(b.cursorId, std::string("null"));
            QCOMPARE(b.soundUp, std::string("null"));
            QCOMPARE(b.soundDisabled, std::string("null"));
        });
    }

    void clearingTheIdentifierYieldsEnterId()
    {
        edit([this](frmButton *editor) {
            QLineEdit *id = editor->form().txtButtonID;
            typeInto(id, QStringLiteral("Play"));
            QCOMPARE(button().id, std::string("Play"));
            clearBox(id);
            QCOMPARE(id->text(), QStringLiteral("Enter_ID"));
            QCOMPARE(button().id, std::string("Enter_ID"));
        });
    }

    void typingNullIntoAReferenceBoxEmptiesIt()
    {
        edit([this](frmButton *editor) {
            QComboBox *cursorBox = editor->form().cmbButtonCursor;
            typeInto(cursorBox, QStringLiteral("arrow"));
            QCOMPARE(button().cursorId, std::string("arrow"));
            typeInto(cursorBox, QStringLiteral("null"));
            QCOMPARE(cursorBox->currentText(), QString());
            QCOMPARE(button().cursorId, std::string("null"));

            QComboBox *sound = editor->form().cmbButtonSoundOver;
            typeInto(sound, QStringLiteral("beep"));
            clearBox(sound);
            QCOMPARE(sound->currentText(), QString());
            QCOMPARE(button().soundOver, std::string("null"));
        });
    }

    void numberBoxesReadTheLeadingNumber()
    {
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            typeInto(f.txtButtonX, QStringLiteral("-5"));
            QCOMPARE(button().x, int16_t(-5));
            QCOMPARE(f.txtButtonX->text(), QStringLiteral("-5"));
            typeInto(f.txtButtonY, QStringLiteral("12abc"));
            QCOMPARE(button().y, int16_t(12));
            QCOMPARE(f.txtButtonY->text(), QStringLiteral("12abc"));
            typeInto(f.txtButtonY, QStringLiteral("abc"));
            QCOMPARE(button().y, int16_t(0));
            QCOMPARE(f.txtButtonY->text(), QStringLiteral("abc"));
            typeInto(f.txtButtonOver, QStringLiteral("7"));
            clearBox(f.txtButtonOver);
            QCOMPARE(f.txtButtonOver->text(), QStringLiteral("0"));
            QCOMPARE(button().frameOver, int16_t(0));
        });
    }

    void numberBeyondTheRangeShowsTheClampedValue()
    {
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            typeInto(f.txtButtonX, QStringLiteral("70000"));
            QCOMPARE(f.txtButtonX->text(), QStringLiteral("32767"));
            QCOMPARE(button().x, int16_t(32767));
            typeInto(f.txtButtonY, QStringLiteral("-40000"));
            QCOMPARE(f.txtButtonY->text(), QStringLiteral("-32768"));
            QCOMPARE(button().y, int16_t(-32768));
        });
    }

    void reopeningAnEditedButtonKeepsItsValues()
    {
        edit([](frmButton *editor) {
            typeInto(editor->form().txtButtonID, QStringLiteral("Play"));
            typeInto(editor->form().txtButtonX, QStringLiteral("40"));
            QTest::mouseClick(editor->form().chkButtonVisible, Qt::LeftButton);
        });
        QCOMPARE(button().visible, int16_t(0));
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtButtonID->text(), QStringLiteral("Play"));
            QCOMPARE(f.txtButtonX->text(), QStringLiteral("40"));
            QVERIFY(!f.chkButtonVisible->isChecked());
            QCOMPARE(button().id, std::string("Play"));
            QCOMPARE(button().x, int16_t(40));
            QCOMPARE(button().visible, int16_t(0));
        });
    }

    void reopeningAButtonWithoutTemplateKeepsItsCaption()
    {
        edit([](frmButton *editor) {
            typeInto(editor->form().cmbButtonCaption, QStringLiteral("txtHello"));
        });
        QCOMPARE(button().templateId, std::string(""));
        QCOMPARE(button().captionTextId, std::string("txtHello"));
        // The empty template box shows what it showed: its handler does not run again.
        edit([this](frmButton *editor) {
            QCOMPARE(editor->form().cmbButtonCaption->currentText(), QStringLiteral("txtHello"));
            QCOMPARE(button().captionTextId, std::string("txtHello"));
            QCOMPARE(button().templateId, std::string(""));
        });
        QCOMPARE(button().captionTextId, std::string("txtHello"));
    }

    // A button as a project file can hold it: identifier and references empty.
    void giveEmptyFields()
    {
        button().isNew = 0;
        button().inUse = -1;
        button().id.clear();
        button().templateId = "tiles";
        button().cursorId.clear();
        button().iconId.clear();
        button().captionTextId.clear();
    }

    void emptyFieldsStayEmptyWhenTheButtonIsOpenedAndClosed()
    {
        giveEmptyFields();
        edit([](frmButton *editor) {
            const auto &f = editor->form();
            // Showing an empty field in an empty box changes no text, so no rule runs.
            QCOMPARE(f.txtButtonID->text(), QString());
            QCOMPARE(f.cmbButtonCursor->currentText(), QString());
            QCOMPARE(f.cmbButtonIcon->currentText(), QString());
            QCOMPARE(f.cmbButtonCaption->currentText(), QString());
            // A shown text that differs from the box's runs its rule: "null" is emptied.
            QCOMPARE(f.cmbButtonSoundUp->currentText(), QString());
            QCOMPARE(f.cmbButtonTemplate->currentText(), QStringLiteral("tiles"));
        });
        QCOMPARE(button().id, std::string());
        QCOMPARE(button().cursorId, std::string());
        QCOMPARE(button().iconId, std::string());
        QCOMPARE(button().captionTextId, std::string());
        QCOMPARE(button().templateId, std::string("tiles"));
        QCOMPARE(listTexts(m_window->objectList(tabOf(Kind::Button))), QStringList({""}));
    }

    void emptyFieldsResetTheTemplateWhenAHotSpotTurnsBackIntoAButton()
    {
        giveEmptyFields();
        button().id = "_Quit";
        button().isHotSpot = 1;
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            QTest::mouseClick(f.optButton, Qt::LeftButton);
            QCOMPARE(f.txtButtonID->text(), QStringLiteral("Quit"));
            // The empty cursor stores "null" and empties the box, which writes "null" into the
            // caption; the empty icon stores "null" again; the caption is no longer empty.
            QCOMPARE(f.cmbButtonTemplate->currentText(), QString());
            QCOMPARE(button().templateId, std::string("null"));
            QCOMPARE(button().captionTextId, std::string("null"));
            QCOMPARE(button().cursorId, std::string());
            QCOMPARE(button().iconId, std::string());
        });
    }

    void escapeInAnOpenListClosesOnlyTheList()
    {
        addOpened(tabOf(Kind::Cursor), cursor, "arrow");
        clickTab(*m_window, tabOf(Kind::Button));
        const bool closed = edit([](frmButton *editor) {
            QComboBox *box = editor->form().cmbButtonCursor;
            box->setFocus();
            box->showPopup();
            QVERIFY(QTest::qWaitForWindowExposed(box->view()->window()));
            // The list takes the press; the release reaches the drop-down once it is gone.
            QTest::keyPress(box->view(), Qt::Key_Escape);
            QTRY_VERIFY(!box->view()->window()->isVisible());
            QTest::keyRelease(box, Qt::Key_Escape);
            QVERIFY(editor->isVisible());
            QTest::keyClick(box, Qt::Key_Escape);
            QVERIFY(!editor->isVisible());
        });
        QVERIFY(closed);
    }

    void escapeClosesAndTheListShowsTheNewIdentifier()
    {
        addObject(tabOf(Kind::Button));
        addObject(tabOf(Kind::Button));
        QListWidget *list = m_window->objectList(tabOf(Kind::Button));
        clickLine(list, 1);
        const bool closed = edit([](frmButton *editor) {
            typeInto(editor->form().txtButtonID, QStringLiteral("Play"));
            typeInto(editor->form().txtButtonX, QStringLiteral("25"));
            QTest::keyClick(editor->form().txtButtonX, Qt::Key_Escape);
        });
        QVERIFY(closed);
        QCOMPARE(listTexts(list), QStringList({"New_Object0", "Play", "New_Object2"}));
        QCOMPARE(listSlots(list), QList<int>({0, 1, 2}));
        QCOMPARE(list->currentRow(), 1);
        QCOMPARE(m_doc->list(Kind::Button).selected, 1);
        // Selecting the line refreshed the quick statistics.
        QVERIFY(!m_window->coverFrame(tabOf(Kind::Button))->isVisible());
        QCOMPARE(m_window->findChild<QLabel *>(QStringLiteral("lblButtonStatsPosX"))->text(),
                 QStringLiteral("Button X: 25"));
    }

    void escapeOnTheWindowItselfCloses()
    {
        const bool closed = edit([](frmButton *editor) {
            typeInto(editor->form().txtButtonID, QStringLiteral("Quit"));
            QTest::keyClick(editor, Qt::Key_Escape);
        });
        QVERIFY(closed);
        QCOMPARE(listTexts(m_window->objectList(tabOf(Kind::Button))), QStringList({"Quit"}));
    }

    void otherKeysDoNotClose()
    {
        const bool closed = edit([](frmButton *editor) {
            QTest::keyClick(editor->form().txtButtonX, Qt::Key_Return);
            QTest::keyClick(editor, Qt::Key_Enter);
            QVERIFY(editor->isVisible());
        });
        QVERIFY(!closed);
    }

    void closeBoxClosesTheSameWay()
    {
        const bool closed = edit([](frmButton *editor) {
            typeInto(editor->form().txtButtonID, QStringLiteral("Options"));
            editor->close();
        });
        QVERIFY(closed);
        QListWidget *list = m_window->objectList(tabOf(Kind::Button));
        QCOMPARE(listTexts(list), QStringList({"Options"}));
        QCOMPARE(list->currentRow(), 0);
    }

    void hotSpotThenButtonRestoresTheIdentifier()
    {
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            QTest::mouseClick(f.optHotspot, Qt::LeftButton);
            QCOMPARE(f.txtButtonID->text(), QStringLiteral("_Enter_ID"));
            QCOMPARE(button().id, std::string("_Enter_ID"));
            QCOMPARE(button().isHotSpot, int16_t(1));
            QCOMPARE(f.frmButtonSwitch->title(), QStringLiteral("Hot Spot Size"));
            QCOMPARE(f.lblButtonSwitch1->text(), QStringLiteral("Width"));
            QCOMPARE(f.lblButtonSwitch2->text(), QStringLiteral("Height"));
            for (QWidget *control : graphicOnly(f))
                QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
            QVERIFY(f.optButtonUp->isEnabled());
            QVERIFY(f.optButtonDisabled->isEnabled());

            QTest::mouseClick(f.optButton, Qt::LeftButton);
            QCOMPARE(f.txtButtonID->text(), QStringLiteral("Enter_ID"));
            QCOMPARE(button().id, std::string("Enter_ID"));
            QCOMPARE(button().isHotSpot, int16_t(0));
            QCOMPARE(f.frmButtonSwitch->title(), QStringLiteral("Template Cells"));
            QCOMPARE(f.lblButtonSwitch1->text(), QStringLiteral("Rows"));
            QCOMPARE(f.lblButtonSwitch2->text(), QStringLiteral("Columns"));
            for (QWidget *control : graphicOnly(f))
                QVERIFY2(control->isEnabled(), qPrintable(control->objectName()));
            // The template was left empty by the load, so it now asks for a tilemap.
            QCOMPARE(f.cmbButtonTemplate->currentText(), QStringLiteral("Enter Tilemap ID"));
            QCOMPARE(button().templateId, std::string("Enter Tilemap ID"));
        });
    }

    void hotSpotResetsTheUpAndDisabledCells()
    {
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            typeInto(f.txtButtonUp, QStringLiteral("5"));
            typeInto(f.txtButtonDisabled, QStringLiteral("6"));
            typeInto(f.txtButtonOver, QStringLiteral("7"));
            QTest::mouseClick(f.optButtonOver, Qt::LeftButton);
            QCOMPARE(button().currentFrame, int16_t(7));
            QTest::mouseClick(f.optHotspot, Qt::LeftButton);
            QCOMPARE(f.txtButtonUp->text(), QStringLiteral("1"));
            QCOMPARE(f.txtButtonDisabled->text(), QStringLiteral("0"));
            QCOMPARE(f.txtButtonOver->text(), QStringLiteral("7"));
            QCOMPARE(button().frameUp, int16_t(1));
            QCOMPARE(button().frameDisabled, int16_t(0));
            QCOMPARE(button().currentFrame, int16_t(1));
        });
    }

    void identifierEditedWhileHotSpotLosesItsFirstCharacter()
    {
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            QTest::mouseClick(f.optHotspot, Qt::LeftButton);
            typeInto(f.txtButtonID, QStringLiteral("Spot"));
            QTest::mouseClick(f.optButton, Qt::LeftButton);
            QCOMPARE(f.txtButtonID->text(), QStringLiteral("pot"));
            QCOMPARE(button().id, std::string("pot"));
        });
    }

    void clickingHotSpotTwicePrefixesOnce()
    {
        edit([this](frmButton *editor) {
            QTest::mouseClick(editor->form().optHotspot, Qt::LeftButton);
            QTest::mouseClick(editor->form().optHotspot, Qt::LeftButton);
            QCOMPARE(editor->form().txtButtonID->text(), QStringLiteral("_Enter_ID"));
            QCOMPARE(button().id, std::string("_Enter_ID"));
        });
        // Nor does it when the button opens as a hot spot.
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            QVERIFY(f.optHotspot->isChecked());
            QTest::mouseClick(f.optHotspot, Qt::LeftButton);
            QCOMPARE(button().id, std::string("_Enter_ID"));
            editor->optHotspot_Click();
            QCOMPARE(button().id, std::string("_Enter_ID"));
        });
    }

    void aHotSpotOpensAsAHotSpot()
    {
        edit([](frmButton *editor) {
            QTest::mouseClick(editor->form().optHotspot, Qt::LeftButton);
            typeInto(editor->form().txtButtonSwitch1, QStringLiteral("64"));
            typeInto(editor->form().txtButtonSwitch2, QStringLiteral("32"));
        });
        button().templateRows = 3;
        button().templateColumns = 4;
        edit([](frmButton *editor) {
            const auto &f = editor->form();
            QVERIFY(f.optHotspot->isChecked());
            QVERIFY(!f.optButton->isChecked());
            QCOMPARE(f.frmButtonSwitch->title(), QStringLiteral("Hot Spot Size"));
            QCOMPARE(f.lblButtonSwitch1->text(), QStringLiteral("Width"));
            QCOMPARE(f.txtButtonSwitch1->text(), QStringLiteral("64"));
            QCOMPARE(f.txtButtonSwitch2->text(), QStringLiteral("32"));
            for (QWidget *control : graphicOnly(f))
                QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
            QVERIFY(f.optButtonUp->isEnabled());
            QVERIFY(f.optButtonDisabled->isEnabled());
            QTest::mouseClick(f.optButton, Qt::LeftButton);
            QCOMPARE(f.txtButtonSwitch1->text(), QStringLiteral("3"));
            QCOMPARE(f.txtButtonSwitch2->text(), QStringLiteral("4"));
        });
        QCOMPARE(button().hotSpotWidth, int16_t(64));
        QCOMPARE(button().hotSpotHeight, int16_t(32));
        QCOMPARE(button().templateRows, int16_t(3));
        QCOMPARE(button().templateColumns, int16_t(4));
    }

    void switchBoxesWriteWhereTheirLabelSays()
    {
        button().isNew = 0;
        button().inUse = -1;
        button().id = "Play";
        button().hotSpotWidth = 9;
        button().hotSpotHeight = 8;
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.lblButtonSwitch1->text(), QStringLiteral("Rows"));
            typeInto(f.txtButtonSwitch1, QStringLiteral("3"));
            typeInto(f.txtButtonSwitch2, QStringLiteral("5"));
            QCOMPARE(button().templateRows, int16_t(3));
            QCOMPARE(button().templateColumns, int16_t(5));
            QCOMPARE(button().hotSpotWidth, int16_t(9));
            QCOMPARE(button().hotSpotHeight, int16_t(8));
            clearBox(f.txtButtonSwitch1);
            QCOMPARE(f.txtButtonSwitch1->text(), QStringLiteral("0"));
            QCOMPARE(button().templateRows, int16_t(0));

            QTest::mouseClick(f.optHotspot, Qt::LeftButton);
            QCOMPARE(f.txtButtonSwitch1->text(), QStringLiteral("9"));
            QCOMPARE(f.txtButtonSwitch2->text(), QStringLiteral("8"));
            typeInto(f.txtButtonSwitch1, QStringLiteral("70000"));
            QCOMPARE(f.txtButtonSwitch1->text(), QStringLiteral("32767"));
            QCOMPARE(button().hotSpotWidth, int16_t(32767));
            QCOMPARE(button().templateRows, int16_t(0));
            QCOMPARE(button().templateColumns, int16_t(5));
        });
    }

    void emptyingTheTemplateBoxWritesNullIntoTheCaption()
    {
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            typeInto(f.cmbButtonCaption, QStringLiteral("title"));
            typeInto(f.cmbButtonTemplate, QStringLiteral("tiles"));
            QCOMPARE(button().templateId, std::string("tiles"));
            QCOMPARE(button().captionTextId, std::string("title"));
            clearBox(f.cmbButtonTemplate);
            QCOMPARE(f.cmbButtonTemplate->currentText(), QString());
            QCOMPARE(button().templateId, std::string());
            QCOMPARE(button().captionTextId, std::string("null"));
            // The caption box still shows what was typed there.
            QCOMPARE(f.cmbButtonCaption->currentText(), QStringLiteral("title"));

            // A typed "null" empties the template box too, with the same result.
            typeInto(f.cmbButtonCaption, QStringLiteral("title"));
            typeInto(f.cmbButtonTemplate, QStringLiteral("null"));
            QCOMPARE(f.cmbButtonTemplate->currentText(), QString());
            QCOMPARE(button().templateId, std::string());
            QCOMPARE(button().captionTextId, std::string("null"));
        });
    }

    void backToButtonResetsTheTemplateInItsOrder()
    {
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            typeInto(f.cmbButtonTemplate, QStringLiteral("tiles"));
            typeInto(f.cmbButtonCaption, QStringLiteral("title"));
            QTest::mouseClick(f.optHotspot, Qt::LeftButton);
            // An empty cursor reference (no editor box leaves one, a file can) resets the
            // template: "null" is stored, then the box is emptied, which writes "null" into
            // the caption; so the caption test that follows finds it set.
            button().cursorId.clear();
            QTest::mouseClick(f.optButton, Qt::LeftButton);
            QCOMPARE(f.cmbButtonTemplate->currentText(), QString());
            QCOMPARE(button().templateId, std::string());
            QCOMPARE(button().captionTextId, std::string("null"));
            QCOMPARE(button().cursorId, std::string());
        });
    }

    void onlyBoundImagesThatAreNotNewAreOffered()
    {
        addOpened(tabOf(Kind::Image), image, "tiles").bound = 1;
        addOpened(tabOf(Kind::Image), image, "photo").bound = 0;
        addObject(tabOf(Kind::Image));
        ImageRec &fresh = image(*m_doc, m_doc->list(Kind::Image).lines.back().slot);
        fresh.id = "fresh";
        fresh.bound = 1;
        addOpened(tabOf(Kind::Image), image, "icons").bound = 1;
        addOpened(tabOf(Kind::Cursor), cursor, "arrow");
        addOpened(tabOf(Kind::Cursor), cursor, "hand");
        addOpened(tabOf(Kind::Text), text, "title");
        addOpened(tabOf(Kind::SFX), sfx, "click");
        addObject(tabOf(Kind::SFX));
        addOpened(tabOf(Kind::SFX), sfx, "beep");

        clickTab(*m_window, tabOf(Kind::Button));
        edit([](frmButton *editor) {
            const auto &f = editor->form();
            QCOMPARE(itemTexts(f.cmbButtonTemplate), QStringList({"tiles", "icons"}));
            QCOMPARE(itemTexts(f.cmbButtonIcon), QStringList({"tiles", "icons"}));
            QCOMPARE(itemTexts(f.cmbButtonCursor), QStringList({"arrow", "hand"}));
            QCOMPARE(itemTexts(f.cmbButtonCaption), QStringList({"title"}));
            for (QComboBox *box : {f.cmbButtonSoundUp,
                                   f.cmbButtonSoundOver,
                                   f.cmbButtonSoundDown,
                                   f.cmbButtonSoundDisabled})
                QCOMPARE(itemTexts(box), QStringList({"click", "beep"}));
            // Filling the lists leaves the boxes showing the stored references.
            QCOMPARE(f.cmbButtonTemplate->currentText(), QString());
            QCOMPARE(f.cmbButtonCursor->currentText(), QString());
        });
    }

    void choosingAnEntryStoresItInItsOwnField()
    {
        addOpened(tabOf(Kind::Image), image, "tiles").bound = 1;
        addOpened(tabOf(Kind::Image), image, "icons").bound = 1;
        addOpened(tabOf(Kind::Cursor), cursor, "arrow");
        addOpened(tabOf(Kind::Text), text, "title");
        addOpened(tabOf(Kind::SFX), sfx, "click");
        addOpened(tabOf(Kind::SFX), sfx, "beep");
        clickTab(*m_window, tabOf(Kind::Button));
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            chooseEntry(f.cmbButtonTemplate, 1);
            QCOMPARE(button().templateId, std::string("icons"));
            QCOMPARE(f.cmbButtonTemplate->currentText(), QStringLiteral("icons"));
            chooseEntry(f.cmbButtonIcon, 0);
            QCOMPARE(button().iconId, std::string("tiles"));
            chooseEntry(f.cmbButtonCursor, 0);
            QCOMPARE(button().cursorId, std::string("arrow"));
            chooseEntry(f.cmbButtonCaption, 0);
            QCOMPARE(button().captionTextId, std::string("title"));
            chooseEntry(f.cmbButtonSoundUp, 1);
            chooseEntry(f.cmbButtonSoundOver, 0);
            chooseEntry(f.cmbButtonSoundDown, 1);
            chooseEntry(f.cmbButtonSoundDisabled, 0);
            QCOMPARE(button().soundUp, std::string("beep"));
            QCOMPARE(button().soundOver, std::string("click"));
            QCOMPARE(button().soundDown, std::string("beep"));
            QCOMPARE(button().soundDisabled, std::string("click"));
            QCOMPARE(button().templateId, std::string("icons"));
        });
        // Reopened, the boxes show the chosen objects.
        edit([](frmButton *editor) {
            QCOMPARE(editor->form().cmbButtonTemplate->currentText(), QStringLiteral("icons"));
            QCOMPARE(editor->form().cmbButtonSoundUp->currentText(), QStringLiteral("beep"));
        });
    }

    void aStoredObjectNoLongerListedStaysShown()
    {
        button().isNew = 0;
        button().inUse = -1;
        button().iconId = "gone";
        edit([this](frmButton *editor) {
            QCOMPARE(editor->form().cmbButtonIcon->currentText(), QStringLiteral("gone"));
            QCOMPARE(editor->form().cmbButtonIcon->count(), 0);
            QCOMPARE(button().iconId, std::string("gone"));
        });
    }

    void stateOptionCopiesItsCell()
    {
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            typeInto(f.txtButtonOver, QStringLiteral("4"));
            typeInto(f.txtButtonDown, QStringLiteral("5"));
            typeInto(f.txtButtonDisabled, QStringLiteral("6"));
            QTest::mouseClick(f.optButtonOver, Qt::LeftButton);
            QCOMPARE(button().currentFrame, int16_t(4));
            QTest::mouseClick(f.optButtonDown, Qt::LeftButton);
            QCOMPARE(button().currentFrame, int16_t(5));
            QTest::mouseClick(f.optButtonDisabled, Qt::LeftButton);
            QCOMPARE(button().currentFrame, int16_t(6));
            QTest::mouseClick(f.optButtonUp, Qt::LeftButton);
            QCOMPARE(button().currentFrame, int16_t(1));
        });
    }

    void sharedCellsChooseDisabledDownUpOverInThatOrder()
    {
        ButtonRec &b = button();
        b.isNew = 0;
        b.inUse = -1;
        b.id = "Play";
        b.frameUp = 2;
        b.frameOver = 2;
        b.frameDown = 2;
        b.frameDisabled = 0;
        b.currentFrame = 2;
        edit([](frmButton *editor) { QVERIFY(editor->form().optButtonDown->isChecked()); });
        b.frameDown = 3;
        edit([](frmButton *editor) { QVERIFY(editor->form().optButtonUp->isChecked()); });
        b.frameUp = 1;
        edit([](frmButton *editor) { QVERIFY(editor->form().optButtonOver->isChecked()); });
        b.frameDisabled = 2;
        edit([](frmButton *editor) { QVERIFY(editor->form().optButtonDisabled->isChecked()); });
        b.currentFrame = 9;
        edit([](frmButton *editor) {
            const auto &f = editor->form();
            QVERIFY(!f.optButtonUp->isChecked());
            QVERIFY(!f.optButtonOver->isChecked());
            QVERIFY(!f.optButtonDown->isChecked());
            QVERIFY(!f.optButtonDisabled->isChecked());
        });
        QCOMPARE(b.currentFrame, int16_t(9));
    }

    void checkBoxesStoreOneOrZero()
    {
        edit([this](frmButton *editor) {
            const auto &f = editor->form();
            QTest::mouseClick(f.chkButtonIconVisible, Qt::LeftButton);
            QCOMPARE(button().iconVisible, int16_t(0));
            QTest::mouseClick(f.chkButtonCaptionVisible, Qt::LeftButton);
            QCOMPARE(button().captionVisible, int16_t(0));
            QTest::mouseClick(f.chkButtonCaptionVisible, Qt::LeftButton);
            QCOMPARE(button().captionVisible, int16_t(1));
        });
        button().visible = -1; // only 1 shows as checked
        edit([](frmButton *editor) {
            QVERIFY(!editor->form().chkButtonVisible->isChecked());
            QVERIFY(!editor->form().chkButtonIconVisible->isChecked());
            QVERIFY(editor->form().chkButtonCaptionVisible->isChecked());
        });
    }

    void tabOrderFollowsTheForm()
    {
        edit([](frmButton *editor) {
            const auto &f = editor->form();
            QWidget *expected[] = {f.txtButtonID,          f.optButton,
                                   f.cmbButtonTemplate,    f.txtButtonSwitch1,
                                   f.txtButtonSwitch2,     f.txtButtonUp,
                                   f.txtButtonOver,        f.txtButtonDown,
                                   f.txtButtonDisabled,    f.optButtonUp,
                                   f.cmbButtonIcon,        f.cmbButtonCaption,
                                   f.cmbButtonCursor,      f.chkButtonVisible,
                                   f.chkButtonIconVisible, f.chkButtonCaptionVisible,
                                   f.cmbButtonSoundUp,     f.cmbButtonSoundOver,
                                   f.cmbButtonSoundDown,   f.cmbButtonSoundDisabled,
                                   f.txtButtonX,           f.txtButtonY};
            f.txtButtonID->setFocus();
            QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget *>(f.txtButtonID));
            for (size_t i = 1; i < std::size(expected); ++i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                QWidget *focus = QApplication::focusWidget();
                // An editable drop-down takes the focus in its line edit.
                if (focus && qobject_cast<QComboBox *>(focus->parentWidget()))
                    focus = focus->parentWidget();
                QCOMPARE(focus ? focus->objectName() : QString(), expected[i]->objectName());
            }
        });
    }
};

QTEST_MAIN(tst_frmButton)
#include "tst_frmButton.moc"
