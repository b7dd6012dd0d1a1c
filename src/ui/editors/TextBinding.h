#pragma once

#include "FieldBinding.h"

#include <QMetaObject>

#include <functional>
#include <optional>
#include <string>

class QComboBox;
class QLineEdit;
class QWidget;

namespace vorlane {

// A text box, or the text of a drop-down, bound to a field by its change handler. The
// handler runs on every change of the text, whether the user or the program made it; when
// it returns a text, the box is set to it, which runs the handler again.
class TextBinding : public FieldBinding
{
public:
    // The field as the box shows it.
    using Shown = std::function<std::string()>;
    // Stores `text` in the record; returns the box's new text when the box must change.
    using Change = std::function<std::optional<std::string>(const std::string &text)>;

    TextBinding(QLineEdit *box, Shown shown, Change change);
    TextBinding(QComboBox *box, Shown shown, Change change);
    ~TextBinding() override;

    // Shows the field. Only a shown text that differs from the box's runs the change handler:
    // a field shown as the box already shows it (an empty id in an empty box) stays as it is.
    void fill() override;
    // Sets the box's text as the program does; a different text runs the change handler.
    void setText(const std::string &text);
    std::string text() const;
    QWidget *control() const;

private:
    void changed();

    QLineEdit *m_line = nullptr;
    QComboBox *m_combo = nullptr;
    Shown m_shown;
    Change m_change;
    QMetaObject::Connection m_connection;
};

} // namespace vorlane
