#pragma once

#include "model/modGlobal.h"
#include "rules/ObjectFind.h"

#include "ui_frmFind.h"

#include <QDialog>

#include <functional>
#include <vector>

namespace vorlane {

// Finds objects of every kind by part of their identifier as it is typed; Return or a double
// click on a line hands the object to `select`, which shows it in its tab. The window stays
// open beside the main window.
class frmFind : public QDialog
{
    Q_OBJECT
public:
    using Selector = std::function<void(ObjectRef)>;

    frmFind(const Document &doc, Selector select, QWidget *parent = nullptr);

    void txtFind_Change();
    void txtFind_Return();
    void lstFind_DblClick();

    const Ui::frmFind &form() const { return m_ui; }

private:
    void selectLine(int row);

    Ui::frmFind m_ui;
    const Document &m_doc;
    Selector m_select;
    std::vector<FoundObject> m_found;
};

} // namespace vorlane
