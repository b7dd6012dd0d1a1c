#pragma once

#include "MediaEditor.h"

#include "ui_frmFont.h"

namespace vorlane {

class frmMain;

// The editor of one font: an identifier and the path of its file.
class frmFont : public MediaEditor
{
    Q_OBJECT
public:
    // Edits the record at the document's current object index.
    explicit frmFont(Document &doc, frmMain *mainWindow = nullptr, QWidget *parent = nullptr);

    const Ui::frmFont &form() const { return m_ui; }

private:
    Ui::frmFont m_ui;
};

} // namespace vorlane
