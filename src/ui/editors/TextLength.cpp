#include "TextLength.h"

#include <QLineEdit>
#include <QWidget>

#include <limits>

namespace vorlane {

void allowAnyLength(QWidget *window)
{
    // An editable drop-down's text box is a child of the drop-down, so it is found here too.
    for (QLineEdit *box : window->findChildren<QLineEdit *>())
        box->setMaxLength(std::numeric_limits<int>::max());
}

} // namespace vorlane
