#pragma once

#include "rules/PictureSpec.h"

#include <QImage>
#include <QString>

namespace vorlane {

// A picture file as the previews draw it: read from the file its path names, with the pixels
// of the colour key made transparent and the alpha applied. A file that is missing or cannot
// be read gives no image and a line saying so.
class PreviewPicture
{
public:
    PreviewPicture() = default;

    // Reads the file of `spec`.
    static PreviewPicture load(const PictureSpec &spec);

    // The same picture with another colour key and alpha, without reading the file again.
    PreviewPicture rekeyed(const PictureSpec &spec) const;

    bool isNull() const { return m_image.isNull(); }
    // The picture as drawn (32-bit with alpha); null when there is none.
    const QImage &image() const { return m_image; }
    // Why there is no picture.
    const QString &problem() const { return m_problem; }

    // `source` with every pixel of the colour (red, green, blue) transparent and every other
    // pixel's alpha scaled by `alpha` (0..255; other values are taken to the nearest end).
    static QImage keyed(const QImage &source, int red, int green, int blue, int alpha);

private:
    QImage m_file;
    QImage m_image;
    QString m_problem;
};

} // namespace vorlane
