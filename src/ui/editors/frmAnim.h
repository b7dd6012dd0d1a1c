#pragma once

#include "EditorForm.h"
#include "model/modGlobal.h"

#include "ui_frmAnim.h"

namespace vorlane {

class ObjectListView;
class frmSprite;

// The animation editor: one animation of a sprite, its timing, flags, direction, default
// frame and frame sequence. It opens only from the sprite editor, on top of it.
class frmAnim : public EditorForm
{
    Q_OBJECT
public:
    // Edits the animation at the document's current animation index of the sprite at its
    // current object index, for `spriteEditor`, which it refreshes when it closes.
    frmAnim(Document &doc, frmSprite &spriteEditor);
    ~frmAnim() override;

    // Event handlers.
    void txtAnimSequenceAdd_Change();
    void cmdAnimSequenceAdd_Click();
    void cmdAnimSequenceDelete_Click();
    void cmdAnimSequenceUp_Click();
    void cmdAnimSequenceDown_Click();
    // A cell picked on the sheet goes into the Frame box as if typed; a double click adds it.
    void picAnimSheet_CellClicked(int cell);
    void picAnimSheet_CellDoubleClicked(int cell);

    AnimRec &record() { return m_anim; }
    const ObjectList &sequenceRows() const { return m_rows; }
    const Ui::frmAnim &form() const { return m_ui; }

protected:
    void newRecordDefaults() override;
    SlotView recordSlot() override;
    void handBack() override;

private:
    void declareBindings();
    // The preview beside the sequence: the sprite's image, the frames and their timing, and
    // the cell of the selected row while stopped. It only reads the records.
    void connectPreview();
    void showPreview();

    Ui::frmAnim m_ui;
    frmSprite &m_spriteEditor;
    SpriteRec &m_sprite;
    AnimRec &m_anim;
    ObjectList m_rows;
    ObjectListView *m_rowView = nullptr;
};

} // namespace vorlane
