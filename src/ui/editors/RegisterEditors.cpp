#include "RegisterEditors.h"

#include "frmButton.h"
#include "frmFont.h"
#include "frmMain.h"
#include "frmMusic.h"
#include "frmSFX.h"
#include "frmScene.h"
#include "frmSprite.h"
#include "model/Kinds.h"

#include <type_traits>

namespace vorlane {

namespace {

// Opens `Editor` modally on the current object, which must lie inside its table.
template<class Editor>
void openEditor(Kind kind, frmMain &window)
{
    if (!slotInTable(kind, window.document().currentObjectIndex))
        return;
    if constexpr (std::is_constructible_v<Editor, Document &, UserInterface &, frmMain *>) {
        Editor editor(window.document(), window.userInterface(), &window);
        editor.run();
    } else {
        Editor editor(window.document(), &window);
        editor.run();
    }
}

} // namespace

void registerEditors(frmMain &window)
{
    window.setEditor(Kind::Button,
                     [](frmMain &main) { openEditor<frmButton>(Kind::Button, main); });
    window.setEditor(Kind::Font, [](frmMain &main) { openEditor<frmFont>(Kind::Font, main); });
    window.setEditor(Kind::Music, [](frmMain &main) { openEditor<frmMusic>(Kind::Music, main); });
    window.setEditor(Kind::SFX, [](frmMain &main) { openEditor<frmSFX>(Kind::SFX, main); });
    window.setEditor(Kind::Scene, [](frmMain &main) { openEditor<frmScene>(Kind::Scene, main); });
    window.setEditor(Kind::Sprite,
                     [](frmMain &main) { openEditor<frmSprite>(Kind::Sprite, main); });
}

} // namespace vorlane
