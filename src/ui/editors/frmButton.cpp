#include "frmButton.h"

#include "CellSheet.h"
#include "CellView.h"
#include "frmMain.h"
#include "rules/ButtonFieldRules.h"
#include "rules/FieldRules.h"
#include "rules/PictureSpec.h"
#include "rules/PreviewTexts.h"
#include "rules/TextLook.h"

#include <QCheckBox>
#include <QSignalBlocker>

#include <cstddef>

namespace vorlane {

frmButton::frmButton(Document &doc, frmMain *mainWindow, QWidget *parent)
    : EditorForm(doc, Kind::Button, mainWindow, parent ? parent : mainWindow)
    , m_button(doc.Buttons.at(static_cast<size_t>(doc.currentObjectIndex)))
{
    m_ui.setupUi(this);
    declareBindings();

    connect(m_ui.optButton, &QRadioButton::toggled, this, [this](bool checked) {
        if (checked)
            optButton_Click();
    });
    connect(m_ui.optHotspot, &QRadioButton::toggled, this, [this](bool checked) {
        if (checked)
            optHotspot_Click();
    });

    // The template's cell for the chosen state follows every change that could move it; it
    // is connected after the bindings and the type switch, so it sees the record changed.
    loadStep([this]() { showTemplateCell(); });
    for (QLineEdit *box : {m_ui.txtButtonUp,
                           m_ui.txtButtonOver,
                           m_ui.txtButtonDown,
                           m_ui.txtButtonDisabled,
                           m_ui.txtButtonSwitch1,
                           m_ui.txtButtonSwitch2})
        connect(box, &QLineEdit::textChanged, this, &frmButton::showTemplateCell);
    connect(
        m_ui.cmbButtonTemplate, &QComboBox::editTextChanged, this, &frmButton::showTemplateCell);
    connect(m_ui.cmbButtonTemplate, &QComboBox::activated, this, &frmButton::showTemplateCell);
    for (QRadioButton *option : {m_ui.optButtonUp,
                                 m_ui.optButtonOver,
                                 m_ui.optButtonDown,
                                 m_ui.optButtonDisabled,
                                 m_ui.optButton,
                                 m_ui.optHotspot})
        connect(option, &QRadioButton::toggled, this, &frmButton::showTemplateCell);
    for (QComboBox *box : {m_ui.cmbButtonIcon, m_ui.cmbButtonCaption}) {
        connect(box, &QComboBox::editTextChanged, this, &frmButton::showTemplateCell);
        connect(box, &QComboBox::activated, this, &frmButton::showTemplateCell);
    }
    for (QCheckBox *box : {m_ui.chkButtonIconVisible, m_ui.chkButtonCaptionVisible})
        connect(box, &QCheckBox::toggled, this, &frmButton::showTemplateCell);
    connect(
        m_ui.picButtonSheet, &CellSheet::cellClicked, this, &frmButton::picButtonSheet_CellClicked);
}

void frmButton::picButtonSheet_CellClicked(int cell)
{
    const std::pair<QRadioButton *, QLineEdit *> states[] = {
        {m_ui.optButtonUp, m_ui.txtButtonUp},
        {m_ui.optButtonOver, m_ui.txtButtonOver},
        {m_ui.optButtonDown, m_ui.txtButtonDown},
        {m_ui.optButtonDisabled, m_ui.txtButtonDisabled}};
    for (const auto &[option, box] : states) {
        if (option->isChecked()) {
            if (box->isEnabled())
                box->setText(QString::number(cell));
            return;
        }
    }
}

void frmButton::newRecordDefaults()
{
    setButtonDefaults(m_button);
}

std::vector<QWidget *> frmButton::graphicOnlyControls() const
{
    return {m_ui.cmbButtonTemplate,
            m_ui.txtButtonUp,
            m_ui.txtButtonDown,
            m_ui.txtButtonOver,
            m_ui.txtButtonDisabled,
            m_ui.optButtonDown,
            m_ui.optButtonOver,
            m_ui.cmbButtonIcon,
            m_ui.cmbButtonCaption,
            m_ui.chkButtonVisible,
            m_ui.chkButtonIconVisible,
            m_ui.chkButtonCaptionVisible,
            m_ui.cmbButtonSoundUp,
            m_ui.cmbButtonSoundOver,
            m_ui.cmbButtonSoundDown,
            m_ui.cmbButtonSoundDisabled,
            m_ui.cmbButtonCursor};
}

// The bindings in the order the load fills them.
void frmButton::declareBindings()
{
    ButtonRec &b = m_button;
    m_id = &bindIdentifier(m_ui.txtButtonID, b.id);
    bindNumber(m_ui.txtButtonX, b.x);
    bindNumber(m_ui.txtButtonY, b.y);

    loadStep([this]() {
        showType();
        const QSignalBlocker blockButton(m_ui.optButton);
        const QSignalBlocker blockHotspot(m_ui.optHotspot);
        (m_button.isHotSpot != 0 ? m_ui.optHotspot : m_ui.optButton)->setChecked(true);
    });
    // The switch boxes write where their label's caption says.
    const auto switchBox = [this](QLineEdit *box, QLabel *label, int number) {
        return &bindText(
            box,
            [this, label, number]() {
                const int16_t *field = switchField(m_button, number, label->text().toStdString());
                return field ? std::to_string(*field) : std::string();
            },
            [this, label, number](const std::string &text) {
                const NumberOutcome outcome = numberRule(text);
                if (int16_t *field = switchField(m_button, number, label->text().toStdString()))
                    *field = static_cast<int16_t>(outcome.value);
                return outcome.boxText;
            });
    };
    m_switch1 = switchBox(m_ui.txtButtonSwitch1, m_ui.lblButtonSwitch1, 1);
    m_switch2 = switchBox(m_ui.txtButtonSwitch2, m_ui.lblButtonSwitch2, 2);

    m_template = &bindList(
        m_ui.cmbButtonTemplate,
        Kind::Image,
        imageIsBound,
        [this]() { return m_button.templateId; },
        [this](const std::string &text) { return templateBoxChanged(m_button, text); },
        [this](const std::string &chosen) { m_button.templateId = chosen; });
    bindList(m_ui.cmbButtonIcon, b.iconId, Kind::Image, imageIsBound);
    bindList(m_ui.cmbButtonCursor, b.cursorId, Kind::Cursor);
    bindList(m_ui.cmbButtonCaption, b.captionTextId, Kind::Text);
    bindList(m_ui.cmbButtonSoundUp, b.soundUp, Kind::SFX);
    bindList(m_ui.cmbButtonSoundOver, b.soundOver, Kind::SFX);
    bindList(m_ui.cmbButtonSoundDown, b.soundDown, Kind::SFX);
    bindList(m_ui.cmbButtonSoundDisabled, b.soundDisabled, Kind::SFX);

    m_up = &bindNumber(m_ui.txtButtonUp, b.frameUp);
    bindNumber(m_ui.txtButtonOver, b.frameOver);
    bindNumber(m_ui.txtButtonDown, b.frameDown);
    m_disabled = &bindNumber(m_ui.txtButtonDisabled, b.frameDisabled);

    // Choosing a state shows its cell; in this order, the first state on the current cell
    // is the one shown as chosen.
    const auto cell = [this](ButtonState state) {
        return [this, state]() {
            return stateCell(m_button, state);
        };
    };
    bindOptions({{m_ui.optButtonDisabled, cell(ButtonState::Disabled)},
                 {m_ui.optButtonDown, cell(ButtonState::Down)},
                 {m_ui.optButtonUp, cell(ButtonState::Up)},
                 {m_ui.optButtonOver, cell(ButtonState::Over)}},
                b.currentFrame);

    bindCheck(m_ui.chkButtonVisible, b.visible);
    bindCheck(m_ui.chkButtonIconVisible, b.iconVisible);
    bindCheck(m_ui.chkButtonCaptionVisible, b.captionVisible);
}

// Captions and enabled controls of the button's type.
void frmButton::showType()
{
    const bool hotSpot = m_button.isHotSpot != 0;
    const SwitchCaptions captions = switchCaptions(hotSpot);
    m_ui.frmButtonSwitch->setTitle(QString::fromUtf8(captions.frame));
    m_ui.lblButtonSwitch1->setText(QString::fromUtf8(captions.first));
    m_ui.lblButtonSwitch2->setText(QString::fromUtf8(captions.second));
    enableControls(graphicOnlyControls(), !hotSpot);
}

// The template's cell for the chosen state: the state's cell box, or the current frame when
// no state is chosen.
void frmButton::showTemplateCell()
{
    CellView *view = m_ui.picButtonCell;
    CellSheet *sheet = m_ui.picButtonSheet;
    if (m_button.isHotSpot != 0) {
        view->showNote(tr("A hot spot has no template"));
        sheet->showNote(tr("A hot spot has no template"));
        return;
    }
    const std::optional<int> image = findListedObject(document(), Kind::Image, m_button.templateId);
    if (!image) {
        const QString note = QString::fromStdString(noObjectText("image", m_button.templateId));
        view->setPicture(PictureSpec{});
        view->showNote(note);
        sheet->setPicture(PictureSpec{});
        sheet->showNote(note);
        return;
    }
    const PictureSpec picture =
        pictureOf(document(), document().Images[static_cast<size_t>(*image)]);
    view->setPicture(picture);
    view->setTemplateCells(m_button.templateRows, m_button.templateColumns);
    sheet->setPicture(picture);
    sheet->setTemplateCells(m_button.templateRows, m_button.templateColumns);
    sheet->setMarkedCells(
        {m_button.frameUp, m_button.frameOver, m_button.frameDown, m_button.frameDisabled});
    showDecoration();
    const std::pair<QRadioButton *, ButtonState> states[] = {
        {m_ui.optButtonUp, ButtonState::Up},
        {m_ui.optButtonOver, ButtonState::Over},
        {m_ui.optButtonDown, ButtonState::Down},
        {m_ui.optButtonDisabled, ButtonState::Disabled}};
    for (const auto &[option, state] : states) {
        if (option->isChecked()) {
            view->setCell(stateCell(m_button, state), option->text());
            sheet->setHighlightedCell(stateCell(m_button, state));
            return;
        }
    }
    view->setCell(m_button.currentFrame, tr("Current frame"));
    sheet->setHighlightedCell(m_button.currentFrame);
}

void frmButton::showDecoration()
{
    QImage icon;
    if (m_button.iconVisible == 1) {
        if (const std::optional<int> image =
                findListedObject(document(), Kind::Image, m_button.iconId)) {
            const PictureSpec spec =
                pictureOf(document(), document().Images[static_cast<size_t>(*image)]);
            if (spec.file != m_iconSpec.file || m_icon.isNull())
                m_icon = PreviewPicture::load(spec);
            else if (!(spec == m_iconSpec))
                m_icon = m_icon.rekeyed(spec);
            m_iconSpec = spec;
            // An icon cut into cells shows its first.
            const QImage &whole = m_icon.image();
            const std::optional<CellRect> first = cellRect(
                gridOfCells(whole.width(), whole.height(), spec.cellWidth, spec.cellHeight),
                FirstCell);
            if (first)
                icon = whole.copy(first->x, first->y, first->width, first->height);
        }
    }
    std::optional<TextLook> caption;
    if (m_button.captionVisible == 1) {
        if (const std::optional<int> text =
                findListedObject(document(), Kind::Text, m_button.captionTextId))
            caption = textLookOf(document(), document().Texts[static_cast<size_t>(*text)]);
    }
    m_ui.picButtonCell->setDecoration(icon, caption);
}

void frmButton::optHotspot_Click()
{
    if (m_button.isHotSpot != 0)
        return;
    m_button.isHotSpot = 1;
    m_button.id = hotSpotId(m_button.id);
    m_id->setText(m_button.id);
    m_button.frameUp = 1;
    m_button.frameDisabled = 0;
    m_up->setText("1");
    m_disabled->setText("0");
    m_button.currentFrame = 1;
    showType();
    m_switch1->setText(std::to_string(m_button.hotSpotWidth));
    m_switch2->setText(std::to_string(m_button.hotSpotHeight));
    m_ui.optHotspot->setChecked(true);
}

void frmButton::optButton_Click()
{
    if (m_button.isHotSpot != 1)
        return;
    m_button.isHotSpot = 0;
    m_button.id = graphicButtonId(m_button.id);
    m_id->setText(m_button.id);
    showType();
    m_switch1->setText(std::to_string(m_button.templateRows));
    m_switch2->setText(std::to_string(m_button.templateColumns));
    m_ui.optButton->setChecked(true);

    // In this order; the last three look at other fields but reset the template, which is
    // how buttons have always come back from being hot spots.
    if (m_button.templateId.empty())
        m_template->setText(std::string(EnterTilemapId));
    for (const std::string *field :
         {&m_button.cursorId, &m_button.iconId, &m_button.captionTextId}) {
        if (field->empty()) {
            m_button.templateId = NullText;
            m_template->setText(std::string());
        }
    }
}

} // namespace vorlane
