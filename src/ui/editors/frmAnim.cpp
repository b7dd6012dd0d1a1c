#include "frmAnim.h"

#include "AnimationPlayer.h"
#include "CellSheet.h"
#include "ObjectListView.h"
#include "frmSprite.h"
#include "rules/AnimationTimeline.h"
#include "rules/FieldRules.h"
#include "rules/FrameSequence.h"
#include "rules/PictureSpec.h"

#include <QSignalBlocker>

#include <cstddef>

namespace vorlane {

frmAnim::frmAnim(Document &doc, frmSprite &spriteEditor)
    : EditorForm(doc, Kind::Sprite, spriteEditor.mainWindow(), &spriteEditor)
    , m_spriteEditor(spriteEditor)
    , m_sprite(doc.Sprites.at(static_cast<size_t>(doc.currentObjectIndex)))
    , m_anim(m_sprite.anims.at(static_cast<size_t>(doc.currentAnimIndex)))
{
    m_ui.setupUi(this);
    m_rowView = new ObjectListView(m_ui.lstAnimSequence, m_rows, [this]() { showPreview(); });
    declareBindings();
    connectPreview();
    connect(m_ui.txtAnimSequenceAdd,
            &QLineEdit::textChanged,
            this,
            &frmAnim::txtAnimSequenceAdd_Change);
    connect(
        m_ui.cmdAnimSequenceAdd, &QPushButton::clicked, this, &frmAnim::cmdAnimSequenceAdd_Click);
    connect(m_ui.cmdAnimSequenceDelete,
            &QPushButton::clicked,
            this,
            &frmAnim::cmdAnimSequenceDelete_Click);
    connect(m_ui.cmdAnimSequenceUp, &QPushButton::clicked, this, &frmAnim::cmdAnimSequenceUp_Click);
    connect(
        m_ui.cmdAnimSequenceDown, &QPushButton::clicked, this, &frmAnim::cmdAnimSequenceDown_Click);
}

frmAnim::~frmAnim() = default;

void frmAnim::newRecordDefaults()
{
    setAnimDefaults(m_anim);
}

SlotView frmAnim::recordSlot()
{
    return SlotView{m_anim.inUse, m_anim.isNew, m_anim.id};
}

// The bindings in the order the load fills them.
void frmAnim::declareBindings()
{
    AnimRec &a = m_anim;
    loadStep([this]() {
        setWindowTitle(QStringLiteral("Animation Data - ") + QString::fromStdString(m_sprite.id));
    });
    bindIdentifier(m_ui.txtAnimID, a.id);
    loadStep([this]() {
        m_rows = frameRows(m_anim);
        m_rowView->show();
        const int rows = static_cast<int>(m_rows.lines.size());
        if (rows >= 1) {
            m_ui.cmdAnimSequenceDelete->setEnabled(true);
            if (rows >= 2)
                enableControls({m_ui.cmdAnimSequenceDown, m_ui.cmdAnimSequenceUp}, true);
        } else {
            enableControls(
                {m_ui.cmdAnimSequenceDelete, m_ui.cmdAnimSequenceUp, m_ui.cmdAnimSequenceDown},
                false);
        }
    });
    bindNumber(m_ui.txtAnimDelaysAnim, a.animDelay);
    bindNumber(m_ui.txtAnimDelaysFrame, a.frameDelay);
    bindCheck(m_ui.chkAnimPlay, a.play);
    bindCheck(m_ui.chkAnimRepeat, a.repeat);
    bindOptions(
        {{m_ui.optAnimDirectionForward, int16_t(1)}, {m_ui.optAnimDirectionReverse, int16_t(-1)}},
        a.direction);
    // Any direction other than forward shows as reverse.
    loadStep([this]() {
        if (m_anim.direction != 1 && m_anim.direction != -1) {
            const QSignalBlocker blocker(m_ui.optAnimDirectionReverse);
            m_ui.optAnimDirectionReverse->setChecked(true);
        }
    });
    bindText(
        m_ui.txtAnimDefaultFrame,
        [&a]() { return std::to_string(a.defaultFrame); },
        [&a](const std::string &text) {
            const NumberOutcome outcome = defaultFrameRule(text);
            a.defaultFrame = static_cast<int16_t>(outcome.value);
            return outcome.boxText;
        });
}

void frmAnim::connectPreview()
{
    // Connected after the bindings, so the record already holds what was typed or clicked.
    loadStep([this]() { showPreview(); });
    connect(m_ui.txtAnimDelaysAnim, &QLineEdit::textChanged, this, &frmAnim::showPreview);
    connect(m_ui.txtAnimDelaysFrame, &QLineEdit::textChanged, this, &frmAnim::showPreview);
    connect(m_ui.chkAnimRepeat, &QCheckBox::toggled, this, &frmAnim::showPreview);
    connect(m_ui.optAnimDirectionForward, &QRadioButton::toggled, this, &frmAnim::showPreview);
    connect(m_ui.optAnimDirectionReverse, &QRadioButton::toggled, this, &frmAnim::showPreview);
    CellSheet *sheet = m_ui.picAnimSheet;
    connect(sheet, &CellSheet::cellClicked, this, &frmAnim::picAnimSheet_CellClicked);
    connect(sheet, &CellSheet::cellDoubleClicked, this, &frmAnim::picAnimSheet_CellDoubleClicked);
    connect(m_ui.picAnimPlayer,
            &AnimationPlayer::shownCellChanged,
            sheet,
            &CellSheet::setHighlightedCell);
}

void frmAnim::picAnimSheet_CellClicked(int cell)
{
    m_ui.txtAnimSequenceAdd->setText(QString::number(cell));
}

void frmAnim::picAnimSheet_CellDoubleClicked(int cell)
{
    picAnimSheet_CellClicked(cell);
    if (m_ui.cmdAnimSequenceAdd->isEnabled())
        m_ui.cmdAnimSequenceAdd->click();
}

void frmAnim::showPreview()
{
    AnimationPlayer *player = m_ui.picAnimPlayer;
    const std::optional<int> image = findListedObject(document(), Kind::Image, m_sprite.imageId);
    const PictureSpec picture =
        image ? pictureOf(document(), document().Images[static_cast<size_t>(*image)])
              : PictureSpec{};
    player->setPicture(picture);
    const std::vector<int16_t> cells = animationCells(m_anim);
    m_ui.picAnimSheet->setPicture(picture);
    m_ui.picAnimSheet->setMarkedCells(std::vector<int>(cells.begin(), cells.end()));
    player->setSequence(cells, timingOf(m_anim, static_cast<int>(cells.size())));
    int still = 0;
    if (m_rows.selected >= 0 && static_cast<size_t>(m_rows.selected) < m_rows.lines.size()) {
        const int16_t slot = m_rows.lines[static_cast<size_t>(m_rows.selected)].slot;
        if (slot >= 0 && slot < SubSlotCount)
            still = m_anim.frames[static_cast<size_t>(slot)].cell;
    }
    player->setStillCell(still);
}

void frmAnim::txtAnimSequenceAdd_Change()
{
    m_ui.cmdAnimSequenceAdd->setEnabled(!m_ui.txtAnimSequenceAdd->text().isEmpty());
}

void frmAnim::cmdAnimSequenceAdd_Click()
{
    const std::string typed = m_ui.txtAnimSequenceAdd->text().toStdString();
    if (const auto refusal = addFrame(m_anim, m_rows, typed, document().frameOverflow)) {
        userInterface().showMessage(*refusal);
        return;
    }
    m_rowView->show();
    m_ui.cmdAnimSequenceDelete->setEnabled(true);
    if (m_rows.lines.size() > 1) {
        m_ui.cmdAnimSequenceDown->setEnabled(true);
        if (m_rows.selected != 0)
            m_ui.cmdAnimSequenceUp->setEnabled(true);
    }
    m_ui.txtAnimSequenceAdd->clear();
    m_ui.txtAnimSequenceAdd->setFocus();
    showPreview();
}

void frmAnim::cmdAnimSequenceDelete_Click()
{
    if (!deleteFrame(m_anim, m_rows))
        return;
    m_rowView->show();
    if (m_rows.lines.empty()) {
        enableControls({m_ui.cmdAnimSequenceDelete,
                        m_ui.cmdAnimSequenceUp,
                        m_ui.cmdAnimSequenceDown,
                        m_ui.cmdAnimSequenceAdd},
                       false);
        m_ui.txtAnimSequenceAdd->setFocus();
    }
    showPreview();
}

void frmAnim::cmdAnimSequenceUp_Click()
{
    if (moveFrameUp(m_anim, m_rows))
        m_rowView->show();
    showPreview();
}

void frmAnim::cmdAnimSequenceDown_Click()
{
    if (moveFrameDown(m_anim, m_rows))
        m_rowView->show();
    showPreview();
}

void frmAnim::handBack()
{
    // The sprite editor's row is refreshed first, so its statistics still show the number of
    // frames from before; the row's next selection shows the new one.
    m_spriteEditor.refreshAnimationRow(m_anim.id);
    m_anim.frameCount = static_cast<int16_t>(m_rows.lines.size());
    m_spriteEditor.refillCurrentAnimations();
}

} // namespace vorlane
