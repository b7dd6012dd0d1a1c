#include "ScenePreview.h"

#include "SceneCanvas.h"

#include <QLabel>
#include <QVBoxLayout>

namespace vorlane {

ScenePreview::ScenePreview(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_canvas = new SceneCanvas(this);
    layout->addWidget(m_canvas, 1);
    m_notes = new QLabel(this);
    m_notes->setObjectName(QStringLiteral("lblScenePreviewNotes"));
    m_notes->setWordWrap(true);
    layout->addWidget(m_notes);
    connect(m_canvas, &SceneCanvas::layerClicked, this, &ScenePreview::layerClicked);
}

void ScenePreview::setScene(const Document &doc, const SceneRec &scene, std::vector<int> layerSlots)
{
    m_canvas->setScene(doc, scene, std::move(layerSlots));
    m_notes->setText(m_canvas->notes().join(QLatin1Char('\n')));
    m_notes->setVisible(!m_canvas->notes().isEmpty());
}

QString ScenePreview::notesText() const
{
    return m_notes->text();
}

} // namespace vorlane
