// The bindings frmButton is declared with, tried on the kinds of boxes the button editor does
// not have (0..255 numbers, paths, optional texts, other empty texts, 32-bit numbers, option
// codes), each on a small form of its own.
#include "EditorDriver.h"
#include "EditorForm.h"
#include "rules/FieldRules.h"
#include "rules/ObjectManagement.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include <memory>
#include <type_traits>
#include <string>

using namespace vorlane;

namespace {

template<class Control>
Control *addRow(QFormLayout *layout, const char *name)
{
    auto *control = new Control;
    control->setObjectName(QString::fromUtf8(name));
    if constexpr (std::is_base_of_v<QAbstractButton, Control>)
        control->setText(QString::fromUtf8(name));
    layout->addRow(QString::fromUtf8(name), control);
    return control;
}

// An image form as the image editor declares it.
class ImageForm : public EditorForm
{
public:
    explicit ImageForm(Document &doc)
        : EditorForm(doc, Kind::Image, nullptr)
        , image(doc.Images.at(static_cast<size_t>(doc.currentObjectIndex)))
    {
        auto *layout = new QFormLayout(this);
        id = addRow<QLineEdit>(layout, "txtImageID");
        path = addRow<QLineEdit>(layout, "txtImagePath");
        positionX = addRow<QLineEdit>(layout, "txtImagePositionX");
        red = addRow<QLineEdit>(layout, "txtImageRed");
        alpha = addRow<QLineEdit>(layout, "txtImageAlpha");
        bound = addRow<QCheckBox>(layout, "chkImageBound");
        bindIdentifier(id, image.id);
        bindReference(path, image.path);
        bindNumber(positionX, image.positionX);
        bindNumber(red, image.red, byteField());
        bindNumber(alpha, image.alpha, byteField());
        bindCheck(bound, image.bound);
    }

    ImageRec &image;
    QLineEdit *id, *path, *positionX, *red, *alpha;
    QCheckBox *bound;

protected:
    void newRecordDefaults() override
    {
        image.path = NullText;
        image.red = 0;
        image.alpha = 255;
        image.positionX = 0;
        image.bound = 0;
    }
};

// A cursor form: a drop-down of bound images and options whose codes are not their order.
class CursorForm : public EditorForm
{
public:
    explicit CursorForm(Document &doc)
        : EditorForm(doc, Kind::Cursor, nullptr)
        , cursor(doc.Cursors.at(static_cast<size_t>(doc.currentObjectIndex)))
    {
        auto *layout = new QFormLayout(this);
        id = addRow<QLineEdit>(layout, "txtCursorID");
        image = addRow<QComboBox>(layout, "cmbCursorImage");
        image->setEditable(true);
        // Designed showing "null", as the cursor editor's form is: the first fill changes it.
        image->setEditText(QStringLiteral("null"));
        center = addRow<QRadioButton>(layout, "Center");
        upperLeft = addRow<QRadioButton>(layout, "Upper-left");
        lowerLeft = addRow<QRadioButton>(layout, "Lower-left");
        bindIdentifier(id, cursor.id);
        bindList(image, cursor.imageId, Kind::Image, imageIsBound);
        bindOptions({{center, 1}, {upperLeft, 5}, {lowerLeft, 2}}, cursor.orientation);
    }

    CursorRec &cursor;
    QLineEdit *id;
    QComboBox *image;
    QRadioButton *center, *upperLeft, *lowerLeft;

protected:
    void newRecordDefaults() override
    {
        cursor.imageId.clear();
        cursor.orientation = 1;
    }
};

// A text form: an optional text, a number box whose empty text is "12", and a 32-bit number.
class TextForm : public EditorForm
{
public:
    explicit TextForm(Document &doc)
        : EditorForm(doc, Kind::Text, nullptr)
        , text(doc.Texts.at(static_cast<size_t>(doc.currentObjectIndex)))
    {
        auto *layout = new QFormLayout(this);
        content = addRow<QLineEdit>(layout, "txtTextContent");
        point = addRow<QLineEdit>(layout, "txtTextPoint");
        mix = addRow<QLineEdit>(layout, "txtSoundMix");
        content->setText(QStringLiteral("null")); // designed so, as the text editor's form is
        bindContent(content, text.content);
        bindNumber(point, text.pointSize, numberWithEmptyText("12"));
        bindNumber(mix, doc.AppSettings.soundMix);
    }

    TextRec &text;
    QLineEdit *content, *point, *mix;

protected:
    void newRecordDefaults() override
    {
        text.content.clear();
        text.pointSize = 12;
    }
};

} // namespace

class tst_frmButtonBindings : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;

    // Adds an object of `kind` as Add Object does; it becomes the current object.
    int16_t add(Kind kind)
    {
        const AddResult added = addObject(*m_doc, kind);
        m_doc->currentObjectIndex = added.slot;
        return added.slot;
    }

    template<class Form>
    std::unique_ptr<Form> open()
    {
        auto form = std::make_unique<Form>(*m_doc);
        form->Form_Load();
        form->show();
        if (!QTest::qWaitForWindowExposed(form.get()))
            return nullptr;
        return form;
    }

private slots:
    void init()
    {
        m_doc = makeDocument();
        setUpNewProject(*m_doc, "My Project");
    }

    void newRecordTakesItsDefaults()
    {
        add(Kind::Image);
        auto form = open<ImageForm>();
        QVERIFY(form);
        QCOMPARE(form->id->text(), QStringLiteral("Enter_ID"));
        QCOMPARE(form->alpha->text(), QStringLiteral("255"));
        QCOMPARE(form->red->text(), QStringLiteral("0"));
        QCOMPARE(form->path->text(), QString());
        QCOMPARE(form->image.path, std::string("null"));
        QCOMPARE(form->image.isNew, int16_t(0));
        QCOMPARE(form->image.inUse, int16_t(-1));
    }

    void byteBoxShows255ForLargerNumbersAndKeepsNegatives()
    {
        add(Kind::Image);
        auto form = open<ImageForm>();
        QVERIFY(form);
        typeInto(form->red, QStringLiteral("300"));
        QCOMPARE(form->red->text(), QStringLiteral("255"));
        QCOMPARE(form->image.red, int16_t(255));
        typeInto(form->alpha, QStringLiteral("256"));
        QCOMPARE(form->alpha->text(), QStringLiteral("255"));
        QCOMPARE(form->image.alpha, int16_t(255));
        typeInto(form->red, QStringLiteral("-5"));
        QCOMPARE(form->red->text(), QStringLiteral("-5"));
        QCOMPARE(form->image.red, int16_t(-5));
        typeInto(form->red, QStringLiteral("255"));
        QCOMPARE(form->image.red, int16_t(255));
        clearBox(form->alpha);
        QCOMPARE(form->alpha->text(), QStringLiteral("0"));
        QCOMPARE(form->image.alpha, int16_t(0));
        typeInto(form->alpha, QStringLiteral("70000"));
        QCOMPARE(form->alpha->text(), QStringLiteral("255"));
        QCOMPARE(form->image.alpha, int16_t(255));
    }

    void numberBoxesReadTheLeadingNumber()
    {
        add(Kind::Image);
        auto form = open<ImageForm>();
        QVERIFY(form);
        typeInto(form->positionX, QStringLiteral("12abc"));
        QCOMPARE(form->image.positionX, int16_t(12));
        QCOMPARE(form->positionX->text(), QStringLiteral("12abc"));
        typeInto(form->positionX, QStringLiteral("abc"));
        QCOMPARE(form->image.positionX, int16_t(0));
        QCOMPARE(form->positionX->text(), QStringLiteral("abc"));
        typeInto(form->positionX, QStringLiteral("2.5"));
        QCOMPARE(form->image.positionX, int16_t(2));
        typeInto(form->positionX, QStringLiteral("70000"));
        QCOMPARE(form->positionX->text(), QStringLiteral("32767"));
        QCOMPARE(form->image.positionX, int16_t(32767));
    }

    void pathBoxStoresNullForEmptyAndEmptiesATypedNull()
    {
        add(Kind::Image);
        auto form = open<ImageForm>();
        QVERIFY(form);
        typeInto(form->path, QStringLiteral("gfx/tiles.png"));
        QCOMPARE(form->image.path, std::string("gfx/tiles.png"));
        clearBox(form->path);
        QCOMPARE(form->path->text(), QString());
        QCOMPARE(form->image.path, std::string("null"));
        typeInto(form->path, QStringLiteral("null"));
        QCOMPARE(form->path->text(), QString());
        QCOMPARE(form->image.path, std::string("null"));
    }

    void clearedIdentifierShowsEnterId()
    {
        add(Kind::Image);
        auto form = open<ImageForm>();
        QVERIFY(form);
        typeInto(form->id, QStringLiteral("tiles"));
        QCOMPARE(form->image.id, std::string("tiles"));
        clearBox(form->id);
        QCOMPARE(form->id->text(), QStringLiteral("Enter_ID"));
        QCOMPARE(form->image.id, std::string("Enter_ID"));
    }

    void checkBoxStoresOneOrZero()
    {
        add(Kind::Image);
        auto form = open<ImageForm>();
        QVERIFY(form);
        QVERIFY(!form->bound->isChecked());
        QTest::mouseClick(form->bound, Qt::LeftButton);
        QCOMPARE(form->image.bound, int16_t(1));
        QTest::mouseClick(form->bound, Qt::LeftButton);
        QCOMPARE(form->image.bound, int16_t(0));
    }

    void reopeningDoesNotResetTheRecord()
    {
        add(Kind::Image);
        {
            auto form = open<ImageForm>();
            QVERIFY(form);
            typeInto(form->alpha, QStringLiteral("128"));
            typeInto(form->path, QStringLiteral("a.png"));
            form->close();
        }
        auto form = open<ImageForm>();
        QVERIFY(form);
        QCOMPARE(form->alpha->text(), QStringLiteral("128"));
        QCOMPARE(form->path->text(), QStringLiteral("a.png"));
        QCOMPARE(form->image.alpha, int16_t(128));
    }

    void escapeInAnyControlClosesAndHandsTheIdBack()
    {
        add(Kind::Image);
        add(Kind::Image);
        m_doc->list(Kind::Image).selected = 0;
        m_doc->currentObjectIndex = 0;
        auto form = open<ImageForm>();
        QVERIFY(form);
        typeInto(form->id, QStringLiteral("tiles"));
        form->bound->setFocus();
        QTest::keyClick(form->bound, Qt::Key_Escape);
        QVERIFY(!form->isVisible());
        const ObjectList &list = m_doc->list(Kind::Image);
        QCOMPARE(list.lines.size(), size_t(2));
        QCOMPARE(list.lines[0].text, std::string("tiles"));
        QCOMPARE(list.lines[0].slot, int16_t(0));
        QCOMPARE(list.lines[1].text, std::string("New_Object1"));
        QCOMPARE(list.selected, 0);
    }

    void escapeIsHandledOnRelease()
    {
        add(Kind::Image);
        auto form = open<ImageForm>();
        QVERIFY(form);
        QTest::keyPress(form->alpha, Qt::Key_Escape);
        QVERIFY(form->isVisible());
        QTest::keyRelease(form->alpha, Qt::Key_Escape);
        QVERIFY(!form->isVisible());
    }

    void closingHandsBackOnce()
    {
        add(Kind::Image);
        auto form = open<ImageForm>();
        QVERIFY(form);
        form->close();
        m_doc->list(Kind::Image).lines[0].text = "changed since";
        form->close();
        form->done(QDialog::Rejected);
        QCOMPARE(m_doc->list(Kind::Image).lines[0].text, std::string("changed since"));
    }

    void optionsStoreTheirCodes()
    {
        add(Kind::Cursor);
        auto form = open<CursorForm>();
        QVERIFY(form);
        QVERIFY(form->center->isChecked());
        QTest::mouseClick(form->upperLeft, Qt::LeftButton);
        QCOMPARE(form->cursor.orientation, int16_t(5));
        QTest::mouseClick(form->lowerLeft, Qt::LeftButton);
        QCOMPARE(form->cursor.orientation, int16_t(2));
        QTest::mouseClick(form->center, Qt::LeftButton);
        QCOMPARE(form->cursor.orientation, int16_t(1));
        form->close();
        form->cursor.orientation = 5;
        form = open<CursorForm>();
        QVERIFY(form->upperLeft->isChecked());
        form->close();
        form->cursor.orientation = 0; // no option has code 0
        form = open<CursorForm>();
        QVERIFY(!form->center->isChecked());
        QVERIFY(!form->upperLeft->isChecked());
        QVERIFY(!form->lowerLeft->isChecked());
        QCOMPARE(form->cursor.orientation, int16_t(0));
    }

    void emptyReferenceBecomesNullWhenTheListIsFilled()
    {
        add(Kind::Cursor);
        auto form = open<CursorForm>();
        QVERIFY(form);
        QCOMPARE(form->image->currentText(), QString());
        QCOMPARE(form->cursor.imageId, std::string("null"));
    }

    void listOffersBoundImagesThatAreNotNew()
    {
        for (const char *id : {"tiles", "photo", "fresh", "icons"}) {
            const int16_t slot = add(Kind::Image);
            ImageRec &image = m_doc->Images[static_cast<size_t>(slot)];
            image.id = id;
            image.bound = std::string(id) == "photo" ? 0 : 1;
            if (std::string(id) != "fresh") {
                image.isNew = 0;
                image.inUse = -1;
            }
        }
        add(Kind::Cursor);
        auto form = open<CursorForm>();
        QVERIFY(form);
        QCOMPARE(itemTexts(form->image), QStringList({"tiles", "icons"}));
        chooseEntry(form->image, 1);
        QCOMPARE(form->cursor.imageId, std::string("icons"));
        QCOMPARE(form->image->currentText(), QStringLiteral("icons"));
    }

    void optionalTextKeepsATypedNull()
    {
        add(Kind::Text);
        auto form = open<TextForm>();
        QVERIFY(form);
        QCOMPARE(form->content->text(), QString());
        QCOMPARE(form->text.content, std::string("null"));
        typeInto(form->content, QStringLiteral("Hello"));
        QCOMPARE(form->text.content, std::string("Hello"));
        clearBox(form->content);
        QCOMPARE(form->content->text(), QString());
        QCOMPARE(form->text.content, std::string("null"));
        typeInto(form->content, QStringLiteral("null"));
        QCOMPARE(form->content->text(), QStringLiteral("null"));
        QCOMPARE(form->text.content, std::string("null"));
    }

    void emptiedBoxShowsItsFieldsEmptyText()
    {
        add(Kind::Text);
        auto form = open<TextForm>();
        QVERIFY(form);
        QCOMPARE(form->point->text(), QStringLiteral("12"));
        typeInto(form->point, QStringLiteral("0"));
        QCOMPARE(form->point->text(), QStringLiteral("0"));
        QCOMPARE(form->text.pointSize, int16_t(0));
        clearBox(form->point);
        QCOMPARE(form->point->text(), QStringLiteral("12"));
        QCOMPARE(form->text.pointSize, int16_t(12));
    }

    void thirtyTwoBitFieldTakesLargeNumbers()
    {
        add(Kind::Text);
        auto form = open<TextForm>();
        QVERIFY(form);
        typeInto(form->mix, QStringLiteral("70000"));
        QCOMPARE(form->mix->text(), QStringLiteral("70000"));
        QCOMPARE(m_doc->AppSettings.soundMix, int32_t(70000));
        typeInto(form->mix, QStringLiteral("3000000000"));
        QCOMPARE(form->mix->text(), QStringLiteral("2147483647"));
        QCOMPARE(m_doc->AppSettings.soundMix, int32_t(2147483647));
    }
};

QTEST_MAIN(tst_frmButtonBindings)
#include "tst_frmButtonBindings.moc"
