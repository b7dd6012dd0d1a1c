#include "frmLogType.h"

namespace vorlane {

frmLogType::frmLogType(Document &doc, QWidget *parent)
    : CheckFilterForm(
          doc, doc.AppSettings.logTypeFilters, doc.AppSettings.logTypeFilterCount, parent)
{
    m_ui.setupUi(this);
    bindFilterBoxes("chkLogFilter");
}

} // namespace vorlane
