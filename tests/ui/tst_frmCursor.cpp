#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "ObjectSetup.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmCursor.h"
#include "frmMain.h"
#include "model/Kinds.h"
#include "rules/CursorFieldRules.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

// The cursor editor opened from the main window as a user opens it.
class tst_frmCursor : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;
    int m_slot = 0;

    CursorRec &cursor() { return m_doc->Cursors[static_cast<size_t>(m_slot)]; }

    bool edit(std::function<void(frmCursor *)> action)
    {
        return editProperties<frmCursor>(*m_window, std::move(action));
    }

    // Adds an image opened once, with its bound flag.
    void addImage(const std::string &id, int16_t bound)
    {
        const int slot = addLiveObject(*m_window, Kind::Image, id);
        m_doc->Images[static_cast<size_t>(slot)].bound = bound;
    }

    void backToTheCursor()
    {
        clickTab(*m_window, tabOf(Kind::Cursor));
        clickLine(m_window->objectList(tabOf(Kind::Cursor)), 0);
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
        m_slot = addObjectOn(*m_window, Kind::Cursor);
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear();
        m_window.reset();
    }

    void controlsCarryTheirCaptions()
    {
        edit([](frmCursor *editor) {
            QCOMPARE(editor->windowTitle(), QStringLiteral("Cursor Data"));
            const auto title = [editor](const char *name) {
                return editor->findChild<QGroupBox *>(QString::fromUtf8(name))->title();
            };
            QCOMPARE(title("fraCursorID"), QStringLiteral("Cursor ID"));
            QCOMPARE(title("fraCursorImage"), QStringLiteral("Cursor Image"));
            QCOMPARE(title("fraCursorOrient"), QStringLiteral("Cursor Orientation"));
            QCOMPARE(editor->orientationOption(1)->text(), QStringLiteral("Center"));
            QCOMPARE(editor->orientationOption(2)->text(), QStringLiteral("Lower-left"));
            QCOMPARE(editor->orientationOption(3)->text(), QStringLiteral("Lower-right"));
            QCOMPARE(editor->orientationOption(4)->text(), QStringLiteral("Upper-right"));
            QCOMPARE(editor->orientationOption(5)->text(), QStringLiteral("Upper-left"));
            for (const CursorOrientation &orientation : CursorOrientations)
                QCOMPARE(editor->orientationOption(orientation.code)->text().toStdString(),
                         std::string(orientation.caption));
        });
    }

    void newCursorOpensWithCenterAndAnEmptyImageBox()
    {
        edit([this](frmCursor *editor) {
            const auto &f = editor->form();
            QCOMPARE(f.txtCursorID->text(), QStringLiteral("Enter_ID"));
            QCOMPARE(f.cmbCursorImage->currentText(), QString());
            QVERIFY(editor->orientationOption(1)->isChecked());
            QCOMPARE(cursor().imageId, std::string("null"));
            QCOMPARE(cursor().orientation, int16_t(1));
            QCOMPARE(cursor().id, std::string("Enter_ID"));
        });
        QCOMPARE(statsLabel("lblCursorStatsOrientation"),
                 QStringLiteral("Cursor Orientation: CENTER"));
        QCOMPARE(statsLabel("lblCursorStatsImage"), QStringLiteral("Cursor Image: null"));
    }

    void reopenedCursorWithoutImageShowsAnEmptyBox()
    {
        edit([](frmCursor *) {});
        QCOMPARE(cursor().imageId, std::string("null"));
        edit([this](frmCursor *editor) {
            QCOMPARE(editor->form().cmbCursorImage->currentText(), QString());
            QCOMPARE(cursor().imageId, std::string("null"));
        });
    }

    void choosingUpperLeftStores5AndLowerLeftStores2()
    {
        edit([this](frmCursor *editor) {
            clickBox(editor->orientationOption(5));
            QCOMPARE(cursor().orientation, int16_t(5));
            clickBox(editor->orientationOption(2));
            QCOMPARE(cursor().orientation, int16_t(2));
            clickBox(editor->orientationOption(3));
            QCOMPARE(cursor().orientation, int16_t(3));
            clickBox(editor->orientationOption(4));
            QCOMPARE(cursor().orientation, int16_t(4));
            clickBox(editor->orientationOption(1));
            QCOMPARE(cursor().orientation, int16_t(1));
            clickBox(editor->orientationOption(5));
        });
        QCOMPARE(statsLabel("lblCursorStatsOrientation"),
                 QStringLiteral("Cursor Orientation: UPPER-LEFT"));
        edit([](frmCursor *editor) {
            QVERIFY(editor->orientationOption(5)->isChecked());
            QVERIFY(!editor->orientationOption(1)->isChecked());
        });
    }

    void aStoredCodeWithoutOptionChoosesNone()
    {
        edit([](frmCursor *) {});
        cursor().orientation = 0;
        edit([this](frmCursor *editor) {
            for (int code = 1; code <= 5; ++code)
                QVERIFY(!editor->orientationOption(code)->isChecked());
            QCOMPARE(cursor().orientation, int16_t(0));
        });
    }

    void onlyBoundImagesThatAreNotNewAreOffered()
    {
        addImage("tiles", 1);
        addImage("photo", 0);
        addObjectOn(*m_window, Kind::Image); // still new
        m_doc->Images[static_cast<size_t>(m_doc->list(Kind::Image).lines.back().slot)].bound = 1;
        addImage("arrows", 1);
        backToTheCursor();
        edit([this](frmCursor *editor) {
            QComboBox *box = editor->form().cmbCursorImage;
            QCOMPARE(itemTexts(box), QStringList({"tiles", "arrows"}));
            chooseEntry(box, 1);
            QCOMPARE(cursor().imageId, std::string("arrows"));
            QCOMPARE(box->currentText(), QStringLiteral("arrows"));
        });
        QCOMPARE(statsLabel("lblCursorStatsImage"), QStringLiteral("Cursor Image: arrows"));
    }

    void imageBoxFollowsTheReferenceRule()
    {
        edit([this](frmCursor *editor) {
            QComboBox *box = editor->form().cmbCursorImage;
            typeInto(box, QStringLiteral("pointer"));
            QCOMPARE(cursor().imageId, std::string("pointer"));
            typeInto(box, QStringLiteral("null"));
            QCOMPARE(box->currentText(), QString());
            QCOMPARE(cursor().imageId, std::string("null"));
        });
    }

    void escapeClosesAndTheListShowsTheIdentifier()
    {
        const bool closed = edit([](frmCursor *editor) {
            typeInto(editor->form().txtCursorID, QStringLiteral("arrow"));
            QTest::keyClick(editor->form().txtCursorID, Qt::Key_Escape);
        });
        QVERIFY(closed);
        QListWidget *list = m_window->objectList(tabOf(Kind::Cursor));
        QCOMPARE(listTexts(list), QStringList({"arrow"}));
        QCOMPARE(list->currentRow(), 0);
        QCOMPARE(cursor().id, std::string("arrow"));
    }

    void escapeInTheOpenImageListClosesOnlyTheList()
    {
        addImage("tiles", 1);
        backToTheCursor();
        const bool closed = edit([](frmCursor *editor) {
            QComboBox *box = editor->form().cmbCursorImage;
            box->setFocus();
            box->showPopup();
            QVERIFY(QTest::qWaitForWindowExposed(box->view()->window()));
            QTest::keyPress(box->view(), Qt::Key_Escape);
            QTRY_VERIFY(!box->view()->window()->isVisible());
            QTest::keyRelease(box, Qt::Key_Escape);
            QVERIFY(editor->isVisible());
            QTest::keyClick(box, Qt::Key_Escape);
            QVERIFY(!editor->isVisible());
        });
        QVERIFY(closed);
    }

    void tabOrderFollowsTheForm()
    {
        edit([](frmCursor *editor) {
            // Tab enters the option group at its first option and leaves it with the next.
            const QStringList order{
                "txtCursorID", "cmbCursorImage", "optCursorOrient_5", "txtCursorID"};
            QCOMPARE(tabWalk(editor->form().txtCursorID, int(order.size())), order);
        });
    }
};

QTEST_MAIN(tst_frmCursor)
#include "tst_frmCursor.moc"
