#pragma once

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace vorlane {

// Runs `action` on the next modal dialog once it is shown, so a test can drive a dialog that
// the code under test opens with exec().
template<class Dialog = QWidget>
void whenModalShown(std::function<void(Dialog *)> action, int attempts = 200)
{
    QTimer::singleShot(10, [action, attempts]() {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        if (dialog && dialog->isVisible()) {
            action(dialog);
        } else if (attempts > 0) {
            whenModalShown<Dialog>(action, attempts - 1);
        }
    });
}

} // namespace vorlane
