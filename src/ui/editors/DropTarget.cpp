#include "DropTarget.h"

#include <QDropEvent>
#include <QWidget>

#include <utility>

namespace vorlane {

DropTarget::DropTarget(QWidget *widget, std::function<void()> dropped)
    : QObject(widget)
    , m_dropped(std::move(dropped))
{
    widget->setAcceptDrops(true);
    widget->installEventFilter(this);
}

bool DropTarget::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        static_cast<QDropEvent *>(event)->acceptProposedAction();
        return true;
    case QEvent::Drop:
        static_cast<QDropEvent *>(event)->acceptProposedAction();
        m_dropped();
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

} // namespace vorlane
