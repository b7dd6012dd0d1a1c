#include "frmAppSplashProps.h"

namespace vorlane {

frmAppSplashProps::frmAppSplashProps(Document &doc, frmMain *mainWindow, QWidget *parent)
    : AppPropsForm(doc, mainWindow, parent)
{
    m_ui.setupUi(this);
    AppSettingsRec &a = settings();
    bindCheck(m_ui.chkAppSplash, a.splashEnabled, [this]() { showSplashEnabled(); });
    loadStep([this]() { showSplashEnabled(); });
    bindNumber(m_ui.txtAppSplashTimer, a.splashTimer);
    bindNumber(m_ui.txtAppSplashScreenWidth, a.splashWidth);
    bindNumber(m_ui.txtAppSplashScreenHeight, a.splashHeight);
    // The depth box writes the splash height too, and splashBpp is never set here: the last
    // of the two boxes edited wins, as the engine's splash settings have always been made.
    bindNumber(m_ui.txtAppSplashScreenBPP, a.splashHeight);
    bindReference(m_ui.txtAppSplashImagePropsPath, a.splashImagePath);
    bindNumber(m_ui.txtAppSplashImagePropsRed, a.splashRed, byteField());
    bindNumber(m_ui.txtAppSplashImagePropsGreen, a.splashGreen, byteField());
    bindNumber(m_ui.txtAppSplashImagePropsBlue, a.splashBlue, byteField());
}

void frmAppSplashProps::showSplashEnabled()
{
    enableControls({m_ui.frmAppSplashImage, m_ui.frmAppSplashScreen, m_ui.frmAppSplashTimer},
                   settings().splashEnabled == 1);
}

} // namespace vorlane
