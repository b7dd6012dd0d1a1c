#include "frmMain.h"

#include "frmAbout.h"
#include "frmDataProjName.h"
#include "frmProgress.h"
#include "ObjectListView.h"
#include "QuickStatsView.h"
#include "ProblemsPanel.h"
#include "ProjectFileWatcher.h"
#include "UsedByPanel.h"
#include "frmFind.h"
#include "frmRename.h"
#include "project/CheckSummary.h"
#include "rules/ObjectRename.h"
#include "RecoveryKeeper.h"
#include "io/SystemFileOps.h"
#include "project/ProjectCheck.h"
#include "generate/GenerateCommands.h"
#include "history/StepNames.h"
#include "model/Kinds.h"
#include "rules/ObjectManagement.h"
#include "rules/QuickStats.h"
#include "platform/ManualPlaces.h"
#include "platform/Registry.h"
#include "rules/UserInterface.h"
#include "project/Open.h"
#include "project/RecoveryStore.h"
#include "project/Save.h"
#include "frmAppLogProps.h"
#include "frmAppSoundProps.h"
#include "frmAppSplashProps.h"
#include "frmAppWindowProps.h"
#include "frmLogCustom.h"
#include "frmLogFile.h"
#include "frmLogType.h"
#include "TextLength.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QStatusBar>
#include <QUrl>

#include <filesystem>

namespace vorlane {

namespace {

QString qs(const std::string &text)
{
    return QString::fromStdString(text);
}

// A step's name in a menu caption: an "&" of an id shows as itself.
QString menuText(const std::string &text)
{
    return qs(text).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

// Loads a settings or filter dialog and shows it modally, as one step named by its title.
template<class Dialog, class... Args>
void frmMain::runDialog(Args &&...args)
{
    endTypingRun();
    const std::size_t recorded = m_history->recordedSteps();
    m_history->beginStep({});
    std::string title;
    {
        Dialog dialog(std::forward<Args>(args)...);
        title = dialog.windowTitle().toStdString();
        dialog.run();
    }
    endSession(title, recorded);
}

frmMain::frmMain(Document &doc, UserInterface &userInterface, QWidget *parent)
    : QMainWindow(parent)
    , m_doc(doc)
    , m_userInterface(userInterface)
    , m_openUrl([](const QUrl &url) { return QDesktopServices::openUrl(url); })
    , m_history(std::make_unique<History>(doc))
{
    m_ui.setupUi(this);
    allowAnyLength(this);
    m_ui.mnuRedo->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl+Shift+Z")), QKeySequence(QStringLiteral("Ctrl+Y"))});
    // A permanent field, so that the messages of Save and Check Project show beside it.
    m_unsavedMark = new QLabel(this);
    m_unsavedMark->setObjectName(QStringLiteral("lblUnsaved"));
    statusBar()->addPermanentWidget(m_unsavedMark);
    for (int tab = 0; tab <= TabCount; ++tab)
        m_tabs[static_cast<size_t>(tab)] =
            findChild<QFrame *>(QStringLiteral("fraTab_%1").arg(tab));
    for (int tab = 2; tab <= 10; ++tab) {
        m_lists[static_cast<size_t>(tab)] =
            findChild<QListWidget *>(QStringLiteral("lstObjects_%1").arg(tab));
        m_covers[static_cast<size_t>(tab)] =
            findChild<QFrame *>(QStringLiteral("fraCover_%1").arg(tab));
    }
    // Until a project is open only the "no data" page shows.
    m_ui.fraAppStats->setVisible(false);
    m_problemsPanel = new ProblemsPanel(this);
    addDockWidget(Qt::BottomDockWidgetArea, m_problemsPanel);
    m_fileWatcher = new ProjectFileWatcher(
        [this](const std::string &line, const std::string &replaced) {
            showFileChange(line, replaced);
        },
        this);
    m_problemsPanel->setOpener([this](ObjectRef object) { openObject(object); });
    m_usedByPanel = new UsedByPanel(this);
    // Under the lists, beside the problems: the tab strip keeps the window's whole width.
    addDockWidget(Qt::BottomDockWidgetArea, m_usedByPanel);
    splitDockWidget(m_problemsPanel, m_usedByPanel, Qt::Horizontal);
    resizeDocks({m_usedByPanel}, {140}, Qt::Vertical);
    // The problems' long lines take two thirds of the width the first time they show.
    connect(m_problemsPanel, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        if (!visible || m_docksShared)
            return;
        m_docksShared = true;
        resizeDocks(
            {m_problemsPanel, m_usedByPanel}, {width() * 2 / 3, width() / 3}, Qt::Horizontal);
    });
    m_usedByPanel->setOpener([this](ObjectRef object) { openObject(object); });
    setUpTabs();
    connectHandlers();
    Form_Load();
}

frmMain::~frmMain() = default;

void frmMain::setUpTabs()
{
    QTabBar *strip = m_ui.DataTabStrip;
    strip->addTab(QStringLiteral("Application Data"));
    strip->setTabData(0, QStringLiteral("apptag"));
    for (Kind kind : ListOrder)
        strip->addTab(QString::fromUtf8(kindInfo(kind).tabCaption));
    strip->addTab(QStringLiteral("Error Log Data"));
    strip->setExpanding(false);
}

void frmMain::connectHandlers()
{
    connect(m_ui.DataTabStrip, &QTabBar::currentChanged, this, [this](int index) {
        DataTabStrip_Click(index + 1);
    });
    for (int tab = 2; tab <= 10; ++tab)
        m_listViews[static_cast<size_t>(tab)] = new ObjectListView(
            objectList(tab),
            m_doc.list(kindOfTab(tab)),
            [this, tab]() { lstObjects_Click(tab); },
            [this, tab]() { lstObjects_DblClick(tab); });
    connect(
        m_ui.txtAppRootFolder, &QLineEdit::textChanged, this, &frmMain::txtAppRootFolder_Change);
    connect(m_ui.txtAppRootFolder,
            &QLineEdit::editingFinished,
            this,
            &frmMain::txtAppRootFolder_EditingFinished);
    connect(m_ui.cmdObjAdd, &QPushButton::clicked, this, &frmMain::cmdObjAdd_Click);
    connect(m_ui.cmdObjEdit, &QPushButton::clicked, this, &frmMain::cmdObjEdit_Click);
    connect(m_ui.cmdObjRemove, &QPushButton::clicked, this, &frmMain::cmdObjRemove_Click);
    connect(m_ui.mnuNew, &QAction::triggered, this, &frmMain::mnuNew_Click);
    connect(m_ui.mnuOpen, &QAction::triggered, this, &frmMain::mnuOpen_Click);
    connect(m_ui.mnuSave, &QAction::triggered, this, &frmMain::mnuSave_Click);
    connect(m_ui.mnuSaveAs, &QAction::triggered, this, &frmMain::mnuSaveAs_Click);
    connect(m_ui.mnuGenData, &QAction::triggered, this, &frmMain::mnuGenData_Click);
    connect(m_ui.mnuGenDataAs, &QAction::triggered, this, &frmMain::mnuGenDataAs_Click);
    connect(m_ui.mnuCheckProject, &QAction::triggered, this, &frmMain::mnuCheckProject_Click);
    connect(m_ui.mnuExit, &QAction::triggered, this, &frmMain::mnuExit_Click);
    connect(m_ui.mnuOnlineHelp, &QAction::triggered, this, &frmMain::mnuOnlineHelp_Click);
    connect(m_ui.mnuAbout, &QAction::triggered, this, &frmMain::mnuAbout_Click);
    connect(m_ui.mnuRename, &QAction::triggered, this, &frmMain::mnuRename_Click);
    connect(m_ui.mnuFind, &QAction::triggered, this, &frmMain::mnuFind_Click);
    connect(m_ui.mnuUndo, &QAction::triggered, this, &frmMain::mnuUndo_Click);
    connect(m_ui.mnuRedo, &QAction::triggered, this, &frmMain::mnuRedo_Click);
    connect(m_ui.cmdAppWindowProps, &QPushButton::clicked, this, &frmMain::cmdAppWindowProps_Click);
    connect(m_ui.cmdAppSoundProps, &QPushButton::clicked, this, &frmMain::cmdAppSoundProps_Click);
    connect(m_ui.cmdAppSplashProps, &QPushButton::clicked, this, &frmMain::cmdAppSplashProps_Click);
    connect(m_ui.cmdAppLogProps, &QPushButton::clicked, this, &frmMain::cmdAppLogProps_Click);
    connect(m_ui.cmdLogEditType, &QPushButton::clicked, this, &frmMain::cmdLogEditType_Click);
    connect(m_ui.cmdLogEditFile, &QPushButton::clicked, this, &frmMain::cmdLogEditFile_Click);
    connect(m_ui.cmdLogEditCustom, &QPushButton::clicked, this, &frmMain::cmdLogEditCustom_Click);
}

void frmMain::Form_Load()
{
    m_doc.ProjectInfo.projectOpen = 0;
}

frmProgress &frmMain::progress()
{
    if (!m_progress)
        m_progress = new frmProgress(this);
    return *m_progress;
}

void frmMain::DataTabStrip_Click(int tab)
{
    QTabBar *strip = m_ui.DataTabStrip;
    if (m_doc.ProjectInfo.projectOpen == 0) {
        // Before a project exists the strip ignores clicks: put the highlight back.
        const QSignalBlocker blocker(strip);
        strip->setCurrentIndex(m_currentTab > 0 ? m_currentTab - 1 : 0);
        return;
    }
    if (m_currentTab == 0)
        m_currentTab = 1;
    if (tab == m_currentTab)
        return;
    tabFrame(tab)->setVisible(true);
    tabFrame(m_currentTab)->setVisible(false);
    m_currentTab = tab;
    if (strip->currentIndex() != tab - 1) {
        const QSignalBlocker blocker(strip);
        strip->setCurrentIndex(tab - 1);
    }

    if (tab == 1 || tab == 11) {
        m_ui.fraButtons->setVisible(false);
    } else {
        m_ui.fraButtons->setVisible(true);
        m_ui.cmdObjRemove->setEnabled(objectList(tab)->count() >= 1);
    }

    if (tab == 1) {
        UpdateAppStats();
    } else if (tab < 11 && !m_doc.list(kindOfTab(tab)).lines.empty()) {
        m_doc.list(kindOfTab(tab)).selected = 0;
        showList(kindOfTab(tab));
    }
    showUsedBy();
}

void frmMain::showList(Kind kind)
{
    m_listViews[static_cast<size_t>(tabOf(kind))]->show();
}

void frmMain::lstObjects_Click(int index)
{
    if (!isObjectTab(index))
        return;
    const Kind kind = kindOfTab(index);
    const ObjectList &list = m_doc.list(kind);
    if (list.selected < 0 || list.selected >= static_cast<int>(list.lines.size()))
        return;
    updateObjectStats(kind, list.lines[static_cast<size_t>(list.selected)].slot);
    showUsedBy();
}

void frmMain::lstObjects_DblClick(int index)
{
    lstObjects_Click(index);
    cmdObjEdit_Click();
}

void frmMain::txtAppRootFolder_Change()
{
    // Typing opens a run, one step until the box is left; a text set inside another step
    // (Open's) belongs to that step.
    if (!m_history->inStep() && m_doc.ProjectInfo.projectOpen == -1) {
        m_history->beginStep(RootFolderStepName);
        m_typingRun = true;
    }
    m_doc.AppSettings.rootFolder = m_ui.txtAppRootFolder->text().toStdString();
    if (m_typingRun)
        showEditMenu();
}

void frmMain::txtAppRootFolder_EditingFinished()
{
    endTypingRun();
}

void frmMain::setEditor(Kind kind, EditorOpener opener)
{
    m_editors[static_cast<size_t>(kindIndex(kind))] = std::move(opener);
}

void frmMain::applyStats(const QuickStats &stats, QFrame *cover)
{
    showQuickStats(*this, stats, cover);
}

void frmMain::UpdateAppStats()
{
    applyStats(vorlane::UpdateAppStats(m_doc), nullptr);
}

void frmMain::updateObjectStats(Kind kind, int slot)
{
    applyStats(statsFor(m_doc, kind, slot), coverFrame(tabOf(kind)));
}

void frmMain::cmdObjAdd_Click()
{
    if (!isObjectTab(m_currentTab))
        return;
    const Kind kind = kindOfTab(m_currentTab);
    runStep(addStepName(kind), [this, kind]() {
        const AddResult result = addObject(m_doc, kind);
        if (result.refusal) {
            m_userInterface.showMessage(*result.refusal);
            return;
        }
        showList(kind);
        m_ui.cmdObjRemove->setEnabled(true);
        m_ui.cmdObjEdit->setEnabled(true);
    });
}

void frmMain::cmdObjEdit_Click()
{
    if (!isObjectTab(m_currentTab))
        return;
    const Kind kind = kindOfTab(m_currentTab);
    // Choosing the current object is no change of the project: the step is the session.
    if (!editObject(m_doc, kind))
        return;
    const auto &open = m_editors[static_cast<size_t>(kindIndex(kind))];
    if (!open)
        return;
    endTypingRun();
    const int slot = m_doc.currentObjectIndex;
    const std::size_t recorded = m_history->recordedSteps();
    // A step cut inside the session (a drag) takes the name of the line that was opened.
    const ObjectList &list = m_doc.list(kind);
    m_history->beginStep(editStepName(kind, list.lines[static_cast<size_t>(list.selected)].text));
    open(*this);
    // The step takes the id the object has when its editor closes.
    endSession(editStepName(kind, slotInTable(kind, slot) ? slotOf(m_doc, kind, slot).id : ""),
               recorded);
}

void frmMain::cmdObjRemove_Click()
{
    if (!isObjectTab(m_currentTab))
        return;
    const Kind kind = kindOfTab(m_currentTab);
    const ObjectList &list = m_doc.list(kind);
    const bool selected = list.selected >= 0 && list.selected < static_cast<int>(list.lines.size());
    const std::string id = selected ? list.lines[static_cast<size_t>(list.selected)].text : "";
    runStep(removeStepName(kind, id), [this, kind]() {
        const RemoveResult result = removeObject(m_doc, kind);
        if (!result.removed)
            return;
        showList(kind);
        if (result.listEmpty) {
            m_ui.cmdObjRemove->setEnabled(false);
            m_ui.cmdObjEdit->setEnabled(true);
            coverFrame(m_currentTab)->setVisible(true);
        }
    });
}

void frmMain::projectOpened()
{
    m_doc.ProjectInfo.projectOpen = -1;
    m_ui.mnuSave->setEnabled(true);
    m_ui.mnuSaveAs->setEnabled(true);
    m_ui.mnuGenDataAs->setEnabled(true);
    tabFrame(0)->setVisible(false);
    tabFrame(1)->setVisible(true);
    m_ui.fraAppStats->setVisible(true);
    showCaption();
}

void frmMain::showCaption()
{
    setWindowTitle(QStringLiteral("Vorlane - ") + qs(m_doc.ProjectInfo.projectName));
}

void frmMain::selectFirstTab()
{
    DataTabStrip_Click(1);
}

void frmMain::mnuNew_Click()
{
    if (m_doc.ProjectInfo.projectOpen == -1) {
        const auto answer =
            m_userInterface.showMessage({"Save your data? Any unsaved data will be lost!",
                                         "Save Data",
                                         MessageIcon::Question,
                                         MessageButtons::YesNo});
        // Save runs Save As for a project without a file. A save that did not happen (it
        // failed, or was cancelled at its dialog or its warning) stops New, as it stops Exit.
        if (answer == MessageAnswer::Yes && !saveProject())
            return;
    }
    frmDataProjName dialog(this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    runProjectStep(NewStepName, [this, &dialog]() {
        setUpNewProject(m_doc, dialog.name().toStdString());
        m_fileWatcher->opened({}); // a new project has no file yet
        projectOpened();
        for (Kind kind : ListOrder)
            showList(kind);
        selectFirstTab();
        return true;
    });
    showUnsavedMark();
}

void frmMain::listsChanged()
{
    for (Kind kind : ListOrder)
        showList(kind);
    if (isObjectTab(m_currentTab))
        m_ui.cmdObjRemove->setEnabled(objectList(m_currentTab)->count() >= 1);
}

void frmMain::mnuOpen_Click()
{
    FileDialogRequest request;
    request.mode = FileDialogRequest::Mode::Open;
    request.filterName = "Data Files";
    request.pattern = "*.dvb";
    request.title = "Open";
    const auto path = m_userInterface.chooseFile(request);
    if (!path)
        return;
    // The whole Open is one step, a file read half-way included: undoing it brings back the
    // project that was open before.
    runProjectStep(openStepName(*path), [this, &path]() {
        if (!openChosen(*path).opened())
            return false;
        m_history->markSaved();
        return true;
    });
    showUnsavedMark();
}

OpenOutcome frmMain::openChosen(const std::string &path)
{
    const OpenOutcome outcome = Open(m_doc, path, m_userInterface, progress());
    m_ui.txtAppRootFolder->setText(qs(m_doc.AppSettings.rootFolder));
    listsChanged();
    m_fileWatcher->opened(outcome.opened() ? projectSavePath(m_doc) : std::string());
    if (!outcome.opened())
        return outcome;
    // A project that was already open keeps its caption: only the first Open of a run sets it.
    if (outcome.firstProject)
        projectOpened();
    selectFirstTab();
    UpdateAppStats();
    return outcome;
}

bool frmMain::hasUnsavedChanges() const
{
    return m_doc.ProjectInfo.projectOpen == -1 && m_history->unsaved();
}

void frmMain::startRecovery()
{
    startRecovery(RecoveryStore(RecoveryStore::defaultFolder()));
}

void frmMain::startRecovery(RecoveryStore store)
{
    // Each file is kept until its question is answered; Yes opens it like Open (a step that
    // can be undone), except that the project keeps the path recorded inside it, and its
    // changes stay unsaved.
    std::vector<RecoveryFile> recovered;
    for (const RecoveryFile &file : store.abandoned()) {
        if (m_userInterface.showMessage(recoveryQuestion(file)) != MessageAnswer::Yes) {
            RecoveryStore::remove(file);
            continue;
        }
        bool opened = false;
        runProjectStep(openStepName(file.path), [this, &file, &opened]() {
            if (!openChosen(file.path).opened())
                return false;
            m_doc.openedFrom.clear();
            opened = true;
            return true;
        });
        showUnsavedMark();
        // A file that could not be opened is kept: it may hold the only copy of that work.
        if (opened)
            recovered.push_back(file);
    }
    m_recovery = new RecoveryKeeper(
        m_doc, std::move(store), [this] { return hasUnsavedChanges(); }, this);
    m_recovery->start();
    // The recovered state is in this editor's own file before the file it came from goes.
    m_recovery->poll();
    for (const RecoveryFile &file : recovered)
        RecoveryStore::remove(file);
}

void frmMain::mnuSave_Click()
{
    saveProject();
}

void frmMain::mnuSaveAs_Click()
{
    saveProjectAs();
}

bool frmMain::saveProject()
{
    if (m_doc.ProjectInfo.projectFilePath.empty())
        return saveProjectAs();
    SaveResult result;
    recordRemovedNewObjects([this, &result]() { result = writeProject(false); });
    listsChanged();
    if (result.written())
        showSaveProblems(result.notices);
    return result.written();
}

bool frmMain::saveProjectAs()
{
    FileDialogRequest request;
    request.mode = FileDialogRequest::Mode::Save;
    request.filterName = "Data Files";
    request.pattern = "*.dvb";
    request.proposedName = m_doc.ProjectInfo.projectName + ".dvb";
    request.title = "Save As";
    const auto path = m_userInterface.chooseFile(request);
    if (!path)
        return false;
    // A name typed without an extension gets ".dvb", so that Open's filter shows the file.
    recordChosenPath(m_doc, withProjectExtension(*path));
    SaveResult result;
    recordRemovedNewObjects([this, &result]() { result = writeProject(true); });
    listsChanged();
    m_ui.mnuSave->setEnabled(true);
    if (result.written())
        showSaveProblems(result.notices);
    return result.written();
}

SaveResult frmMain::writeProject(bool fileChosen)
{
    const std::string path = projectSavePath(m_doc);
    SaveOptions options;
    options.fileChosen = fileChosen;
    options.keepTheirsAs = m_fileWatcher->theirsName(path);
    m_fileWatcher->setSaving(true);
    SaveResult result =
        vorlane::saveProject(m_doc, m_userInterface, progress(), systemFileOps(), options);
    m_fileWatcher->setSaving(false);
    if (result.written())
        m_fileWatcher->saved(path, result.file);
    return result;
}

void frmMain::showFileChange(const std::string &line, const std::string &replaced)
{
    m_problemsPanel->addProblem(
        QStringLiteral("The project file was changed on disk."), line, replaced);
}

void frmMain::showSaveProblems(const std::vector<std::string> &notices)
{
    m_history->markSaved();
    showUnsavedMark();
    const std::string path = projectSavePath(m_doc);
    std::vector<ProjectProblem> lines;
    for (const std::string &notice : notices)
        lines.push_back({notice, false, std::nullopt, false});
    for (ProjectProblem &problem : findProjectProblems(m_doc, path)) {
        if (problem.breaksProjectFile)
            lines.push_back(std::move(problem));
    }
    if (lines.empty()) {
        m_problemsPanel->clearProblems();
        statusBar()->showMessage(QStringLiteral("Saved \"%1\"").arg(qs(path)));
        return;
    }
    const QString summary =
        QStringLiteral("Saved \"%1\" with %2 to look at: see File > Check Project for the full "
                       "report")
            .arg(qs(path),
                 lines.size() == 1 ? QStringLiteral("1 problem")
                                   : QStringLiteral("%1 problems").arg(lines.size()));
    statusBar()->showMessage(summary);
    // A Save's report replaces what the panel said before it, the notes of a change on disk
    // included: the Save has dealt with that change.
    m_problemsPanel->clearProblems();
    m_problemsPanel->showReport(summary, lines);
}

void frmMain::mnuCheckProject_Click()
{
    if (m_doc.ProjectInfo.projectOpen == 0) {
        m_problemsPanel->showProblems(QStringLiteral("No project is open."), {});
        return;
    }
    // The lines name the project file, or the project when it has none yet.
    const std::string path = projectSavePath(m_doc);
    const std::vector<ProjectProblem> problems =
        fullProjectCheck(m_doc, path.empty() ? m_doc.ProjectInfo.projectName : path);
    const QString summary =
        problems.empty() ? QStringLiteral("Check Project: no problems found.")
        : problems.size() == 1
            ? QStringLiteral("Check Project: 1 problem found.")
            : QStringLiteral("Check Project: %1 problems found.").arg(problems.size());
    statusBar()->showMessage(summary);
    m_problemsPanel->showReport(summary, problems);
}

void frmMain::refreshChecks()
{
    showUsedBy();
    if (m_find)
        m_find->txtFind_Change();
    if (m_doc.ProjectInfo.projectOpen == 0)
        return;
    const std::string path = projectSavePath(m_doc);
    const std::vector<ProjectProblem> problems =
        fullProjectCheck(m_doc, path.empty() ? m_doc.ProjectInfo.projectName : path);
    const QString summary = QString::fromStdString(checkSummary(problems));
    statusBar()->showMessage(summary);
    m_problemsPanel->updateProblems(summary, problems);
}

std::optional<ObjectRef> frmMain::selectedObject() const
{
    if (!isObjectTab(m_currentTab))
        return std::nullopt;
    const Kind kind = kindOfTab(m_currentTab);
    const ObjectList &list = m_doc.list(kind);
    if (list.selected < 0 || list.selected >= static_cast<int>(list.lines.size()))
        return std::nullopt;
    const int slot = list.lines[static_cast<size_t>(list.selected)].slot;
    if (!slotInTable(kind, slot))
        return std::nullopt;
    return ObjectRef{kind, slot};
}

void frmMain::showUsedBy()
{
    m_usedByPanel->showObject(m_doc, selectedObject());
}

void frmMain::selectObject(ObjectRef object)
{
    if (m_doc.ProjectInfo.projectOpen == 0)
        return;
    DataTabStrip_Click(tabOf(object.kind));
    ObjectList &list = m_doc.list(object.kind);
    for (size_t line = 0; line < list.lines.size(); ++line) {
        if (list.lines[line].slot == object.slot) {
            list.selected = static_cast<int>(line);
            showList(object.kind);
            break;
        }
    }
}

void frmMain::openObject(ObjectRef object)
{
    selectObject(object);
    if (selectedObject() == object)
        cmdObjEdit_Click();
}

bool frmMain::applyRename(ObjectRef object, const std::string &newId)
{
    if (renameObject(m_doc, object, newId).refusal)
        return false;
    for (Kind kind : ListOrder)
        showList(kind);
    return true;
}

void frmMain::mnuRename_Click()
{
    const std::optional<ObjectRef> object = selectedObject();
    if (!object)
        return;
    frmRename dialog(m_doc, *object, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    // Named by the line the user saw: a never-opened object's line, not its left-over id.
    const ObjectList &list = m_doc.list(object->kind);
    const std::string oldName = list.lines[static_cast<size_t>(list.selected)].text;
    runStep(renameStepName(object->kind, oldName),
            [this, &object, &dialog]() { applyRename(*object, dialog.newId()); });
}

void frmMain::mnuFind_Click()
{
    if (!m_find)
        m_find = new frmFind(
            m_doc, [this](ObjectRef object) { selectObject(object); }, this);
    m_find->show();
    m_find->raise();
    m_find->activateWindow();
    m_find->form().txtFind->setFocus();
}

void frmMain::mnuGenDataAs_Click()
{
    GenerateResult result;
    recordRemovedNewObjects([this, &result]() {
        result = generateDataAs(m_doc, m_generateState, m_userInterface, progress());
    });
    listsChanged();
    showUnsavedMark();
    // After the step's refresh, so that the status line says what was written.
    showGenerated(result);
    // Once a folder has been chosen, Generate Data may run again into it.
    if (m_generateState.generateAgainAvailable)
        m_ui.mnuGenData->setEnabled(true);
}

void frmMain::mnuGenData_Click()
{
    if (!m_generateState.generateAgainAvailable)
        return;
    GenerateResult result;
    recordRemovedNewObjects([this, &result]() {
        result = generateDataAgain(m_doc, m_generateState, m_userInterface, progress());
    });
    listsChanged();
    showUnsavedMark();
    // After the step's refresh, so that the status line says what was written.
    showGenerated(result);
}

void frmMain::showGenerated(const GenerateResult &result)
{
    if (result.outcome == GenerateOutcome::Generated)
        statusBar()->showMessage(qs(generatedText(result.filesWritten, result.folder)));
}

void frmMain::mnuExit_Click()
{
    close();
}

void frmMain::closeEvent(QCloseEvent *event)
{
    endTypingRun();
    // Form_Unload: a project that was never saved or opened closes without a question.
    if (!m_doc.ProjectInfo.projectFilePath.empty()) {
        const auto answer =
            m_userInterface.showMessage({"Would you like to save your project before exiting?",
                                         "Save Data",
                                         MessageIcon::Question,
                                         MessageButtons::YesNo});
        // A save that did not happen keeps the window open: leaving would lose the work.
        if (answer == MessageAnswer::Yes && !saveProject()) {
            event->ignore();
            return;
        }
    }
    event->accept();
    if (m_recovery)
        m_recovery->closing();
}

QString frmMain::manualPath()
{
    const ManualPlaces places{VORLANE_MANUAL_FROM_BINDIR,
                              std::filesystem::path(VORLANE_DOCS_DIR) / "manual",
                              VORLANE_BUILD_DIR};
    const auto page = findManualPage(QCoreApplication::applicationDirPath().toStdString(), places);
    return QString::fromStdString(page.string());
}

void frmMain::mnuOnlineHelp_Click()
{
    const QString path = manualPath();
    if (!QFileInfo::exists(path) || !m_openUrl(QUrl::fromLocalFile(path))) {
        m_userInterface.showMessage({"Could not open the user manual \"" + path.toStdString() +
                                         "\": no web browser could be started for it.",
                                     "Online Help",
                                     MessageIcon::Exclamation,
                                     MessageButtons::OK});
    }
}

void frmMain::mnuAbout_Click()
{
    auto registry = systemRegistry();
    frmAbout about(
        m_userInterface,
        *registry,
        [](const QString &program) { return QProcess::startDetached(program, {}); },
        this);
    about.exec();
}

void frmMain::cmdAppWindowProps_Click()
{
    runDialog<frmAppWindowProps>(m_doc, this);
}

void frmMain::cmdAppSoundProps_Click()
{
    runDialog<frmAppSoundProps>(m_doc, this);
}

void frmMain::cmdAppSplashProps_Click()
{
    runDialog<frmAppSplashProps>(m_doc, this);
}

void frmMain::cmdAppLogProps_Click()
{
    runDialog<frmAppLogProps>(m_doc, this);
}

void frmMain::cmdLogEditType_Click()
{
    runDialog<frmLogType>(m_doc, this);
}

void frmMain::cmdLogEditFile_Click()
{
    runDialog<frmLogFile>(m_doc, this);
}

void frmMain::cmdLogEditCustom_Click()
{
    runDialog<frmLogCustom>(m_doc, m_userInterface, this);
}

bool frmMain::runStep(const std::string &name, const std::function<void()> &change)
{
    endTypingRun();
    m_history->beginStep(name);
    change();
    const bool recorded = m_history->endStep();
    if (recorded)
        documentChanged();
    return recorded;
}

void frmMain::runProjectStep(const std::string &name, const std::function<bool()> &change)
{
    endTypingRun();
    // Before the first project of the run there is nothing to go back to.
    if (m_doc.ProjectInfo.projectOpen == 0) {
        const bool opened = change();
        showEditMenu();
        // No step, yet the new project's problems and files are shown as after one.
        if (opened)
            refreshChecks();
        return;
    }
    bool opened = false;
    // A project read again equal to the one open records no step, yet its files are looked
    // for anew.
    if (!runStep(name, [&change, &opened]() { opened = change(); }) && opened)
        refreshChecks();
}

void frmMain::recordRemovedNewObjects(const std::function<void()> &write)
{
    endTypingRun();
    const auto before = m_doc.lists;
    write();
    if (m_doc.lists == before)
        return;
    // Only the lines taken off are the step: the path Save As records, or the folder
    // Generate records, stays as it is when the step is undone.
    auto after = m_doc.lists;
    m_doc.lists = before;
    runStep(RemoveNewObjectsStepName, [this, &after]() { m_doc.lists = std::move(after); });
}

void frmMain::endSession(const std::string &name, std::size_t recordedBefore)
{
    m_history->cutStep(name);
    m_history->endStep();
    // A session may have cut steps of its own (a drag in the scene editor).
    if (m_history->recordedSteps() != recordedBefore)
        documentChanged();
    else
        showEditMenu();
}

void frmMain::endTypingRun()
{
    if (!m_typingRun)
        return;
    m_typingRun = false;
    if (m_history->endStep())
        documentChanged();
    else
        showEditMenu();
}

void frmMain::mnuUndo_Click()
{
    endTypingRun();
    if (!m_history->canUndo())
        return;
    m_history->undo();
    showRestoredDocument();
    documentChanged();
}

void frmMain::mnuRedo_Click()
{
    endTypingRun();
    if (!m_history->canRedo())
        return;
    m_history->redo();
    showRestoredDocument();
    documentChanged();
}

void frmMain::documentChanged()
{
    if (m_ui.txtAppRootFolder->text() != qs(m_doc.AppSettings.rootFolder)) {
        // The box shows the document: setting it is no typing.
        const QSignalBlocker blocker(m_ui.txtAppRootFolder);
        m_ui.txtAppRootFolder->setText(qs(m_doc.AppSettings.rootFolder));
    }
    showEditMenu();
    showUnsavedMark();
    // The problems, Used By and Find follow every recorded step, undo and redo.
    refreshChecks();
}

void frmMain::showRestoredDocument()
{
    // After a step its handler has shown the result as it always has (an editor's hand-back
    // leaves the quick statistics as they were); after undo and redo everything is shown anew.
    listsChanged();
    showCurrentStats();
}

void frmMain::showCurrentStats()
{
    if (m_currentTab == 1) {
        UpdateAppStats();
        return;
    }
    if (!isObjectTab(m_currentTab))
        return;
    const ObjectList &list = m_doc.list(kindOfTab(m_currentTab));
    if (list.selected >= 0 && list.selected < static_cast<int>(list.lines.size()))
        lstObjects_Click(m_currentTab);
    else if (list.lines.empty())
        coverFrame(m_currentTab)->setVisible(true);
}

void frmMain::showEditMenu()
{
    // A run of typing still open is what Undo takes back first.
    const bool typing = m_typingRun;
    m_ui.mnuUndo->setEnabled(typing || m_history->canUndo());
    m_ui.mnuUndo->setText(typing ? QStringLiteral("Undo ") + menuText(RootFolderStepName)
                          : m_history->canUndo()
                              ? QStringLiteral("Undo ") + menuText(m_history->undoName())
                              : QStringLiteral("Undo"));
    const bool redo = !typing && m_history->canRedo();
    m_ui.mnuRedo->setEnabled(redo);
    m_ui.mnuRedo->setText(redo ? QStringLiteral("Redo ") + menuText(m_history->redoName())
                               : QStringLiteral("Redo"));
}

void frmMain::showUnsavedMark()
{
    const bool unsaved = m_doc.ProjectInfo.projectOpen == -1 && m_history->unsaved();
    m_unsavedMark->setText(unsaved ? QStringLiteral("Unsaved changes") : QString());
}

} // namespace vorlane
