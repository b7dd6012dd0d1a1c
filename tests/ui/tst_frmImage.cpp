#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "ObjectSetup.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmImage.h"
#include "frmMain.h"
#include "model/Kinds.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

// The image editor opened from the main window as a user opens it: New project, the Image
// tab, Add Object, Edit Properties.
class tst_frmImage : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;
    int m_slot = 0;

    ImageRec &image() { return m_doc->Images[static_cast<size_t>(m_slot)]; }

    bool edit(std::function<void(frmImage *)> action)
    {
        return editProperties<frmImage>(*m_window, std::move(action));
    }

    QString statsLabel(const char *name)
    {
        return m_window->findChild<QLabel *>(QString::fromUtf8(name))->text();
    }

private slots:
    void init()
    {
        m_doc = makeDocument();
        m_ui = std::make_unique<ScriptedUserInterface>();
        m_window = std::make_unique<frmMain>(*m_doc, *m_ui);
        registerEditors(*m_window);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        newProject(*m_window);
        m_slot = addObjectOn(*m_window, Kind::Image);
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
    }

    void controlsCarryTheirCaptions()
    {
        edit([](frmImage *editor) {
            const auto &f = editor->form();
            QCOMPARE(editor->windowTitle(), QStringLiteral("Image Data"));
            const auto title = [editor](const char *name) {
                return editor->findChild<QGroupBox *>(QString::fromUtf8(name))->title();
            };
            QCOMPARE(title("fraImageID"), QStringLiteral("Image ID"));
            QCOMPARE(title("fraImagePath"), QStringLiteral("Image Path"));
            QCOMPARE(title("fraImagePosition"), QStringLiteral("Position"));
            QCOMPARE(title("fraImageCellSize"), QStringLiteral("Cell Size"));
            QCOMPARE(title("fraImageTransparency"), QStringLiteral("Image Transparency"));
            QCOMPARE(title("fraImageProperties"), QStringLiteral("Image Properties"));
            const auto label = [editor](const char *name) {
                return editor->findChild<QLabel *>(QString::fromUtf8(name))->text();
            };
            QCOMPARE(label("lblImagePositionX"), QStringLiteral("X Location"));
            QCOMPARE(label("lblImagePositionY"), QStringLiteral("Y Position"));
            QCOMPARE(label("lblImageCellWidth"), QStringLiteral("Width"));
            QCOMPARE(label("lblImageCellHeight"), QStringLiteral("Height"));
            QCOMPARE(label("lblImageRed"), QStringLiteral("Red:"));
            QCOMPARE(label("lblImageGreen"), QStringLiteral("Green:"));
            QCOMPARE(label("lblImageBlue"), QStringLiteral("Blue:"));
            QCOMPARE(label("lblImageAlpha"), QStringLiteral("Alpha"));
            QCOMPARE(f.chkImageBound->text(), QStringLiteral("Bound"));
            QCOMPARE(f.chkImageVisible->text(), QStringLiteral("Visible"));
        });
    }

    void newImageShowsAlpha255AndTheOtherComponents0()
    {
        edit([this](frmImage *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtImageID->text(), QStringLiteral("Enter_ID"));
            QCOMPARE(f.txtImagePath->text(), QString());
            QCOMPARE(f.txtImageAlpha->text(), QStringLiteral("255"));
            QCOMPARE(f.txtImageRed->text(), QStringLiteral("0"));
            QCOMPARE(f.txtImageGreen->text(), QStringLiteral("0"));
            QCOMPARE(f.txtImageBlue->text(), QStringLiteral("0"));
            for (QLineEdit *box : {f.txtImagePositionX,
                                   f.txtImagePositionY,
                                   f.txtImageCellWidth,
                                   f.txtImageCellHeight})
                QCOMPARE(box->text(), QStringLiteral("0"));
            QVERIFY(!f.chkImageBound->isChecked());
            QVERIFY(f.chkImageVisible->isChecked());
            QCOMPARE(image().id, std::string("Enter_ID"));
            QCOMPARE(image().path, std::string("null"));
            QCOMPARE(image().alpha, int16_t(255));
            QCOMPARE(image().red, int16_t(0));
            QCOMPARE(image().bound, int16_t(0));
            QCOMPARE(image().visible, int16_t(1));
            QCOMPARE(image().isNew, int16_t(0));
            QCOMPARE(image().inUse, int16_t(-1));
        });
    }

    void alphaOf256Becomes255AndMinusOneStays()
    {
        edit([this](frmImage *editor) {
            QLineEdit *alpha = editor->form().txtImageAlpha;
            typeInto(alpha, QStringLiteral("256"));
            QCOMPARE(alpha->text(), QStringLiteral("255"));
            QCOMPARE(image().alpha, int16_t(255));
            typeInto(alpha, QStringLiteral("-1"));
            QCOMPARE(alpha->text(), QStringLiteral("-1"));
            QCOMPARE(image().alpha, int16_t(-1));
        });
    }

    void everyTransparencyBoxCapsAt255()
    {
        edit([this](frmImage *editor) {
            const auto &f = editor->form();
            typeInto(f.txtImageRed, QStringLiteral("300"));
            typeInto(f.txtImageGreen, QStringLiteral("999"));
            typeInto(f.txtImageBlue, QStringLiteral("-7"));
            QCOMPARE(f.txtImageRed->text(), QStringLiteral("255"));
            QCOMPARE(f.txtImageGreen->text(), QStringLiteral("255"));
            QCOMPARE(f.txtImageBlue->text(), QStringLiteral("-7"));
            QCOMPARE(image().red, int16_t(255));
            QCOMPARE(image().green, int16_t(255));
            QCOMPARE(image().blue, int16_t(-7));
            clearBox(f.txtImageGreen);
            QCOMPARE(f.txtImageGreen->text(), QStringLiteral("0"));
            QCOMPARE(image().green, int16_t(0));
        });
    }

    void positionAndCellSizeHaveNoBounds()
    {
        edit([this](frmImage *editor) {
            const auto &f = editor->form();
            typeInto(f.txtImagePositionX, QStringLiteral("640"));
            typeInto(f.txtImagePositionY, QStringLiteral("-20"));
            typeInto(f.txtImageCellWidth, QStringLiteral("300"));
            typeInto(f.txtImageCellHeight, QStringLiteral("48px"));
            QCOMPARE(image().positionX, int16_t(640));
            QCOMPARE(image().positionY, int16_t(-20));
            QCOMPARE(image().cellWidth, int16_t(300));
            QCOMPARE(image().cellHeight, int16_t(48));
            QCOMPARE(f.txtImageCellWidth->text(), QStringLiteral("300"));
            QCOMPARE(f.txtImageCellHeight->text(), QStringLiteral("48px"));
            clearBox(f.txtImagePositionX);
            QCOMPARE(f.txtImagePositionX->text(), QStringLiteral("0"));
            QCOMPARE(image().positionX, int16_t(0));
        });
    }

    void clearingThePathStoresNullAndTypingNullEmptiesIt()
    {
        edit([this](frmImage *editor) {
            QLineEdit *path = editor->form().txtImagePath;
            typeInto(path, QStringLiteral("gfx/tiles.png"));
            QCOMPARE(image().path, std::string("gfx/tiles.png"));
            clearBox(path);
            QCOMPARE(path->text(), QString());
            QCOMPARE(image().path, std::string("null"));
            typeInto(path, QStringLiteral("null"));
            QCOMPARE(path->text(), QString());
            QCOMPARE(image().path, std::string("null"));
        });
    }

    void clearingTheIdentifierYieldsEnterId()
    {
        edit([this](frmImage *editor) {
            QLineEdit *id = editor->form().txtImageID;
            typeInto(id, QStringLiteral("tiles"));
            QCOMPARE(image().id, std::string("tiles"));
            clearBox(id);
            QCOMPARE(id->text(), QStringLiteral("Enter_ID"));
            QCOMPARE(image().id, std::string("Enter_ID"));
        });
    }

    void checkBoxesStoreOneOrZero()
    {
        edit([this](frmImage *editor) {
            const auto &f = editor->form();
            clickBox(f.chkImageBound);
            QCOMPARE(image().bound, int16_t(1));
            clickBox(f.chkImageVisible);
            QCOMPARE(image().visible, int16_t(0));
            clickBox(f.chkImageBound);
            QCOMPARE(image().bound, int16_t(0));
        });
    }

    void escapeClosesAndRefreshesTheListAndStatistics()
    {
        const bool closed = edit([](frmImage *editor) {
            const auto &f = editor->form();
            typeInto(f.txtImageID, QStringLiteral("tiles"));
            typeInto(f.txtImageAlpha, QStringLiteral("128"));
            typeInto(f.txtImageCellWidth, QStringLiteral("32"));
            clickBox(f.chkImageBound);
            QTest::keyClick(f.txtImageAlpha, Qt::Key_Escape);
        });
        QVERIFY(closed);
        QListWidget *list = m_window->objectList(tabOf(Kind::Image));
        QCOMPARE(listTexts(list), QStringList({"tiles"}));
        QCOMPARE(list->currentRow(), 0);
        QVERIFY(!m_window->coverFrame(tabOf(Kind::Image))->isVisible());
        QCOMPARE(statsLabel("lblImageStatsAlpha"), QStringLiteral("Alpha Value: 128"));
        QCOMPARE(statsLabel("lblImageStatsWidth"), QStringLiteral("Img Width: 32"));
        QCOMPARE(statsLabel("lblImageStatsBound"), QStringLiteral("Is Bound: YES"));
    }

    void doubleClickOnTheLineOpensTheEditor()
    {
        bool shown = false;
        whenModalShown<frmImage>([&shown](frmImage *editor) {
            shown = true;
            typeInto(editor->form().txtImageID, QStringLiteral("backdrop"));
            QTest::keyClick(editor, Qt::Key_Escape);
        });
        QListWidget *list = m_window->objectList(tabOf(Kind::Image));
        const QPoint line = list->visualItemRect(list->item(0)).center();
        // A double click is a click followed by a second one.
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, line);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, line);
        QVERIFY(shown);
        QCOMPARE(listTexts(list), QStringList({"backdrop"}));
        QCOMPARE(image().id, std::string("backdrop"));
    }

    void reopeningAnEditedImageKeepsItsValues()
    {
        edit([](frmImage *editor) {
            typeInto(editor->form().txtImageID, QStringLiteral("tiles"));
            typeInto(editor->form().txtImageAlpha, QStringLiteral("9"));
            typeInto(editor->form().txtImagePath, QStringLiteral("a.png"));
        });
        edit([this](frmImage *editor) {
            QCOMPARE(editor->form().txtImageID->text(), QStringLiteral("tiles"));
            QCOMPARE(editor->form().txtImageAlpha->text(), QStringLiteral("9"));
            QCOMPARE(editor->form().txtImagePath->text(), QStringLiteral("a.png"));
            QCOMPARE(image().alpha, int16_t(9));
        });
    }

    void tabOrderFollowsTheForm()
    {
        edit([](frmImage *editor) {
            const QStringList order{"txtImageID",
                                    "txtImagePath",
                                    "txtImagePositionX",
                                    "txtImagePositionY",
                                    "txtImageCellWidth",
                                    "txtImageCellHeight",
                                    "txtImageRed",
                                    "txtImageGreen",
                                    "txtImageBlue",
                                    "txtImageAlpha",
                                    "chkImageBound",
                                    "chkImageVisible",
                                    "txtImageID"};
            QCOMPARE(tabWalk(editor->form().txtImageID, int(order.size())), order);
        });
    }
};

QTEST_MAIN(tst_frmImage)
#include "tst_frmImage.moc"
