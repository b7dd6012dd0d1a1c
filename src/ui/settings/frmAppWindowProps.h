#pragma once

#include "AppPropsForm.h"

#include "ui_frmAppWindowProps.h"

namespace vorlane {

// The window and screen settings: caption, icon, full screen or windowed, size, depth,
// frame rate and the tile engine.
class frmAppWindowProps : public AppPropsForm
{
    Q_OBJECT
public:
    explicit frmAppWindowProps(Document &doc,
                               frmMain *mainWindow = nullptr,
                               QWidget *parent = nullptr);

    // Event handlers of the screen type options, after the option's code has been stored.
    void optAppScreenTypeFull_Click();
    void optAppScreentypeWindow_Click();

    const Ui::frmAppWindowProps &form() const { return m_ui; }

private:
    void declareBindings();

    Ui::frmAppWindowProps m_ui;
};

} // namespace vorlane
