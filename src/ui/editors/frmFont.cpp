#include "frmFont.h"

namespace vorlane {

frmFont::frmFont(Document &doc, frmMain *mainWindow, QWidget *parent)
    : MediaEditor(doc, FontForm, mainWindow, parent)
{
    m_ui.setupUi(this);
    declareBindings();
}

} // namespace vorlane
