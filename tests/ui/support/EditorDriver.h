#pragma once

#include "MainWindowDriver.h"
#include "ModalDriver.h"
#include "frmMain.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include <functional>
#include <utility>

namespace vorlane {

// Clicks `opener` and runs `action` on the dialog of type `Dialog` once it is shown. Returns
// true when `action` closed the dialog itself; otherwise the test closes it with the close
// box, so a failed check never leaves a modal window open. A dialog that never shows fails
// the test.
template<class Dialog>
bool clickToOpen(QPushButton *opener, std::function<void(Dialog *)> action)
{
    bool closedByAction = false;
    bool shown = false;
    whenModalShown<Dialog>([&](Dialog *dialog) {
        shown = true;
        QPointer<Dialog> guard(dialog);
        action(dialog);
        closedByAction = !guard || !guard->isVisible();
        if (guard && guard->isVisible())
            guard->close();
    });
    clickButton(opener);
    if (!shown)
        QTest::qFail("no window showed", __FILE__, __LINE__);
    return closedByAction;
}

// Clicks Edit Properties and runs `action` on the editor of type `Editor` once it is shown,
// as clickToOpen does.
template<class Editor>
bool editProperties(frmMain &window, std::function<void(Editor *)> action)
{
    return clickToOpen<Editor>(window.form().cmdObjEdit, std::move(action));
}

// Empties a text box as a user does: select everything, then Backspace.
inline void clearBox(QLineEdit *box)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Backspace);
}

// Replaces the text of a box by typing `text` over it.
inline void typeInto(QLineEdit *box, const QString &text)
{
    box->setFocus();
    box->selectAll();
    if (text.isEmpty())
        QTest::keyClick(box, Qt::Key_Backspace);
    else
        QTest::keyClicks(box, text);
}

inline void typeInto(QComboBox *box, const QString &text)
{
    typeInto(box->lineEdit(), text);
}

inline void clearBox(QComboBox *box)
{
    clearBox(box->lineEdit());
}

inline QStringList itemTexts(QComboBox *box)
{
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts << box->itemText(i);
    return texts;
}

// Opens the drop-down's list and clicks entry `row`.
inline void chooseEntry(QComboBox *box, int row)
{
    box->showPopup();
    QAbstractItemView *view = box->view();
    if (!QTest::qWaitForWindowExposed(view->window()))
        return;
    const QModelIndex index = view->model()->index(row, box->modelColumn(), view->rootIndex());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
}

} // namespace vorlane
