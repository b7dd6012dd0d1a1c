#include "CheckBinding.h"

#include <QCheckBox>
#include <QSignalBlocker>

#include <utility>

namespace vorlane {

CheckBinding::CheckBinding(QCheckBox *box, Shown shown, Click click)
    : m_box(box)
    , m_shown(std::move(shown))
    , m_click(std::move(click))
{
    m_connection =
        QObject::connect(box, &QCheckBox::toggled, box, [this](bool checked) { m_click(checked); });
}

CheckBinding::~CheckBinding()
{
    QObject::disconnect(m_connection);
}

void CheckBinding::fill()
{
    const QSignalBlocker blocker(m_box);
    m_box->setChecked(m_shown());
}

} // namespace vorlane
