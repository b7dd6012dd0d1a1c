#include "frmAbout.h"

#include "platform/AboutInfo.h"
#include "platform/SysInfo.h"
#include "rules/UserInterface.h"
#include "Version.h"

#include <QIcon>
#include <QFileInfo>

// The icon lives in the library's resources, which a static library must register itself.
static void initAboutResources()
{
    Q_INIT_RESOURCE(vorlane);
}

namespace vorlane {

QIcon programIcon()
{
    initAboutResources();
    return QIcon(QStringLiteral(":/icons/vorlane.png"));
}

frmAbout::frmAbout(UserInterface &userInterface,
                   Registry &registry,
                   std::function<bool(const QString &)> startProgram,
                   QWidget *parent)
    : QDialog(parent)
    , m_userInterface(userInterface)
    , m_registry(registry)
    , m_startProgram(std::move(startProgram))
{
    m_ui.setupUi(this);
    connect(m_ui.cmdOK, &QPushButton::clicked, this, &frmAbout::cmdOK_Click);
    connect(m_ui.cmdSysInfo, &QPushButton::clicked, this, &frmAbout::cmdSysInfo_Click);
    Form_Load();
}

void frmAbout::Form_Load()
{
    setWindowTitle(QStringLiteral("About ") + QString::fromUtf8(ProgramTitle));
    m_ui.lblVersion->setText(
        QString::fromStdString(versionCaption(VersionMajor, VersionMinor, VersionRevision)));
    m_ui.lblTitle->setText(QString::fromUtf8(ProgramTitle));
    m_ui.lblDescription->setText(QString::fromUtf8(ProgramDescription));
    m_ui.picIcon->setPixmap(programIcon().pixmap(48, 48));
}

void frmAbout::cmdOK_Click()
{
    accept();
}

void frmAbout::cmdSysInfo_Click()
{
    StartSysInfo();
}

void frmAbout::StartSysInfo()
{
    const auto program = findSysInfoProgram(m_registry, [](const std::string &path) {
        return QFileInfo::exists(QString::fromStdString(path));
    });
    if (!program) {
        m_userInterface.showMessage(
            {SysInfoUnavailable, ProgramTitle, MessageIcon::None, MessageButtons::OK});
        return;
    }
    m_startProgram(QString::fromStdString(*program));
}

} // namespace vorlane
