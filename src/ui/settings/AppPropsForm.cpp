#include "AppPropsForm.h"

#include "frmMain.h"

namespace vorlane {

AppPropsForm::AppPropsForm(Document &doc, frmMain *mainWindow, QWidget *parent)
    : BoundForm(doc, parent ? parent : mainWindow)
    , m_mainWindow(mainWindow)
{}

void AppPropsForm::Form_Unload()
{
    if (m_mainWindow)
        m_mainWindow->UpdateAppStats();
}

} // namespace vorlane
