#pragma once

#include "AnimationClock.h"

#include <QColor>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QString>

#include <array>
#include <cstdint>

namespace vorlane {

// A sheet of 4 x 2 cells of 32 x 32, each of its own colour; cell 5 is the colour key.
struct PreviewSheet
{
    static constexpr int Cell = 32;
    static constexpr int Columns = 4;
    static constexpr int Rows = 2;
    static constexpr int KeyCell = 5;
    static constexpr QRgb Key = 0xffff00ff;
    static constexpr std::array<QRgb, 8> Colours{
        0xffdc1414, 0xff14c814, 0xff1414dc, 0xffe6e600, Key, 0xff00c8c8, 0xfffa8c00, 0xff783ca0};

    // The colour of cell `cell` (numbered from 1).
    static QRgb colour(int cell) { return Colours[static_cast<size_t>(cell - 1)]; }

    // Writes the sheet as a PNG file `name` in `folder`; returns its path.
    static QString write(const QString &folder, const QString &name = QStringLiteral("sheet.png"))
    {
        QImage image(Columns * Cell, Rows * Cell, QImage::Format_ARGB32);
        QPainter painter(&image);
        for (int cell = 1; cell <= Columns * Rows; ++cell) {
            const int index = cell - 1;
            painter.fillRect((index % Columns) * Cell,
                             (index / Columns) * Cell,
                             Cell,
                             Cell,
                             QColor::fromRgba(colour(cell)));
        }
        painter.end();
        const QString path = QDir(folder).filePath(name);
        image.save(path);
        return path;
    }

    // The centre of cell `cell` in the sheet.
    static QPoint centre(int cell)
    {
        const int index = cell - 1;
        return QPoint((index % Columns) * Cell + Cell / 2, (index / Columns) * Cell + Cell / 2);
    }
};

// A clock the test moves on by hand.
class ManualClock : public AnimationClock
{
public:
    explicit ManualClock(int64_t *now)
        : m_now(now)
    {}
    int64_t nowMs() const override { return *m_now; }

private:
    int64_t *m_now;
};

} // namespace vorlane
