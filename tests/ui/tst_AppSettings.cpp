#include "DialogDriver.h"
#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "ScriptedUserInterface.h"
#include "frmAppLogProps.h"
#include "frmAppSoundProps.h"
#include "frmAppSplashProps.h"
#include "frmAppWindowProps.h"
#include "frmMain.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include <memory>

using namespace vorlane;

// The four application property dialogs, opened from the application page as a user opens
// them: New project, then the page's buttons.
class tst_AppSettings : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    AppSettingsRec &app() { return m_doc->AppSettings; }
    const Ui::frmMain &main() const { return m_window->form(); }

    QString statLabel(const char *name) const
    {
        return m_window->findChild<QLabel *>(QString::fromUtf8(name))->text();
    }

    bool windowProps(std::function<void(frmAppWindowProps *)> action)
    {
        return openDialog<frmAppWindowProps>(main().cmdAppWindowProps, std::move(action));
    }
    bool soundProps(std::function<void(frmAppSoundProps *)> action)
    {
        return openDialog<frmAppSoundProps>(main().cmdAppSoundProps, std::move(action));
    }
    bool splashProps(std::function<void(frmAppSplashProps *)> action)
    {
        return openDialog<frmAppSplashProps>(main().cmdAppSplashProps, std::move(action));
    }
    bool logProps(std::function<void(frmAppLogProps *)> action)
    {
        return openDialog<frmAppLogProps>(main().cmdAppLogProps, std::move(action));
    }

    static QString title(QWidget *dialog, const char *frame)
    {
        auto *box = dialog->findChild<QGroupBox *>(QString::fromUtf8(frame));
        return box ? box->title() : QStringLiteral("<no frame %1>").arg(frame);
    }
    static QString caption(QWidget *dialog, const char *label)
    {
        auto *shown = dialog->findChild<QLabel *>(QString::fromUtf8(label));
        return shown ? shown->text() : QStringLiteral("<no label %1>").arg(label);
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
        QCOMPARE(m_window->currentTab(), 1);
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
    }

    void windowPropertiesCarryTheirCaptions()
    {
        windowProps([](frmAppWindowProps *d) {
            const auto &f = d->form();
            QCOMPARE(d->windowTitle(), QStringLiteral("Window Properties"));
            QCOMPARE(title(d, "fraAppWindowCaption"), QStringLiteral("Caption/Name"));
            QCOMPARE(title(d, "fraAppWindowIcon"), QStringLiteral("Icon Path"));
            QCOMPARE(title(d, "fraAppScreenFPS"), QStringLiteral("Framerate"));
            QCOMPARE(title(d, "fraAppScreenEngine"), QStringLiteral("Tile Engine"));
            QCOMPARE(f.optAppScreenTypeFull->text(), QStringLiteral("Fullscreen"));
            QCOMPARE(f.optAppScreentypeWindow->text(), QStringLiteral("Windowed"));
            QCOMPARE(caption(d, "lblAppScreenPropsWidth"), QStringLiteral("Width"));
            QCOMPARE(caption(d, "lblAppScreenPropsHeight"), QStringLiteral("Height"));
            QCOMPARE(caption(d, "lblAppScreenPropsBPP"), QStringLiteral("Depth"));
            QCOMPARE(f.chkAppScreenEngineUse->text(), QStringLiteral("Use engine"));
            QVERIFY(f.txtAppWindowPropsCaption->parentWidget() ==
                    d->findChild<QGroupBox *>(QStringLiteral("fraAppWindowCaption")));
            QVERIFY(f.txtAppScreenFPS->parentWidget() ==
                    d->findChild<QGroupBox *>(QStringLiteral("fraAppScreenFPS")));
            QVERIFY(f.chkAppScreenEngineUse->parentWidget() ==
                    d->findChild<QGroupBox *>(QStringLiteral("fraAppScreenEngine")));
            QVERIFY(f.txtAppScreenPropsWidth && f.txtAppScreenPropsHeight &&
                    f.txtAppScreenPropsBPP && f.txtAppWindowPropsIcon);
        });
    }

    void otherDialogsCarryTheirCaptions()
    {
        soundProps([](frmAppSoundProps *d) {
            QCOMPARE(d->windowTitle(), QStringLiteral("Sound Properties"));
            QCOMPARE(caption(d, "lblAppSoundMix"), QStringLiteral("Mixrate"));
            QCOMPARE(caption(d, "lblAppSoundChannels"), QStringLiteral("Software Channels"));
            QVERIFY(d->form().txtAppSoundMix && d->form().txtAppSoundChannels);
        });
        splashProps([](frmAppSplashProps *d) {
            const auto &f = d->form();
            QCOMPARE(d->windowTitle(), QStringLiteral("Splash Screen Properties"));
            QCOMPARE(f.chkAppSplash->text(), QStringLiteral("Splash Screen"));
            QCOMPARE(f.frmAppSplashImage->title(), QStringLiteral("Image Properties"));
            QCOMPARE(f.frmAppSplashScreen->title(), QStringLiteral("Screen Properties"));
            QCOMPARE(f.frmAppSplashTimer->title(), QStringLiteral("Splash Timer"));
            QCOMPARE(caption(d, "lblAppSplashScreenWidth"), QStringLiteral("Width"));
            QCOMPARE(caption(d, "lblAppSplashScreenHeight"), QStringLiteral("Height"));
            QCOMPARE(caption(d, "lblAppSplashScreenBPP"), QStringLiteral("Depth"));
            QCOMPARE(caption(d, "lblAppSplashImagePropsPath"), QStringLiteral("Image Path"));
            QCOMPARE(caption(d, "lblAppSplashImagePropsRed"), QStringLiteral("Transparency Red"));
            QCOMPARE(caption(d, "lblAppSplashImagePropsGreen"),
                     QStringLiteral("Transparency Green"));
            QCOMPARE(caption(d, "lblAppSplashImagePropsBlue"), QStringLiteral("Transparency Blue"));
            QCOMPARE(f.txtAppSplashTimer->parentWidget(), f.frmAppSplashTimer);
            QCOMPARE(f.txtAppSplashScreenBPP->parentWidget(), f.frmAppSplashScreen);
            QCOMPARE(f.txtAppSplashImagePropsBlue->parentWidget(), f.frmAppSplashImage);
        });
        logProps([](frmAppLogProps *d) {
            QCOMPARE(d->windowTitle(), QStringLiteral("Log Properties"));
            QCOMPARE(d->form().chkAppLog->text(), QStringLiteral("Enable Log"));
            QCOMPARE(caption(d, "lblAppLogPath"), QStringLiteral("Log Location"));
            QVERIFY(d->form().txtAppLogPath);
        });
    }

    // Every edit is stored at once; closing refreshes the application statistics.
    void closingEachDialogRefreshesTheStatistics()
    {
        QCOMPARE(statLabel("lblAppStatsWidth"), QStringLiteral("Screen Width: 0"));
        QVERIFY(windowProps([this](frmAppWindowProps *d) {
            typeInto(d->form().txtAppScreenPropsWidth, QStringLiteral("800"));
            QCOMPARE(app().screenWidth, 800);
            QCOMPARE(statLabel("lblAppStatsWidth"), QStringLiteral("Screen Width: 0"));
            pressEscape(d->form().txtAppScreenPropsWidth);
        }));
        QCOMPARE(statLabel("lblAppStatsWidth"), QStringLiteral("Screen Width: 800"));

        QVERIFY(!soundProps([](frmAppSoundProps *d) {
            typeInto(d->form().txtAppSoundMix, QStringLiteral("44100"));
        })); // closed by its close box
        QCOMPARE(statLabel("lblAppStatsMixrate"), QStringLiteral("Mixrate: 44100"));

        QVERIFY(splashProps([](frmAppSplashProps *d) {
            clickIndicator(d->form().chkAppSplash);
            pressEscape(d);
        }));
        QCOMPARE(app().splashEnabled, 1);
        QCOMPARE(statLabel("lblAppStatsSplash"), QStringLiteral("Splash Screen: ENABLED"));

        QVERIFY(!logProps([](frmAppLogProps *d) { clickIndicator(d->form().chkAppLog); }));
        QCOMPARE(app().logEnabled, 1);
        QCOMPARE(statLabel("lblAppStatsLogging"), QStringLiteral("Error Logging: ENABLED"));
    }

    void loadShowsNumbersAsPlainDecimals()
    {
        app().screenWidth = 640;
        app().screenHeight = -1;
        app().screenBpp = 32;
        app().fps = 60;
        app().useEngineScreen = 1;
        app().soundMix = 2000000;
        app().soundChannels = 8;
        windowProps([](frmAppWindowProps *d) {
            const auto &f = d->form();
            QCOMPARE(f.txtAppScreenPropsWidth->text(), QStringLiteral("640"));
            QCOMPARE(f.txtAppScreenPropsHeight->text(), QStringLiteral("-1"));
            QCOMPARE(f.txtAppScreenPropsBPP->text(), QStringLiteral("32"));
            QCOMPARE(f.txtAppScreenFPS->text(), QStringLiteral("60"));
            QVERIFY(f.chkAppScreenEngineUse->isChecked());
            QCOMPARE(f.txtAppWindowPropsCaption->text(), QStringLiteral("QTA Application"));
            QCOMPARE(f.txtAppWindowPropsIcon->text(), QString());
        });
        soundProps([](frmAppSoundProps *d) {
            QCOMPARE(d->form().txtAppSoundMix->text(), QStringLiteral("2000000"));
            QCOMPARE(d->form().txtAppSoundChannels->text(), QStringLiteral("8"));
        });
        QCOMPARE(app().soundMix, 2000000);
        QCOMPARE(app().screenHeight, -1);
    }

    void emptyingANumericBoxShowsZeroAndStoresZero()
    {
        app().screenWidth = 640;
        app().screenHeight = 480;
        app().screenBpp = 16;
        app().fps = 60;
        app().soundMix = 44100;
        app().soundChannels = 16;
        app().splashTimer = 5;
        app().splashWidth = 320;
        app().splashHeight = 200;
        windowProps([this](frmAppWindowProps *d) {
            const auto &f = d->form();
            for (QLineEdit *box : {f.txtAppScreenPropsWidth,
                                   f.txtAppScreenPropsHeight,
                                   f.txtAppScreenPropsBPP,
                                   f.txtAppScreenFPS}) {
                clearBox(box);
                QCOMPARE(box->text(), QStringLiteral("0"));
            }
            QCOMPARE(app().screenWidth, 0);
            QCOMPARE(app().screenHeight, 0);
            QCOMPARE(app().screenBpp, 0);
            QCOMPARE(app().fps, 0);
        });
        soundProps([this](frmAppSoundProps *d) {
            clearBox(d->form().txtAppSoundMix);
            clearBox(d->form().txtAppSoundChannels);
            QCOMPARE(d->form().txtAppSoundMix->text(), QStringLiteral("0"));
            QCOMPARE(d->form().txtAppSoundChannels->text(), QStringLiteral("0"));
            QCOMPARE(app().soundMix, 0);
            QCOMPARE(app().soundChannels, 0);
        });
        splashProps([this](frmAppSplashProps *d) {
            const auto &f = d->form();
            clickIndicator(f.chkAppSplash); // the boxes take typing
            clearBox(f.txtAppSplashTimer);
            clearBox(f.txtAppSplashScreenWidth);
            QCOMPARE(f.txtAppSplashTimer->text(), QStringLiteral("0"));
            QCOMPARE(f.txtAppSplashScreenWidth->text(), QStringLiteral("0"));
            QCOMPARE(app().splashTimer, 0);
            QCOMPARE(app().splashWidth, 0);
            clearBox(f.txtAppSplashScreenHeight);
            QCOMPARE(f.txtAppSplashScreenHeight->text(), QStringLiteral("0"));
            QCOMPARE(app().splashHeight, 0);
            typeInto(f.txtAppSplashScreenHeight, QStringLiteral("200"));
            clearBox(f.txtAppSplashScreenBPP);
            QCOMPARE(f.txtAppSplashScreenBPP->text(), QStringLiteral("0"));
            QCOMPARE(app().splashHeight, 0);
        });
    }

    void theMixRateIsA32BitNumber()
    {
        soundProps([this](frmAppSoundProps *d) {
            typeInto(d->form().txtAppSoundMix, QStringLiteral("96000"));
            QCOMPARE(app().soundMix, 96000);
            QCOMPARE(d->form().txtAppSoundMix->text(), QStringLiteral("96000"));
            // Beyond 32 bits: the nearest end of the range, shown in the box.
            typeInto(d->form().txtAppSoundMix, QStringLiteral("3000000000"));
            QCOMPARE(app().soundMix, 2147483647);
            QCOMPARE(d->form().txtAppSoundMix->text(), QStringLiteral("2147483647"));
            // The channels are 16-bit.
            typeInto(d->form().txtAppSoundChannels, QStringLiteral("96000"));
            QCOMPARE(app().soundChannels, 32767);
            QCOMPARE(d->form().txtAppSoundChannels->text(), QStringLiteral("32767"));
        });
    }

    void colourBoxesCapAt255AndKeepNegatives()
    {
        app().splashEnabled = 1;
        splashProps([this](frmAppSplashProps *d) {
            const auto &f = d->form();
            typeInto(f.txtAppSplashImagePropsRed, QStringLiteral("300"));
            QCOMPARE(f.txtAppSplashImagePropsRed->text(), QStringLiteral("255"));
            QCOMPARE(app().splashRed, 255);
            typeInto(f.txtAppSplashImagePropsGreen, QStringLiteral("-5"));
            QCOMPARE(f.txtAppSplashImagePropsGreen->text(), QStringLiteral("-5"));
            QCOMPARE(app().splashGreen, -5);
            typeInto(f.txtAppSplashImagePropsBlue, QStringLiteral("255"));
            QCOMPARE(f.txtAppSplashImagePropsBlue->text(), QStringLiteral("255"));
            QCOMPARE(app().splashBlue, 255);
            typeInto(f.txtAppSplashImagePropsBlue, QStringLiteral("256"));
            QCOMPARE(f.txtAppSplashImagePropsBlue->text(), QStringLiteral("255"));
            clearBox(f.txtAppSplashImagePropsBlue);
            QCOMPARE(f.txtAppSplashImagePropsBlue->text(), QStringLiteral("0"));
            QCOMPARE(app().splashBlue, 0);
        });
        // The other numeric boxes have no cap.
        windowProps([this](frmAppWindowProps *d) {
            typeInto(d->form().txtAppScreenPropsBPP, QStringLiteral("300"));
            QCOMPARE(d->form().txtAppScreenPropsBPP->text(), QStringLiteral("300"));
            QCOMPARE(app().screenBpp, 300);
        });
    }

    void anEmptiedIconPathStoresNullAndReopensEmpty()
    {
        app().screenType = 2;
        app().windowIcon = "game.ico";
        windowProps([this](frmAppWindowProps *d) {
            QCOMPARE(d->form().txtAppWindowPropsIcon->text(), QStringLiteral("game.ico"));
            clearBox(d->form().txtAppWindowPropsIcon);
            QCOMPARE(app().windowIcon, std::string("null"));
        });
        windowProps([this](frmAppWindowProps *d) {
            QCOMPARE(d->form().txtAppWindowPropsIcon->text(), QString());
            QCOMPARE(app().windowIcon, std::string("null"));
            typeInto(d->form().txtAppWindowPropsIcon, QStringLiteral("null"));
            QCOMPARE(d->form().txtAppWindowPropsIcon->text(), QString());
            QCOMPARE(app().windowIcon, std::string("null"));
        });
    }

    void theOtherPathBoxesFollowTheNullRule()
    {
        app().splashEnabled = 1;
        app().logEnabled = 1;
        splashProps([this](frmAppSplashProps *d) {
            auto *box = d->form().txtAppSplashImagePropsPath;
            QCOMPARE(box->text(), QString());
            typeInto(box, QStringLiteral("splash.png"));
            QCOMPARE(app().splashImagePath, std::string("splash.png"));
            clearBox(box);
            QCOMPARE(app().splashImagePath, std::string("null"));
        });
        logProps([this](frmAppLogProps *d) {
            auto *box = d->form().txtAppLogPath;
            QCOMPARE(box->text(), QString());
            typeInto(box, QStringLiteral("game.log"));
            QCOMPARE(app().logPath, std::string("game.log"));
            typeInto(box, QStringLiteral("null"));
            QCOMPARE(box->text(), QString());
            QCOMPARE(app().logPath, std::string("null"));
        });
    }

    void anEmptiedCaptionShowsTheDefaultCaption()
    {
        windowProps([this](frmAppWindowProps *d) {
            auto *box = d->form().txtAppWindowPropsCaption;
            typeInto(box, QStringLiteral("Space Game"));
            QCOMPARE(app().windowCaption, std::string("Space Game"));
            clearBox(box);
            QCOMPARE(box->text(), QStringLiteral("QTA Application"));
            QCOMPARE(app().windowCaption, std::string("QTA Application"));
        });
    }

    void screenTypeOptionsStoreTheirCodesAndOpenTheIcon()
    {
        QCOMPARE(app().screenType, 1);
        windowProps([this](frmAppWindowProps *d) {
            const auto &f = d->form();
            QVERIFY(f.optAppScreenTypeFull->isChecked());
            QVERIFY(!f.txtAppWindowPropsIcon->isEnabled());
            clickIndicator(f.optAppScreentypeWindow);
            QCOMPARE(app().screenType, 2);
            QVERIFY(f.txtAppWindowPropsIcon->isEnabled());
            QVERIFY(f.fraAppWindowIcon->isEnabled());
            clickIndicator(f.optAppScreenTypeFull);
            QCOMPARE(app().screenType, 1);
            QVERIFY(!f.txtAppWindowPropsIcon->isEnabled());
            clickIndicator(f.optAppScreentypeWindow);
        });
        windowProps([this](frmAppWindowProps *d) {
            QVERIFY(d->form().optAppScreentypeWindow->isChecked());
            QVERIFY(!d->form().optAppScreenTypeFull->isChecked());
            QVERIFY(d->form().txtAppWindowPropsIcon->isEnabled());
            QCOMPARE(app().screenType, 2);
        });
        QCOMPARE(statLabel("lblAppStatsScreenType"), QStringLiteral("Screen Type: WINDOWED"));
    }

    void aScreenTypeOfNeitherCodeChoosesNoOption()
    {
        app().screenType = 0;
        windowProps([](frmAppWindowProps *d) {
            QVERIFY(!d->form().optAppScreenTypeFull->isChecked());
            QVERIFY(!d->form().optAppScreentypeWindow->isChecked());
            QVERIFY(d->form().txtAppWindowPropsIcon->isEnabled());
        });
        QCOMPARE(app().screenType, 0);
    }

    void aSplashDepthTypedAfterTheHeightIsTheHeight()
    {
        app().splashEnabled = 1;
        app().splashBpp = 24;
        splashProps([this](frmAppSplashProps *d) {
            const auto &f = d->form();
            typeInto(f.txtAppSplashScreenHeight, QStringLiteral("480"));
            QCOMPARE(app().splashHeight, 480);
            typeInto(f.txtAppSplashScreenBPP, QStringLiteral("16"));
            QCOMPARE(app().splashHeight, 16);
            QCOMPARE(app().splashBpp, 24);
        });
        QCOMPARE(app().splashHeight, 16);
        QCOMPARE(app().splashBpp, 24);
        // The other way round, the height wins; both boxes show the height when reopened.
        splashProps([this](frmAppSplashProps *d) {
            const auto &f = d->form();
            QCOMPARE(f.txtAppSplashScreenHeight->text(), QStringLiteral("16"));
            QCOMPARE(f.txtAppSplashScreenBPP->text(), QStringLiteral("16"));
            typeInto(f.txtAppSplashScreenBPP, QStringLiteral("32"));
            typeInto(f.txtAppSplashScreenHeight, QStringLiteral("480"));
            QCOMPARE(app().splashHeight, 480);
        });
        QCOMPARE(app().splashBpp, 24);
    }

    void theSplashBoxOpensTheSplashFrames()
    {
        splashProps([this](frmAppSplashProps *d) {
            const auto &f = d->form();
            const QList<QWidget *> frames{
                f.frmAppSplashImage, f.frmAppSplashScreen, f.frmAppSplashTimer};
            QVERIFY(!f.chkAppSplash->isChecked());
            for (QWidget *frame : frames)
                QVERIFY(!frame->isEnabled());
            clickIndicator(f.chkAppSplash);
            QCOMPARE(app().splashEnabled, 1);
            for (QWidget *frame : frames)
                QVERIFY(frame->isEnabled());
        });
        splashProps([this](frmAppSplashProps *d) {
            const auto &f = d->form();
            QVERIFY(f.chkAppSplash->isChecked());
            QVERIFY(f.frmAppSplashTimer->isEnabled());
            clickIndicator(f.chkAppSplash);
            QCOMPARE(app().splashEnabled, 0);
            QVERIFY(!f.frmAppSplashImage->isEnabled());
            QVERIFY(!f.frmAppSplashScreen->isEnabled());
            QVERIFY(!f.frmAppSplashTimer->isEnabled());
        });
    }

    void theLogBoxOpensTheLogPath()
    {
        logProps([this](frmAppLogProps *d) {
            const auto &f = d->form();
            QVERIFY(!f.chkAppLog->isChecked());
            QVERIFY(!f.txtAppLogPath->isEnabled());
            clickIndicator(f.chkAppLog);
            QCOMPARE(app().logEnabled, 1);
            QVERIFY(f.txtAppLogPath->isEnabled());
        });
        logProps([this](frmAppLogProps *d) {
            QVERIFY(d->form().chkAppLog->isChecked());
            QVERIFY(d->form().txtAppLogPath->isEnabled());
            clickIndicator(d->form().chkAppLog);
            QCOMPARE(app().logEnabled, 0);
            QVERIFY(!d->form().txtAppLogPath->isEnabled());
        });
    }

    void theTileEngineBoxStoresItsValue()
    {
        windowProps([this](frmAppWindowProps *d) {
            clickIndicator(d->form().chkAppScreenEngineUse);
            QCOMPARE(app().useEngineScreen, 1);
        });
        QCOMPARE(statLabel("lblAppStatsTileEngine"), QStringLiteral("Tile Engine: ENABLED"));
        windowProps([this](frmAppWindowProps *d) {
            QVERIFY(d->form().chkAppScreenEngineUse->isChecked());
            clickIndicator(d->form().chkAppScreenEngineUse);
            QCOMPARE(app().useEngineScreen, 0);
        });
    }

    // Escape closes through the same way as the close box: the statistics are refreshed.
    void escapeClosesFromAnyControl()
    {
        QVERIFY(windowProps([](frmAppWindowProps *d) {
            typeInto(d->form().txtAppScreenFPS, QStringLiteral("30"));
            pressEscape(d->form().chkAppScreenEngineUse);
        }));
        QCOMPARE(statLabel("lblAppStatsFramerate"), QStringLiteral("Framerate: 30"));
        QVERIFY(soundProps([](frmAppSoundProps *d) {
            typeInto(d->form().txtAppSoundChannels, QStringLiteral("12"));
            pressEscape(d->form().txtAppSoundChannels);
        }));
        QCOMPARE(statLabel("lblAppStatsChannels"), QStringLiteral("# Channels: 12"));
        QVERIFY(logProps([](frmAppLogProps *d) { pressEscape(d->form().chkAppLog); }));
        // Other keys close nothing.
        QVERIFY(!logProps([](frmAppLogProps *d) { QTest::keyClick(d, Qt::Key_Return); }));
    }
};

QTEST_MAIN(tst_AppSettings)
#include "tst_AppSettings.moc"
