#pragma once

#include "PreviewPicture.h"
#include "rules/CellGrid.h"
#include "rules/PictureSpec.h"
#include "rules/TextLook.h"

#include <optional>

#include <QWidget>

class QLabel;

namespace vorlane {

// One cell of a picture file, enlarged to fill its box, over a checkerboard that shows its
// transparent pixels, with a line under it: a caption and the cell's number, or why the
// cell cannot be shown. It only reads what it is given.
class CellView : public QWidget
{
    Q_OBJECT
public:
    explicit CellView(QWidget *parent = nullptr);

    // The picture; the file is read again only when it is another file or could not be read.
    void setPicture(const PictureSpec &spec);
    // How the picture is cut: into rows x columns when both are above 0 (a button's
    // template), else into the picture's own cells.
    void setTemplateCells(int rows, int columns);
    // The cell to show and the word before its number ("Up" gives "Up: cell 1").
    void setCell(int cell, const QString &caption = QString());
    // A line shown in place of any cell (a hot spot has no template).
    void showNote(const QString &note);

    // Drawn over the cell, centred: an icon, then a caption in its look. A null icon and no
    // caption draw nothing.
    void setDecoration(const QImage &icon, const std::optional<TextLook> &caption);

    int cell() const { return m_cell; }
    // The cell with its icon and caption over it, at the cell's own size; null when no cell
    // is shown.
    QImage composedCell() const;
    // The cell's pixels as drawn, colour key and alpha applied; null when there is none.
    QImage cellImage() const;
    QString message() const;
    CellGrid grid() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void refresh();

    PictureSpec m_spec;
    PreviewPicture m_picture;
    bool m_loaded = false;
    int m_rows = 0;
    int m_columns = 0;
    int m_cell = FirstCell;
    QString m_caption;
    QString m_note;
    QImage m_icon;
    std::optional<TextLook> m_captionText;
    QWidget *m_box = nullptr;
    QLabel *m_message = nullptr;
};

} // namespace vorlane
