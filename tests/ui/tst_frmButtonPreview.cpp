#include "CellView.h"
#include "EditorDriver.h"
#include "PreviewSheet.h"
#include "frmButton.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace vorlane;

// The template cell the button editor shows beside its state boxes.
class tst_frmButtonPreview : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<frmButton> m_editor;

    ImageRec &listedImage(int slot, const std::string &id, const std::string &path)
    {
        ImageRec &image = m_doc->Images[static_cast<size_t>(slot)];
        image.inUse = -1;
        image.isNew = 0;
        image.bound = 1;
        image.id = id;
        image.path = path;
        image.red = 255;
        image.blue = 255;
        image.alpha = 255;
        m_doc->list(Kind::Image).lines.push_back({id, static_cast<int16_t>(slot)});
        return image;
    }

    const Ui::frmButton &form() { return m_editor->form(); }
    CellView *cellView() { return form().picButtonCell; }
    QRgb shownCentre()
    {
        const QImage image = cellView()->cellImage();
        return image.isNull() ? 0 : image.pixel(image.width() / 2, image.height() / 2);
    }

    // A new button opened in its editor, with the 4 x 2 sheet as its template.
    void openWithTemplate()
    {
        typeInto(form().cmbButtonTemplate, QStringLiteral("tiles"));
        typeInto(form().txtButtonSwitch1, QStringLiteral("2"));
        typeInto(form().txtButtonSwitch2, QStringLiteral("4"));
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        PreviewSheet::write(m_dir.path(), QStringLiteral("tiles.png"));
    }

    void init()
    {
        m_doc = makeDocument();
        m_doc->ProjectInfo.projectFilePath =
            (m_dir.path() + QStringLiteral("/demo.dvb")).toStdString();
        listedImage(3, "tiles", "tiles.png");
        m_doc->Buttons[0].isNew = -1;
        m_doc->list(Kind::Button).lines.push_back({"New_Object0", 0});
        m_doc->list(Kind::Button).selected = 0;
        m_doc->currentObjectIndex = 0;
        m_editor = std::make_unique<frmButton>(*m_doc);
        m_editor->Form_Load();
        m_editor->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_editor.get()));
    }

    void cleanup() { m_editor.reset(); }

    void previewStandsBesideTheStateBoxesWithoutTakingTheFocus()
    {
        auto *group = m_editor->findChild<QGroupBox *>(QStringLiteral("fraButtonPreview"));
        QVERIFY(group);
        QCOMPARE(group->title(), QStringLiteral("Template Cell"));
        QCOMPARE(cellView()->focusPolicy(), Qt::NoFocus);
        const QRect states =
            m_editor->findChild<QGroupBox *>(QStringLiteral("fraButtonStates"))->geometry();
        QVERIFY(group->geometry().left() >= states.right());
    }

    void newButtonWithoutTemplateSaysSo()
    {
        QCOMPARE(cellView()->message(), QStringLiteral("No image chosen"));
        typeInto(form().cmbButtonTemplate, QStringLiteral("nothing"));
        QCOMPARE(cellView()->message(), QStringLiteral("No image named \"nothing\""));
    }

    void upStateShowsTheUpCell()
    {
        openWithTemplate();
        QVERIFY(form().optButtonUp->isChecked());
        QCOMPARE(cellView()->message(), QStringLiteral("Up: cell 1"));
        QCOMPARE(cellView()->cellImage().size(), QSize(32, 32));
        QCOMPARE(shownCentre(), PreviewSheet::colour(1));
        // The record is as the state boxes left it.
        QCOMPARE(m_editor->record().frameUp, int16_t(1));
        QCOMPARE(m_editor->record().currentFrame, int16_t(1));
    }

    void eachStateShowsItsCell()
    {
        openWithTemplate();
        typeInto(form().txtButtonOver, QStringLiteral("6"));
        typeInto(form().txtButtonDown, QStringLiteral("7"));
        typeInto(form().txtButtonDisabled, QStringLiteral("5"));
        QTest::mouseClick(form().optButtonOver, Qt::LeftButton);
        QCOMPARE(cellView()->message(), QStringLiteral("Over: cell 6"));
        QCOMPARE(shownCentre(), PreviewSheet::colour(6));
        QTest::mouseClick(form().optButtonDown, Qt::LeftButton);
        QCOMPARE(cellView()->message(), QStringLiteral("Down: cell 7"));
        QCOMPARE(shownCentre(), PreviewSheet::colour(7));
        QTest::mouseClick(form().optButtonDisabled, Qt::LeftButton);
        QCOMPARE(cellView()->message(), QStringLiteral("Disabled: cell 5"));
        QCOMPARE(qAlpha(shownCentre()), 0); // the colour key
        QTest::mouseClick(form().optButtonUp, Qt::LeftButton);
        QCOMPARE(shownCentre(), PreviewSheet::colour(1));
        QCOMPARE(m_editor->record().currentFrame, int16_t(1));
    }

    void followsTheCellOfTheChosenState()
    {
        openWithTemplate();
        typeInto(form().txtButtonUp, QStringLiteral("4"));
        QCOMPARE(cellView()->message(), QStringLiteral("Up: cell 4"));
        QCOMPARE(shownCentre(), PreviewSheet::colour(4));
        typeInto(form().txtButtonUp, QStringLiteral("9"));
        QCOMPARE(cellView()->message(),
                 QStringLiteral("Cell 9 is not on the sheet (cells 1 to 8)"));
        QVERIFY(cellView()->cellImage().isNull());
    }

    void followsRowsAndColumns()
    {
        openWithTemplate();
        typeInto(form().txtButtonUp, QStringLiteral("2"));
        QCOMPARE(shownCentre(), PreviewSheet::colour(2));
        typeInto(form().txtButtonSwitch1, QStringLiteral("1"));
        typeInto(form().txtButtonSwitch2, QStringLiteral("2"));
        // Two cells of 64 x 64: the second is the sheet's right half.
        QCOMPARE(cellView()->cellImage().size(), QSize(64, 64));
        QCOMPARE(cellView()->cellImage().pixel(16, 16), PreviewSheet::colour(3));
        QCOMPARE(m_editor->record().templateRows, int16_t(1));
        QCOMPARE(m_editor->record().templateColumns, int16_t(2));
    }

    void followsTheTemplate()
    {
        openWithTemplate();
        QImage other(128, 64, QImage::Format_ARGB32);
        other.fill(qRgb(10, 20, 30));
        other.save(m_dir.filePath(QStringLiteral("other.png")));
        listedImage(7, "other", "other.png");
        typeInto(form().cmbButtonTemplate, QStringLiteral("other"));
        QCOMPARE(shownCentre(), qRgb(10, 20, 30));
        typeInto(form().cmbButtonTemplate, QStringLiteral("tiles"));
        QCOMPARE(shownCentre(), PreviewSheet::colour(1));
    }

    void missingTemplateFileSaysWhichFile()
    {
        listedImage(8, "lost", "art\\lost.png");
        typeInto(form().cmbButtonTemplate, QStringLiteral("lost"));
        QCOMPARE(cellView()->message(),
                 QStringLiteral("File not found: \"art\\lost.png\" (looked for %1/art/lost.png)")
                     .arg(m_dir.path()));
        // The editor goes on as before.
        typeInto(form().txtButtonUp, QStringLiteral("3"));
        QCOMPARE(m_editor->record().frameUp, int16_t(3));
    }

    void hotSpotHasNoTemplate()
    {
        openWithTemplate();
        QTest::mouseClick(form().optHotspot, Qt::LeftButton);
        QCOMPARE(cellView()->message(), QStringLiteral("A hot spot has no template"));
        QTest::mouseClick(form().optButton, Qt::LeftButton);
        QCOMPARE(cellView()->message(), QStringLiteral("Up: cell 1"));
    }
};

QTEST_MAIN(tst_frmButtonPreview)
#include "tst_frmButtonPreview.moc"
