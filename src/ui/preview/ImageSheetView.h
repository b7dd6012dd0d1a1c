#pragma once

#include "PreviewPicture.h"
#include "rules/CellGrid.h"
#include "rules/PictureSpec.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QScrollArea;

namespace vorlane {

// A whole picture file at a zoom the user chooses, over a checkerboard that shows its
// transparent pixels, with the grid of its cells and each cell's number. A file that cannot
// be shown leaves a line saying why. It only reads what it is given.
class ImageSheetView : public QWidget
{
    Q_OBJECT
public:
    explicit ImageSheetView(QWidget *parent = nullptr);

    // Shows `spec`; the file is read again only when it is another file or could not be read.
    void setPicture(const PictureSpec &spec);

    // Zoom in percent, one of zoomSteps().
    void setZoom(int percent);
    int zoom() const { return m_zoom; }
    static QList<int> zoomSteps();

    // The line under the picture: its size and cells, or why it cannot be shown.
    QString message() const;
    const CellGrid &grid() const { return m_grid; }
    // What the view draws, at the current zoom.
    QImage composed() const;

private:
    void showComposed();

    PictureSpec m_spec;
    PreviewPicture m_picture;
    bool m_loaded = false;
    CellGrid m_grid;
    int m_zoom = 100;
    QComboBox *m_zoomBox = nullptr;
    QScrollArea *m_scroll = nullptr;
    QLabel *m_canvas = nullptr;
    QLabel *m_message = nullptr;
};

} // namespace vorlane
