#pragma once

#include "EditorForm.h"
#include "model/modGlobal.h"

#include "ui_frmImage.h"

namespace vorlane {

class frmMain;

// The image editor: one ImageRec, its file, where it is drawn, its cell size, its
// transparency colour and alpha, and whether it is bound (only bound images serve as
// templates, icons, cursor, sprite and selection images).
class frmImage : public EditorForm
{
    Q_OBJECT
public:
    // Edits the image at the document's current object index.
    explicit frmImage(Document &doc, frmMain *mainWindow = nullptr, QWidget *parent = nullptr);

    ImageRec &record() { return m_image; }
    const Ui::frmImage &form() const { return m_ui; }

protected:
    void newRecordDefaults() override;

private:
    // Draws the record's file, cells, colour key and alpha in the preview beside the boxes.
    void showPreview();

    Ui::frmImage m_ui;
    ImageRec &m_image;
};

} // namespace vorlane
