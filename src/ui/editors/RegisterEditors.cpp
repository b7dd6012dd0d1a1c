#include "RegisterEditors.h"

#include "frmButton.h"
#include "frmCursor.h"
#include "frmImage.h"
#include "frmMain.h"
#include "frmText.h"
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
    window.setEditor(Kind::Image, [](frmMain &main) { openEditor<frmImage>(Kind::Image, main); });
    window.setEditor(Kind::Cursor,
                     [](frmMain &main) { openEditor<frmCursor>(Kind::Cursor, main); });
    window.setEditor(Kind::Text, [](frmMain &main) { openEditor<frmText>(Kind::Text, main); });
}

} // namespace vorlane
