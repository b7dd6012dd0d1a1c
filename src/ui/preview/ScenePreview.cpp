#include "ScenePreview.h"

#include "SceneCanvas.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace vorlane {

ScenePreview::ScenePreview(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    auto *row = new QHBoxLayout;
    auto *zoomLabel = new QLabel(tr("Zoom"), this);
    m_zoomBox = new QComboBox(this);
    m_zoomBox->setObjectName(QStringLiteral("cmbSceneZoom"));
    for (int step : SceneCanvas::zoomSteps())
        m_zoomBox->addItem(step == 0 ? tr("Fit") : QStringLiteral("%1%").arg(step), step);
    zoomLabel->setBuddy(m_zoomBox);
    m_snap = new QCheckBox(QStringLiteral("Snap to 8 px"), this);
    m_snap->setObjectName(QStringLiteral("chkSceneSnap"));
    // Tab walks the scene's own controls only; the zoom and the snap are chosen by mouse.
    m_zoomBox->setFocusPolicy(Qt::ClickFocus);
    m_snap->setFocusPolicy(Qt::ClickFocus);
    row->addWidget(zoomLabel);
    row->addWidget(m_zoomBox);
    row->addWidget(m_snap);
    row->addStretch();
    layout->addLayout(row);

    m_canvas = new SceneCanvas(this);
    m_scroll = new QScrollArea(this);
    m_scroll->setObjectName(QStringLiteral("scrScenePreview"));
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setMinimumSize(320, 240);
    m_scroll->setWidgetResizable(true);
    m_scroll->setWidget(m_canvas);
    layout->addWidget(m_scroll, 1);

    m_notes = new QLabel(this);
    m_notes->setObjectName(QStringLiteral("lblScenePreviewNotes"));
    m_notes->setWordWrap(true);
    layout->addWidget(m_notes);

    connect(m_canvas, &SceneCanvas::layerClicked, this, &ScenePreview::layerClicked);
    connect(m_zoomBox, &QComboBox::activated, this, &ScenePreview::cmbSceneZoom_Click);
}

void ScenePreview::cmbSceneZoom_Click(int index)
{
    const int zoom = m_zoomBox->itemData(index).toInt();
    // Fitted, the canvas follows the area's size; zoomed, it has its own and scrolls.
    m_scroll->setWidgetResizable(zoom == 0);
    m_canvas->setZoom(zoom);
    if (zoom == 0)
        m_canvas->resize(m_scroll->viewport()->size());
}

void ScenePreview::setScene(const Document &doc, const SceneRec &scene, std::vector<int> layerSlots)
{
    m_canvas->setScene(doc, scene, std::move(layerSlots));
    m_notes->setText(m_canvas->notes().join(QLatin1Char('\n')));
    m_notes->setVisible(!m_canvas->notes().isEmpty());
}

bool ScenePreview::snapToGrid() const
{
    return m_snap->isChecked();
}

QString ScenePreview::notesText() const
{
    return m_notes->text();
}

} // namespace vorlane
