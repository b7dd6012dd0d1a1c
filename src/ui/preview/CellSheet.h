#pragma once

#include "PreviewPicture.h"
#include "rules/CellGrid.h"
#include "rules/PictureSpec.h"

#include <QWidget>

#include <vector>

namespace vorlane {

// A picture cut into its numbered cells, fitted into the widget, each cell framed with its
// number, to pick a cell from: a click on a cell reports its number, a double click reports it
// again. Some cells can be marked (those of a sequence) and one highlighted (the frame playing,
// the cell of a state). It only reads what it is given.
class CellSheet : public QWidget
{
    Q_OBJECT
public:
    explicit CellSheet(QWidget *parent = nullptr);

    // The picture; the file is read again only when it is another file or could not be read.
    void setPicture(const PictureSpec &spec);
    // How the picture is cut: into rows x columns when both are above 0 (a button's
    // template), else into the picture's own cells.
    void setTemplateCells(int rows, int columns);
    void setMarkedCells(std::vector<int> cells);
    // 0 or less highlights none.
    void setHighlightedCell(int cell);
    // A line shown in place of the picture (a hot spot has no template).
    void showNote(const QString &note);

    CellGrid grid() const;
    const std::vector<int> &markedCells() const { return m_marked; }
    int highlightedCell() const { return m_highlighted; }
    // Where cell `cell` is drawn on the widget; empty when the sheet has no such cell.
    QRect cellRectOnWidget(int cell) const;
    // The cell drawn at a point of the widget; 0 for none.
    int cellAt(const QPoint &widgetPoint) const;
    // Why no picture is shown; empty when one is.
    QString message() const;

    QSize sizeHint() const override;

signals:
    void cellClicked(int cell);
    void cellDoubleClicked(int cell);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    QRect pictureArea() const;
    double scale() const;

    PictureSpec m_spec;
    PreviewPicture m_picture;
    bool m_loaded = false;
    int m_rows = 0;
    int m_columns = 0;
    std::vector<int> m_marked;
    int m_highlighted = 0;
    QString m_note;
};

} // namespace vorlane
