#pragma once

class QWidget;

namespace vorlane {

// Lets every text box of `window`, the text boxes of its drop-downs included, hold a text of
// any length: Qt cuts a line edit's text at 32767 characters unless told otherwise, and a box
// that cut a long text would store the cut text back into its field.
void allowAnyLength(QWidget *window);

} // namespace vorlane
