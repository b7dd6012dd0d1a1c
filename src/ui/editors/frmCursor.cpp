#include "frmCursor.h"

#include "CursorPreview.h"

#include "frmMain.h"
#include "rules/CursorFieldRules.h"
#include "rules/FieldRules.h"
#include "rules/PictureSpec.h"

#include <QRadioButton>

#include <cstddef>

namespace vorlane {

frmCursor::frmCursor(Document &doc, frmMain *mainWindow, QWidget *parent)
    : EditorForm(doc, Kind::Cursor, mainWindow, parent ? parent : mainWindow)
    , m_cursor(doc.Cursors.at(static_cast<size_t>(doc.currentObjectIndex)))
{
    m_ui.setupUi(this);
    // The bindings in the order the load fills them. The image box is designed showing its own
    // name, as a freshly placed drop-down does: showing a new cursor's empty image, or a stored
    // "null", then changes it and the reference rule leaves the box empty and stores "null".
    bindIdentifier(m_ui.txtCursorID, m_cursor.id);
    bindList(m_ui.cmbCursorImage, m_cursor.imageId, Kind::Image, imageIsBound);
    std::vector<Option> options;
    for (const CursorOrientation &orientation : CursorOrientations)
        options.emplace_back(orientationOption(orientation.code), orientation.code);
    bindOptions(std::move(options), m_cursor.orientation);

    // Connected after the bindings, so the record already holds what was chosen.
    m_preview = new CursorPreview(this);
    m_ui.vlCursor->addWidget(m_preview, 1);
    loadStep([this]() { showPreview(); });
    connect(m_ui.cmbCursorImage, &QComboBox::editTextChanged, this, &frmCursor::showPreview);
    connect(m_ui.cmbCursorImage, &QComboBox::activated, this, &frmCursor::showPreview);
    for (const CursorOrientation &orientation : CursorOrientations)
        connect(orientationOption(orientation.code),
                &QRadioButton::toggled,
                this,
                &frmCursor::showPreview);
}

void frmCursor::showPreview()
{
    const std::optional<int> image = findListedObject(document(), Kind::Image, m_cursor.imageId);
    m_preview->setPicture(
        image ? pictureOf(document(), document().Images[static_cast<size_t>(*image)])
              : PictureSpec{});
    m_preview->setOrientation(m_cursor.orientation);
}

QRadioButton *frmCursor::orientationOption(int code) const
{
    return findChild<QRadioButton *>(QStringLiteral("optCursorOrient_%1").arg(code));
}

void frmCursor::newRecordDefaults()
{
    setCursorDefaults(m_cursor);
}

} // namespace vorlane
