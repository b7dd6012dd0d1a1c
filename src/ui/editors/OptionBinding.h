#pragma once

#include "FieldBinding.h"

#include <QMetaObject>

#include <cstdint>
#include <functional>
#include <vector>

class QRadioButton;

namespace vorlane {

// One option of a group and the code it stands for. The code may be read from the record
// when the option is chosen (a button state stands for its cell).
struct Option
{
    Option(QRadioButton *button, int16_t fixedCode);
    Option(QRadioButton *button, std::function<int16_t()> code);

    QRadioButton *button;
    std::function<int16_t()> code;
};

// An option group bound to a field: choosing an option stores its code; loading chooses the
// first option, in the order given, whose code equals the field, or none.
class OptionBinding : public FieldBinding
{
public:
    using Shown = std::function<int16_t()>;
    using Choose = std::function<void(int16_t code)>;

    OptionBinding(std::vector<Option> options, Shown shown, Choose choose);
    ~OptionBinding() override;

    void fill() override;

private:
    std::vector<Option> m_options;
    Shown m_shown;
    Choose m_choose;
    std::vector<QMetaObject::Connection> m_connections;
};

} // namespace vorlane
