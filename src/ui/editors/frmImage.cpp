#include "frmImage.h"

#include "ImageSheetView.h"
#include "frmMain.h"
#include "rules/PictureSpec.h"
#include "rules/FieldRules.h"
#include "rules/ImageFieldRules.h"

#include <cstddef>

namespace vorlane {

frmImage::frmImage(Document &doc, frmMain *mainWindow, QWidget *parent)
    : EditorForm(doc, Kind::Image, mainWindow, parent ? parent : mainWindow)
    , m_image(doc.Images.at(static_cast<size_t>(doc.currentObjectIndex)))
{
    m_ui.setupUi(this);
    // The bindings in the order the load fills them.
    ImageRec &i = m_image;
    bindIdentifier(m_ui.txtImageID, i.id);
    bindReference(m_ui.txtImagePath, i.path);
    bindNumber(m_ui.txtImagePositionX, i.positionX);
    bindNumber(m_ui.txtImagePositionY, i.positionY);
    bindNumber(m_ui.txtImageCellWidth, i.cellWidth);
    bindNumber(m_ui.txtImageCellHeight, i.cellHeight);
    bindNumber(m_ui.txtImageRed, i.red, byteField());
    bindNumber(m_ui.txtImageGreen, i.green, byteField());
    bindNumber(m_ui.txtImageBlue, i.blue, byteField());
    bindNumber(m_ui.txtImageAlpha, i.alpha, byteField());
    bindCheck(m_ui.chkImageBound, i.bound);
    bindCheck(m_ui.chkImageVisible, i.visible);
    loadStep([this]() { showPreview(); });
    // Connected after the bindings, so the record already holds what was typed.
    for (QLineEdit *box : {m_ui.txtImagePath,
                           m_ui.txtImageCellWidth,
                           m_ui.txtImageCellHeight,
                           m_ui.txtImageRed,
                           m_ui.txtImageGreen,
                           m_ui.txtImageBlue,
                           m_ui.txtImageAlpha})
        connect(box, &QLineEdit::textChanged, this, &frmImage::showPreview);
    // Tab walks the record's boxes only, as before the preview; the zoom is chosen by mouse.
    for (QWidget *child : m_ui.picImageSheet->findChildren<QWidget *>())
        child->setFocusPolicy(Qt::ClickFocus);
}

void frmImage::showPreview()
{
    m_ui.picImageSheet->setPicture(pictureOf(document(), m_image));
}

void frmImage::newRecordDefaults()
{
    setImageDefaults(m_image);
}

} // namespace vorlane
