#include "PreviewSheet.h"
#include "SceneCanvas.h"
#include "ScenePreview.h"

#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace vorlane;

// The scene preview on a project whose pictures the test draws; the project file lies in a
// temporary folder and the pictures beside it.
class tst_SceneCanvas : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    std::unique_ptr<Document> m_doc;

    SceneRec &scene() { return m_doc->Scenes[0]; }

    template<class Record>
    Record &listed(Kind kind, Record &record, int slot, const std::string &id)
    {
        record.inUse = -1;
        record.isNew = 0;
        record.id = id;
        m_doc->list(kind).lines.push_back({id, static_cast<int16_t>(slot)});
        return record;
    }
    void layer(int slot, int16_t kind, const std::string &id)
    {
        scene().layers[static_cast<size_t>(slot)] = LayerRec{-1, kind, id};
    }
    ImageRec &image(int slot, const std::string &id, const std::string &path)
    {
        ImageRec &rec = listed(Kind::Image, m_doc->Images[static_cast<size_t>(slot)], slot, id);
        rec.path = path;
        rec.red = 255;
        rec.blue = 255;
        rec.alpha = 255;
        rec.visible = 1;
        rec.cellWidth = PreviewSheet::Cell;
        rec.cellHeight = PreviewSheet::Cell;
        return rec;
    }

private slots:
    void init()
    {
        QVERIFY(m_dir.isValid());
        PreviewSheet::write(m_dir.path(), QStringLiteral("sheet.png"));
        m_doc = makeDocument();
        m_doc->ProjectInfo.projectFilePath =
            (m_dir.path() + QStringLiteral("/demo.dvb")).toStdString();
        image(0, "imgSheet", "sheet.png");
        SpriteRec &hero = listed(Kind::Sprite, m_doc->Sprites[0], 0, "sprHero");
        hero.imageId = "imgSheet";
        hero.currentAnimId = "walk";
        hero.positionX = 300;
        hero.positionY = 200;
        hero.visible = 1;
        hero.anims[0].inUse = -1;
        hero.anims[0].id = "walk";
        hero.anims[0].frames[0] = FrameRec{-1, 3};
        hero.anims[0].frames[1] = FrameRec{-1, 4};
        ButtonRec &play = listed(Kind::Button, m_doc->Buttons[0], 0, "btnPlay");
        play.templateId = "imgSheet";
        play.frameUp = 2;
        play.x = 100;
        play.y = 300;
        play.visible = 1;
        ButtonRec &zone = listed(Kind::Button, m_doc->Buttons[1], 1, "_zone");
        zone.x = 400;
        zone.y = 50;
        zone.hotSpotWidth = 60;
        zone.hotSpotHeight = 40;
        TextRec &title = listed(Kind::Text, m_doc->Texts[0], 0, "txtTitle");
        title.content = "HELLO";
        title.x = 20;
        title.y = 400;
        title.pointSize = 30;
        title.foreRed = 255;
        title.visible = 1;
        listed(Kind::Music, m_doc->MusicTracks[0], 0, "musTheme");
    }

    void screenSizeOrDefault()
    {
        SceneCanvas canvas;
        canvas.setScene(*m_doc, scene(), {});
        QCOMPARE(canvas.sceneImage().size(), QSize(640, 480));
        m_doc->AppSettings.screenWidth = 800;
        m_doc->AppSettings.screenHeight = 600;
        canvas.setScene(*m_doc, scene(), {});
        QCOMPARE(canvas.sceneImage().size(), QSize(800, 600));
    }

    void objectsStandWhereTheEnginePutsThem()
    {
        layer(0, 2, "sprHero");
        layer(1, 4, "btnPlay");
        layer(2, 4, "_zone");
        layer(3, 1, "txtTitle");
        layer(4, 5, "musTheme");
        SceneCanvas canvas;
        canvas.setScene(*m_doc, scene(), {0, 1, 2, 3, 4});
        const QImage image = canvas.sceneImage();
        // The sprite's first frame is cell 3; the button's up cell is cell 2.
        QCOMPARE(image.pixel(316, 216), PreviewSheet::colour(3));
        QCOMPARE(image.pixel(300, 200), PreviewSheet::colour(3));
        QCOMPARE(image.pixel(332, 216), qRgb(0, 0, 0));
        QCOMPARE(image.pixel(116, 316), PreviewSheet::colour(2));
        // The hot spot is an outline: its corner drawn, its inside left as it was.
        QCOMPARE(image.pixel(400, 50), qRgb(0, 255, 255));
        QCOMPARE(image.pixel(430, 70), qRgb(0, 0, 0));
        // The text is drawn in its colour somewhere in its line.
        bool red = false;
        for (int y = 400; y < 440 && !red; ++y)
            for (int x = 20; x < 140 && !red; ++x)
                red = image.pixel(x, y) == qRgb(255, 0, 0);
        QVERIFY(red);
        QCOMPARE(canvas.notes(),
                 QStringList{QStringLiteral("Layer 4: music musTheme is not drawn")});
    }

    void layersAreDrawnInSlotOrderNotListOrder()
    {
        ImageRec &cover = image(1, "imgCover", "sheet.png");
        cover.cellWidth = 0;
        cover.positionX = 300;
        cover.positionY = 200;
        layer(7, 3, "imgCover"); // drawn after the sprite in slot 2
        layer(2, 2, "sprHero");
        SceneCanvas canvas;
        canvas.setScene(*m_doc, scene(), {7, 2});
        // The whole sheet at (300, 200) covers the sprite: its cell 1 lies there.
        QCOMPARE(canvas.sceneImage().pixel(316, 216), PreviewSheet::colour(1));
        QCOMPARE(canvas.layerAt(QPoint(316, 216)), 7);
    }

    void keyColourLeavesTheSceneBehind()
    {
        ImageRec &cover = image(1, "imgCover", "sheet.png");
        cover.cellWidth = 0;
        layer(0, 3, "imgCover");
        SceneCanvas canvas;
        canvas.setScene(*m_doc, scene(), {0});
        QCOMPARE(canvas.sceneImage().pixel(PreviewSheet::centre(5)), qRgb(0, 0, 0));
        QCOMPARE(canvas.sceneImage().pixel(PreviewSheet::centre(6)), PreviewSheet::colour(6));
    }

    void missingFileIsALabelledOutline()
    {
        ImageRec &gone = image(2, "imgGone", "art\\gone.png");
        gone.positionX = 500;
        gone.positionY = 300;
        layer(0, 3, "imgGone");
        layer(1, 3, "imgNothing");
        SceneCanvas canvas;
        canvas.setScene(*m_doc, scene(), {0, 1});
        const QImage image = canvas.sceneImage();
        QCOMPARE(image.pixel(500, 300), qRgb(255, 140, 0));
        QCOMPARE(canvas.layerAt(QPoint(520, 320)), 0);
        const QString file = m_dir.path() + QStringLiteral("/art/gone.png");
        QCOMPARE(canvas.notes(),
                 (QStringList{
                     QStringLiteral("Layer 0: File not found: \"art\\gone.png\" (looked for %1)")
                         .arg(file),
                     QStringLiteral("Layer 1: No image named \"imgNothing\"")}));
    }

    void clickingAnObjectReportsItsLayer()
    {
        layer(3, 2, "sprHero");
        layer(5, 4, "btnPlay");
        SceneCanvas canvas;
        canvas.resize(640, 480);
        canvas.setScene(*m_doc, scene(), {3, 5});
        canvas.show();
        QVERIFY(QTest::qWaitForWindowExposed(&canvas));
        QSignalSpy spy(&canvas, &SceneCanvas::layerClicked);
        QTest::mouseClick(&canvas, Qt::LeftButton, {}, canvas.toWidget(QPoint(316, 216)));
        QTest::mouseClick(&canvas, Qt::LeftButton, {}, canvas.toWidget(QPoint(110, 310)));
        QTest::mouseClick(&canvas, Qt::LeftButton, {}, canvas.toWidget(QPoint(600, 10)));
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(0).at(0).toInt(), 3);
        QCOMPARE(spy.at(1).at(0).toInt(), 5);
    }

    void previewNamesWhatIsNotDrawnAndPassesClicksOn()
    {
        layer(0, 5, "musTheme");
        layer(1, 9, "imgSheet");
        layer(2, 2, "sprHero");
        ScenePreview preview;
        preview.resize(640, 560);
        preview.setScene(*m_doc, scene(), {2, 1, 0});
        QCOMPARE(preview.notesText(),
                 QStringLiteral("Layer 0: music musTheme is not drawn\n"
                                "Layer 1: kind 9 holds no objects"));
        preview.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preview));
        QSignalSpy spy(&preview, &ScenePreview::layerClicked);
        SceneCanvas *canvas = preview.canvas();
        QTest::mouseClick(canvas, Qt::LeftButton, {}, canvas->toWidget(QPoint(310, 210)));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 2);
    }

    void withoutSlotsTheEngineLayersAreDrawn()
    {
        layer(0, 2, "sprHero");
        SceneCanvas canvas;
        canvas.setScene(*m_doc, scene());
        QCOMPARE(canvas.sceneImage().pixel(316, 216), qRgb(0, 0, 0)); // layerCount is 0
        scene().layerCount = 1;
        canvas.setScene(*m_doc, scene());
        QCOMPARE(canvas.sceneImage().pixel(316, 216), PreviewSheet::colour(3));
    }
};

QTEST_MAIN(tst_SceneCanvas)
#include "tst_SceneCanvas.moc"
