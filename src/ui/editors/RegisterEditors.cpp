#include "RegisterEditors.h"

#include "frmButton.h"
#include "frmCursor.h"
#include "frmFont.h"
#include "frmImage.h"
#include "frmMain.h"
#include "frmMusic.h"
#include "frmSFX.h"
#include "frmScene.h"
#include "frmSprite.h"
#include "frmText.h"
#include "model/Kinds.h"

namespace vorlane {

namespace {

// Opens `Editor` modally on the current object, which must lie inside its table.
template<Kind kind, class Editor>
void openEditor(frmMain &window)
{
    if (!slotInTable(kind, window.document().currentObjectIndex))
        return;
    Editor editor(window.document(), &window);
    editor.run();
}

} // namespace

void registerEditors(frmMain &window)
{
    window.setEditor(Kind::Button, openEditor<Kind::Button, frmButton>);
    window.setEditor(Kind::Cursor, openEditor<Kind::Cursor, frmCursor>);
    window.setEditor(Kind::Image, openEditor<Kind::Image, frmImage>);
    window.setEditor(Kind::Text, openEditor<Kind::Text, frmText>);
    window.setEditor(Kind::Font, openEditor<Kind::Font, frmFont>);
    window.setEditor(Kind::Music, openEditor<Kind::Music, frmMusic>);
    window.setEditor(Kind::SFX, openEditor<Kind::SFX, frmSFX>);
    window.setEditor(Kind::Sprite, openEditor<Kind::Sprite, frmSprite>);
    window.setEditor(Kind::Scene, openEditor<Kind::Scene, frmScene>);
}

} // namespace vorlane
