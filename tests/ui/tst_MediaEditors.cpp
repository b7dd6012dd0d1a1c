#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmFont.h"
#include "frmMain.h"
#include "frmMusic.h"
#include "frmSFX.h"
#include "model/Kinds.h"

#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

namespace {

// The font, music and sound-effect editors are tested alike; each row names one of them by
// the word its controls' names are built on.
Kind kindNamed(const QString &name)
{
    if (name == QLatin1String("Font"))
        return Kind::Font;
    if (name == QLatin1String("Music"))
        return Kind::Music;
    return Kind::SFX;
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray("<missing>");
    return file.readAll();
}

} // namespace

// The font ("Font Data"), music ("Music Data") and sound-effect ("SFX Data") editors opened
// from the main window as a user opens them: New project, the kind's tab, Add Object, Edit
// Properties.
class tst_MediaEditors : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;

    void addObject(Kind kind)
    {
        clickTab(*m_window, tabOf(kind));
        clickButton(m_window->form().cmdObjAdd);
    }

    bool edit(std::function<void(EditorForm *)> action)
    {
        return editProperties<EditorForm>(*m_window, std::move(action));
    }

    // The record fields, read from the document's tables.
    std::string &idOf(Kind kind, int slot = 0)
    {
        if (kind == Kind::Font)
            return m_doc->Fonts[size_t(slot)].id;
        return sound(kind, slot).id;
    }
    std::string &pathOf(Kind kind, int slot = 0)
    {
        if (kind == Kind::Font)
            return m_doc->Fonts[size_t(slot)].path;
        return sound(kind, slot).path;
    }
    MusicRec &sound(Kind kind, int slot = 0)
    {
        if (kind == Kind::Music)
            return m_doc->MusicTracks[size_t(slot)];
        return m_doc->SoundEffects[size_t(slot)];
    }
    SlotView slotFlags(Kind kind, int slot = 0) { return slotOf(*m_doc, kind, slot); }

    static QLineEdit *box(EditorForm *editor, const QString &name)
    {
        auto *found = editor->findChild<QLineEdit *>(name);
        if (!found)
            qWarning("no text box %s", qPrintable(name));
        return found;
    }
    QString statsCaption(const QString &label) const
    {
        return m_window->findChild<QLabel *>(label)->text();
    }

    static void kindRows()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("font") << QStringLiteral("Font");
        QTest::newRow("music") << QStringLiteral("Music");
        QTest::newRow("sfx") << QStringLiteral("SFX");
    }
    static void soundRows()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("music") << QStringLiteral("Music");
        QTest::newRow("sfx") << QStringLiteral("SFX");
    }
    static void soundBoxRows()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("setting");
        for (const char *name : {"Music", "SFX"})
            for (const char *setting : {"Volume", "Priority", "Pan"})
                QTest::addRow("%s %s", name, setting)
                    << QString::fromLatin1(name) << QString::fromLatin1(setting);
    }
    int16_t &settingOf(Kind kind, const QString &setting)
    {
        MusicRec &rec = sound(kind);
        if (setting == QLatin1String("Volume"))
            return rec.defaultVolume;
        if (setting == QLatin1String("Priority"))
            return rec.defaultPriority;
        return rec.defaultPan;
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
    }
    void cleanup()
    {
        m_doc->ProjectInfo.projectFilePath.clear(); // closing asks nothing
        m_window.reset();
    }

    void controlsCarryTheirCaptions_data() { kindRows(); }
    void controlsCarryTheirCaptions()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        addObject(kind);
        edit([&](EditorForm *editor) {
            QCOMPARE(QString::fromLatin1(editor->metaObject()->className()),
                     QStringLiteral("vorlane::frm") + name);
            QCOMPARE(editor->windowTitle(), name + QStringLiteral(" Data"));
            QCOMPARE(editor->kind(), kind);
            const auto title = [editor](const QString &group) {
                auto *frame = editor->findChild<QGroupBox *>(group);
                return frame ? frame->title() : QStringLiteral("<missing>");
            };
            QCOMPARE(title("fra" + name + "ID"), name + QStringLiteral(" ID"));
            QCOMPARE(title("fra" + name + "Path"), name + QStringLiteral(" Path"));
            QVERIFY(box(editor, "txt" + name + "ID"));
            QVERIFY(box(editor, "txt" + name + "Path"));
            QCOMPARE(editor->findChildren<QLineEdit *>().size(), kind == Kind::Font ? 2 : 5);
            if (kind == Kind::Font) {
                QVERIFY(!editor->findChild<QGroupBox *>("fraFontDefaultSettings"));
                return;
            }
            QCOMPARE(title("fra" + name + "DefaultSettings"),
                     name + QStringLiteral(" Default Settings"));
            for (const char *setting : {"Volume", "Priority", "Pan"}) {
                const QString suffix = QStringLiteral("Default") + QLatin1String(setting);
                QVERIFY(box(editor, "txt" + name + suffix));
                auto *label = editor->findChild<QLabel *>("lbl" + name + suffix);
                QVERIFY(label);
                QCOMPARE(label->text(), QString::fromLatin1(setting));
                QCOMPARE(label->buddy(), box(editor, "txt" + name + suffix));
            }
        });
    }

    void tabOrderFollowsTheForm_data() { kindRows(); }
    void tabOrderFollowsTheForm()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        addObject(kind);
        edit([&](EditorForm *editor) {
            QStringList order{"ID", "Path"};
            if (kind != Kind::Font)
                order << "DefaultVolume"
                      << "DefaultPriority"
                      << "DefaultPan";
            QLineEdit *first = box(editor, "txt" + name + order.first());
            first->setFocus();
            QTRY_COMPARE(QApplication::focusWidget(), first);
            for (int i = 1; i < order.size(); ++i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                QCOMPARE(QApplication::focusWidget(), box(editor, "txt" + name + order[i]));
            }
        });
    }

    void newRecordOpensWithDefaults_data() { kindRows(); }
    void newRecordOpensWithDefaults()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        // The slot still holds what an earlier object left in it.
        idOf(kind) = "oldId";
        pathOf(kind) = "old/file.dat";
        if (kind != Kind::Font) {
            sound(kind).defaultVolume = 77;
            sound(kind).defaultPriority = 88;
            sound(kind).defaultPan = 99;
        }
        addObject(kind);
        QCOMPARE(slotFlags(kind).isNew, int16_t(-1));
        edit([&](EditorForm *editor) {
            QCOMPARE(box(editor, "txt" + name + "ID")->text(), QStringLiteral("Enter_ID"));
            QCOMPARE(box(editor, "txt" + name + "Path")->text(), QString());
            QCOMPARE(idOf(kind), std::string("Enter_ID"));
            QCOMPARE(pathOf(kind), std::string("null"));
            QCOMPARE(slotFlags(kind).isNew, int16_t(0));
            QCOMPARE(slotFlags(kind).inUse, int16_t(-1));
            if (kind == Kind::Font)
                return;
            for (const char *setting : {"Volume", "Priority", "Pan"}) {
                const QString boxName = "txt" + name + "Default" + QLatin1String(setting);
                QCOMPARE(box(editor, boxName)->text(), QStringLiteral("0"));
                QCOMPARE(settingOf(kind, QLatin1String(setting)), int16_t(0));
            }
        });
    }

    void numbersAbove255Show255_data() { soundBoxRows(); }
    void numbersAbove255Show255()
    {
        QFETCH(QString, name);
        QFETCH(QString, setting);
        const Kind kind = kindNamed(name);
        addObject(kind);
        edit([&](EditorForm *editor) {
            QLineEdit *number = box(editor, "txt" + name + "Default" + setting);
            typeInto(number, QStringLiteral("999"));
            QCOMPARE(number->text(), QStringLiteral("255"));
            QCOMPARE(settingOf(kind, setting), int16_t(255));
            typeInto(number, QStringLiteral("256"));
            QCOMPARE(number->text(), QStringLiteral("255"));
            typeInto(number, QStringLiteral("254"));
            QCOMPARE(number->text(), QStringLiteral("254"));
            QCOMPARE(settingOf(kind, setting), int16_t(254));
            typeInto(number, QStringLiteral("255"));
            QCOMPARE(number->text(), QStringLiteral("255"));
            QCOMPARE(settingOf(kind, setting), int16_t(255));
        });
    }

    void negativeNumbersAreKept_data() { soundBoxRows(); }
    void negativeNumbersAreKept()
    {
        QFETCH(QString, name);
        QFETCH(QString, setting);
        const Kind kind = kindNamed(name);
        addObject(kind);
        edit([&](EditorForm *editor) {
            QLineEdit *number = box(editor, "txt" + name + "Default" + setting);
            typeInto(number, QStringLiteral("-20"));
            QCOMPARE(number->text(), QStringLiteral("-20"));
            QCOMPARE(settingOf(kind, setting), int16_t(-20));
        });
        QCOMPARE(settingOf(kind, setting), int16_t(-20));
    }

    void emptiedOrWordyNumbers_data() { soundBoxRows(); }
    void emptiedOrWordyNumbers()
    {
        QFETCH(QString, name);
        QFETCH(QString, setting);
        const Kind kind = kindNamed(name);
        addObject(kind);
        edit([&](EditorForm *editor) {
            QLineEdit *number = box(editor, "txt" + name + "Default" + setting);
            typeInto(number, QStringLiteral("64"));
            clearBox(number);
            QCOMPARE(number->text(), QStringLiteral("0"));
            QCOMPARE(settingOf(kind, setting), int16_t(0));
            typeInto(number, QStringLiteral("12abc"));
            QCOMPARE(number->text(), QStringLiteral("12abc"));
            QCOMPARE(settingOf(kind, setting), int16_t(12));
            typeInto(number, QStringLiteral("loud"));
            QCOMPARE(number->text(), QStringLiteral("loud"));
            QCOMPARE(settingOf(kind, setting), int16_t(0));
            // Key by key: the third key makes "300", which shows "255"; the rest follows it.
            typeInto(number, QStringLiteral("300 dB"));
            QCOMPARE(number->text(), QStringLiteral("255 dB"));
            QCOMPARE(settingOf(kind, setting), int16_t(255));
        });
    }

    void emptiedPathStoresNull_data() { kindRows(); }
    void emptiedPathStoresNull()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        addObject(kind);
        edit([&](EditorForm *editor) {
            QLineEdit *path = box(editor, "txt" + name + "Path");
            typeInto(path, QStringLiteral("fonts/arial.ttf"));
            QCOMPARE(pathOf(kind), std::string("fonts/arial.ttf"));
            clearBox(path);
            QCOMPARE(path->text(), QString());
            QCOMPARE(pathOf(kind), std::string("null"));
        });
        QCOMPARE(pathOf(kind), std::string("null"));
    }

    void typingNullEmptiesThePath_data() { kindRows(); }
    void typingNullEmptiesThePath()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        addObject(kind);
        edit([&](EditorForm *editor) {
            QLineEdit *path = box(editor, "txt" + name + "Path");
            typeInto(path, QStringLiteral("null"));
            QCOMPARE(path->text(), QString());
            QCOMPARE(pathOf(kind), std::string("null"));
            // Only the whole text "null" counts.
            typeInto(path, QStringLiteral("Null"));
            QCOMPARE(path->text(), QStringLiteral("Null"));
            QCOMPARE(pathOf(kind), std::string("Null"));
        });
    }

    void pathIsStoredAsTyped_data() { kindRows(); }
    void pathIsStoredAsTyped()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        addObject(kind);
        const QString missing = QStringLiteral(" C:\\no such folder\\file .wav ");
        QVERIFY(!QFile::exists(missing));
        edit([&](EditorForm *editor) { typeInto(box(editor, "txt" + name + "Path"), missing); });
        QCOMPARE(pathOf(kind), missing.toStdString());
        QVERIFY(m_ui->messages.empty());
    }

    void clearingTheIdentifierYieldsEnterId_data() { kindRows(); }
    void clearingTheIdentifierYieldsEnterId()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        addObject(kind);
        edit([&](EditorForm *editor) {
            QLineEdit *id = box(editor, "txt" + name + "ID");
            typeInto(id, QStringLiteral("theme"));
            QCOMPARE(idOf(kind), std::string("theme"));
            clearBox(id);
            QCOMPARE(id->text(), QStringLiteral("Enter_ID"));
            QCOMPARE(idOf(kind), std::string("Enter_ID"));
        });
        QCOMPARE(listTexts(m_window->objectList(tabOf(kind))), QStringList({"Enter_ID"}));
    }

    void reopeningKeepsTheValues_data() { kindRows(); }
    void reopeningKeepsTheValues()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        const bool playback = kind != Kind::Font;
        addObject(kind);
        edit([&](EditorForm *editor) {
            typeInto(box(editor, "txt" + name + "ID"), QStringLiteral("theme"));
            typeInto(box(editor, "txt" + name + "Path"), QStringLiteral("media/theme"));
            if (playback) {
                typeInto(box(editor, "txt" + name + "DefaultVolume"), QStringLiteral("200"));
                typeInto(box(editor, "txt" + name + "DefaultPriority"), QStringLiteral("3"));
                typeInto(box(editor, "txt" + name + "DefaultPan"), QStringLiteral("-64"));
            }
        });
        edit([&](EditorForm *editor) {
            QCOMPARE(box(editor, "txt" + name + "ID")->text(), QStringLiteral("theme"));
            QCOMPARE(box(editor, "txt" + name + "Path")->text(), QStringLiteral("media/theme"));
            QCOMPARE(idOf(kind), std::string("theme"));
            QCOMPARE(pathOf(kind), std::string("media/theme"));
            if (!playback)
                return;
            QCOMPARE(box(editor, "txt" + name + "DefaultVolume")->text(), QStringLiteral("200"));
            QCOMPARE(box(editor, "txt" + name + "DefaultPriority")->text(), QStringLiteral("3"));
            QCOMPARE(box(editor, "txt" + name + "DefaultPan")->text(), QStringLiteral("-64"));
            QCOMPARE(sound(kind).defaultVolume, int16_t(200));
            QCOMPARE(sound(kind).defaultPriority, int16_t(3));
            QCOMPARE(sound(kind).defaultPan, int16_t(-64));
        });
    }

    void escapeClosesAndTheListShowsTheNewIdentifier_data() { kindRows(); }
    void escapeClosesAndTheListShowsTheNewIdentifier()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        for (int i = 0; i < 3; ++i)
            addObject(kind);
        QListWidget *list = m_window->objectList(tabOf(kind));
        clickLine(list, 1);
        const bool closed = edit([&](EditorForm *editor) {
            typeInto(box(editor, "txt" + name + "ID"), QStringLiteral("second"));
            QLineEdit *last = box(editor, "txt" + name + "Path");
            typeInto(last, QStringLiteral("media/second"));
            if (kind != Kind::Font) {
                typeInto(box(editor, "txt" + name + "DefaultVolume"), QStringLiteral("999"));
                typeInto(box(editor, "txt" + name + "DefaultPriority"), QStringLiteral("7"));
                last = box(editor, "txt" + name + "DefaultPan");
                typeInto(last, QStringLiteral("-20"));
            }
            QTest::keyClick(last, Qt::Key_Escape);
        });
        QVERIFY(closed);
        QCOMPARE(listTexts(list), QStringList({"New_Object0", "second", "New_Object2"}));
        QCOMPARE(listSlots(list), QList<int>({0, 1, 2}));
        QCOMPARE(list->currentRow(), 1);
        QCOMPARE(m_doc->list(kind).selected, 1);
        QCOMPARE(idOf(kind, 1), std::string("second"));
        // Selecting the line refreshed the quick statistics.
        QVERIFY(!m_window->coverFrame(tabOf(kind))->isVisible());
        QCOMPARE(statsCaption("lbl" + name + "StatsPath"),
                 name + QStringLiteral(" Path: media/second"));
        if (kind != Kind::Font) {
            QCOMPARE(statsCaption("lbl" + name + "StatsVolume"),
                     QStringLiteral("Default Volume: 255"));
            QCOMPARE(statsCaption("lbl" + name + "StatsPan"), QStringLiteral("Default Pan: -20"));
            QCOMPARE(statsCaption("lbl" + name + "StatsPriority"),
                     QStringLiteral("Default Priority: 7"));
        }
    }

    // The editor works on the slot a line carries, which after a removal is not its row.
    void editsTheSlotOfTheSelectedLine_data() { kindRows(); }
    void editsTheSlotOfTheSelectedLine()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        addObject(kind);
        addObject(kind);
        QListWidget *list = m_window->objectList(tabOf(kind));
        clickLine(list, 0);
        clickButton(m_window->form().cmdObjRemove);
        addObject(kind); // takes the freed slot 0, on the second line
        QCOMPARE(listSlots(list), QList<int>({1, 0}));
        QCOMPARE(list->currentRow(), 1);
        QVERIFY(edit([&](EditorForm *editor) {
            QCOMPARE(editor->slot(), 0);
            typeInto(box(editor, "txt" + name + "ID"), QStringLiteral("slotZero"));
            QTest::keyClick(editor, Qt::Key_Escape);
        }));
        QCOMPARE(idOf(kind, 0), std::string("slotZero"));
        QCOMPARE(slotFlags(kind, 1).isNew, int16_t(-1));
        QCOMPARE(listTexts(list), QStringList({"New_Object1", "slotZero"}));
        QCOMPARE(listSlots(list), QList<int>({1, 0}));
        QCOMPARE(list->currentRow(), 1);
    }

    void closeBoxClosesTheSameWay_data() { kindRows(); }
    void closeBoxClosesTheSameWay()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        addObject(kind);
        const bool closed = edit([&](EditorForm *editor) {
            typeInto(box(editor, "txt" + name + "ID"), QStringLiteral("closed"));
            editor->close();
        });
        QVERIFY(closed);
        QListWidget *list = m_window->objectList(tabOf(kind));
        QCOMPARE(listTexts(list), QStringList({"closed"}));
        QCOMPARE(list->currentRow(), 0);
    }

    void otherKeysDoNotClose_data() { kindRows(); }
    void otherKeysDoNotClose()
    {
        QFETCH(QString, name);
        addObject(kindNamed(name));
        const bool closed = edit([&](EditorForm *editor) {
            QTest::keyClick(box(editor, "txt" + name + "ID"), Qt::Key_Return);
            QTest::keyClick(editor, Qt::Key_Enter);
            QTest::keyClick(box(editor, "txt" + name + "Path"), Qt::Key_Q);
            QVERIFY(editor->isVisible());
        });
        QVERIFY(!closed);
    }

    void statisticsAppearOnceOpened_data() { kindRows(); }
    void statisticsAppearOnceOpened()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        addObject(kind);
        QFrame *cover = m_window->coverFrame(tabOf(kind));
        QVERIFY(cover->isVisible());
        QCOMPARE(cover->findChild<QLabel *>()->text(), QStringLiteral("[NO DATA]"));
        // The design captions stand under the cover.
        QCOMPARE(statsCaption("lbl" + name + "StatsPath"), name + QStringLiteral(" Path:"));
        edit([](EditorForm *) {});
        QVERIFY(!cover->isVisible());
        // An unset path shows the bare prefix, trailing blank included.
        QCOMPARE(statsCaption("lbl" + name + "StatsPath"), name + QStringLiteral(" Path: "));
        if (kind != Kind::Font) {
            QCOMPARE(statsCaption("lbl" + name + "StatsVolume"),
                     QStringLiteral("Default Volume: 0"));
            QCOMPARE(statsCaption("lbl" + name + "StatsPan"), QStringLiteral("Default Pan: 0"));
            QCOMPARE(statsCaption("lbl" + name + "StatsPriority"),
                     QStringLiteral("Default Priority: 0"));
        }
    }

    void statisticsFollowTheSelectedLine_data() { soundRows(); }
    void statisticsFollowTheSelectedLine()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        addObject(kind);
        edit([&](EditorForm *editor) {
            typeInto(box(editor, "txt" + name + "Path"), QStringLiteral("a.ogg"));
            typeInto(box(editor, "txt" + name + "DefaultVolume"), QStringLiteral("10"));
            typeInto(box(editor, "txt" + name + "DefaultPriority"), QStringLiteral("20"));
            typeInto(box(editor, "txt" + name + "DefaultPan"), QStringLiteral("30"));
        });
        addObject(kind);
        edit([&](EditorForm *editor) {
            typeInto(box(editor, "txt" + name + "DefaultPan"), QStringLiteral("-1"));
        });
        QListWidget *list = m_window->objectList(tabOf(kind));
        clickLine(list, 0);
        QCOMPARE(statsCaption("lbl" + name + "StatsPath"), name + QStringLiteral(" Path: a.ogg"));
        QCOMPARE(statsCaption("lbl" + name + "StatsVolume"), QStringLiteral("Default Volume: 10"));
        QCOMPARE(statsCaption("lbl" + name + "StatsPan"), QStringLiteral("Default Pan: 30"));
        QCOMPARE(statsCaption("lbl" + name + "StatsPriority"),
                 QStringLiteral("Default Priority: 20"));
        clickLine(list, 1);
        QCOMPARE(statsCaption("lbl" + name + "StatsPath"), name + QStringLiteral(" Path: "));
        QCOMPARE(statsCaption("lbl" + name + "StatsPan"), QStringLiteral("Default Pan: -1"));
    }

    void eachEditorKeepsToItsOwnTable()
    {
        addObject(Kind::Music);
        edit([](EditorForm *editor) {
            typeInto(box(editor, "txtMusicID"), QStringLiteral("theme"));
            typeInto(box(editor, "txtMusicDefaultVolume"), QStringLiteral("5"));
        });
        addObject(Kind::SFX);
        edit([](EditorForm *editor) {
            typeInto(box(editor, "txtSFXID"), QStringLiteral("click"));
            typeInto(box(editor, "txtSFXDefaultVolume"), QStringLiteral("6"));
        });
        addObject(Kind::Font);
        edit([](EditorForm *editor) {
            typeInto(box(editor, "txtFontID"), QStringLiteral("serif"));
        });
        QCOMPARE(m_doc->MusicTracks[0].id, std::string("theme"));
        QCOMPARE(m_doc->MusicTracks[0].defaultVolume, int16_t(5));
        QCOMPARE(m_doc->SoundEffects[0].id, std::string("click"));
        QCOMPARE(m_doc->SoundEffects[0].defaultVolume, int16_t(6));
        QCOMPARE(m_doc->Fonts[0].id, std::string("serif"));
        QCOMPARE(m_doc->MusicTracks[1].inUse, int16_t(0));
        QCOMPARE(m_doc->SoundEffects[1].inUse, int16_t(0));
        // Each tab's list shows its own object.
        QCOMPARE(listTexts(m_window->objectList(tabOf(Kind::Music))), QStringList({"theme"}));
        QCOMPARE(listTexts(m_window->objectList(tabOf(Kind::SFX))), QStringList({"click"}));
        QCOMPARE(listTexts(m_window->objectList(tabOf(Kind::Font))), QStringList({"serif"}));
    }

    void doubleClickOpensTheEditor_data() { kindRows(); }
    void doubleClickOpensTheEditor()
    {
        QFETCH(QString, name);
        const Kind kind = kindNamed(name);
        addObject(kind);
        QListWidget *list = m_window->objectList(tabOf(kind));
        bool shown = false;
        whenModalShown<EditorForm>([&](EditorForm *editor) {
            shown = true;
            typeInto(box(editor, "txt" + name + "ID"), QStringLiteral("dbl"));
            QTest::keyClick(editor, Qt::Key_Escape);
        });
        // A double click is a click followed by a second one.
        const QPoint line = list->visualItemRect(list->item(0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, line);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, line);
        QVERIFY(shown);
        QCOMPARE(listTexts(list), QStringList({"dbl"}));
        QCOMPARE(idOf(kind), std::string("dbl"));
    }

    // One font, music track and sound effect edited through their windows, saved, opened
    // again by a fresh window, and generated.
    void roundTripThroughSaveOpenAndGenerate()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString root = dir.path();
        QTest::keyClicks(m_window->form().txtAppRootFolder, root);

        addObject(Kind::Font);
        QVERIFY(edit([](EditorForm *editor) {
            typeInto(box(editor, "txtFontID"), QStringLiteral("fntMain"));
            typeInto(box(editor, "txtFontPath"), QStringLiteral("fonts/main.ttf"));
            QTest::keyClick(editor, Qt::Key_Escape);
        }));
        addObject(Kind::Music);
        QVERIFY(edit([](EditorForm *editor) {
            typeInto(box(editor, "txtMusicID"), QStringLiteral("bgmTitle"));
            typeInto(box(editor, "txtMusicPath"), QStringLiteral("music/title.ogg"));
            typeInto(box(editor, "txtMusicDefaultVolume"), QStringLiteral("999"));
            typeInto(box(editor, "txtMusicDefaultPriority"), QStringLiteral("7"));
            typeInto(box(editor, "txtMusicDefaultPan"), QStringLiteral("-20"));
            QTest::keyClick(editor, Qt::Key_Escape);
        }));
        addObject(Kind::SFX);
        QVERIFY(edit([](EditorForm *editor) {
            typeInto(box(editor, "txtSFXID"), QStringLiteral("sfxClick"));
            typeInto(box(editor, "txtSFXPath"), QStringLiteral("sfx/click.wav"));
            typeInto(box(editor, "txtSFXDefaultVolume"), QStringLiteral("128"));
            typeInto(box(editor, "txtSFXDefaultPriority"), QStringLiteral("3"));
            QTest::keyClick(editor, Qt::Key_Escape);
        }));
        // A second sound effect left with an empty path.
        addObject(Kind::SFX);
        QVERIFY(edit([](EditorForm *editor) {
            typeInto(box(editor, "txtSFXID"), QStringLiteral("sfxQuiet"));
            QTest::keyClick(editor, Qt::Key_Escape);
        }));

        const QString projectFile = dir.filePath(QStringLiteral("game.dvb"));
        m_ui->fileChoices = {projectFile.toStdString()};
        m_window->form().mnuSaveAs->trigger();
        const QList<QByteArray> saved = readAll(projectFile).split('\n');
        // Counts in list order: buttons, cursors, images, texts, fonts, music, sfx, ...
        QCOMPARE(
            saved.mid(2, 9),
            QList<QByteArray>({"0\r", "0\r", "0\r", "0\r", "1\r", "1\r", "2\r", "0\r", "0\r"}));
        const qsizetype fontLine = saved.indexOf("\"fntMain\",\"fonts/main.ttf\"\r");
        QVERIFY(fontLine > 0);
        QCOMPARE(saved.mid(fontLine, 4),
                 QList<QByteArray>({"\"fntMain\",\"fonts/main.ttf\"\r",
                                    "\"bgmTitle\",\"music/title.ogg\",255,7,-20\r",
                                    "\"sfxClick\",\"sfx/click.wav\",128,3,0\r",
                                    "\"sfxQuiet\",\"null\",0,0,0\r"}));

        const QString out = dir.filePath(QStringLiteral("data"));
        QVERIFY(QDir().mkpath(out));
        m_ui->fileChoices = {(out + QStringLiteral("/[no filename needed]")).toStdString()};
        m_window->form().mnuGenDataAs->trigger();
        QCOMPARE(readAll(out + "/font.dat"), QByteArray(" 1\r\nfntMain fonts/main.ttf\r\n"));
        QCOMPARE(readAll(out + "/music.dat"),
                 QByteArray(" 1\r\nbgmTitle music/title.ogg  255  7 -20\r\n"));
        QCOMPARE(readAll(out + "/sfx.dat"),
                 QByteArray(" 2\r\nsfxClick sfx/click.wav  128  3  0\r\n"
                            "sfxQuiet null  0  0  0\r\n"));

        // A fresh window opens the file and its editors show the same values.
        auto doc2 = makeDocument();
        ScriptedUserInterface ui2;
        frmMain second(*doc2, ui2);
        registerEditors(second);
        second.show();
        QVERIFY(QTest::qWaitForWindowExposed(&second));
        ui2.fileChoices = {projectFile.toStdString()};
        second.form().mnuOpen->trigger();
        QVERIFY(ui2.messages.empty());
        QCOMPARE(listTexts(second.objectList(tabOf(Kind::Font))), QStringList({"fntMain"}));
        QCOMPARE(listTexts(second.objectList(tabOf(Kind::Music))), QStringList({"bgmTitle"}));
        QCOMPARE(listTexts(second.objectList(tabOf(Kind::SFX))),
                 QStringList({"sfxClick", "sfxQuiet"}));

        const auto showsInEditor = [&second](Kind kind, const QStringList &expected) {
            clickTab(second, tabOf(kind));
            QStringList shown;
            editProperties<EditorForm>(second, [&shown](EditorForm *editor) {
                for (QLineEdit *line : editor->findChildren<QLineEdit *>())
                    shown << line->objectName() + "=" + line->text();
                QTest::keyClick(editor, Qt::Key_Escape);
            });
            shown.sort();
            QStringList sorted = expected;
            sorted.sort();
            return shown == sorted ? QString() : shown.join(QStringLiteral(", "));
        };
        QCOMPARE(showsInEditor(Kind::Font, {"txtFontID=fntMain", "txtFontPath=fonts/main.ttf"}),
                 QString());
        QCOMPARE(showsInEditor(Kind::Music,
                               {"txtMusicID=bgmTitle",
                                "txtMusicPath=music/title.ogg",
                                "txtMusicDefaultVolume=255",
                                "txtMusicDefaultPriority=7",
                                "txtMusicDefaultPan=-20"}),
                 QString());
        QCOMPARE(showsInEditor(Kind::SFX,
                               {"txtSFXID=sfxClick",
                                "txtSFXPath=sfx/click.wav",
                                "txtSFXDefaultVolume=128",
                                "txtSFXDefaultPriority=3",
                                "txtSFXDefaultPan=0"}),
                 QString());
        QCOMPARE(second.findChild<QLabel *>(QStringLiteral("lblSFXStatsPath"))->text(),
                 QStringLiteral("SFX Path: sfx/click.wav"));
        QCOMPARE(doc2->SoundEffects[1].path, std::string("null"));
        QCOMPARE(doc2->MusicTracks[0].defaultPan, int16_t(-20));

        // Opening and closing the editors changed nothing: saving again writes the same bytes.
        const QByteArray before = readAll(projectFile);
        ui2.fileChoices = {dir.filePath(QStringLiteral("again.dvb")).toStdString()};
        second.form().mnuSaveAs->trigger();
        QByteArray again = readAll(dir.filePath(QStringLiteral("again.dvb")));
        again.replace("again.dvb", "game.dvb");
        QCOMPARE(again, before);
        doc2->ProjectInfo.projectFilePath.clear();
    }
};

QTEST_MAIN(tst_MediaEditors)
#include "tst_MediaEditors.moc"
