#pragma once

#include "MainWindowDriver.h"
#include "frmMain.h"
#include "model/Kinds.h"
#include "model/modGlobal.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QStringList>
#include <QTest>

#include <string>

namespace vorlane {

// Clicks the tab of `kind`, then Add Object; returns the new line's slot.
inline int addObjectOn(frmMain &window, Kind kind)
{
    clickTab(window, tabOf(kind));
    clickButton(window.form().cmdObjAdd);
    return window.document().list(kind).lines.back().slot;
}

// Adds an object of `kind` and gives it the state it has once opened in its editor, with
// `id` as its identifier; returns its slot. Its own fields are left for the test to set.
inline int addLiveObject(frmMain &window, Kind kind, const std::string &id)
{
    const int slot = addObjectOn(window, kind);
    SlotView record = slotOf(window.document(), kind, slot);
    record.inUse = -1;
    record.isNew = 0;
    record.id = id;
    return slot;
}

// Clicks a check box or option on its box, as a user does; a layout may stretch the control
// far beyond its caption, where a click does nothing.
inline void clickBox(QAbstractButton *box)
{
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
}

// The names of the controls that Tab visits from `first` on, `first` included, for `count`
// controls. An editable drop-down counts as itself, not its line edit.
inline QStringList tabWalk(QWidget *first, int count)
{
    QStringList names;
    first->setFocus();
    if (!QTest::qWaitFor([first]() { return QApplication::focusWidget() == first; }))
        return names;
    for (int i = 0; i < count; ++i) {
        QWidget *focus = QApplication::focusWidget();
        if (focus && qobject_cast<QComboBox *>(focus->parentWidget()))
            focus = focus->parentWidget();
        names << (focus ? focus->objectName() : QString());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    return names;
}

} // namespace vorlane
