#include "frmAppSoundProps.h"

namespace vorlane {

frmAppSoundProps::frmAppSoundProps(Document &doc, frmMain *mainWindow, QWidget *parent)
    : AppPropsForm(doc, mainWindow, parent)
{
    m_ui.setupUi(this);
    AppSettingsRec &a = settings();
    bindNumber(m_ui.txtAppSoundMix, a.soundMix); // a 32-bit field
    bindNumber(m_ui.txtAppSoundChannels, a.soundChannels);
}

} // namespace vorlane
