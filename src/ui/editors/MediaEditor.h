#pragma once

#include "EditorForm.h"
#include "MediaForm.h"
#include "rules/MediaFieldRules.h"

class QLineEdit;

namespace vorlane {

class frmMain;

// The editor of a font, a music track or a sound effect: an identifier, a file path and, for
// music and sound effects, the default volume, priority and pan, each 0..255. The three
// differ only in their form and kind; each window is a thin declaration on this one.
class MediaEditor : public EditorForm
{
    Q_OBJECT
protected:
    // Edits the record of `form`'s kind at the document's current object index.
    MediaEditor(Document &doc, const MediaForm &form, frmMain *mainWindow, QWidget *parent);

    // Binds the controls of the form, found by their names; called once the form is set up.
    void declareBindings();
    void newRecordDefaults() override;

private:
    QLineEdit *box(const char *role) const;

    MediaForm m_form;
    MediaFields m_fields;
};

} // namespace vorlane
