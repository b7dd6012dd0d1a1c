#pragma once

#include "generate/GenerateState.h"
#include "history/History.h"
#include "model/modGlobal.h"
#include "rules/References.h"
#include "project/Open.h"

#include "ui_frmMain.h"

#include <QMainWindow>

#include <array>
#include <functional>
#include <optional>
#include <memory>
#include <string>

class QLabel;
class QListWidget;

namespace vorlane {

class ObjectListView;
class UserInterface;
class frmProgress;
class ProblemsPanel;
class RecoveryKeeper;
class RecoveryStore;
class ProjectFileWatcher;
struct SaveResult;
class Registry;
class UsedByPanel;
class frmFind;
struct GenerateResult;
struct QuickStats;

// The main window: the tab strip with one page per kind of data, the object lists, the
// quick statistics, the object buttons and the File, Edit and Help menus.
class frmMain : public QMainWindow
{
    Q_OBJECT
public:
    static constexpr int TabCount = 11;
    using EditorOpener = std::function<void(frmMain &)>;

    frmMain(Document &doc, UserInterface &userInterface, QWidget *parent = nullptr);
    ~frmMain() override;

    // Event handlers.
    void Form_Load();
    void DataTabStrip_Click(int tab);
    void lstObjects_Click(int index);
    void lstObjects_DblClick(int index);
    void txtAppRootFolder_Change();
    // The box lost the focus or Enter was pressed: the run of typing is one step.
    void txtAppRootFolder_EditingFinished();
    void cmdObjAdd_Click();
    void cmdObjEdit_Click();
    void cmdObjRemove_Click();
    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuGenData_Click();
    void mnuGenDataAs_Click();
    void mnuCheckProject_Click();
    void mnuExit_Click();
    void mnuOnlineHelp_Click();
    void mnuAbout_Click();
    void mnuRename_Click();
    void mnuFind_Click();
    void mnuUndo_Click();
    void mnuRedo_Click();
    // The settings and log filter dialogs of the application and log pages.
    void cmdAppWindowProps_Click();
    void cmdAppSoundProps_Click();
    void cmdAppSplashProps_Click();
    void cmdAppLogProps_Click();
    void cmdLogEditType_Click();
    void cmdLogEditFile_Click();
    void cmdLogEditCustom_Click();

    // Offers the recovery files of editors that no longer run, one question each, then keeps
    // this editor's own recovery file in `store` (by default in the user's state folder).
    void startRecovery();
    void startRecovery(RecoveryStore store);
    // Null until startRecovery.
    RecoveryKeeper *recoveryKeeper() { return m_recovery; }
    // Whether the document differs from the project file it was last saved to or opened from
    // (or from the new project as it was made).
    bool hasUnsavedChanges() const;

    void UpdateAppStats();
    void updateObjectStats(Kind kind, int slot);

    // Shows the document's list of `kind` again, with its selection; selecting a line
    // refreshes the quick statistics as a click would.
    void showList(Kind kind);

    // The object selected in the list of the current tab; none on the other tabs.
    std::optional<ObjectRef> selectedObject() const;
    // Shows `object` in its tab with its line selected, as a click on the line would.
    void selectObject(ObjectRef object);
    // Selects `object` and opens its editor, as Edit Properties does.
    void openObject(ObjectRef object);
    // Gives `object` the identifier `newId` with every reference to it and shows the lists
    // again; false when refused. The change of one history step "Rename KIND "OLD"".
    bool applyRename(ObjectRef object, const std::string &newId);
    // Brings the problems panel, the status line, Used By and Find up to date with the
    // document: run after every step.
    void refreshChecks();

    // The editor opened by Edit for `kind`; without one, Edit only sets the index.
    void setEditor(Kind kind, EditorOpener opener);

    Document &document() { return m_doc; }
    // The undo and redo history of the document.
    History &history() { return *m_history; }
    // Runs `change` as one step named `name` and then calls documentChanged() when recorded.
    bool runStep(const std::string &name, const std::function<void()> &change);
    // Called after every recorded step, undo and redo: refreshes the root folder box, the
    // menus, the "Unsaved changes" mark (after undo and redo the lists and the quick
    // statistics were shown anew just before; after a step its handler showed them); other
    // features hook their refresh here.
    void documentChanged();
    // How the window asks the user; editors that report something use it too.
    UserInterface &userInterface() { return m_userInterface; }
    frmProgress &progress();
    ProblemsPanel &problemsPanel() { return *m_problemsPanel; }
    UsedByPanel &usedByPanel() { return *m_usedByPanel; }
    // The Find window, once Edit > Find Object has opened it.
    frmFind *findWindow() const { return m_find; }
    int currentTab() const { return m_currentTab; }
    QListWidget *objectList(int tab) const { return m_lists[static_cast<size_t>(tab)]; }
    QFrame *tabFrame(int tab) const { return m_tabs[static_cast<size_t>(tab)]; }
    QFrame *coverFrame(int tab) const { return m_covers[static_cast<size_t>(tab)]; }
    const Ui::frmMain &form() const { return m_ui; }

    // How Online Help opens a page; replaced in tests.
    void setUrlOpener(std::function<bool(const QUrl &)> opener) { m_openUrl = std::move(opener); }
    // The manual's first page.
    static QString manualPath();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void connectHandlers();
    void setUpTabs();
    void projectOpened();
    void showCaption();
    void applyStats(const QuickStats &stats, QFrame *cover);
    void selectFirstTab();
    // Save and Save As; true when the project file was written.
    bool saveProject();
    bool saveProjectAs();
    // Writes the project to its file, keeping a version another program wrote, and watches
    // the file written; `fileChosen` for Save As, which may replace any file.
    SaveResult writeProject(bool fileChosen);
    // Shows a change of the project file made by another program in the problems panel.
    void showFileChange(const std::string &line, const std::string &replaced);
    // After a Save: what the saved file would not carry back, and what of the previous file
    // could not be kept, in the problems panel and the status line.
    void showSaveProblems(const std::vector<std::string> &notices);
    // Says in the status bar what a generation wrote, and where.
    void showGenerated(const GenerateResult &result);
    // Shows every list again after Open, Save or Generate changed them.
    void listsChanged();
    // Shows in Used By what refers to the selected object.
    void showUsedBy();
    // Opens `path` as the current project once it is chosen.
    OpenOutcome openChosen(const std::string &path);

    // The steps around the handlers.
    // Runs `change` as the step of New or Open; the first of a run begins the history instead.
    // `change` says whether a project was set up or opened: then the problems are shown.
    void runProjectStep(const std::string &name, const std::function<bool()> &change);
    // Runs `write` (a Save or a Generate) and records the never-opened objects it took off the
    // lists as a step of their own: the rest of the write is no step.
    void recordRemovedNewObjects(const std::function<void()> &write);
    // Closes the step a session opened (an editor's or a dialog's), named as it closes;
    // `recordedBefore` is the history's count of recorded steps as the session began.
    void endSession(const std::string &name, std::size_t recordedBefore);
    // Ends the open run of typing in the root folder box, recording it.
    void endTypingRun();
    // The lists and the selected tab's quick statistics after undo or redo.
    void showRestoredDocument();
    void showEditMenu();
    void showUnsavedMark();
    // The quick statistics of the selected tab, as the document now holds them.
    void showCurrentStats();
    template<class Dialog, class... Args>
    void runDialog(Args &&...args);

    Ui::frmMain m_ui;
    Document &m_doc;
    UserInterface &m_userInterface;
    frmProgress *m_progress = nullptr;
    ProblemsPanel *m_problemsPanel = nullptr;
    ProjectFileWatcher *m_fileWatcher = nullptr;
    UsedByPanel *m_usedByPanel = nullptr;
    frmFind *m_find = nullptr;
    bool m_docksShared = false; // the problems and Used By panels have had their widths
    int m_currentTab = 0;
    std::array<QListWidget *, TabCount + 1> m_lists{};
    std::array<ObjectListView *, TabCount + 1> m_listViews{};
    std::array<QFrame *, TabCount + 1> m_tabs{};
    std::array<QFrame *, TabCount + 1> m_covers{};
    std::array<EditorOpener, KindCount> m_editors;
    std::function<bool(const QUrl &)> m_openUrl;
    GenerateState m_generateState;
    std::unique_ptr<History> m_history;
    QLabel *m_unsavedMark = nullptr;
    bool m_typingRun = false; // a run of typing in the root folder box is an open step
    RecoveryKeeper *m_recovery = nullptr;
};

} // namespace vorlane
