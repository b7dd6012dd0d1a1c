#include "PreviewPicture.h"

#include "rules/PreviewTexts.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace vorlane {

namespace {

QString qt(const std::string &text)
{
    return QString::fromStdString(text);
}

} // namespace

PreviewPicture PreviewPicture::load(const PictureSpec &spec)
{
    PreviewPicture picture;
    if (!spec.file) {
        picture.m_problem = qt(noFileText());
        return picture;
    }
    const QString file = QString::fromStdString(*spec.file);
    const QFileInfo info(file);
    if (!info.exists()) {
        picture.m_problem = qt(missingFileText(spec.storedPath, *spec.file));
        return picture;
    }
    QImageReader reader(file);
    QImage read;
    if (!info.isFile() || !reader.read(&read) || read.isNull()) {
        picture.m_problem = qt(unreadableFileText(spec.storedPath, *spec.file));
        return picture;
    }
    picture.m_file = read.convertToFormat(QImage::Format_ARGB32);
    return picture.rekeyed(spec);
}

PreviewPicture PreviewPicture::rekeyed(const PictureSpec &spec) const
{
    PreviewPicture picture = *this;
    if (!m_file.isNull())
        picture.m_image = keyed(m_file, spec.red, spec.green, spec.blue, spec.alpha);
    return picture;
}

QImage PreviewPicture::keyed(const QImage &source, int red, int green, int blue, int alpha)
{
    QImage image = source.convertToFormat(QImage::Format_ARGB32);
    const int scale = std::clamp(alpha, 0, 255);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = line[x];
            if (qRed(pixel) == red && qGreen(pixel) == green && qBlue(pixel) == blue)
                line[x] = qRgba(0, 0, 0, 0);
            else
                line[x] = qRgba(
                    qRed(pixel), qGreen(pixel), qBlue(pixel), (qAlpha(pixel) * scale + 127) / 255);
        }
    }
    return image;
}

} // namespace vorlane
