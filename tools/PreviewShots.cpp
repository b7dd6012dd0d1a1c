// Pictures of the image, animation, scene, button, cursor and text editors with their
// previews, for the manual:
// opens the example project and saves each editor as a PNG in docs/images. Run from the
// repository's folder under a display (scripts use xvfb-run), as
//     build/dev/vorlane-preview-shots
#include "AnimationPlayer.h"
#include "QtUserInterface.h"
#include "SceneCanvas.h"
#include "ScenePreview.h"
#include "frmAnim.h"
#include "frmButton.h"
#include "frmCursor.h"
#include "frmImage.h"
#include "frmScene.h"
#include "frmSprite.h"
#include "frmText.h"
#include "model/Kinds.h"
#include "project/Open.h"
#include "rules/PictureSpec.h"
#include "rules/ProgressSink.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <cstdio>
#include <memory>

using namespace vorlane;

namespace {

void save(QWidget &window, const char *file)
{
    window.show();
    window.resize(window.sizeHint().expandedTo(window.size()));
    QTest::qWait(300);
    window.grab().save(QString::fromUtf8(file));
    std::printf("%s\n", file);
}

int slotOf(const Document &doc, Kind kind, const char *id)
{
    return findListedObject(doc, kind, id).value_or(0);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    auto doc = makeDocument();
    QtUserInterface ui;
    ProgressSink progress;
    if (!Open(*doc, "examples/demo.dvb", ui, progress).opened())
        return 1;

    doc->currentObjectIndex = static_cast<int16_t>(slotOf(*doc, Kind::Image, "imgMenuButtons"));
    frmImage image(*doc);
    image.Form_Load();
    save(image, "docs/images/image-editor-preview.png");
    image.hide();

    doc->currentObjectIndex = static_cast<int16_t>(slotOf(*doc, Kind::Sprite, "sprHero"));
    doc->currentAnimIndex = 0;
    frmSprite sprite(*doc);
    frmAnim anim(*doc, sprite);
    anim.Form_Load();
    anim.form().picAnimPlayer->play();
    QTest::qWait(250);
    save(anim, "docs/images/animation-editor-preview.png");
    anim.form().picAnimPlayer->stop();
    anim.hide();

    doc->currentObjectIndex = static_cast<int16_t>(slotOf(*doc, Kind::Scene, "scnTitle"));
    frmScene sceneEditor(*doc);
    sceneEditor.Form_Load();
    save(sceneEditor, "docs/images/scene-editor-preview.png");
    // The "Play" button's layer selected, "Snap to 8 px" checked, the pointer over the hero.
    sceneEditor.form().lstSceneLayers->setCurrentRow(2);
    sceneEditor.form().picScenePreview->snapBox()->setChecked(true);
    SceneCanvas *canvas = sceneEditor.form().picScenePreview->canvas();
    QTest::mouseMove(canvas, canvas->objectRect(1).center());
    save(sceneEditor, "docs/images/scene-editor-drag.png");
    sceneEditor.hide();

    doc->currentObjectIndex = static_cast<int16_t>(slotOf(*doc, Kind::Button, "btnPlay"));
    frmButton button(*doc);
    button.Form_Load();
    button.form().optButtonOver->setChecked(true);
    save(button, "docs/images/button-editor-sheet.png");
    button.hide();

    // The example has no cursor and no font: the pictures use ones made here, which are
    // never saved.
    doc->Cursors[0] = CursorRec{};
    doc->Cursors[0].inUse = -1;
    doc->Cursors[0].id = "curHero";
    doc->Cursors[0].imageId = "imgHero";
    doc->Cursors[0].orientation = 5;
    doc->list(Kind::Cursor).lines.push_back({"curHero", 0});
    doc->currentObjectIndex = 0;
    frmCursor cursor(*doc);
    cursor.Form_Load();
    save(cursor, "docs/images/cursor-editor-preview.png");
    cursor.hide();

    const char *dejaVu = "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf";
    if (QFileInfo::exists(QString::fromUtf8(dejaVu))) {
        doc->Fonts[0] = FontRec{};
        doc->Fonts[0].inUse = -1;
        doc->Fonts[0].id = "fntMenu";
        doc->Fonts[0].path = dejaVu;
        doc->list(Kind::Font).lines.push_back({"fntMenu", 0});
    }
    doc->currentObjectIndex = static_cast<int16_t>(slotOf(*doc, Kind::Text, "txtPlay"));
    TextRec &play = doc->Texts[static_cast<size_t>(doc->currentObjectIndex)];
    play.fontId = "fntMenu";
    play.content = "Play * Jouer \u2192";
    play.backRed = 40;
    play.backGreen = 60;
    play.backBlue = 120;
    play.clipWidth = 150;
    play.clipHeight = 30;
    frmText text(*doc);
    text.Form_Load();
    save(text, "docs/images/text-editor-preview.png");
    return 0;
}
