#include "QtUserInterface.h"

#include <QFileDialog>
#include <QMessageBox>

namespace vorlane {

QtUserInterface::QtUserInterface(QWidget *parent)
    : m_parent(parent)
{}

MessageAnswer QtUserInterface::showMessage(const Message &message)
{
    QMessageBox box(m_parent);
    box.setWindowTitle(QString::fromStdString(message.title));
    box.setText(QString::fromStdString(message.text));
    switch (message.icon) {
    case MessageIcon::None:
        box.setIcon(QMessageBox::NoIcon);
        break;
    case MessageIcon::Question:
        box.setIcon(QMessageBox::Question);
        break;
    case MessageIcon::Exclamation:
        box.setIcon(QMessageBox::Warning);
        break;
    case MessageIcon::Critical:
        box.setIcon(QMessageBox::Critical);
        break;
    case MessageIcon::Information:
        box.setIcon(QMessageBox::Information);
        break;
    }
    if (message.buttons == MessageButtons::YesNo) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        return box.exec() == QMessageBox::Yes ? MessageAnswer::Yes : MessageAnswer::No;
    }
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return MessageAnswer::OK;
}

std::optional<std::string> QtUserInterface::chooseFile(const FileDialogRequest &request)
{
    // "Data Files(*.dvb)": the filter's name directly followed by its pattern.
    const QString filter = QString::fromStdString(request.filterName) + "(" +
                           QString::fromStdString(request.pattern) + ")";
    const QString title = QString::fromStdString(request.title);
    QString start = QString::fromStdString(request.proposedName);
    if (!request.folder.empty())
        start = QString::fromStdString(request.folder) + "/" + start;
    QString path;
    if (request.mode == FileDialogRequest::Mode::Save)
        path = QFileDialog::getSaveFileName(m_parent, title, start, filter);
    else
        path = QFileDialog::getOpenFileName(m_parent, title, start, filter);
    if (path.isEmpty())
        return std::nullopt;
    return path.toStdString();
}

} // namespace vorlane
