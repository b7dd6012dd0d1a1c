#include "EditorForm.h"

#include "QtUserInterface.h"
#include "frmMain.h"
#include "rules/EditorHandBack.h"

namespace vorlane {

EditorForm::EditorForm(Document &doc, Kind kind, frmMain *mainWindow, QWidget *parent)
    : BoundForm(doc, parent)
    , m_kind(kind)
    , m_mainWindow(mainWindow)
    , m_slot(doc.currentObjectIndex)
{}

EditorForm::~EditorForm() = default;

SlotView EditorForm::recordSlot()
{
    return slotOf(document(), m_kind, m_slot);
}

void EditorForm::Form_Load()
{
    SlotView record = recordSlot();
    applyNewRecordDefaults(record, [this](SlotView &) { newRecordDefaults(); });
    fillControls();
}

void EditorForm::Form_Unload()
{
    handBack();
}

void EditorForm::handBack()
{
    handBackToList(document(), m_kind, recordSlot().id);
    if (m_mainWindow)
        m_mainWindow->showList(m_kind);
}

UserInterface &EditorForm::userInterface()
{
    if (m_mainWindow)
        return m_mainWindow->userInterface();
    if (!m_ownUserInterface)
        m_ownUserInterface = std::make_unique<QtUserInterface>(this);
    return *m_ownUserInterface;
}

} // namespace vorlane
