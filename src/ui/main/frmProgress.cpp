#include "frmProgress.h"

#include <QCoreApplication>

namespace vorlane {

frmProgress::frmProgress(QWidget *parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    // The window has no buttons and cannot be cancelled.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    Form_Load();
}

void frmProgress::Form_Load()
{
    m_ui.prbProgress->setValue(0);
}

void frmProgress::begin(const std::string &title)
{
    Form_Load();
    setWindowTitle(QString::fromStdString(title));
    show();
    repaintNow();
}

void frmProgress::setLabel(const std::string &label)
{
    m_ui.lblProgress->setText(QString::fromStdString(label));
    repaintNow();
}

void frmProgress::setMaximum(int maximum)
{
    m_ui.prbProgress->setMaximum(maximum);
}

void frmProgress::setValue(int value)
{
    m_ui.prbProgress->setValue(value);
}

int frmProgress::value() const
{
    return m_ui.prbProgress->value();
}

void frmProgress::end()
{
    hide();
}

void frmProgress::repaintNow()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace vorlane
