#include "frmImage.h"

#include "frmMain.h"
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
}

void frmImage::newRecordDefaults()
{
    setImageDefaults(m_image);
}

} // namespace vorlane
