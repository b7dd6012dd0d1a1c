#pragma once

#include "PreviewPicture.h"
#include "rules/CursorFieldRules.h"
#include "rules/PictureSpec.h"

#include <QWidget>

namespace vorlane {

// A cursor's picture (the first cell of its image), enlarged over a checkerboard, with its hot
// point marked where the orientation puts it: the centre or a corner pixel. It only reads what
// it is given.
class CursorPreview : public QWidget
{
    Q_OBJECT
public:
    explicit CursorPreview(QWidget *parent = nullptr);

    void setPicture(const PictureSpec &spec);
    void setOrientation(int code);

    // The cursor's picture as drawn; null when there is none.
    const QImage &cursorImage() const { return m_cursor; }
    // The hot point's pixel of the picture, and where that pixel is drawn on the widget.
    HotPoint hotPoint() const;
    QRect hotPointRect() const;
    // Why no picture is shown; empty when one is.
    QString message() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect pictureArea() const;

    PictureSpec m_spec;
    PreviewPicture m_picture;
    bool m_loaded = false;
    QImage m_cursor;
    int m_code = 1;
};

} // namespace vorlane
