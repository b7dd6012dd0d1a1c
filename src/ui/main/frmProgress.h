#pragma once

#include "rules/ProgressSink.h"

#include "ui_frmProgress.h"

#include <QDialog>

namespace vorlane {

// The small window with a bar and a label that Open, Save and Generate show while they work.
class frmProgress : public QDialog, public ProgressSink
{
    Q_OBJECT
public:
    explicit frmProgress(QWidget *parent = nullptr);

    void Form_Load();

    void begin(const std::string &title) override;
    void setLabel(const std::string &label) override;
    void setMaximum(int maximum) override;
    void setValue(int value) override;
    int value() const override;
    void end() override;

private:
    void repaintNow();

    Ui::frmProgress m_ui;
};

} // namespace vorlane
