#include "frmSFX.h"

namespace vorlane {

frmSFX::frmSFX(Document &doc, frmMain *mainWindow, QWidget *parent)
    : MediaEditor(doc, SFXForm, mainWindow, parent)
{
    m_ui.setupUi(this);
    declareBindings();
}

} // namespace vorlane
