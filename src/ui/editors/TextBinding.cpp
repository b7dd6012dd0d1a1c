#include "TextBinding.h"

#include <QComboBox>
#include <QLineEdit>

#include <utility>

namespace vorlane {

TextBinding::TextBinding(QLineEdit *box, Shown shown, Change change)
    : m_line(box)
    , m_shown(std::move(shown))
    , m_change(std::move(change))
{
    m_connection = QObject::connect(box, &QLineEdit::textChanged, box, [this]() { changed(); });
}

TextBinding::TextBinding(QComboBox *box, Shown shown, Change change)
    : m_combo(box)
    , m_shown(std::move(shown))
    , m_change(std::move(change))
{
    m_connection = QObject::connect(box, &QComboBox::editTextChanged, box, [this]() { changed(); });
}

TextBinding::~TextBinding()
{
    QObject::disconnect(m_connection);
}

QWidget *TextBinding::control() const
{
    if (m_combo)
        return m_combo;
    return m_line;
}

std::string TextBinding::text() const
{
    return (m_combo ? m_combo->currentText() : m_line->text()).toStdString();
}

void TextBinding::setText(const std::string &text)
{
    const QString shown = QString::fromStdString(text);
    if (m_combo)
        m_combo->setEditText(shown);
    else
        m_line->setText(shown);
}

void TextBinding::fill()
{
    const std::string shown = m_shown();
    if (shown != text())
        setText(shown);
}

void TextBinding::changed()
{
    const std::string current = text();
    const std::optional<std::string> boxText = m_change(current);
    if (boxText && *boxText != current)
        setText(*boxText);
}

} // namespace vorlane
