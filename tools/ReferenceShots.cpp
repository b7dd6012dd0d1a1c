// Pictures of Used By, Rename Object, Find Object and the problems panel for the manual: opens
// the example project in the main window and saves each window as a PNG in docs/images. Run
// from the repository's folder under a display (Xvfb), as
//     build/dev/vorlane-reference-shots
#include "ProblemsPanel.h"
#include "QtUserInterface.h"
#include "RegisterEditors.h"
#include "UsedByPanel.h"
#include "frmFind.h"
#include "frmMain.h"
#include "frmRename.h"
#include "model/Kinds.h"
#include "rules/PictureSpec.h"

#include <QApplication>
#include <QListWidget>
#include <QTest>

#include <cstdio>
#include <memory>

using namespace vorlane;

namespace {

// Answers the Open dialog with the example project.
class ExampleChooser : public QtUserInterface
{
public:
    std::optional<std::string> chooseFile(const FileDialogRequest &) override
    {
        return std::string("examples/demo.dvb");
    }
};

void save(QWidget &window, const char *file)
{
    window.show();
    QTest::qWait(300);
    window.grab().save(QString::fromUtf8(file));
    std::printf("%s\n", file);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    auto doc = makeDocument();
    ExampleChooser ui;
    frmMain window(*doc, ui);
    registerEditors(window);
    window.resize(1100, 720);
    window.show();
    window.form().mnuOpen->trigger();
    const ObjectRef buttons{Kind::Image,
                            findListedObject(*doc, Kind::Image, "imgMenuButtons").value_or(0)};
    window.selectObject(buttons);
    save(window, "docs/images/references-main.png");

    frmRename rename(*doc, buttons, &window);
    rename.show();
    QTest::keyClicks(rename.form().txtRenameID, QStringLiteral("imgHero"));
    rename.cmdRenameOK_Click();
    save(rename, "docs/images/references-rename.png");
    rename.hide();

    window.form().mnuFind->trigger();
    frmFind *find = window.findWindow();
    QTest::keyClicks(find->form().txtFind, QStringLiteral("hero"));
    save(*find, "docs/images/references-find.png");
    return 0;
}
