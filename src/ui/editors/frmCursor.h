#pragma once

#include "EditorForm.h"
#include "model/modGlobal.h"

#include "ui_frmCursor.h"

class QRadioButton;

namespace vorlane {

class CursorPreview;
class frmMain;

// The cursor editor: one CursorRec, the bound image the mouse cursor shows and which point
// of it is the hot point.
class frmCursor : public EditorForm
{
    Q_OBJECT
public:
    // Edits the cursor at the document's current object index.
    explicit frmCursor(Document &doc, frmMain *mainWindow = nullptr, QWidget *parent = nullptr);

    CursorRec &record() { return m_cursor; }
    const Ui::frmCursor &form() const { return m_ui; }
    // The orientation option whose code is `code` (1 to 5), as the form names it.
    QRadioButton *orientationOption(int code) const;

protected:
    void newRecordDefaults() override;

private:
    // The cursor's picture with its hot point, beside the options. It only reads the records.
    void showPreview();

    Ui::frmCursor m_ui;
    CursorRec &m_cursor;
    CursorPreview *m_preview = nullptr;
};

} // namespace vorlane
