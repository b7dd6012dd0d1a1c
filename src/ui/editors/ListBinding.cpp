#include "ListBinding.h"

#include <QComboBox>
#include <QSignalBlocker>

#include <utility>

namespace vorlane {

ListBinding::ListBinding(QComboBox *box, Offer offer, Shown shown, Change change, Click click)
    : TextBinding(box, std::move(shown), std::move(change))
    , m_box(box)
    , m_offer(std::move(offer))
    , m_click(std::move(click))
{
    // The list holds objects only; a typed text never becomes an entry.
    box->setInsertPolicy(QComboBox::NoInsert);
    // A typed text is stored as it is typed: no entry completes it.
    if (box->isEditable())
        box->setCompleter(nullptr);
    m_activated = QObject::connect(box, &QComboBox::activated, box, [this](int index) {
        m_click(m_box->itemText(index).toStdString());
    });
}

ListBinding::~ListBinding()
{
    QObject::disconnect(m_activated);
}

void ListBinding::fill()
{
    {
        // Refilling the list leaves the text as it was; only showing the field may change it.
        const QSignalBlocker blocker(m_box);
        const QString before = m_box->currentText();
        m_box->clear();
        for (const std::string &id : m_offer())
            m_box->addItem(QString::fromStdString(id));
        m_box->setCurrentIndex(-1);
        m_box->setEditText(before);
    }
    TextBinding::fill();
}

} // namespace vorlane
