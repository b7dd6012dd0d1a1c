#pragma once

#include "CheckFilterForm.h"

#include "ui_frmLogType.h"

namespace vorlane {

// The log type filters: one box per line prefix, chkLogFilter_0 to chkLogFilter_6.
class frmLogType : public CheckFilterForm
{
    Q_OBJECT
public:
    explicit frmLogType(Document &doc, QWidget *parent = nullptr);

    const Ui::frmLogType &form() const { return m_ui; }

private:
    Ui::frmLogType m_ui;
};

} // namespace vorlane
