#pragma once

#include "AppPropsForm.h"

#include "ui_frmAppSplashProps.h"

namespace vorlane {

// The splash screen: whether it shows, for how long, its screen and its image with the
// image's transparent colour.
class frmAppSplashProps : public AppPropsForm
{
    Q_OBJECT
public:
    explicit frmAppSplashProps(Document &doc,
                               frmMain *mainWindow = nullptr,
                               QWidget *parent = nullptr);

    const Ui::frmAppSplashProps &form() const { return m_ui; }

private:
    void showSplashEnabled();

    Ui::frmAppSplashProps m_ui;
};

} // namespace vorlane
