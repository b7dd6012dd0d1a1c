#include "frmAppWindowProps.h"

#include "rules/AppSettingsRules.h"

namespace vorlane {

frmAppWindowProps::frmAppWindowProps(Document &doc, frmMain *mainWindow, QWidget *parent)
    : AppPropsForm(doc, mainWindow, parent)
{
    m_ui.setupUi(this);
    declareBindings();
}

// The bindings in the order the load fills them.
void frmAppWindowProps::declareBindings()
{
    AppSettingsRec &a = settings();
    bindText(
        m_ui.txtAppWindowPropsCaption,
        [&a]() { return a.windowCaption; },
        [&a](const std::string &text) {
            TextOutcome outcome = windowCaptionRule(text);
            a.windowCaption = std::move(outcome.value);
            return outcome.boxText;
        });
    bindReference(m_ui.txtAppWindowPropsIcon, a.windowIcon);

    bindOptions({{m_ui.optAppScreenTypeFull, ScreenTypeFullscreen},
                 {m_ui.optAppScreentypeWindow, ScreenTypeWindowed}},
                a.screenType);
    connect(m_ui.optAppScreenTypeFull, &QRadioButton::toggled, this, [this](bool checked) {
        if (checked)
            optAppScreenTypeFull_Click();
    });
    connect(m_ui.optAppScreentypeWindow, &QRadioButton::toggled, this, [this](bool checked) {
        if (checked)
            optAppScreentypeWindow_Click();
    });
    // The icon box is open as the stored screen type says.
    loadStep([this]() {
        m_ui.txtAppWindowPropsIcon->setEnabled(windowIconEditable(settings().screenType));
    });

    bindNumber(m_ui.txtAppScreenPropsWidth, a.screenWidth);
    bindNumber(m_ui.txtAppScreenPropsHeight, a.screenHeight);
    bindNumber(m_ui.txtAppScreenPropsBPP, a.screenBpp);
    bindNumber(m_ui.txtAppScreenFPS, a.fps);
    bindCheck(m_ui.chkAppScreenEngineUse, a.useEngineScreen);
}

void frmAppWindowProps::optAppScreenTypeFull_Click()
{
    // A full-screen program has no window to show an icon.
    m_ui.txtAppWindowPropsIcon->setEnabled(false);
}

void frmAppWindowProps::optAppScreentypeWindow_Click()
{
    m_ui.fraAppWindowIcon->setEnabled(true);
    m_ui.txtAppWindowPropsIcon->setEnabled(true);
}

} // namespace vorlane
