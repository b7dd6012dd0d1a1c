#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace vorlane {

// Makes a widget take whatever is dragged onto it and run `dropped` when it is let go there;
// what was dragged is not looked at.
class DropTarget : public QObject
{
    Q_OBJECT
public:
    DropTarget(QWidget *widget, std::function<void()> dropped);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::function<void()> m_dropped;
};

} // namespace vorlane
