#pragma once

#include "MediaEditor.h"

#include "ui_frmMusic.h"

namespace vorlane {

class frmMain;

// The editor of one music track: an identifier, the path of its file and its default volume,
// priority and pan.
class frmMusic : public MediaEditor
{
    Q_OBJECT
public:
    // Edits the record at the document's current object index.
    explicit frmMusic(Document &doc, frmMain *mainWindow = nullptr, QWidget *parent = nullptr);

    const Ui::frmMusic &form() const { return m_ui; }

private:
    Ui::frmMusic m_ui;
};

} // namespace vorlane
