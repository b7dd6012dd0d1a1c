#include "frmAppLogProps.h"

namespace vorlane {

frmAppLogProps::frmAppLogProps(Document &doc, frmMain *mainWindow, QWidget *parent)
    : AppPropsForm(doc, mainWindow, parent)
{
    m_ui.setupUi(this);
    AppSettingsRec &a = settings();
    bindCheck(m_ui.chkAppLog, a.logEnabled, [this]() { showLogEnabled(); });
    loadStep([this]() { showLogEnabled(); });
    bindReference(m_ui.txtAppLogPath, a.logPath);
}

void frmAppLogProps::showLogEnabled()
{
    m_ui.txtAppLogPath->setEnabled(settings().logEnabled == 1);
}

} // namespace vorlane
