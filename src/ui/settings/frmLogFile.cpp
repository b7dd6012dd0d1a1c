#include "frmLogFile.h"

namespace vorlane {

frmLogFile::frmLogFile(Document &doc, QWidget *parent)
    : CheckFilterForm(
          doc, doc.AppSettings.logFileFilters, doc.AppSettings.logFileFilterCount, parent)
{
    m_ui.setupUi(this);
    bindFilterBoxes("chkFileFilter");
}

} // namespace vorlane
