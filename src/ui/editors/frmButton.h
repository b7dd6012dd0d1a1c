#pragma once

#include "EditorForm.h"
#include "PreviewPicture.h"
#include "model/modGlobal.h"
#include "rules/PictureSpec.h"

#include "ui_frmButton.h"

namespace vorlane {

class frmMain;

// The button editor: one ButtonRec, either a graphic button drawn from the cells of a
// template image or a hot spot with only a size and a position.
class frmButton : public EditorForm
{
    Q_OBJECT
public:
    // Edits the button at the document's current object index.
    explicit frmButton(Document &doc, frmMain *mainWindow = nullptr, QWidget *parent = nullptr);

    // Event handlers of the type switch.
    void optButton_Click();
    void optHotspot_Click();
    // A cell picked on the template sheet goes into the box of the chosen state, as if typed.
    void picButtonSheet_CellClicked(int cell);

    ButtonRec &record() { return m_button; }
    const Ui::frmButton &form() const { return m_ui; }

protected:
    void newRecordDefaults() override;

private:
    void declareBindings();
    void showType();
    void showTemplateCell();
    // The icon and the caption text drawn over the state's cell, when they are found.
    void showDecoration();
    std::vector<QWidget *> graphicOnlyControls() const;

    Ui::frmButton m_ui;
    ButtonRec &m_button;
    TextBinding *m_id = nullptr;
    TextBinding *m_switch1 = nullptr;
    TextBinding *m_switch2 = nullptr;
    TextBinding *m_up = nullptr;
    TextBinding *m_disabled = nullptr;
    ListBinding *m_template = nullptr;
    PictureSpec m_iconSpec;
    PreviewPicture m_icon;
};

} // namespace vorlane
