// Pictures of the editors for the manual: opens the example project and saves the image,
// sprite, animation and scene editors, their previews and the custom filter window as PNGs in
// docs/images. Run from the repository's folder under a display (scripts use xvfb-run), as
//     build/dev/vorlane-preview-shots
#include "AnimationPlayer.h"
#include "ImageSheetView.h"
#include "ScenePreview.h"
#include "QtUserInterface.h"
#include "frmAnim.h"
#include "frmImage.h"
#include "frmLogCustom.h"
#include "frmScene.h"
#include "frmSprite.h"
#include "model/Kinds.h"
#include "project/Open.h"
#include "rules/PictureSpec.h"
#include "rules/ProgressSink.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
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

// A preview alone, as the window shown last holds it.
void savePart(QWidget &part, const char *file)
{
    part.grab().save(QString::fromUtf8(file));
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
    savePart(*image.form().picImageSheet, "docs/images/preview-sheet.png");
    image.hide();

    doc->currentObjectIndex = static_cast<int16_t>(slotOf(*doc, Kind::Sprite, "sprHero"));
    doc->currentAnimIndex = 0;
    frmSprite sprite(*doc);
    sprite.Form_Load();
    save(sprite, "docs/images/sprite-editor.png");
    sprite.hide();
    frmAnim anim(*doc, sprite);
    anim.Form_Load();
    save(anim, "docs/images/animation-editor.png");
    anim.form().picAnimPlayer->play();
    QTest::qWait(250);
    save(anim, "docs/images/animation-editor-preview.png");
    savePart(*anim.form().picAnimPlayer, "docs/images/preview-animation.png");
    anim.form().picAnimPlayer->stop();
    anim.hide();

    doc->currentObjectIndex = static_cast<int16_t>(slotOf(*doc, Kind::Scene, "scnTitle"));
    frmScene sceneEditor(*doc);
    sceneEditor.Form_Load();
    save(sceneEditor, "docs/images/scene-editor-preview.png");
    savePart(*sceneEditor.form().picScenePreview, "docs/images/preview-scene.png");
    sceneEditor.hide();

    frmLogCustom custom(*doc, ui);
    custom.Form_Load();
    custom.form().txtCustomFilterName->setText(QStringLiteral("Loading screen"));
    save(custom, "docs/images/log-custom.png");
    return 0;
}
