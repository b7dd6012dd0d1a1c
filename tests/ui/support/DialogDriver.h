#pragma once

#include "MainWindowDriver.h"
#include "ModalDriver.h"

#include <QCheckBox>
#include <QPointer>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QPushButton>
#include <QTest>

#include <functional>

namespace vorlane {

// Clicks `button` and runs `action` on the modal dialog of type `Dialog` it opens. Returns
// true when `action` closed the dialog itself; otherwise the dialog is closed with its close
// box, so a failed check never leaves a modal window open. A dialog that never shows, or is
// not modal, fails the test.
template<class Dialog>
bool openDialog(QPushButton *button, std::function<void(Dialog *)> action)
{
    bool closedByAction = false;
    bool shown = false;
    bool modal = false;
    whenModalShown<Dialog>([&](Dialog *dialog) {
        shown = true;
        modal = dialog->isModal();
        QPointer<Dialog> guard(dialog);
        action(dialog);
        closedByAction = !guard || !guard->isVisible();
        if (guard && guard->isVisible())
            guard->close();
    });
    clickButton(button);
    if (!shown)
        QTest::qFail("the button opened no dialog", __FILE__, __LINE__);
    else if (!modal)
        QTest::qFail("the dialog is not modal", __FILE__, __LINE__);
    return closedByAction;
}

// Clicks the indicator of a check box or option button: a click on the empty room beside
// its caption would miss it, as it does for a user.
inline void clickIndicator(QAbstractButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    const auto element = qobject_cast<QRadioButton *>(button) ? QStyle::SE_RadioButtonIndicator
                                                              : QStyle::SE_CheckBoxIndicator;
    const QRect indicator = button->style()->subElementRect(element, &option, button);
    QTest::mouseClick(button, Qt::LeftButton, {}, indicator.center());
}

// Presses and releases Escape in `widget`, as a user closing a window does.
inline void pressEscape(QWidget *widget)
{
    QTest::keyClick(widget, Qt::Key_Escape);
}

} // namespace vorlane
