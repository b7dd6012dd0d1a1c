#pragma once

#include "EditorForm.h"
#include "model/modGlobal.h"

#include "ui_frmSprite.h"

#include <memory>
#include <string>

namespace vorlane {

class ObjectListView;
class frmMain;

// The sprite editor: one SpriteRec, with the list of its animations, which it adds, removes
// and opens in the animation editor.
class frmSprite : public EditorForm
{
    Q_OBJECT
public:
    // Edits the sprite at the document's current object index.
    explicit frmSprite(Document &doc, frmMain *mainWindow = nullptr, QWidget *parent = nullptr);
    ~frmSprite() override;

    // Event handlers.
    void cmdSpriteNewAnim_Click();
    void cmdSpriteRemoveAnim_Click();
    void cmdSpriteEditAnim_Click();
    void lstAnimObjects_Click();
    void lstAnimObjects_DblClick();

    // Fills the "Animation Quick Stats" panel for animation `indexAnim` of sprite `indexSprite`.
    void UpdateAnimStats(int indexAnim, int indexSprite);

    // What the closing animation editor hands back, in this order: the selected row now
    // reads `id` (its statistics refresh); then, after the frame count is stored, the Current
    // Animation list is filled again.
    void refreshAnimationRow(const std::string &id);
    void refillCurrentAnimations();

    SpriteRec &record() { return m_sprite; }
    const ObjectList &animationRows() const { return m_rows; }
    const Ui::frmSprite &form() const { return m_ui; }

protected:
    void newRecordDefaults() override;
    void handBack() override;

private:
    void declareBindings();
    void enableRowButtons(bool enabled);

    Ui::frmSprite m_ui;
    SpriteRec &m_sprite;
    ObjectList m_rows;
    ObjectListView *m_rowView = nullptr;
    ListBinding *m_currentAnim = nullptr;
};

} // namespace vorlane
