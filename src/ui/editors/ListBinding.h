#pragma once

#include "TextBinding.h"

#include <QMetaObject>

#include <functional>
#include <string>
#include <vector>

class QComboBox;

namespace vorlane {

// A drop-down that offers other objects: its text follows a text rule like any box, its
// list is filled when the editor loads, and choosing an entry stores that entry's text.
class ListBinding : public TextBinding
{
public:
    // The identifiers to offer, in order.
    using Offer = std::function<std::vector<std::string>()>;
    // Stores the entry the user chose.
    using Click = std::function<void(const std::string &chosen)>;

    ListBinding(QComboBox *box, Offer offer, Shown shown, Change change, Click click);
    ~ListBinding() override;

    // Fills the list, then shows the field as a text box does.
    void fill() override;

private:
    QComboBox *m_box;
    Offer m_offer;
    Click m_click;
    QMetaObject::Connection m_activated;
};

} // namespace vorlane
