#pragma once

class QWidget;

namespace vorlane {

struct QuickStats;

// Shows `stats` on the labels of `window` found by their objectNames, and shows or hides the
// panel's "[NO DATA]" cover; a covered panel keeps its captions.
void showQuickStats(QWidget &window, const QuickStats &stats, QWidget *cover);

} // namespace vorlane
