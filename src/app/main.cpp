#include "frmAbout.h"
#include "frmMain.h"
#include "QtUserInterface.h"
#include "RegisterEditors.h"
#include "Version.h"

#include <QApplication>

#include <memory>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QString::fromUtf8(vorlane::ProgramTitle));
    QApplication::setApplicationVersion(QString::fromUtf8(vorlane::VersionText));
    QApplication::setWindowIcon(vorlane::programIcon());

    auto document = vorlane::makeDocument();
    vorlane::QtUserInterface userInterface;
    vorlane::frmMain window(*document, userInterface);
    userInterface.setParent(&window);
    vorlane::registerEditors(window);
    window.show();
    return QApplication::exec();
}
