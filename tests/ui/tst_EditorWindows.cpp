// The image, cursor, text and button editors together: what one editor stores decides what
// the others offer, and what they all store survives Save As and Open.
#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "ObjectSetup.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmButton.h"
#include "frmCursor.h"
#include "frmImage.h"
#include "frmMain.h"
#include "frmSprite.h"
#include "frmText.h"
#include "model/Kinds.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

class tst_EditorWindows : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    // Selects the first line of `kind` and opens its editor.
    template<class Editor>
    void editFirst(Kind kind, std::function<void(Editor *)> action)
    {
        clickTab(*m_window, tabOf(kind));
        clickLine(m_window->objectList(tabOf(kind)), 0);
        editProperties<Editor>(*m_window, std::move(action));
    }

    // Adds an object of `kind` and opens its editor on it.
    template<class Editor>
    void addAndEdit(Kind kind, std::function<void(Editor *)> action)
    {
        addObjectOn(*m_window, kind);
        editProperties<Editor>(*m_window, std::move(action));
    }

    // The lists of images the other editors offer, as they open: template, icon, cursor image,
    // selection image and sprite image.
    QList<QStringList> offeredImages()
    {
        QList<QStringList> offered;
        editFirst<frmButton>(Kind::Button, [&](frmButton *editor) {
            offered << itemTexts(editor->form().cmbButtonTemplate)
                    << itemTexts(editor->form().cmbButtonIcon);
        });
        editFirst<frmCursor>(Kind::Cursor, [&](frmCursor *editor) {
            offered << itemTexts(editor->form().cmbCursorImage);
        });
        editFirst<frmText>(Kind::Text, [&](frmText *editor) {
            offered << itemTexts(editor->form().cmbTextSelect);
        });
        editFirst<frmSprite>(Kind::Sprite, [&](frmSprite *editor) {
            offered << itemTexts(editor->form().cmbSpriteImage);
        });
        return offered;
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
        m_doc->ProjectInfo.projectFilePath.clear();
        m_window.reset();
    }

    void clearingBoundRemovesTheImageFromTheOtherEditorsLists()
    {
        for (const char *id : {"tiles", "icons"}) {
            addAndEdit<frmImage>(Kind::Image, [id](frmImage *editor) {
                typeInto(editor->form().txtImageID, QString::fromUtf8(id));
                clickBox(editor->form().chkImageBound);
            });
        }
        addAndEdit<frmButton>(Kind::Button, [](frmButton *) {});
        addAndEdit<frmCursor>(Kind::Cursor, [](frmCursor *) {});
        addAndEdit<frmText>(Kind::Text, [](frmText *) {});
        addAndEdit<frmSprite>(Kind::Sprite, [](frmSprite *) {});
        const QStringList both{"tiles", "icons"};
        QCOMPARE(offeredImages(), QList<QStringList>({both, both, both, both, both}));

        editFirst<frmImage>(Kind::Image, [](frmImage *editor) {
            QCOMPARE(editor->form().txtImageID->text(), QStringLiteral("tiles"));
            clickBox(editor->form().chkImageBound);
        });
        QCOMPARE(m_doc->Images[0].bound, int16_t(0));
        const QStringList icons{"icons"};
        QCOMPARE(offeredImages(), QList<QStringList>({icons, icons, icons, icons, icons}));
    }

    void everyKindEditedThroughItsWindowSurvivesSaveAndOpen()
    {
        addAndEdit<frmImage>(Kind::Image, [](frmImage *editor) {
            const auto &f = editor->form();
            typeInto(f.txtImageID, QStringLiteral("tiles"));
            typeInto(f.txtImagePath, QStringLiteral("gfx/tiles.png"));
            typeInto(f.txtImagePositionX, QStringLiteral("12"));
            typeInto(f.txtImagePositionY, QStringLiteral("-8"));
            typeInto(f.txtImageCellWidth, QStringLiteral("32"));
            typeInto(f.txtImageCellHeight, QStringLiteral("16"));
            typeInto(f.txtImageRed, QStringLiteral("300"));
            typeInto(f.txtImageGreen, QStringLiteral("7"));
            typeInto(f.txtImageBlue, QStringLiteral("-1"));
            typeInto(f.txtImageAlpha, QStringLiteral("128"));
            clickBox(f.chkImageBound);
            clickBox(f.chkImageVisible);
        });
        addAndEdit<frmCursor>(Kind::Cursor, [](frmCursor *editor) {
            typeInto(editor->form().txtCursorID, QStringLiteral("arrow"));
            chooseEntry(editor->form().cmbCursorImage, 0);
            clickBox(editor->orientationOption(4));
        });
        addAndEdit<frmText>(Kind::Text, [](frmText *editor) {
            const auto &f = editor->form();
            typeInto(f.txtTextID, QStringLiteral("title"));
            typeInto(f.txtTextContent, QStringLiteral("Hello, world"));
            typeInto(f.cmbTextFontID, QStringLiteral("serif"));
            typeInto(f.txtTextX, QStringLiteral("100"));
            typeInto(f.txtTextY, QStringLiteral("50"));
            typeInto(f.txtTextClipWidth, QStringLiteral("320"));
            typeInto(f.txtTextClipHeight, QStringLiteral("24"));
            typeInto(f.txtTextDelay, QStringLiteral("3"));
            clickBox(f.chkTextRepeat);
            clickBox(f.chkTextCenter);
            clickBox(editor->typeOption(2));
            chooseEntry(f.cmbTextSelect, 0);
            typeInto(f.txtTextColorsForeR, QStringLiteral("255"));
            typeInto(f.txtTextColorsForeG, QStringLiteral("128"));
            typeInto(f.txtTextColorsBackB, QStringLiteral("64"));
            clickBox(f.chkTextStylesBold);
            clickBox(f.chkTextStylesUnderline);
            typeInto(f.txtTextPoint, QStringLiteral("20"));
        });
        addAndEdit<frmButton>(Kind::Button, [](frmButton *editor) {
            const auto &f = editor->form();
            typeInto(f.txtButtonID, QStringLiteral("play"));
            chooseEntry(f.cmbButtonTemplate, 0);
            chooseEntry(f.cmbButtonCursor, 0);
            chooseEntry(f.cmbButtonCaption, 0);
            typeInto(f.txtButtonX, QStringLiteral("40"));
            typeInto(f.txtButtonY, QStringLiteral("60"));
        });

        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString file = dir.filePath(QStringLiteral("road.dvb"));
        m_ui->fileChoices = {file.toStdString()};
        m_window->form().mnuSaveAs->trigger();

        auto doc = makeDocument();
        ScriptedUserInterface ui;
        frmMain second(*doc, ui);
        registerEditors(second);
        second.show();
        QVERIFY(QTest::qWaitForWindowExposed(&second));
        ui.fileChoices = {file.toStdString()};
        second.form().mnuOpen->trigger();
        QVERIFY(ui.messages.empty());
        for (Kind kind : {Kind::Image, Kind::Cursor, Kind::Text, Kind::Button})
            QCOMPARE(doc->list(kind).lines.size(), size_t(1));

        const auto open = [&second](Kind kind) {
            clickTab(second, tabOf(kind));
            clickLine(second.objectList(tabOf(kind)), 0);
        };
        open(Kind::Image);
        editProperties<frmImage>(second, [](frmImage *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtImageID->text(), QStringLiteral("tiles"));
            QCOMPARE(f.txtImagePath->text(), QStringLiteral("gfx/tiles.png"));
            QCOMPARE(f.txtImagePositionX->text(), QStringLiteral("12"));
            QCOMPARE(f.txtImagePositionY->text(), QStringLiteral("-8"));
            QCOMPARE(f.txtImageCellWidth->text(), QStringLiteral("32"));
            QCOMPARE(f.txtImageCellHeight->text(), QStringLiteral("16"));
            QCOMPARE(f.txtImageRed->text(), QStringLiteral("255"));
            QCOMPARE(f.txtImageGreen->text(), QStringLiteral("7"));
            QCOMPARE(f.txtImageBlue->text(), QStringLiteral("-1"));
            QCOMPARE(f.txtImageAlpha->text(), QStringLiteral("128"));
            QVERIFY(f.chkImageBound->isChecked());
            QVERIFY(!f.chkImageVisible->isChecked());
        });
        open(Kind::Cursor);
        editProperties<frmCursor>(second, [](frmCursor *editor) {
            QCOMPARE(editor->form().txtCursorID->text(), QStringLiteral("arrow"));
            QCOMPARE(editor->form().cmbCursorImage->currentText(), QStringLiteral("tiles"));
            QVERIFY(editor->orientationOption(4)->isChecked());
        });
        open(Kind::Text);
        editProperties<frmText>(second, [](frmText *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtTextID->text(), QStringLiteral("title"));
            QCOMPARE(f.txtTextContent->text(), QStringLiteral("Hello, world"));
            QCOMPARE(f.cmbTextFontID->currentText(), QStringLiteral("serif"));
            QCOMPARE(f.txtTextX->text(), QStringLiteral("100"));
            QCOMPARE(f.txtTextY->text(), QStringLiteral("50"));
            QCOMPARE(f.txtTextClipWidth->text(), QStringLiteral("320"));
            QCOMPARE(f.txtTextClipHeight->text(), QStringLiteral("24"));
            QCOMPARE(f.txtTextDelay->text(), QStringLiteral("3"));
            QVERIFY(f.chkTextRepeat->isChecked());
            QVERIFY(f.chkTextCenter->isChecked());
            QVERIFY(f.chkTextVisible->isChecked());
            QVERIFY(editor->typeOption(2)->isChecked());
            QCOMPARE(f.cmbTextSelect->currentText(), QStringLiteral("tiles"));
            QCOMPARE(f.txtTextColorsForeR->text(), QStringLiteral("255"));
            QCOMPARE(f.txtTextColorsForeG->text(), QStringLiteral("128"));
            QCOMPARE(f.txtTextColorsForeB->text(), QStringLiteral("0"));
            QCOMPARE(f.txtTextColorsBackB->text(), QStringLiteral("64"));
            QVERIFY(!f.chkTextStylesNormal->isChecked());
            QVERIFY(f.chkTextStylesBold->isChecked());
            QVERIFY(!f.chkTextStylesItalic->isChecked());
            QVERIFY(f.chkTextStylesUnderline->isChecked());
            QCOMPARE(f.txtTextPoint->text(), QStringLiteral("20"));
        });
        open(Kind::Button);
        editProperties<frmButton>(second, [](frmButton *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtButtonID->text(), QStringLiteral("play"));
            QCOMPARE(f.cmbButtonTemplate->currentText(), QStringLiteral("tiles"));
            QCOMPARE(f.cmbButtonCursor->currentText(), QStringLiteral("arrow"));
            QCOMPARE(f.cmbButtonCaption->currentText(), QStringLiteral("title"));
            QCOMPARE(f.txtButtonX->text(), QStringLiteral("40"));
            QCOMPARE(f.txtButtonY->text(), QStringLiteral("60"));
        });

        // The records read back hold what the first window stored, field by field.
        const ImageRec &image = doc->Images[size_t(doc->list(Kind::Image).lines[0].slot)];
        const ImageRec &savedImage = m_doc->Images[0];
        QCOMPARE(image.path, savedImage.path);
        QCOMPARE(image.red, savedImage.red);
        QCOMPARE(image.blue, savedImage.blue);
        QCOMPARE(image.alpha, int16_t(128));
        const CursorRec &cursor = doc->Cursors[size_t(doc->list(Kind::Cursor).lines[0].slot)];
        QCOMPARE(cursor.imageId, std::string("tiles"));
        QCOMPARE(cursor.orientation, int16_t(4));
        const TextRec &text = doc->Texts[size_t(doc->list(Kind::Text).lines[0].slot)];
        const TextRec &savedText = m_doc->Texts[0];
        QCOMPARE(text.content, std::string("Hello, world"));
        QCOMPARE(text.styleNormal, savedText.styleNormal);
        QCOMPARE(text.styleBold, int16_t(1));
        QCOMPARE(text.styleUnderline, int16_t(1));
        QCOMPARE(text.textType, int16_t(2));
        QCOMPARE(text.selectionImageId, std::string("tiles"));
        const ButtonRec &button = doc->Buttons[size_t(doc->list(Kind::Button).lines[0].slot)];
        QCOMPARE(button.templateId, std::string("tiles"));
        QCOMPARE(button.cursorId, std::string("arrow"));
        QCOMPARE(button.captionTextId, std::string("title"));
        doc->ProjectInfo.projectFilePath.clear();
    }
};

QTEST_MAIN(tst_EditorWindows)
#include "tst_EditorWindows.moc"
