#include "QuickStatsView.h"

#include "rules/QuickStats.h"

#include <QLabel>
#include <QWidget>

namespace vorlane {

void showQuickStats(QWidget &window, const QuickStats &stats, QWidget *cover)
{
    if (cover)
        cover->setVisible(stats.cover);
    for (const StatLabel &label : stats.labels) {
        if (!label.caption)
            continue;
        if (auto *shown = window.findChild<QLabel *>(QString::fromStdString(label.label)))
            shown->setText(QString::fromStdString(*label.caption));
    }
}

} // namespace vorlane
