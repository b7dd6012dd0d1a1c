#include "OptionBinding.h"

#include <QRadioButton>
#include <QSignalBlocker>

#include <utility>

namespace vorlane {

Option::Option(QRadioButton *button, int16_t fixedCode)
    : button(button)
    , code([fixedCode]() { return fixedCode; })
{}

Option::Option(QRadioButton *button, std::function<int16_t()> code)
    : button(button)
    , code(std::move(code))
{}

OptionBinding::OptionBinding(std::vector<Option> options, Shown shown, Choose choose)
    : m_options(std::move(options))
    , m_shown(std::move(shown))
    , m_choose(std::move(choose))
{
    for (const Option &option : m_options) {
        // Only the option that becomes chosen acts; the one losing its dot does not.
        m_connections.push_back(QObject::connect(option.button,
                                                 &QRadioButton::toggled,
                                                 option.button,
                                                 [this, code = option.code](bool checked) {
                                                     if (checked)
                                                         m_choose(code());
                                                 }));
    }
}

OptionBinding::~OptionBinding()
{
    for (const QMetaObject::Connection &connection : m_connections)
        QObject::disconnect(connection);
}

void OptionBinding::fill()
{
    const int16_t value = m_shown();
    for (const Option &option : m_options) {
        if (option.code() == value) {
            const QSignalBlocker blocker(option.button);
            option.button->setChecked(true);
            return;
        }
    }
    // No option matches: none shows a dot, which exclusive options allow only for a moment.
    for (const Option &option : m_options) {
        const QSignalBlocker blocker(option.button);
        const bool exclusive = option.button->autoExclusive();
        option.button->setAutoExclusive(false);
        option.button->setChecked(false);
        option.button->setAutoExclusive(exclusive);
    }
}

} // namespace vorlane
