#include "TextPreview.h"

#include "TextPainting.h"
#include "generate/EngineTextMarks.h"
#include "rules/PreviewTexts.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <string>

namespace vorlane {

namespace {

// The text stands this far from the corner of the preview's screen.
constexpr int Margin = 8;

} // namespace

TextPreview::TextPreview(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("picTextPreview"));
    setMinimumSize(240, 140);
    setFocusPolicy(Qt::NoFocus);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch(1);
    m_fontNote = new QLabel(this);
    m_fontNote->setObjectName(QStringLiteral("lblTextPreviewFont"));
    m_fontNote->setWordWrap(true);
    layout->addWidget(m_fontNote);
    m_marksNote = new QLabel(this);
    m_marksNote->setObjectName(QStringLiteral("lblTextPreviewMarks"));
    m_marksNote->setWordWrap(true);
    layout->addWidget(m_marksNote);
    setLook(TextLook{});
}

QSize TextPreview::sizeHint() const
{
    return QSize(320, 200);
}

void TextPreview::setLook(const TextLook &look)
{
    m_look = look;
    m_font = engineFont(look);
    const QString family = look.fontFile ? fontFamilyOf(*look.fontFile) : QString();
    m_fontLoaded = !family.isEmpty();
    m_fontNote->setText(QString::fromStdString(
        m_fontLoaded ? fontLoadedText(family.toStdString(), look.fontStoredPath)
                     : defaultFontText(look.fontId,
                                       look.fontListed,
                                       look.fontStoredPath,
                                       look.fontFile.value_or(std::string()))));
    m_content = QString::fromStdString(look.content);
    const QList<uint> ucs4 = m_content.toUcs4();
    const std::u32string codePoints(ucs4.begin(), ucs4.end());
    m_marked.clear();
    bool terminator = false;
    QString unreadable;
    const std::vector<EngineTextMark> marks = engineTextMarks(codePoints);
    for (size_t i = 0; i < marks.size(); ++i) {
        m_marked.push_back(marks[i] != EngineTextMark::Readable);
        if (marks[i] == EngineTextMark::Terminator)
            terminator = true;
        else if (marks[i] == EngineTextMark::NotCp1252) {
            const char32_t cp = codePoints[i];
            unreadable += QString::fromUcs4(&cp, 1);
        }
    }
    QStringList notes;
    if (terminator)
        notes << QString::fromStdString(terminatorText());
    if (!unreadable.isEmpty())
        notes << QString::fromStdString(notCp1252Text(unreadable.toStdString()));
    m_marksNote->setText(notes.join(QLatin1Char('\n')));
    m_marksNote->setVisible(!notes.isEmpty());
    update();
}

QString TextPreview::fontNote() const
{
    return m_fontNote->text();
}

QString TextPreview::marksNote() const
{
    return m_marksNote->text();
}

QRect TextPreview::screenArea() const
{
    const QWidget *first = m_fontNote;
    return QRect(0, 0, width(), std::max(1, first->geometry().top() - 4));
}

QPoint TextPreview::origin() const
{
    return screenArea().topLeft() + QPoint(Margin, Margin);
}

QRect TextPreview::clipRect() const
{
    if (m_look.clipWidth <= 0 || m_look.clipHeight <= 0)
        return QRect();
    return QRect(origin(), QSize(m_look.clipWidth, m_look.clipHeight));
}

QRect TextPreview::lineRect() const
{
    const QFontMetrics metrics(m_font);
    const int advance = metrics.horizontalAdvance(m_content);
    const QRect clip = clipRect();
    const QRect box =
        clip.isEmpty() ? QRect(origin(), QSize(screenArea().width() - 2 * Margin, metrics.height()))
                       : clip;
    const int left = m_look.centered ? box.left() + (box.width() - advance) / 2 : box.left();
    return QRect(left, box.top(), advance, metrics.height());
}

QRect TextPreview::textRect() const
{
    const QRect line = lineRect();
    const QRect clip = clipRect();
    return clip.isEmpty() ? line : line.intersected(clip);
}

std::vector<QRect> TextPreview::markRects() const
{
    std::vector<QRect> rects;
    const QFontMetrics metrics(m_font);
    const QRect line = lineRect();
    const QList<uint> ucs4 = m_content.toUcs4();
    for (size_t i = 0; i < m_marked.size(); ++i) {
        if (!m_marked[i])
            continue;
        const QString before = QString::fromUcs4(reinterpret_cast<const char32_t *>(ucs4.data()),
                                                 static_cast<qsizetype>(i));
        const char32_t cp = static_cast<char32_t>(ucs4[static_cast<qsizetype>(i)]);
        const int x = line.left() + metrics.horizontalAdvance(before);
        const int w = std::max(2, metrics.horizontalAdvance(QString::fromUcs4(&cp, 1)));
        rects.emplace_back(x, line.top(), w, line.height());
    }
    return rects;
}

void TextPreview::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.fillRect(screenArea(), QColor(64, 64, 64));
    const QRect clip = clipRect();
    painter.save();
    if (!clip.isEmpty()) {
        painter.fillRect(clip, backColour(m_look));
        painter.setClipRect(clip);
    } else if (!m_content.isEmpty()) {
        painter.fillRect(lineRect(), backColour(m_look));
    }
    painter.setFont(m_font);
    painter.setPen(foreColour(m_look));
    painter.drawText(lineRect(), Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, m_content);
    painter.restore();
    if (!clip.isEmpty()) {
        painter.setPen(QPen(QColor(0, 200, 255), 1, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(clip.adjusted(0, 0, -1, -1));
    }
    painter.setPen(QPen(QColor(255, 0, 0), 2));
    painter.setBrush(Qt::NoBrush);
    for (const QRect &mark : markRects())
        painter.drawRect(mark);
}

} // namespace vorlane
