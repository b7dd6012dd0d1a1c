#pragma once

#include "BoundForm.h"
#include "model/modGlobal.h"

namespace vorlane {

class frmMain;

// What the four application property dialogs share: they edit AppSettings in place and, on
// closing, refresh the application page's quick statistics.
class AppPropsForm : public BoundForm
{
    Q_OBJECT
public:
    // Without a main window, closing refreshes nothing.
    AppPropsForm(Document &doc, frmMain *mainWindow, QWidget *parent);

    // Refreshes the main window's application statistics (UpdateAppStats).
    void Form_Unload() override;

    AppSettingsRec &settings() { return document().AppSettings; }

private:
    frmMain *m_mainWindow;
};

} // namespace vorlane
