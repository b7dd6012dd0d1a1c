#pragma once

#include "BoundForm.h"
#include "model/Kinds.h"
#include "model/modGlobal.h"

#include <memory>

namespace vorlane {

class frmMain;
class QtUserInterface;
class UserInterface;

// What every object editor shares: it edits one record in place, declared as a list of
// bindings from its controls to the record's fields; loading applies the new-record defaults
// and fills the controls in the order the bindings were declared; Escape and the close box
// both close it through done(), which hands the record's id back to the main window's list.
class EditorForm : public BoundForm
{
    Q_OBJECT
public:
    // Edits the record of `kind` at the document's current object index. Without a main
    // window the hand-back changes only the document's list.
    EditorForm(Document &doc, Kind kind, frmMain *mainWindow, QWidget *parent = nullptr);
    ~EditorForm() override;

    // Applies the defaults when the record was never opened, then fills every control.
    void Form_Load() override;
    // Hands the record back to the main window's list.
    void Form_Unload() override;

    Kind kind() const { return m_kind; }
    int slot() const { return m_slot; }
    frmMain *mainWindow() const { return m_mainWindow; }
    // Where the editor's messages go: the main window's, or message boxes of its own.
    UserInterface &userInterface();

protected:
    // The kind's own defaults of a new record; id and slot flags are set by Form_Load.
    virtual void newRecordDefaults() = 0;
    // The slot flags and id of the edited record.
    virtual SlotView recordSlot();
    // The closing hand-back; by default to the main window's list of the editor's kind.
    virtual void handBack();

private:
    Kind m_kind;
    frmMain *m_mainWindow;
    int m_slot;
    std::unique_ptr<QtUserInterface> m_ownUserInterface;
};

} // namespace vorlane
