#include "frmText.h"

#include "DropTarget.h"
#include "TextPreview.h"
#include "frmMain.h"
#include "rules/FieldRules.h"
#include "rules/TextLook.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>

#include <cstddef>

namespace vorlane {

frmText::frmText(Document &doc, frmMain *mainWindow, QWidget *parent)
    : EditorForm(doc, Kind::Text, mainWindow, parent ? parent : mainWindow)
    , m_text(doc.Texts.at(static_cast<size_t>(doc.currentObjectIndex)))
{
    m_ui.setupUi(this);
    // The bindings in the order the load fills them. The content box is designed showing
    // "null", so showing a new text's empty content changes it and stores "null".
    TextRec &t = m_text;
    bindIdentifier(m_ui.txtTextID, t.id);
    bindContent(m_ui.txtTextContent, t.content);
    bindList(m_ui.cmbTextFontID, t.fontId, Kind::Font);
    bindNumber(m_ui.txtTextX, t.x);
    bindNumber(m_ui.txtTextY, t.y);
    bindNumber(m_ui.txtTextClipWidth, t.clipWidth);
    bindNumber(m_ui.txtTextClipHeight, t.clipHeight);
    bindNumber(m_ui.txtTextDelay, t.delay);
    bindCheck(m_ui.chkTextRepeat, t.repeat);
    bindCheck(m_ui.chkTextVisible, t.visible);
    bindCheck(m_ui.chkTextCenter, t.centered);
    std::vector<Option> types;
    for (int code = 0; code < static_cast<int>(TextTypeCaptions.size()); ++code)
        types.emplace_back(typeOption(code), static_cast<int16_t>(code));
    bindOptions(std::move(types), t.textType);
    bindList(m_ui.cmbTextSelect, t.selectionImageId, Kind::Image, imageIsBound);
    bindNumber(m_ui.txtTextColorsForeR, t.foreRed, byteField());
    bindNumber(m_ui.txtTextColorsForeG, t.foreGreen, byteField());
    bindNumber(m_ui.txtTextColorsForeB, t.foreBlue, byteField());
    bindNumber(m_ui.txtTextColorsBackR, t.backRed, byteField());
    bindNumber(m_ui.txtTextColorsBackG, t.backGreen, byteField());
    bindNumber(m_ui.txtTextColorsBackB, t.backBlue, byteField());
    // Each style box stores its value, then the style rule settles the four together.
    for (TextStyle style : TextStyles)
        bindCheck(styleBox(style), styleField(t, style), [this, style]() { styleClicked(style); });
    bindNumber(m_ui.txtTextPoint, t.pointSize, numberWithEmptyText(std::string(EmptyPointSize)));

    new DropTarget(m_ui.fraTextFontID, [this]() { fraTextFontID_DragDrop(); });

    // Connected after the bindings, so the record already holds every change.
    m_preview = new TextPreview(this);
    m_ui.vlTextRight->addWidget(m_preview, 1);
    loadStep([this]() { showPreview(); });
    for (QLineEdit *box : findChildren<QLineEdit *>())
        connect(box, &QLineEdit::textChanged, this, &frmText::showPreview);
    for (QCheckBox *box : findChildren<QCheckBox *>())
        connect(box, &QCheckBox::toggled, this, &frmText::showPreview);
    for (QComboBox *box : findChildren<QComboBox *>())
        connect(box, &QComboBox::activated, this, &frmText::showPreview);
}

void frmText::showPreview()
{
    m_preview->setLook(textLookOf(document(), m_text));
}

QRadioButton *frmText::typeOption(int code) const
{
    return findChild<QRadioButton *>(QStringLiteral("optTextType_%1").arg(code));
}

QCheckBox *frmText::styleBox(TextStyle style) const
{
    switch (style) {
    case TextStyle::Bold:
        return m_ui.chkTextStylesBold;
    case TextStyle::Italic:
        return m_ui.chkTextStylesItalic;
    case TextStyle::Underline:
        return m_ui.chkTextStylesUnderline;
    case TextStyle::Normal:
        break;
    }
    return m_ui.chkTextStylesNormal;
}

void frmText::styleClicked(TextStyle style)
{
    TextStyleBoxes boxes;
    for (TextStyle each : TextStyles)
        boxes[each] = styleBox(each)->isChecked();
    // The rule runs the handlers of the boxes it changes itself; here they are only shown.
    textStyleClicked(m_text, boxes, style);
    for (TextStyle each : TextStyles) {
        const QSignalBlocker blocker(styleBox(each));
        styleBox(each)->setChecked(boxes[each]);
    }
}

void frmText::fraTextFontID_DragDrop()
{
    m_text.fontId = m_ui.cmbTextFontID->currentText().toStdString();
}

void frmText::newRecordDefaults()
{
    setTextDefaults(m_text);
}

} // namespace vorlane
