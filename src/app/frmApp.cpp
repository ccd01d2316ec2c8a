#include "app/frmApp.h"

#include "app/AppCommands.h"
#include "app/AppMenus.h"
#include "app/AppPrintHost.h"
#include "app/AppToolbars.h"
#include "app/DocumentArea.h"
#include "app/MainHelp.h"
#include "app/StartPage.h"
#include "app/WindowPosition.h"
#include "app/rules/RequestedFile.h"
#include "document/DocumentList.h"
#include "document/FileCommands.h"
#include "document/ctlGrid.h"
#include "exchange/ListCommands.h"
#include "memory/StoredMemory.h"
#include "platform/WaylandDesktop.h"
#include "print/PrintCommands.h"
#include "quiz/QuizCommands.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "services/AlertBox.h"
#include "services/settings/clsAppProperties.h"
#include "services/settings/clsRegistry.h"
#include "services/status/modSBFunc.h"
#include "services/status/modSBMenuHelp.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int FrameDelay = 50; // milliseconds

int desktopTextWidth(const QString &text)
{
    return QFontMetrics(QApplication::font()).horizontalAdvance(text);
}

/// A drop that counts as a move would let the other program delete its file.
void acceptAsCopy(QDropEvent &event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

/// The window that is to get the keys: a Wayland desktop leaves them with the one it is asked for, also behind a
/// dialog.
QWidget &keyTaker(frmApp &window)
{
    QWidget *const dialog = QApplication::activeModalWidget();
    const bool isBehind = dialog && !dialog->testAttribute(Qt::WA_DontShowOnScreen);
    return WaylandDesktop::isHere() && isBehind ? *dialog : window;
}

UndoKind undoKindOf(const QString &caption)
{
    if (caption == resText(int(UndoKind::Import)))
        return UndoKind::Import;
    for (int id = int(UndoKind::Insert); id <= int(UndoKind::Replace); ++id) {
        if (caption == resText(id))
            return UndoKind(id);
    }
    return UndoKind::None;
}

/// A change ends what was told before. Its note stands in place of Ready, until another text is due.
void tellOfChange(modSBFunc &status, const QString &note)
{
    status.ShowStatus(0);
    status.ShowStatus(modSBFunc::Ready);
    if (!note.isEmpty())
        status.SBSetText(0, modSBFunc::SBT_SUNKEN, note);
}

void selectRecentFilesKey(clsRegistry &registry)
{
    registry.setClassKey(HKEY_CURRENT_USER);
    registry.setSectionKey(QStringLiteral("Software\\Glosaria\\MRUFiles"));
}

} // namespace

frmApp::frmApp(const Needs &needs)
    : m_store(needs.store)
    , m_recentFiles(desktopTextWidth)
    , m_area(new DocumentArea)
    , m_views(new QStackedWidget)
    , m_printHost(std::make_unique<AppPrintHost>(*this, *m_views))
    , m_print(std::make_unique<PrintCommands>(needs.printer, needs.dialogs, needs.alert, *m_printHost))
    , m_help(std::make_unique<MainHelp>(needs.help, needs.alert))
{
    setWindowTitle(QApplication::applicationDisplayName());
    setAcceptDrops(true);
    setContextMenuPolicy(Qt::NoContextMenu); // the toolkit would offer to hide the toolbars
    createParts(needs);
    loadRecentFiles();
    m_position = std::make_unique<WindowPosition>(*this, needs.settings);
    PositionWindow();
    m_context->status.createPanels(width());

    AppCommands::addAll(m_commands, *m_context);
    for (const Command *command : m_commands.commands())
        addAction(m_commands.action(command->key));
    menuBar()->setObjectName(QStringLiteral("tbrMenu"));
    m_menuHelp = new modSBMenuHelp(m_context->status, this);
    m_menuHelp->watch(this);
    m_menus = new AppMenus(menuBar(), m_commands, *m_context, *m_menuHelp, this);
    m_toolbars = new AppToolbars(*this, m_commands, *m_menus);
    setButtonPicture(QStringLiteral("Model"), PictureMode1 + needs.settings.QuizMode() - 1);
    setButtonPicture(QStringLiteral("Quiz"), PicturePractice);
    m_help->attach(*m_context, *m_toolbars);
    SetCommandState(AppState::StateNoDocument);
    needs.undo.clear();
}

frmApp::~frmApp() = default;

void frmApp::createParts(const Needs &needs)
{
    auto *status = new modSBFunc(needs.flags, this);
    auto *documents = new DocumentList({needs.flags, needs.undo, *status, needs.settings}, this);
    auto *files = new FileCommands({*documents, m_recentFiles, *status, needs.alert, needs.prompts, needs.copies},
                                   needs.codePage, this);
    m_editCommands = std::make_unique<EditCommands>(needs.undo, *QGuiApplication::clipboard());
    m_listCommands =
        std::make_unique<ListCommands>(ListCommands::Needs{*documents, *files, *m_editCommands, needs.prompts,
                                                           needs.alert, *status, *QGuiApplication::clipboard()},
                                       needs.codePage.name());
    auto *quizzes = new QuizCommands({*documents, *files, needs.settings, needs.alert, *status, needs.random,
                                      needs.errorSound, *this, needs.memory, needs.speaker},
                                     this);
    m_context = std::make_unique<AppContext>(
        AppContext{*this, needs.flags, needs.undo, needs.settings, needs.alert, *status, *documents, *files,
                   *m_editCommands, *m_listCommands, needs.pasteGuard, m_recentFiles, *m_print, *m_help, needs.random,
                   *quizzes, needs.dialogs, needs.memory, needs.speaker});
    setCentralWidget(createCentre());
    if (needs.memory)
        connect(needs.memory, &StoredMemory::changed, quizzes, &QuizCommands::refreshMode);

    connect(documents, &DocumentList::aboutToCreate, this, [this] { m_print->preview().close(); });
    connect(documents, &DocumentList::created, this, &frmApp::placeDocument);
    connect(documents, &DocumentList::created, this, &frmApp::updateStartPage);
    connect(documents, &DocumentList::activeChanged, this, &frmApp::updateState);
    connect(documents, &DocumentList::removed, this, &frmApp::onRemoved);
    connect(m_area, &QMdiArea::subWindowActivated, this, [documents](QMdiSubWindow *window) {
        documents->setActive(window ? qobject_cast<frmDoc *>(window->widget()) : nullptr);
    });
    connect(&needs.undo, &UndoRecord::kindChanged, this, &frmApp::onUndoKind);
    connectPreview();
    createStartPage(needs.lessonFolder);
}

void frmApp::createStartPage(const QString &lessonFolder)
{
    const auto command = [this](const char *key) { return [this, key] { DoMenuClick(QLatin1String(key)); }; };
    FileCommands &files = m_context->files;
    ListCommands &lists = *m_listCommands;
    m_startPage =
        new StartPage(*centralWidget(), *m_area,
                      {command("mnuFileNew"), command("mnuFileOpen"), [this, &lists] { lists.importFile(this); },
                       [&files](const QString &path) { files.LoadVocabulary(path); },
                       [&files](const QString &path) { files.openCopy(path); }, m_recentFiles, lessonFolder});
}

void frmApp::updateStartPage()
{
    m_startPage->setVisible(m_context->documents.open().empty());
}

void frmApp::connectPreview()
{
    const PrintPreview &preview = m_print->preview();
    connect(&preview, &PrintPreview::buttonsChanged, this, [this](bool previous, bool next) {
        m_commands.setAvailable(QStringLiteral("Previous"), previous);
        m_commands.setAvailable(QStringLiteral("Next"), next);
    });
    connect(&preview, &PrintPreview::statusText, &m_context->status, &modSBFunc::ShowStatus);
}

QWidget *frmApp::createCentre()
{
    auto *centre = new QWidget(this);
    auto *layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_views->insertWidget(0, m_area);
    m_views->setCurrentWidget(m_area);
    layout->addWidget(m_views, 1);
    layout->addWidget(&m_context->status);
    return centre;
}

void frmApp::placeDocument(frmDoc *document)
{
    m_menuHelp->watch(m_area->place(*document)->systemMenu());
    connect(document, &frmDoc::editingChanged, this, [this, document](bool editing) {
        // The edit of a document that is not the active one, closed ones among them, says nothing about the commands.
        if (document == m_context->documents.active())
            SetCommandState(editing ? AppState::StateEditing : AppState::StateDocument);
    });
    connect(document, &frmDoc::menuRequested, this,
            [this](const QPoint &position) { m_menus->gridMenu()->popup(position); });
    connect(document, &frmDoc::clearRequested, this, [this] { DoMenuClick(QStringLiteral("mnuEditClear")); });
}

void frmApp::DoMenuClick(const QString &key)
{
    m_commands.run(key);
}

QString frmApp::UndoAction() const
{
    return resText(int(undoable()));
}

void frmApp::setUndoAction(const QString &caption)
{
    m_context->undo.setKind(undoKindOf(caption), m_context->documents.active());
}

/// Another document can become the active one before a change is complete: while a dialog asks how to sort, say.
UndoKind frmApp::undoable() const
{
    const UndoRecord &undo = m_context->undo;
    return undo.belongsTo(m_context->documents.active()) ? undo.kind() : UndoKind::None;
}

void frmApp::onUndoKind()
{
    const QString caption = UndoAction();
    m_commands.action(QStringLiteral("mnuEditUndo"))->setText(caption);
    m_commands.setAvailable(QStringLiteral("mnuEditUndo"), undoable() != UndoKind::None);
    m_toolbars->setToolTip(QStringLiteral("Undo"), caption);
    tellOfChange(m_context->status, m_context->undo.note());
}

void frmApp::SetCommandState(AppState state)
{
    m_commands.applyState(state);
    m_menus->applyState(state);
    m_toolbars->applyState(state);
}

void frmApp::updateState()
{
    frmDoc *document = m_context->documents.active();
    if (m_print->preview().isOpen())
        SetCommandState(AppState::StatePreview);
    else if (!document)
        SetCommandState(AppState::StateNoDocument);
    else
        SetCommandState(document->Rutor()->EditMode() ? AppState::StateEditing : AppState::StateDocument);
}

void frmApp::onRemoved()
{
    if (!m_context->documents.open().empty())
        return;
    updateStartPage();
    SetCommandState(AppState::StateNoDocument);
    m_context->status.SBSetText(1, modSBFunc::SBT_SUNKEN, {});
    m_context->status.SBSetText(2, modSBFunc::SBT_SUNKEN, {});
}

int frmApp::buttonPicture(const QString &button) const
{
    return m_toolbars->pictureOf(button);
}

void frmApp::setButtonPicture(const QString &button, int pictureNumber)
{
    m_toolbars->setPicture(button, pictureNumber);
}

int frmApp::toolbarHeight() const
{
    return m_area->mapTo(this, QPoint(0, 0)).y();
}

void frmApp::OpenRequestedFile(const QString &text)
{
    const std::optional<QString> path = RequestedFile::requestedPath(text);
    if (path)
        m_context->files.LoadVocabulary(*path);
}

void frmApp::bringToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    keyTaker(*this).activateWindow();
}

void frmApp::PositionWindow()
{
    m_position->restore();
}

void frmApp::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    QTimer::singleShot(FrameDelay, this, [this] { m_position->makeRoomForFrame(); });
    QTimer::singleShot(0, this, &frmApp::updateStartPage); // no file may have opened
}

void frmApp::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && m_position)
        QTimer::singleShot(FrameDelay, this, [this] { m_position->makeRoomForFrame(); });
}

void frmApp::reportRegistryErrors(const std::function<void()> &action)
{
    try {
        action();
    } catch (const RegistryError &error) {
        m_context->alert.show(isVisible() ? this : nullptr, {.prompt = error.Description()});
    }
}

void frmApp::loadRecentFiles()
{
    reportRegistryErrors([this] {
        clsRegistry registry(m_store);
        selectRecentFilesKey(registry);
        if (registry.KeyExists())
            m_recentFiles.Load(registry);
    });
    m_recentFiles.setMaxFileCount(clsMRUFileList::Capacity);
}

void frmApp::saveSettings()
{
    reportRegistryErrors([this] { m_context->settings.SaveProperties(); });
    reportRegistryErrors([this] {
        clsRegistry registry(m_store);
        selectRecentFilesKey(registry);
        m_recentFiles.Save(registry);
    });
}

void frmApp::closeEvent(QCloseEvent *event)
{
    m_print->preview().close();
    if (!m_context->files.closeAll()) {
        event->ignore();
        return;
    }
    m_position->store();
    saveSettings();
    // A message about the settings may have kept the user here for long enough to open another file.
    if (!m_context->documents.open().empty()) {
        event->ignore();
        return;
    }
    event->accept();
    Q_EMIT closed();
}

void frmApp::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        acceptAsCopy(*event);
}

void frmApp::dropEvent(QDropEvent *event)
{
    acceptAsCopy(*event);
    const int y = event->position().toPoint().y();
    if (!WindowLayout::acceptsDrop(y, toolbarHeight(), height(), m_context->status.height()))
        return;
    // A message of a file must not keep the program that the files were dragged from waiting.
    QStringList paths;
    for (const QUrl &url : event->mimeData()->urls())
        paths.append(url.toLocalFile());
    QMetaObject::invokeMethod(
        this,
        [this, paths] {
            std::for_each(paths.begin(), paths.end(), [this](const QString &path) { OpenRequestedFile(path); });
        },
        Qt::QueuedConnection);
}
