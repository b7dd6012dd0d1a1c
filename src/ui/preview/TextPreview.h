#pragma once

#include "rules/TextLook.h"

#include <QFont>
#include <QWidget>

#include <vector>

class QLabel;

namespace vorlane {

// A text as the engine draws it: its content in its font (loaded from the font's file when it
// can be, the default font otherwise, which a line under it says), point size, styles and
// colours, inside its clip rectangle when one is set. Each "*" and each character the engine
// cannot read is framed in red, and a line under it says why. It only reads what it is given.
class TextPreview : public QWidget
{
    Q_OBJECT
public:
    explicit TextPreview(QWidget *parent = nullptr);

    void setLook(const TextLook &look);

    const QFont &shownFont() const { return m_font; }
    // Whether the font was loaded from the text's font file.
    bool fontLoaded() const { return m_fontLoaded; }
    QString fontNote() const;
    QString marksNote() const;
    // Where the text is drawn on the widget: its line (inside the clip rectangle when one is
    // set), the clip rectangle (empty when none is set) and the frame of each marked character.
    QRect textRect() const;
    QRect clipRect() const;
    std::vector<QRect> markRects() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect screenArea() const;
    QPoint origin() const;
    // Where the line of text starts, and the box it fills.
    QRect lineRect() const;

    TextLook m_look;
    QFont m_font;
    bool m_fontLoaded = false;
    QString m_content;
    std::vector<bool> m_marked; // per code point
    QLabel *m_fontNote = nullptr;
    QLabel *m_marksNote = nullptr;
};

} // namespace vorlane
