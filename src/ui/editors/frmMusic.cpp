#include "frmMusic.h"

namespace vorlane {

frmMusic::frmMusic(Document &doc, frmMain *mainWindow, QWidget *parent)
    : MediaEditor(doc, MusicForm, mainWindow, parent)
{
    m_ui.setupUi(this);
    declareBindings();
}

} // namespace vorlane
