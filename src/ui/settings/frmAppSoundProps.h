#pragma once

#include "AppPropsForm.h"

#include "ui_frmAppSoundProps.h"

namespace vorlane {

// The sound settings: the mixing rate and the number of software channels.
class frmAppSoundProps : public AppPropsForm
{
    Q_OBJECT
public:
    explicit frmAppSoundProps(Document &doc,
                              frmMain *mainWindow = nullptr,
                              QWidget *parent = nullptr);

    const Ui::frmAppSoundProps &form() const { return m_ui; }

private:
    Ui::frmAppSoundProps m_ui;
};

} // namespace vorlane
