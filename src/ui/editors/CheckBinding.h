#pragma once

#include "FieldBinding.h"

#include <QMetaObject>

#include <functional>

class QCheckBox;

namespace vorlane {

// A check box bound to a flag: its click stores the value, loading shows it.
class CheckBinding : public FieldBinding
{
public:
    using Shown = std::function<bool()>;
    using Click = std::function<void(bool checked)>;

    CheckBinding(QCheckBox *box, Shown shown, Click click);
    ~CheckBinding() override;

    void fill() override;

private:
    QCheckBox *m_box;
    Shown m_shown;
    Click m_click;
    QMetaObject::Connection m_connection;
};

} // namespace vorlane
