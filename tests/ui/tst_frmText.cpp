#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "ObjectSetup.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmMain.h"
#include "frmText.h"
#include "model/Kinds.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QRadioButton>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

// The text editor opened from the main window as a user opens it.
class tst_frmText : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;
    int m_slot = 0;

    TextRec &text() { return m_doc->Texts[static_cast<size_t>(m_slot)]; }

    bool edit(std::function<void(frmText *)> action)
    {
        return editProperties<frmText>(*m_window, std::move(action));
    }

    void backToTheText()
    {
        clickTab(*m_window, tabOf(Kind::Text));
        clickLine(m_window->objectList(tabOf(Kind::Text)), 0);
    }

    static QList<bool> styles(frmText *editor)
    {
        const auto &f = editor->form();
        return {f.chkTextStylesNormal->isChecked(),
                f.chkTextStylesBold->isChecked(),
                f.chkTextStylesItalic->isChecked(),
                f.chkTextStylesUnderline->isChecked()};
    }

    QString statsLabel(const char *name)
    {
        return m_window->findChild<QLabel *>(QString::fromUtf8(name))->text();
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
        m_slot = addObjectOn(*m_window, Kind::Text);
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear();
        m_window.reset();
    }

    void controlsCarryTheirCaptions()
    {
        edit([](frmText *editor) {
            const auto &f = editor->form();
            QCOMPARE(editor->windowTitle(), QStringLiteral("Text Data"));
            const auto title = [editor](const char *name) {
                return editor->findChild<QGroupBox *>(QString::fromUtf8(name))->title();
            };
            QCOMPARE(title("fraTextID"), QStringLiteral("Text ID"));
            QCOMPARE(title("fraTextContent"), QStringLiteral("Text Content"));
            QCOMPARE(title("fraTextFontID"), QStringLiteral("Text Font ID"));
            QCOMPARE(title("fraTextPosition"), QStringLiteral("Text Position"));
            QCOMPARE(title("fraTextClip"), QStringLiteral("Text Clip"));
            QCOMPARE(title("fraTextDelay"), QStringLiteral("Text Delay"));
            QCOMPARE(title("fraTextOptions"), QStringLiteral("Text Options"));
            QCOMPARE(title("fraTextType"), QStringLiteral("Text Type"));
            QCOMPARE(title("fraTextSelect"), QStringLiteral("Selection Image"));
            QCOMPARE(title("fraTextColors"), QStringLiteral("Text Colors"));
            QCOMPARE(title("fraTextStyles"), QStringLiteral("Text Styles"));
            QCOMPARE(title("fraTextPoint"), QStringLiteral("Text Point"));
            QCOMPARE(f.chkTextRepeat->text(), QStringLiteral("Repeat"));
            QCOMPARE(f.chkTextVisible->text(), QStringLiteral("Visible"));
            QCOMPARE(f.chkTextCenter->text(), QStringLiteral("Centered"));
            QCOMPARE(editor->typeOption(0)->text(), QStringLiteral("Normal"));
            QCOMPARE(editor->typeOption(1)->text(), QStringLiteral("Input"));
            QCOMPARE(editor->typeOption(2)->text(), QStringLiteral("Select"));
            QCOMPARE(f.lblTextColorsFore->text(), QStringLiteral("Foreground"));
            QCOMPARE(f.lblTextColorsBack->text(), QStringLiteral("Background"));
            QCOMPARE(f.chkTextStylesNormal->text(), QStringLiteral("Normal"));
            QCOMPARE(f.chkTextStylesBold->text(), QStringLiteral("Bold"));
            QCOMPARE(f.chkTextStylesItalic->text(), QStringLiteral("Italic"));
            QCOMPARE(f.chkTextStylesUnderline->text(), QStringLiteral("Underline"));
        });
    }

    void newTextShowsItsDefaults()
    {
        edit([this](frmText *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtTextID->text(), QStringLiteral("Enter_ID"));
            QCOMPARE(f.txtTextContent->text(), QString());
            QCOMPARE(f.cmbTextFontID->currentText(), QString());
            QCOMPARE(f.cmbTextSelect->currentText(), QString());
            QCOMPARE(f.txtTextPoint->text(), QStringLiteral("12"));
            for (QLineEdit *box : {f.txtTextX,
                                   f.txtTextY,
                                   f.txtTextClipWidth,
                                   f.txtTextClipHeight,
                                   f.txtTextDelay,
                                   f.txtTextColorsForeR,
                                   f.txtTextColorsBackB})
                QCOMPARE(box->text(), QStringLiteral("0"));
            QVERIFY(f.chkTextVisible->isChecked());
            QVERIFY(!f.chkTextCenter->isChecked());
            QVERIFY(!f.chkTextRepeat->isChecked());
            QVERIFY(editor->typeOption(0)->isChecked());
            QCOMPARE(styles(editor), QList<bool>({true, false, false, false}));
            QCOMPARE(text().content, std::string("null"));
            QCOMPARE(text().fontId, std::string("null"));
            QCOMPARE(text().selectionImageId, std::string("null"));
            QCOMPARE(text().pointSize, int16_t(12));
            QCOMPARE(text().styleNormal, int16_t(1));
            QCOMPARE(text().visible, int16_t(1));
            QCOMPARE(text().textType, int16_t(0));
        });
        QCOMPARE(statsLabel("lblTextStatsPoint"), QStringLiteral("Text Point: 12"));
    }

    void checkingBoldClearsNormalAndClearingBoldChecksItAgain()
    {
        edit([this](frmText *editor) {
            const auto &f = editor->form();
            clickBox(f.chkTextStylesBold);
            QCOMPARE(styles(editor), QList<bool>({false, true, false, false}));
            QCOMPARE(text().styleNormal, int16_t(0));
            QCOMPARE(text().styleBold, int16_t(1));
            clickBox(f.chkTextStylesBold);
            QCOMPARE(styles(editor), QList<bool>({true, false, false, false}));
            QCOMPARE(text().styleNormal, int16_t(1));
            QCOMPARE(text().styleBold, int16_t(0));
        });
    }

    void checkingNormalClearsBoldAndUnderline()
    {
        edit([this](frmText *editor) {
            const auto &f = editor->form();
            clickBox(f.chkTextStylesBold);
            clickBox(f.chkTextStylesUnderline);
            QCOMPARE(styles(editor), QList<bool>({false, true, false, true}));
            QCOMPARE(text().styleUnderline, int16_t(1));
            clickBox(f.chkTextStylesNormal);
            QCOMPARE(styles(editor), QList<bool>({true, false, false, false}));
            QCOMPARE(text().styleNormal, int16_t(1));
            QCOMPARE(text().styleBold, int16_t(0));
            QCOMPARE(text().styleUnderline, int16_t(0));
        });
    }

    void normalCannotBeClearedAlone()
    {
        edit([this](frmText *editor) {
            clickBox(editor->form().chkTextStylesNormal);
            QCOMPARE(styles(editor), QList<bool>({true, false, false, false}));
            QCOMPARE(text().styleNormal, int16_t(1));
        });
    }

    void stylesOtherThanNormalCombine()
    {
        edit([this](frmText *editor) {
            const auto &f = editor->form();
            clickBox(f.chkTextStylesItalic);
            clickBox(f.chkTextStylesBold);
            clickBox(f.chkTextStylesUnderline);
            QCOMPARE(styles(editor), QList<bool>({false, true, true, true}));
            clickBox(f.chkTextStylesItalic);
            QCOMPARE(styles(editor), QList<bool>({false, true, false, true}));
            QCOMPARE(text().styleItalic, int16_t(0));
        });
        // Reopened, the boxes show the stored styles.
        edit([](frmText *editor) {
            QCOMPARE(styles(editor), QList<bool>({false, true, false, true}));
        });
    }

    void emptiedPointBoxShowsTwelveAndZeroIsAccepted()
    {
        edit([this](frmText *editor) {
            QLineEdit *point = editor->form().txtTextPoint;
            typeInto(point, QStringLiteral("20"));
            QCOMPARE(text().pointSize, int16_t(20));
            clearBox(point);
            QCOMPARE(point->text(), QStringLiteral("12"));
            QCOMPARE(text().pointSize, int16_t(12));
            typeInto(point, QStringLiteral("0"));
            QCOMPARE(point->text(), QStringLiteral("0"));
            QCOMPARE(text().pointSize, int16_t(0));
            typeInto(point, QStringLiteral("400"));
            QCOMPARE(text().pointSize, int16_t(400));
        });
    }

    void colourOf300Becomes255AndNegativesStay()
    {
        edit([this](frmText *editor) {
            const auto &f = editor->form();
            QLineEdit *boxes[] = {f.txtTextColorsForeR,
                                  f.txtTextColorsForeG,
                                  f.txtTextColorsForeB,
                                  f.txtTextColorsBackR,
                                  f.txtTextColorsBackG,
                                  f.txtTextColorsBackB};
            int16_t *fields[] = {&text().foreRed,
                                 &text().foreGreen,
                                 &text().foreBlue,
                                 &text().backRed,
                                 &text().backGreen,
                                 &text().backBlue};
            for (size_t i = 0; i < std::size(boxes); ++i) {
                typeInto(boxes[i], QStringLiteral("300"));
                QCOMPARE(boxes[i]->text(), QStringLiteral("255"));
                QCOMPARE(*fields[i], int16_t(255));
                typeInto(boxes[i], QStringLiteral("-4"));
                QCOMPARE(boxes[i]->text(), QStringLiteral("-4"));
                QCOMPARE(*fields[i], int16_t(-4));
                clearBox(boxes[i]);
                QCOMPARE(boxes[i]->text(), QStringLiteral("0"));
                QCOMPARE(*fields[i], int16_t(0));
            }
        });
    }

    void emptiedContentStoresNullAndTheBoxStaysEmpty()
    {
        edit([this](frmText *editor) {
            QLineEdit *content = editor->form().txtTextContent;
            typeInto(content, QStringLiteral("Hello"));
            QCOMPARE(text().content, std::string("Hello"));
            clearBox(content);
            QCOMPARE(content->text(), QString());
            QCOMPARE(text().content, std::string("null"));
            // Unlike a reference, a typed "null" stays in the box.
            typeInto(content, QStringLiteral("null"));
            QCOMPARE(content->text(), QStringLiteral("null"));
            QCOMPARE(text().content, std::string("null"));
        });
    }

    void reopenedTextWithoutContentShowsNullInItsBox()
    {
        edit([](frmText *) {});
        QCOMPARE(text().content, std::string("null"));
        // Filling shows the stored content, and the content rule keeps a "null" in the box.
        edit([this](frmText *editor) {
            QCOMPARE(editor->form().txtTextContent->text(), QStringLiteral("null"));
            QCOMPARE(editor->form().cmbTextFontID->currentText(), QString());
            QCOMPARE(editor->form().cmbTextSelect->currentText(), QString());
            QCOMPARE(text().content, std::string("null"));
            QCOMPARE(text().fontId, std::string("null"));
        });
    }

    void numberBoxesAndChecksStoreTheirFields()
    {
        edit([this](frmText *editor) {
            const auto &f = editor->form();
            typeInto(f.txtTextX, QStringLiteral("15"));
            typeInto(f.txtTextY, QStringLiteral("-3"));
            typeInto(f.txtTextClipWidth, QStringLiteral("200"));
            typeInto(f.txtTextClipHeight, QStringLiteral("40"));
            typeInto(f.txtTextDelay, QStringLiteral("7ms"));
            QCOMPARE(text().x, int16_t(15));
            QCOMPARE(text().y, int16_t(-3));
            QCOMPARE(text().clipWidth, int16_t(200));
            QCOMPARE(text().clipHeight, int16_t(40));
            QCOMPARE(text().delay, int16_t(7));
            clearBox(f.txtTextDelay);
            QCOMPARE(f.txtTextDelay->text(), QStringLiteral("0"));
            clickBox(f.chkTextRepeat);
            clickBox(f.chkTextVisible);
            clickBox(f.chkTextCenter);
            QCOMPARE(text().repeat, int16_t(1));
            QCOMPARE(text().visible, int16_t(0));
            QCOMPARE(text().centered, int16_t(1));
        });
    }

    void typeOptionsStoreTheirIndex()
    {
        edit([this](frmText *editor) {
            clickBox(editor->typeOption(2));
            QCOMPARE(text().textType, int16_t(2));
            clickBox(editor->typeOption(1));
            QCOMPARE(text().textType, int16_t(1));
            clickBox(editor->typeOption(0));
            QCOMPARE(text().textType, int16_t(0));
            clickBox(editor->typeOption(2));
        });
        QCOMPARE(statsLabel("lblTextStatsType"), QStringLiteral("Text Type: SELECT"));
        edit([](frmText *editor) { QVERIFY(editor->typeOption(2)->isChecked()); });
    }

    void fontsNotNewAndBoundImagesNotNewAreOffered()
    {
        addLiveObject(*m_window, Kind::Font, "serif");
        addObjectOn(*m_window, Kind::Font); // still new
        addLiveObject(*m_window, Kind::Font, "mono");
        const int tiles = addLiveObject(*m_window, Kind::Image, "tiles");
        const int photo = addLiveObject(*m_window, Kind::Image, "photo");
        const int fresh = addObjectOn(*m_window, Kind::Image);
        m_doc->Images[size_t(tiles)].bound = 1;
        m_doc->Images[size_t(photo)].bound = 0;
        m_doc->Images[size_t(fresh)].bound = 1;
        backToTheText();
        edit([this](frmText *editor) {
            const auto &f = editor->form();
            QCOMPARE(itemTexts(f.cmbTextFontID), QStringList({"serif", "mono"}));
            QCOMPARE(itemTexts(f.cmbTextSelect), QStringList({"tiles"}));
            chooseEntry(f.cmbTextFontID, 1);
            QCOMPARE(text().fontId, std::string("mono"));
            chooseEntry(f.cmbTextSelect, 0);
            QCOMPARE(text().selectionImageId, std::string("tiles"));
        });
        QCOMPARE(statsLabel("lblTextStatsFont"), QStringLiteral("Font: mono"));
    }

    void dropOnTheFontGroupStoresTheFontBoxText()
    {
        edit([this](frmText *editor) {
            const auto &f = editor->form();
            typeInto(f.cmbTextFontID, QStringLiteral("serif"));
            QCOMPARE(text().fontId, std::string("serif"));
            // A typed "null" empties the box and stores "null"; a drop stores the box's text
            // as it stands, with no "null" rule.
            typeInto(f.cmbTextFontID, QStringLiteral("null"));
            QCOMPARE(text().fontId, std::string("null"));
            QMimeData data;
            data.setText(QStringLiteral("dragged"));
            const QPoint at = f.fraTextFontID->rect().center();
            QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(f.fraTextFontID, &enter);
            QVERIFY(enter.isAccepted());
            QDropEvent drop(QPointF(at), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(f.fraTextFontID, &drop);
            QCOMPARE(text().fontId, std::string());
            QCOMPARE(f.cmbTextFontID->currentText(), QString());
            QCOMPARE(text().content, std::string("null"));
        });
    }

    void escapeClosesAndRefreshesTheListAndStatistics()
    {
        const bool closed = edit([](frmText *editor) {
            typeInto(editor->form().txtTextID, QStringLiteral("title"));
            typeInto(editor->form().txtTextDelay, QStringLiteral("5"));
            QTest::keyClick(editor, Qt::Key_Escape);
        });
        QVERIFY(closed);
        QListWidget *list = m_window->objectList(tabOf(Kind::Text));
        QCOMPARE(listTexts(list), QStringList({"title"}));
        QCOMPARE(list->currentRow(), 0);
        QCOMPARE(statsLabel("lblTextStatsDelay"), QStringLiteral("Text Delay: 5"));
    }

    void tabOrderFollowsTheForm()
    {
        edit([](frmText *editor) {
            const QStringList order{"txtTextID",
                                    "txtTextContent",
                                    "cmbTextFontID",
                                    "txtTextX",
                                    "txtTextY",
                                    "txtTextClipWidth",
                                    "txtTextClipHeight",
                                    "txtTextDelay",
                                    "chkTextRepeat",
                                    "chkTextVisible",
                                    "chkTextCenter",
                                    "optTextType_0",
                                    "cmbTextSelect",
                                    "txtTextColorsForeR",
                                    "txtTextColorsForeG",
                                    "txtTextColorsForeB",
                                    "txtTextColorsBackR",
                                    "txtTextColorsBackG",
                                    "txtTextColorsBackB",
                                    "chkTextStylesNormal",
                                    "chkTextStylesBold",
                                    "chkTextStylesItalic",
                                    "chkTextStylesUnderline",
                                    "txtTextPoint",
                                    "txtTextID"};
            QCOMPARE(tabWalk(editor->form().txtTextID, int(order.size())), order);
        });
    }
};

QTEST_MAIN(tst_frmText)
#include "tst_frmText.moc"
