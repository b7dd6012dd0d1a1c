#include "frmSprite.h"

#include "ObjectListView.h"
#include "QuickStatsView.h"
#include "frmAnim.h"
#include "frmMain.h"
#include "rules/EditorHandBack.h"
#include "rules/FieldRules.h"
#include "rules/QuickStats.h"
#include "rules/SpriteAnimations.h"

#include <cstddef>

namespace vorlane {

frmSprite::frmSprite(Document &doc, frmMain *mainWindow, QWidget *parent)
    : EditorForm(doc, Kind::Sprite, mainWindow, parent ? parent : mainWindow)
    , m_sprite(doc.Sprites.at(static_cast<size_t>(doc.currentObjectIndex)))
{
    m_ui.setupUi(this);
    m_rowView = new ObjectListView(
        m_ui.lstAnimObjects,
        m_rows,
        [this]() { lstAnimObjects_Click(); },
        [this]() { lstAnimObjects_DblClick(); });
    declareBindings();
    connect(m_ui.cmdSpriteNewAnim, &QPushButton::clicked, this, &frmSprite::cmdSpriteNewAnim_Click);
    connect(m_ui.cmdSpriteRemoveAnim,
            &QPushButton::clicked,
            this,
            &frmSprite::cmdSpriteRemoveAnim_Click);
    connect(
        m_ui.cmdSpriteEditAnim, &QPushButton::clicked, this, &frmSprite::cmdSpriteEditAnim_Click);
}

frmSprite::~frmSprite() = default;

void frmSprite::newRecordDefaults()
{
    setSpriteDefaults(m_sprite);
}

// The bindings in the order the load fills them.
void frmSprite::declareBindings()
{
    SpriteRec &s = m_sprite;
    bindIdentifier(m_ui.txtSpriteID, s.id);
    bindList(m_ui.cmbSpriteImage, s.imageId, Kind::Image, imageIsBound);
    loadStep([this]() {
        m_rows = vorlane::animationRows(m_sprite);
        m_rowView->show();
        // With animCount below 1 the buttons keep the state they had.
        if (m_sprite.animCount >= 1)
            enableRowButtons(!m_rows.lines.empty());
    });
    m_currentAnim = &bindList(m_ui.cmbSpriteCurrentAnim, s.currentAnimId, [this]() {
        return currentAnimationChoices(m_sprite, static_cast<int>(m_rows.lines.size()));
    });
    bindNumber(m_ui.txtSpritePositionX, s.positionX);
    bindNumber(m_ui.txtSpritePositionY, s.positionY);
    bindCheck(m_ui.chkSpritePropsVisible, s.visible);
}

void frmSprite::enableRowButtons(bool enabled)
{
    enableControls({m_ui.cmdSpriteRemoveAnim, m_ui.cmdSpriteEditAnim}, enabled);
}

void frmSprite::cmdSpriteNewAnim_Click()
{
    if (const auto refusal = newAnimation(document(), m_sprite, m_rows)) {
        userInterface().showMessage(*refusal);
        return;
    }
    m_rowView->show();
    enableRowButtons(true);
}

void frmSprite::cmdSpriteRemoveAnim_Click()
{
    if (!removeAnimation(m_sprite, m_rows))
        return;
    m_rowView->show();
    if (m_rows.lines.empty()) {
        enableRowButtons(false);
        m_ui.fraAnimCover->setVisible(true);
    }
}

void frmSprite::cmdSpriteEditAnim_Click()
{
    if (m_rows.lines.empty() || m_rows.selected < 0)
        return;
    document().currentAnimIndex = m_rows.lines[static_cast<size_t>(m_rows.selected)].slot;
    frmAnim editor(document(), *this);
    editor.run();
}

void frmSprite::lstAnimObjects_Click()
{
    if (m_rows.selected < 0 || m_rows.selected >= static_cast<int>(m_rows.lines.size()))
        return;
    UpdateAnimStats(m_rows.lines[static_cast<size_t>(m_rows.selected)].slot, slot());
}

void frmSprite::lstAnimObjects_DblClick()
{
    lstAnimObjects_Click();
    cmdSpriteEditAnim_Click();
}

void frmSprite::UpdateAnimStats(int indexAnim, int indexSprite)
{
    showQuickStats(
        *this, vorlane::UpdateAnimStats(document(), indexAnim, indexSprite), m_ui.fraAnimCover);
}

void frmSprite::refreshAnimationRow(const std::string &id)
{
    replaceSelectedLine(m_rows, id);
    m_rowView->show();
}

void frmSprite::refillCurrentAnimations()
{
    // The list is filled again by slot number; the box keeps showing the stored text.
    m_currentAnim->fill();
}

void frmSprite::handBack()
{
    // The main window's line is refreshed first, so its statistics still show the number of
    // animations from before; the line's next selection shows the new one.
    EditorForm::handBack();
    m_sprite.animCount = static_cast<int16_t>(m_rows.lines.size());
}

} // namespace vorlane
