#pragma once

#include "MediaEditor.h"

#include "ui_frmSFX.h"

namespace vorlane {

class frmMain;

// The editor of one sound effect: an identifier, the path of its file and its default volume,
// priority and pan.
class frmSFX : public MediaEditor
{
    Q_OBJECT
public:
    // Edits the record at the document's current object index.
    explicit frmSFX(Document &doc, frmMain *mainWindow = nullptr, QWidget *parent = nullptr);

    const Ui::frmSFX &form() const { return m_ui; }

private:
    Ui::frmSFX m_ui;
};

} // namespace vorlane
