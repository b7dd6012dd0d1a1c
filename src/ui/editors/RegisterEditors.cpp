#include "RegisterEditors.h"

#include "frmButton.h"
#include "frmMain.h"
#include "frmSprite.h"
#include "model/Kinds.h"

namespace vorlane {

namespace {

// Opens `Editor` modally on the current object, which must lie inside its table.
template<class Editor>
void openEditor(Kind kind, frmMain &window)
{
    if (!slotInTable(kind, window.document().currentObjectIndex))
        return;
    Editor editor(window.document(), &window);
    editor.run();
}

} // namespace

void registerEditors(frmMain &window)
{
    window.setEditor(Kind::Button,
                     [](frmMain &main) { openEditor<frmButton>(Kind::Button, main); });
    window.setEditor(Kind::Sprite,
                     [](frmMain &main) { openEditor<frmSprite>(Kind::Sprite, main); });
}

} // namespace vorlane
