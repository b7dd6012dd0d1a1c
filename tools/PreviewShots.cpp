// Pictures of the image, animation and scene editors with their previews, for the manual:
// opens the example project and saves each editor as a PNG in docs/images. Run from the
// repository's folder under a display (scripts use xvfb-run), as
//     build/dev/vorlane-preview-shots
#include "AnimationPlayer.h"
#include "QtUserInterface.h"
#include "frmAnim.h"
#include "frmImage.h"
#include "frmScene.h"
#include "frmSprite.h"
#include "model/Kinds.h"
#include "project/Open.h"
#include "rules/PictureSpec.h"
#include "rules/ProgressSink.h"

#include <QApplication>
#include <QElapsedTimer>
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
    return 0;
}
