#pragma once

#include "ModalDriver.h"
#include "frmMain.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QTest>

namespace vorlane {

// Clicks tab `tab` (numbered from 1) of the main window's tab strip.
inline void clickTab(frmMain &window, int tab)
{
    QTabBar *strip = window.form().DataTabStrip;
    QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(tab - 1).center());
}

// Runs File > New and answers the project name dialog with `name`.
inline void newProject(frmMain &window, const QString &name = QStringLiteral("My Project"))
{
    whenModalShown<QDialog>([name](QDialog *dialog) {
        auto *box = dialog->findChild<QLineEdit *>(QStringLiteral("txtDataProjName"));
        box->selectAll();
        QTest::keyClicks(box, name);
        QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("cmdDataProjNameOK")),
                          Qt::LeftButton);
    });
    window.form().mnuNew->trigger();
}

inline void clickButton(QPushButton *button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

inline QStringList listTexts(QListWidget *list)
{
    QStringList texts;
    for (int i = 0; i < list->count(); ++i)
        texts << list->item(i)->text();
    return texts;
}

inline QList<int> listSlots(QListWidget *list)
{
    QList<int> slotNumbers;
    for (int i = 0; i < list->count(); ++i)
        slotNumbers << list->item(i)->data(Qt::UserRole).toInt();
    return slotNumbers;
}

// Selects line `row` of a list with a mouse click.
inline void clickLine(QListWidget *list, int row)
{
    QTest::mouseClick(
        list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
}

} // namespace vorlane
