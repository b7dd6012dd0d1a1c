#include "frmAbout.h"
#include "frmMain.h"
#include "QtUserInterface.h"
#include "RegisterEditors.h"
#include "Version.h"

#include <QApplication>

#include <cstdio>
#include <cstring>
#include <memory>

int main(int argc, char **argv)
{
    // The editor has no command line of its own; --version alone answers without a display,
    // so that scripts and packagers can check an installed copy.
    if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
        std::printf("vorlane %s\n", vorlane::VersionText);
        return 0;
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QString::fromUtf8(vorlane::ProgramTitle));
    QApplication::setApplicationVersion(QString::fromUtf8(vorlane::VersionText));
    QApplication::setWindowIcon(vorlane::programIcon());
    // Desktops match the running editor to its desktop entry, and so to its icon, by this name.
    QGuiApplication::setDesktopFileName(QStringLiteral(VORLANE_APP_ID));

    auto document = vorlane::makeDocument();
    vorlane::QtUserInterface userInterface;
    vorlane::frmMain window(*document, userInterface);
    userInterface.setParent(&window);
    vorlane::registerEditors(window);
    window.show();
    // Offers what an editor that ended left unsaved, then keeps this editor's own recovery file.
    window.startRecovery();
    return QApplication::exec();
}
