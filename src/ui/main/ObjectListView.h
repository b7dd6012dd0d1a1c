#pragma once

#include "model/modGlobal.h"

#include <QObject>

#include <functional>

class QListWidget;

namespace vorlane {

// A list box showing an ObjectList: one line per entry, its slot as the item data, and the
// entry's selection. A line the user selects becomes the list's selection; a click, or a
// selection made by showing the list again, runs `clicked`, as a list's click event does.
class ObjectListView : public QObject
{
    Q_OBJECT
public:
    static constexpr int SlotRole = Qt::UserRole;

    ObjectListView(QListWidget *widget,
                   ObjectList &list,
                   std::function<void()> clicked,
                   std::function<void()> doubleClicked = {});

    // Shows the list's lines and selects its selected line, running `clicked` when one is.
    void show();
    QListWidget *widget() const { return m_widget; }

private:
    QListWidget *m_widget;
    ObjectList &m_list;
    std::function<void()> m_clicked;
    std::function<void()> m_doubleClicked;
    bool m_mirroring = false;
};

} // namespace vorlane
