#pragma once

#include "CheckFilterForm.h"

#include "ui_frmLogFile.h"

namespace vorlane {

// The log file filters: one box per engine module, chkFileFilter_0 to chkFileFilter_10.
class frmLogFile : public CheckFilterForm
{
    Q_OBJECT
public:
    explicit frmLogFile(Document &doc, QWidget *parent = nullptr);

    const Ui::frmLogFile &form() const { return m_ui; }

private:
    Ui::frmLogFile m_ui;
};

} // namespace vorlane
