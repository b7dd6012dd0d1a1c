#pragma once

#include "model/modGlobal.h"
#include "rules/References.h"

#include <QDockWidget>

#include <functional>
#include <optional>
#include <vector>

class QListWidget;
class QListWidgetItem;

namespace vorlane {

// The main window's Used By panel: every record that refers to the selected object, one line
// each (`Button "btnPlay": template`); a double click hands the referring object to `open`.
class UsedByPanel : public QDockWidget
{
    Q_OBJECT
public:
    using Opener = std::function<void(ObjectRef)>;

    explicit UsedByPanel(QWidget *parent = nullptr);

    void setOpener(Opener open) { m_open = std::move(open); }
    // Shows what refers to `object` in `doc`; no object, no lines.
    void showObject(const Document &doc, std::optional<ObjectRef> object);

    QStringList lines() const;

private:
    void lstUsedBy_DblClick(QListWidgetItem *item);

    QListWidget *m_lstUsedBy;
    std::vector<ObjectRef> m_owners; // one per line; none for "Not used by any object"
    Opener m_open;
};

} // namespace vorlane
