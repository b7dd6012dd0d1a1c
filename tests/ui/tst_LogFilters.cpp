#include "DialogDriver.h"
#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "ScriptedUserInterface.h"
#include "frmLogCustom.h"
#include "frmLogFile.h"
#include "frmLogType.h"
#include "frmMain.h"
#include "generate/EngineFiles.h"

#include <QCheckBox>
#include <QListWidget>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace vorlane;

namespace {

// The captions of a window's check boxes, from the top of the window down.
QStringList captionsTopDown(QWidget *dialog)
{
    QList<QCheckBox *> boxes = dialog->findChildren<QCheckBox *>();
    std::sort(boxes.begin(), boxes.end(), [](QCheckBox *a, QCheckBox *b) {
        return a->mapTo(a->window(), QPoint()).y() < b->mapTo(b->window(), QPoint()).y();
    });
    QStringList captions;
    for (QCheckBox *box : boxes)
        captions << box->objectName() + "=" + box->text();
    return captions;
}

} // namespace

// The type, file and custom log filter windows, opened from the Error Log Data page.
class tst_LogFilters : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    AppSettingsRec &app() { return m_doc->AppSettings; }
    const Ui::frmMain &main() const { return m_window->form(); }

    bool typeFilters(std::function<void(frmLogType *)> action)
    {
        return openDialog<frmLogType>(main().cmdLogEditType, std::move(action));
    }
    bool fileFilters(std::function<void(frmLogFile *)> action)
    {
        return openDialog<frmLogFile>(main().cmdLogEditFile, std::move(action));
    }
    bool customFilters(std::function<void(frmLogCustom *)> action)
    {
        return openDialog<frmLogCustom>(main().cmdLogEditCustom, std::move(action));
    }

    static void createFilter(frmLogCustom *d, const QString &name)
    {
        typeInto(d->form().txtCustomFilterName, name);
        clickButton(d->form().cmdCustomCreateFilter);
    }

private slots:
    void init()
    {
        m_doc = makeDocument();
        m_ui = std::make_unique<ScriptedUserInterface>();
        m_window = std::make_unique<frmMain>(*m_doc, *m_ui);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        newProject(*m_window);
        clickTab(*m_window, 11);
        QCOMPARE(m_window->currentTab(), 11);
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
    }

    void typeBoxesStandFromDebugDownToApplication()
    {
        typeFilters([](frmLogType *d) {
            QCOMPARE(d->windowTitle(), QStringLiteral("Filter Types"));
            QCOMPARE(captionsTopDown(d),
                     QStringList({"chkLogFilter_6=ERR_DEBUG",
                                  "chkLogFilter_5=ERR_COMMON_SYS",
                                  "chkLogFilter_4=ERR_COMMON_APP",
                                  "chkLogFilter_3=ERR_STATUS_SYS",
                                  "chkLogFilter_2=ERR_STATUS_APP",
                                  "chkLogFilter_1=ERR_OK_SYS",
                                  "chkLogFilter_0=ERR_OK_APP"}));
        });
    }

    void fileBoxesStandInModuleOrder()
    {
        fileFilters([](frmLogFile *d) {
            QCOMPARE(d->windowTitle(), QStringLiteral("File Filters"));
            QCOMPARE(captionsTopDown(d),
                     QStringList({"chkFileFilter_10=CVideo",
                                  "chkFileFilter_9=CTimerMngr",
                                  "chkFileFilter_5=CSoundMngr",
                                  "chkFileFilter_6=CSpriteMngr",
                                  "chkFileFilter_7=CTextMngr",
                                  "chkFileFilter_2=CCursorMngr",
                                  "chkFileFilter_1=CButtonMngr",
                                  "chkFileFilter_3=CImageMngr",
                                  "chkFileFilter_4=CSceneMngr",
                                  "chkFileFilter_8=CTileMngr",
                                  "chkFileFilter_0=CApp"}));
        });
    }

    void customWindowCarriesItsControls()
    {
        customFilters([](frmLogCustom *d) {
            const auto &f = d->form();
            QCOMPARE(d->windowTitle(), QStringLiteral("Custom Filters"));
            QCOMPARE(f.cmdCustomRemove->text(), QStringLiteral("Delete Filter"));
            QCOMPARE(f.cmdCustomCreateFilter->text(), QStringLiteral("Create Filter"));
            QCOMPARE(f.frmCustomFilterName->title(), QStringLiteral("Filter Name"));
            QCOMPARE(f.txtCustomFilterName->parentWidget(), f.frmCustomFilterName);
            QCOMPARE(f.cmdCustomCreateFilter->parentWidget(), f.frmCustomFilterName);
            QVERIFY(f.lstCustomFilter);
        });
    }

    void aCheckedTypeBoxRaisesTheCountOnClosingAndReopensChecked()
    {
        QVERIFY(typeFilters([this](frmLogType *d) {
            QVERIFY(!d->form().chkLogFilter_3->isChecked());
            clickIndicator(d->form().chkLogFilter_3);
            QCOMPARE(app().logTypeFilters[3], 1);
            QCOMPARE(app().logTypeFilterCount, 0); // counted only when the window closes
            pressEscape(d->form().chkLogFilter_3);
        }));
        QCOMPARE(app().logTypeFilterCount, 1);
        typeFilters([](frmLogType *d) {
            QVERIFY(d->form().chkLogFilter_3->isChecked());
            for (int i : {0, 1, 2, 4, 5, 6})
                QVERIFY(!d->filterBox(i)->isChecked());
            clickIndicator(d->form().chkLogFilter_6);
        }); // closed by the close box
        QCOMPARE(app().logTypeFilterCount, 2);
        QCOMPARE(app().logTypeFilters[6], 1);
        typeFilters([this](frmLogType *d) {
            clickIndicator(d->form().chkLogFilter_3);
            QCOMPARE(app().logTypeFilters[3], 0);
        });
        QCOMPARE(app().logTypeFilterCount, 1);
    }

    void fileBoxesStoreAndAreRecountedFromZero()
    {
        app().logFileFilterCount = 9; // a count out of step is put right on closing
        fileFilters([this](frmLogFile *d) {
            for (QCheckBox *box :
                 {d->form().chkFileFilter_10, d->form().chkFileFilter_0, d->form().chkFileFilter_4})
                clickIndicator(box);
            QCOMPARE(app().logFileFilterCount, 9);
        });
        QCOMPARE(app().logFileFilterCount, 3);
        const std::array<int16_t, 11> expected{1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1};
        QVERIFY(app().logFileFilters == expected);
        QCOMPARE(QByteArray::fromStdString(logCfg(app())),
                 QByteArray(" 0\r\n 3\r\ncapp.cpp*\r\nCSceneMngr.cpp*\r\ncvideo.cpp*\r\n"));
    }

    void anEmptyNameLeavesCreateDisabled()
    {
        customFilters([](frmLogCustom *d) {
            const auto &f = d->form();
            QVERIFY(!f.cmdCustomCreateFilter->isEnabled());
            QVERIFY(!f.cmdCustomRemove->isEnabled());
            QTest::keyClicks(f.txtCustomFilterName, QStringLiteral("m"));
            QVERIFY(f.cmdCustomCreateFilter->isEnabled());
            clearBox(f.txtCustomFilterName);
            QVERIFY(!f.cmdCustomCreateFilter->isEnabled());
            clickButton(f.cmdCustomCreateFilter);
            QCOMPARE(f.lstCustomFilter->count(), 0);
        });
        QCOMPARE(app().customFilterCount, 0);
        QCOMPARE(app().CustomFilters[0].inUse, 0);
    }

    void createdFiltersAreListedWithTheirSlots()
    {
        customFilters([this](frmLogCustom *d) {
            const auto &f = d->form();
            createFilter(d, QStringLiteral("mouse"));
            QVERIFY(f.cmdCustomRemove->isEnabled());
            createFilter(d, QStringLiteral("key press"));
            createFilter(d, QStringLiteral("mouse")); // the same text may stand twice
            QCOMPARE(listTexts(f.lstCustomFilter), QStringList({"mouse", "key press", "mouse"}));
            QCOMPARE(listSlots(f.lstCustomFilter), QList<int>({0, 1, 2}));
            QCOMPARE(app().CustomFilters[1].text, std::string("key press"));
            QCOMPARE(app().CustomFilters[1].inUse, -1);
            QCOMPARE(app().customFilterCount, 0); // counted only when the window closes
        });
        QCOMPARE(app().customFilterCount, 3);
        customFilters([](frmLogCustom *d) {
            QCOMPARE(listTexts(d->form().lstCustomFilter),
                     QStringList({"mouse", "key press", "mouse"}));
            QVERIFY(d->form().cmdCustomRemove->isEnabled());
        });
    }

    void deleteMovesTheSelection()
    {
        customFilters([this](frmLogCustom *d) {
            const auto &f = d->form();
            for (const char *name : {"a", "b", "c", "d"})
                createFilter(d, QString::fromUtf8(name));
            clickLine(f.lstCustomFilter, 1);
            clickButton(f.cmdCustomRemove);
            QCOMPARE(listTexts(f.lstCustomFilter), QStringList({"a", "c", "d"}));
            QCOMPARE(f.lstCustomFilter->currentRow(), 1); // "c" moved into the place
            QCOMPARE(app().CustomFilters[1].inUse, 0);
            clickLine(f.lstCustomFilter, 2);
            clickButton(f.cmdCustomRemove);
            QCOMPARE(listTexts(f.lstCustomFilter), QStringList({"a", "c"}));
            QCOMPARE(f.lstCustomFilter->currentRow(), 1); // the new last line
            QCOMPARE(app().CustomFilters[3].inUse, 0);
            clickButton(f.cmdCustomRemove);
            clickButton(f.cmdCustomRemove);
            QCOMPARE(f.lstCustomFilter->count(), 0);
            QVERIFY(!f.cmdCustomRemove->isEnabled());
            QCOMPARE(app().CustomFilters[0].inUse, 0);
            QCOMPARE(app().CustomFilters[2].inUse, 0);
        });
        QCOMPARE(app().customFilterCount, 0);
    }

    void deleteWithoutASelectedLineRemovesNothing()
    {
        app().CustomFilters[4] = {-1, "four"};
        app().customFilterCount = 1;
        customFilters([this](frmLogCustom *d) {
            // The list may hold the keyboard focus on its first line; nothing is selected.
            QVERIFY(d->form().lstCustomFilter->selectedItems().isEmpty());
            QVERIFY(d->form().cmdCustomRemove->isEnabled());
            clickButton(d->form().cmdCustomRemove);
            QCOMPARE(listTexts(d->form().lstCustomFilter), QStringList({"four"}));
            QCOMPARE(app().CustomFilters[4].inUse, -1);
        });
    }

    void aFilterMadeAfterADeleteTakesTheFreedSlot()
    {
        customFilters([](frmLogCustom *d) {
            const auto &f = d->form();
            for (const char *name : {"first", "second", "third"})
                createFilter(d, QString::fromUtf8(name));
            clickLine(f.lstCustomFilter, 0);
            clickButton(f.cmdCustomRemove);
            createFilter(d, QStringLiteral("fourth"));
            QCOMPARE(listTexts(f.lstCustomFilter), QStringList({"second", "third", "fourth"}));
            QCOMPARE(listSlots(f.lstCustomFilter), QList<int>({1, 2, 0}));
        });
        QCOMPARE(app().customFilterCount, 3);
        QCOMPARE(QByteArray::fromStdString(logCfg(app())),
                 QByteArray(" 0\r\n 3\r\nfourth*\r\nsecond*\r\nthird*\r\n"));
        // Reopened, the list shows the filters in slot order.
        customFilters([](frmLogCustom *d) {
            QCOMPARE(listTexts(d->form().lstCustomFilter),
                     QStringList({"fourth", "second", "third"}));
        });
    }

    void aHundredListedFiltersRefuseTheNext()
    {
        customFilters([this](frmLogCustom *d) {
            const auto &f = d->form();
            typeInto(f.txtCustomFilterName, QStringLiteral("spam"));
            for (int i = 0; i < 100; ++i)
                clickButton(f.cmdCustomCreateFilter);
            QCOMPARE(f.lstCustomFilter->count(), 100);
            QVERIFY(m_ui->messages.empty());
            // Slots 0..49 were filled in turn; then the overflow counter named the slots, and
            // slot 50, the first free one at that moment, was marked in use as well.
            QCOMPARE(m_doc->customFilterOverflow, 50);
            QCOMPARE(app().CustomFilters[50].inUse, -1);

            clickButton(f.cmdCustomCreateFilter);
            QCOMPARE(m_ui->messages.size(), size_t(1));
            const Message &shown = m_ui->messages.front();
            QCOMPARE(shown.text, std::string("No space left for filters! (Max 50)"));
            QCOMPARE(shown.title, std::string("Object Overload"));
            QVERIFY(shown.icon == MessageIcon::Critical);
            QVERIFY(shown.buttons == MessageButtons::OK);
            QCOMPARE(f.lstCustomFilter->count(), 100);
            QCOMPARE(m_doc->customFilterOverflow, 50);
        });
        QCOMPARE(app().customFilterCount, 100);
    }

    void aSlotPastTheTableIsRefusedWithNothingWritten()
    {
        for (int slot = 0; slot <= 50; ++slot)
            app().CustomFilters[size_t(slot)] = {-1, "f" + std::to_string(slot)};
        app().customFilterCount = 51;
        m_doc->customFilterOverflow = 51;
        customFilters([this](frmLogCustom *d) {
            QCOMPARE(d->form().lstCustomFilter->count(), 51);
            createFilter(d, QStringLiteral("more"));
            QCOMPARE(m_ui->messages.size(), size_t(1));
            QCOMPARE(m_ui->messages.front().text,
                     std::string("No space left for filters! (Max 50)"));
            QCOMPARE(m_ui->messages.front().title, std::string("Object Overload"));
            QCOMPARE(d->form().lstCustomFilter->count(), 51);
        });
        QCOMPARE(m_doc->customFilterOverflow, 51);
        for (int slot = 0; slot <= 50; ++slot)
            QCOMPARE(app().CustomFilters[size_t(slot)].text, "f" + std::to_string(slot));
        QCOMPARE(app().customFilterCount, 51);
    }

    void aCountBelowOneListsNothing()
    {
        app().CustomFilters[2] = {-1, "left over"};
        app().customFilterCount = 0;
        customFilters([](frmLogCustom *d) {
            QCOMPARE(d->form().lstCustomFilter->count(), 0);
            QVERIFY(!d->form().cmdCustomRemove->isEnabled());
        });
        QCOMPARE(app().customFilterCount, 0);
    }

    void escapeAndTheCloseBoxBothClose()
    {
        QVERIFY(customFilters([](frmLogCustom *d) {
            createFilter(d, QStringLiteral("x"));
            pressEscape(d->form().txtCustomFilterName);
        }));
        QCOMPARE(app().customFilterCount, 1);
        QVERIFY(fileFilters([](frmLogFile *d) {
            clickIndicator(d->form().chkFileFilter_7);
            pressEscape(d);
        }));
        QCOMPARE(app().logFileFilterCount, 1);
        QVERIFY(!typeFilters([](frmLogType *d) { clickIndicator(d->form().chkLogFilter_0); }));
        QCOMPARE(app().logTypeFilterCount, 1);
    }
};

QTEST_MAIN(tst_LogFilters)
#include "tst_LogFilters.moc"
