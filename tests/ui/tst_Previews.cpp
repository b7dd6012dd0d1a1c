#include "AnimationPlayer.h"
#include "CellView.h"
#include "ImageSheetView.h"
#include "PreviewPicture.h"
#include "PreviewSheet.h"
#include "SceneCanvas.h"
#include "rules/ObjectFilePath.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace vorlane;

namespace {

// The checkerboard behind transparent pixels is one of two greys.
bool isCheckerboard(QRgb pixel)
{
    return pixel == qRgb(204, 204, 204) || pixel == qRgb(153, 153, 153);
}

} // namespace

// The previews on pictures the tests draw: a 4 x 2 sheet of coloured cells, one of them in
// the colour key.
class tst_Previews : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString m_sheet;

    PictureSpec sheetSpec(int cellWidth = PreviewSheet::Cell,
                          int cellHeight = PreviewSheet::Cell,
                          int alpha = 255) const
    {
        return PictureSpec{
            "art\\sheet.png", m_sheet.toStdString(), cellWidth, cellHeight, 255, 0, 255, alpha};
    }

    // A player playing cells 1, 2, 3 at 100 ms a frame by a clock the test moves.
    std::unique_ptr<AnimationPlayer> player(int64_t &now, bool reverse, bool repeat)
    {
        auto result =
            std::make_unique<AnimationPlayer>(nullptr, std::make_unique<ManualClock>(&now));
        result->setPicture(sheetSpec());
        result->setSequence({1, 2, 3}, AnimationTiming{3, 100, 0, reverse, repeat});
        return result;
    }

    // The cells a player shows at each of `times`.
    static QList<int> cellsAt(AnimationPlayer &player, int64_t &now, const QList<int64_t> &times)
    {
        QList<int> cells;
        for (int64_t t : times) {
            now = t;
            player.tick();
            cells << player.shownCell();
        }
        return cells;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        m_sheet = PreviewSheet::write(m_dir.path());
    }

    void sheetShowsEveryCellAtItsCentreAndTheKeyTransparent()
    {
        ImageSheetView view;
        view.setPicture(sheetSpec());
        QCOMPARE(view.grid(), (CellGrid{32, 32, 4, 2}));
        QCOMPARE(view.message(),
                 QStringLiteral("128 x 64 pixels, 8 cells (4 x 2), numbered from 1"));
        const QImage image = view.composed();
        QCOMPARE(image.size(), QSize(128, 64));
        for (int cell = 1; cell <= 8; ++cell) {
            const QRgb pixel = image.pixel(PreviewSheet::centre(cell));
            if (cell == PreviewSheet::KeyCell)
                QVERIFY2(isCheckerboard(pixel), qPrintable(QString::number(pixel, 16)));
            else
                QCOMPARE(pixel, PreviewSheet::colour(cell));
        }
    }

    void sheetFollowsTheColourKey()
    {
        ImageSheetView view;
        PictureSpec spec = sheetSpec();
        spec.red = 0xdc;
        spec.green = 0x14;
        spec.blue = 0x14; // the colour of cell 1
        view.setPicture(spec);
        QVERIFY(isCheckerboard(view.composed().pixel(PreviewSheet::centre(1))));
        QCOMPARE(view.composed().pixel(PreviewSheet::centre(5)), PreviewSheet::Key);
    }

    void sheetZoomIsChosenByTheUser()
    {
        ImageSheetView view;
        view.setPicture(sheetSpec());
        auto *zoom = view.findChild<QComboBox *>(QStringLiteral("cmbPreviewZoom"));
        QVERIFY(zoom);
        QCOMPARE(zoom->currentText(), QStringLiteral("100%"));
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        zoom->setFocus();
        QTest::keyClick(zoom, Qt::Key_Down);
        QCOMPARE(zoom->currentText(), QStringLiteral("200%"));
        QCOMPARE(view.zoom(), 200);
        const QImage image = view.composed();
        QCOMPARE(image.size(), QSize(256, 128));
        QCOMPARE(image.pixel(PreviewSheet::centre(2) * 2), PreviewSheet::colour(2));
        QCOMPARE(image.pixel(PreviewSheet::centre(8) * 2), PreviewSheet::colour(8));
    }

    void alphaScalesEveryPixelButTheKey()
    {
        const PreviewPicture picture = PreviewPicture::load(sheetSpec(32, 32, 128));
        QCOMPARE(qAlpha(picture.image().pixel(PreviewSheet::centre(1))), 128);
        QCOMPARE(qAlpha(picture.image().pixel(PreviewSheet::centre(5))), 0);
        // Out of range: taken to the nearest end.
        QCOMPARE(qAlpha(PreviewPicture::load(sheetSpec(32, 32, -1)).image().pixel(0, 0)), 0);
        QCOMPARE(qAlpha(PreviewPicture::load(sheetSpec(32, 32, 300)).image().pixel(0, 0)), 255);
        ImageSheetView view;
        view.setPicture(sheetSpec(32, 32, 0));
        QVERIFY(isCheckerboard(view.composed().pixel(PreviewSheet::centre(1))));
    }

    void missingFileNamesTheStoredPathAndTheFileLookedFor()
    {
        const std::string file = (m_dir.path() + QStringLiteral("/art/gone.png")).toStdString();
        ImageSheetView view;
        view.setPicture(PictureSpec{"art\\gone.png", file, 32, 32, 0, 0, 0, 255});
        QCOMPARE(view.message(),
                 QStringLiteral("File not found: \"art\\gone.png\" (looked for %1)")
                     .arg(QString::fromStdString(file)));
        QVERIFY(view.composed().isNull());
        // Made by the rule that finds the files: a relative path beside the project file.
        const std::string project = (m_dir.path() + QStringLiteral("/demo.dvb")).toStdString();
        QCOMPARE(resolveObjectPath("art\\gone.png", "", project), file);
    }

    void unreadableAndEmptyPathsSaySo()
    {
        const QString notes = m_dir.filePath(QStringLiteral("notes.png"));
        QFile text(notes);
        QVERIFY(text.open(QIODevice::WriteOnly));
        text.write("not a picture");
        text.close();
        ImageSheetView view;
        view.setPicture(PictureSpec{"notes.png", notes.toStdString(), 0, 0, 0, 0, 0, 255});
        QCOMPARE(view.message(),
                 QStringLiteral("Not a picture Vorlane can read: \"notes.png\" (looked for %1)")
                     .arg(notes));
        view.setPicture(PictureSpec{"null", std::nullopt, 0, 0, 0, 0, 0, 255});
        QCOMPARE(view.message(), QStringLiteral("No file: the path is empty"));
        // The sheet comes back once the path names it again.
        view.setPicture(sheetSpec());
        QCOMPARE(view.composed().pixel(PreviewSheet::centre(3)), PreviewSheet::colour(3));
    }

    void cellViewShowsEachCell()
    {
        CellView view;
        view.setPicture(sheetSpec());
        for (int cell = 1; cell <= 8; ++cell) {
            view.setCell(cell, QStringLiteral("Up"));
            const QImage image = view.cellImage();
            QCOMPARE(image.size(), QSize(32, 32));
            if (cell == PreviewSheet::KeyCell)
                QCOMPARE(qAlpha(image.pixel(16, 16)), 0);
            else
                QCOMPARE(image.pixel(16, 16), PreviewSheet::colour(cell));
            QCOMPARE(view.message(), QStringLiteral("Up: cell %1").arg(cell));
        }
        view.setCell(9);
        QVERIFY(view.cellImage().isNull());
        QCOMPARE(view.message(), QStringLiteral("Cell 9 is not on the sheet (cells 1 to 8)"));
        view.setCell(0);
        QCOMPARE(view.message(), QStringLiteral("Cell 0 is not on the sheet (cells 1 to 8)"));
    }

    void cellViewCutsByTemplateRowsAndColumns()
    {
        CellView view;
        view.setPicture(sheetSpec());
        view.setTemplateCells(1, 2);
        view.setCell(2);
        const QImage image = view.cellImage();
        QCOMPARE(image.size(), QSize(64, 64));
        // The right half of the sheet: cells 3, 4 above 7, 8.
        QCOMPARE(image.pixel(16, 16), PreviewSheet::colour(3));
        QCOMPARE(image.pixel(48, 48), PreviewSheet::colour(8));
    }

    void animationPlaysForward()
    {
        int64_t now = 1000;
        auto p = player(now, false, false);
        QCOMPARE(p->delayCaption(), QStringLiteral("Frame delay: 100 ms"));
        p->play();
        QCOMPARE(p->playButton()->text(), QStringLiteral("Stop"));
        QCOMPARE(cellsAt(*p, now, {1000, 1099, 1100, 1250, 1299}), (QList<int>{1, 1, 2, 3, 3}));
        QCOMPARE(p->shownImage().pixel(16, 16), PreviewSheet::colour(3));
    }

    void animationWithoutRepeatStopsOnItsLastFrame()
    {
        int64_t now = 0;
        auto p = player(now, false, false);
        p->play();
        QCOMPARE(cellsAt(*p, now, {300, 900}), (QList<int>{3, 3}));
        QVERIFY(!p->isPlaying());
        QCOMPARE(p->playButton()->text(), QStringLiteral("Play"));
    }

    void animationRepeats()
    {
        int64_t now = 0;
        auto p = player(now, false, true);
        p->play();
        QCOMPARE(cellsAt(*p, now, {0, 100, 200, 300, 400, 500, 600}),
                 (QList<int>{1, 2, 3, 1, 2, 3, 1}));
        QVERIFY(p->isPlaying());
    }

    void animationPlaysInReverse()
    {
        int64_t now = 0;
        auto p = player(now, true, false);
        p->play();
        QCOMPARE(cellsAt(*p, now, {0, 100, 200, 300}), (QList<int>{3, 2, 1, 1}));
        QVERIFY(!p->isPlaying());
        auto r = player(now, true, true);
        now = 0;
        r->play();
        QCOMPARE(cellsAt(*r, now, {0, 100, 200, 300, 400}), (QList<int>{3, 2, 1, 3, 2}));
    }

    void stoppedPlayerShowsTheStillCell()
    {
        int64_t now = 0;
        auto p = player(now, false, true);
        p->setStillCell(7);
        QCOMPARE(p->shownCell(), 7);
        QCOMPARE(p->shownImage().pixel(16, 16), PreviewSheet::colour(7));
        QTest::mouseClick(p->playButton(), Qt::LeftButton);
        QVERIFY(p->isPlaying());
        QCOMPARE(p->shownCell(), 1);
        QTest::mouseClick(p->playButton(), Qt::LeftButton);
        QVERIFY(!p->isPlaying());
        QCOMPARE(p->shownCell(), 7);
        QCOMPARE(p->playButton()->text(), QStringLiteral("Play"));
    }

    void emptySequenceCannotPlay()
    {
        int64_t now = 0;
        AnimationPlayer p(nullptr, std::make_unique<ManualClock>(&now));
        p.setPicture(sheetSpec());
        p.setSequence({}, AnimationTiming{0, 100, 0, false, false});
        QVERIFY(!p.playButton()->isEnabled());
        p.play();
        QVERIFY(!p.isPlaying());
    }
};

QTEST_MAIN(tst_Previews)
#include "tst_Previews.moc"
