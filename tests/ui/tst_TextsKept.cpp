#include "DialogDriver.h"
#include "EditorDriver.h"
#include "MainWindowDriver.h"
#include "ObjectSetup.h"
#include "ProblemsPanel.h"
#include "RegisterEditors.h"
#include "ScriptedUserInterface.h"
#include "frmAppWindowProps.h"
#include "frmLogCustom.h"
#include "frmMain.h"
#include "frmText.h"
#include "model/Kinds.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>

using namespace vorlane;

// Whatever a box holds reaches the project file and comes back: any character, any length.
class tst_TextsKept : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Document> m_doc;
    std::unique_ptr<ScriptedUserInterface> m_ui;
    std::unique_ptr<frmMain> m_window;
    std::unique_ptr<QTemporaryDir> m_dir;

    // 40,000 characters, more than a line edit holds unless told otherwise: `first`, then the
    // letters a to z over and over.
    static std::string longText(char first)
    {
        std::string text(1, first);
        for (int i = 1; i < 40000; ++i)
            text.push_back(static_cast<char>('a' + i % 26));
        return text;
    }

    // Types `text` over the box's text one character a key, as a Russian or Japanese keyboard
    // does: QTest::keyClicks knows the keys of ASCII characters only.
    static void typeCharacters(QLineEdit *box, const QString &text)
    {
        box->setFocus();
        box->selectAll();
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(character), {});
    }

    bool editText(std::function<void(frmText *)> action)
    {
        clickTab(*m_window, tabOf(Kind::Text));
        clickLine(m_window->objectList(tabOf(Kind::Text)), 0);
        return editProperties<frmText>(*m_window, std::move(action));
    }

    void saveAs(const std::string &file)
    {
        m_ui->fileChoices = {file};
        m_window->form().mnuSaveAs->trigger();
    }

    void open(const std::string &file)
    {
        m_ui->fileChoices = {file};
        m_window->form().mnuOpen->trigger();
    }

    TextRec &firstText()
    {
        return m_doc->Texts[static_cast<size_t>(m_doc->list(Kind::Text).lines.at(0).slot)];
    }

    QStringList problemLines()
    {
        return listTexts(m_window->problemsPanel().findChild<QListWidget *>("lstProblems"));
    }

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
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
        m_doc->ProjectInfo.projectFilePath.clear();
        m_window.reset();
    }

    void russianTextTypedInTheEditorReadsBackAfterSaveAndOpen()
    {
        addObjectOn(*m_window, Kind::Text);
        editText([](frmText *editor) {
            typeCharacters(editor->form().txtTextID, QStringLiteral("txtСтарт"));
            typeCharacters(editor->form().txtTextContent, QStringLiteral("Начать игру 日本"));
            pressEscape(editor->form().txtTextContent);
        });
        QCOMPARE(firstText().content, std::string("Начать игру 日本"));

        QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("Проект")));
        const std::string file = m_dir->filePath(QStringLiteral("Проект/game.dvb")).toStdString();
        saveAs(file);
        QFile saved(QString::fromStdString(file));
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(saved.read(3), QByteArray("\xEF\xBB\xBF"));
        saved.close();

        open(file);
        QCOMPARE(m_doc->ProjectInfo.projectFilePath, file);
        QCOMPARE(listTexts(m_window->objectList(tabOf(Kind::Text))),
                 QStringList{QStringLiteral("txtСтарт")});
        editText([](frmText *editor) {
            QCOMPARE(editor->form().txtTextID->text(), QStringLiteral("txtСтарт"));
            QCOMPARE(editor->form().txtTextContent->text(), QStringLiteral("Начать игру 日本"));
        });
        // The engine cannot read it: Check Project says so.
        m_window->form().mnuCheckProject->trigger();
        QCOMPARE(problemLines(),
                 QStringList(
                     {QString::fromStdString(file + ": text \"txtСтарт\": content has characters "
                                                    "the engine cannot read: Н, а, ч, т, ь, и, "
                                                    "г, р, у, 日, 本"),
                      QString::fromStdString(file + ": text \"txtСтарт\": id has characters the "
                                                    "engine cannot read: С, т, а, р")}));

        // And the reopened project saves again, to the same file.
        m_window->form().mnuSave->trigger();
        QCOMPARE(m_ui->messages.back().title, std::string("Warning!"));
        open(file);
        QCOMPARE(firstText().content, std::string("Начать игру 日本"));
    }

    void fortyThousandCharactersSurviveTheEditorAndTheFile()
    {
        const int slot = addLiveObject(*m_window, Kind::Text, "txtLong");
        TextRec &text = m_doc->Texts[static_cast<size_t>(slot)];
        text.content = longText('c');
        text.fontId = longText('F');
        text.selectionImageId = "null";
        editText([](frmText *editor) {
            QCOMPARE(editor->form().txtTextContent->text().size(), 40000);
            QCOMPARE(editor->form().cmbTextFontID->currentText().size(), 40000);
            pressEscape(editor->form().txtTextContent);
        });
        QCOMPARE(firstText().content, longText('c'));
        QCOMPARE(firstText().fontId, longText('F'));

        const std::string file = m_dir->filePath(QStringLiteral("long.dvb")).toStdString();
        saveAs(file);
        open(file);
        QCOMPARE(firstText().content, longText('c'));
        QCOMPARE(firstText().fontId, longText('F'));
        editText([](frmText *editor) {
            QCOMPARE(editor->form().txtTextContent->text().toStdString(), longText('c'));
            QCOMPARE(editor->form().cmbTextFontID->currentText().toStdString(), longText('F'));
        });
        QCOMPARE(firstText().content, longText('c'));
        QCOMPARE(firstText().fontId, longText('F'));
    }

    void aSettingsDialogKeepsALongText()
    {
        m_doc->AppSettings.windowCaption = longText('k');
        clickTab(*m_window, 1);
        openDialog<frmAppWindowProps>(
            m_window->form().cmdAppWindowProps, [](frmAppWindowProps *dialog) {
                auto *box = dialog->findChild<QLineEdit *>("txtAppWindowPropsCaption");
                QCOMPARE(box->text().size(), 40000);
                pressEscape(box);
            });
        QCOMPARE(m_doc->AppSettings.windowCaption, longText('k'));
    }

    void theRootFolderAndTheProjectNameKeepALongText()
    {
        m_doc->AppSettings.rootFolder = longText('r');
        const std::string file = m_dir->filePath(QStringLiteral("root.dvb")).toStdString();
        saveAs(file);
        open(file);
        QCOMPARE(m_window->form().txtAppRootFolder->text().size(), 40000);
        QCOMPARE(m_doc->AppSettings.rootFolder, longText('r'));

        const QString name = QString::fromStdString(longText('n'));
        whenModalShown<QDialog>([name](QDialog *dialog) {
            auto *box = dialog->findChild<QLineEdit *>(QStringLiteral("txtDataProjName"));
            box->setText(name); // pasted
            QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("cmdDataProjNameOK")),
                              Qt::LeftButton);
        });
        m_ui->answers = {MessageAnswer::No};
        m_window->form().mnuNew->trigger();
        QCOMPARE(m_doc->ProjectInfo.projectName, longText('n'));
    }

    void fiftyOneCustomFiltersAreShownInTheProblemsPanelAfterSave()
    {
        clickTab(*m_window, 11);
        openDialog<frmLogCustom>(m_window->form().cmdLogEditCustom, [](frmLogCustom *dialog) {
            for (int i = 0; i < 51; ++i) {
                typeInto(dialog->form().txtCustomFilterName, QStringLiteral("f%1").arg(i));
                clickButton(dialog->form().cmdCustomCreateFilter);
            }
            QCOMPARE(dialog->form().lstCustomFilter->count(), 51);
        });
        const std::string file = m_dir->filePath(QStringLiteral("filters.dvb")).toStdString();
        saveAs(file);
        QCOMPARE(m_ui->messages.size(), size_t(1)); // the new-objects warning only
        QVERIFY(m_window->problemsPanel().isVisible());
        QCOMPARE(problemLines(),
                 QStringList{QString::fromStdString(
                     file + ": log: customFilterCount is 51, more than the 50 custom filters a "
                            "project file holds: remove 1 custom filter in Edit Custom Filters; "
                            "the saved file will not read back intact")});

        // One removed, the next Save finds nothing.
        openDialog<frmLogCustom>(m_window->form().cmdLogEditCustom, [](frmLogCustom *dialog) {
            clickLine(dialog->form().lstCustomFilter, 0);
            clickButton(dialog->form().cmdCustomRemove);
            QCOMPARE(dialog->form().lstCustomFilter->count(), 50);
        });
        m_window->form().mnuSave->trigger();
        QVERIFY(!m_window->problemsPanel().isVisible());
        open(file);
        QCOMPARE(m_doc->AppSettings.customFilterCount, int16_t(50));
    }
};

QTEST_MAIN(tst_TextsKept)
#include "tst_TextsKept.moc"
