#pragma once

#include "EditorForm.h"
#include "model/modGlobal.h"
#include "rules/TextFieldRules.h"

#include "ui_frmText.h"

class QCheckBox;
class QRadioButton;

namespace vorlane {

class TextPreview;
class frmMain;

// The text editor: one TextRec, a piece of text with its font, position, colours, styles,
// clipping, typing delay and type (plain text, input field or selectable entry).
class frmText : public EditorForm
{
    Q_OBJECT
public:
    // Edits the text at the document's current object index.
    explicit frmText(Document &doc, frmMain *mainWindow = nullptr, QWidget *parent = nullptr);

    // A drop onto the "Text Font ID" group stores the font box's text as the font.
    void fraTextFontID_DragDrop();

    TextRec &record() { return m_text; }
    const Ui::frmText &form() const { return m_ui; }
    // The type option whose code is `code` (0 to 2), as the form names it.
    QRadioButton *typeOption(int code) const;
    QCheckBox *styleBox(TextStyle style) const;

protected:
    void newRecordDefaults() override;

private:
    void styleClicked(TextStyle style);
    // The text as the engine draws it, beside the boxes. It only reads the records.
    void showPreview();

    Ui::frmText m_ui;
    TextRec &m_text;
    TextPreview *m_preview = nullptr;
};

} // namespace vorlane
