#include "app/modKod.h"

#include "app/CommonFilePrompts.h"
#include "app/RecoveryOffer.h"
#include "app/frmApp.h"
#include "app/rules/CommandLine.h"
#include "document/DocumentList.h"
#include "document/RecoveryKeeper.h"
#include "document/ctlGrid.h"
#include "document/rules/file/CodePage.h"
#include "exchange/rules/Conversion.h"
#include "memory/StoredMemory.h"
#include "platform/ActivationToken.h"
#include "platform/ClipboardOwner.h"
#include "platform/CupsServer.h"
#include "platform/DetachedProcess.h"
#include "platform/FileAssociation.h"
#include "platform/SignalWatcher.h"
#include "platform/SoundPlayer.h"
#include "platform/SpeechModule.h"
#include "platform/files/ProgramFiles.h"
#include "platform/files/UserFolders.h"
#include "platform/instance/InstancePlace.h"
#include "platform/instance/SingleInstance.h"
#include "platform/registry/RegistryFile.h"
#include "print/dialogs/QtDialogs.h"
#include "print/printer/QtPrinter.h"
#include "quiz/frmSplash.h"
#include "quiz/rules/RandomSource.h"
#include "resources/ResourceFiles.h"
#include "resources/StringTable.h"
#include "resources/TextLanguage.h"
#include "services/desktop/ContextMenuKey.h"
#include "services/desktop/EscapeKey.h"
#include "services/desktop/HandleReserve.h"
#include "services/desktop/MenuBarFocus.h"
#include "services/desktop/PasteGuard.h"
#include "services/desktop/PopupCloser.h"
#include "services/desktop/ProgramStyle.h"
#include "services/desktop/ScreenFit.h"
#include "services/help/DialogHelp.h"
#include "services/help/HelpViewers.h"
#include "services/modMsgBox.h"
#include "services/rules/ProgramFlags.h"
#include "services/settings/clsAppProperties.h"
#include "services/settings/clsRegistry.h"
#include "services/status/modSBFunc.h"
#include "widgets/QuietPanes.h"
#include "widgets/TextBoxAccessible.h"

#include <QApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QSessionManager>
#include <QTextStream>
#include <QTimer>

namespace {

constexpr int timMain = 2000;   ///< milliseconds until the main window shows
constexpr int timSplash = 3000; ///< milliseconds until the splash goes
constexpr int UsageError = 2;
const QVersionNumber OldestControls(4, 72); ///< of the library that draws the controls

/// Everything that lives as long as the program and belongs to no window.
struct Program
{
    RegistryFile store;
    clsAppProperties settings{store, QApplication::applicationFilePath()};
    ProgramFlags flags;
    UndoRecord undo;
    modMsgBox alert{[this](int topic) { help.HtmlHelp(HelpTarget::ofAlertBoxes(), HH_HELP_CONTEXT, topic); },
                    QApplication::beep};
    HelpViewers help{alert, UserFolders::state() + QStringLiteral("/help-favorites"), TextLanguage::inUse()};
    CupsServer printServer;
    QtPrinter printer{printServer};
    QtDialogs dialogs{printer, help};
    CommonFilePrompts prompts{dialogs, alert};
    CodePage codePage{CodePage::nameFor(QLocale())};
    SeededRandom random;
    DesktopSoundPlayer errorSound{ResourceFiles::contents(ResourceFiles::ErrorSound)};
    StoredMemory memory{UserFolders::sharedData() + QStringLiteral("/glosaria/memory.sqlite"),
                        [] { return QDateTime::currentDateTime(); }};
    SpeechModule speaker{ProgramFiles::module(QStringLiteral("glosaria-speech.so"))};
};

void showAlert(AlertBox &alertBox, const QString &prompt)
{
    alertBox.show(nullptr, {.prompt = prompt});
}

/// A desktop that does not learn of the file type is no reason to trouble the user.
void registerFileType()
{
    FileAssociation association;
    association.programPath = QApplication::applicationFilePath();
    association.desktopEntry = ResourceFiles::contents(ResourceFiles::DesktopEntry);
    association.mimePackage = ResourceFiles::contents(ResourceFiles::MimePackage);
    association.programIcon = ResourceFiles::contents(ResourceFiles::ApplicationIcon);
    association.typeIcon = ResourceFiles::contents(ResourceFiles::DocumentIcon);
    association.registerType();
}

void readSettings(Program &program)
{
    try {
        program.settings.ReadProperties();
    } catch (const RegistryError &error) {
        showAlert(program.alert, error.Description());
    }
    if (program.settings.firstRun() || FileAssociation::isBroken())
        registerFileType();
}

/// Closes the window as the user does, who would first leave the dialogs before it: the documents that they are about
/// may close, and yet the window stay.
void closeFromOutside(frmApp &window)
{
    QWidget *const dialog = QApplication::activeModalWidget();
    if (!dialog)
        window.close();
    else if (dialog->close()) // what has shown it must go on before the next one closes
        QTimer::singleShot(0, &window, [&window] { closeFromOutside(window); });
}

QString recoveryFolder()
{
    return UserFolders::state() + QStringLiteral("/recovery");
}

/// The user is asked for unsaved changes when the desktop session or the process is told to end, as when the window
/// closes. A desktop session does not wait for dialogs to be left: what has changed is in the copies then.
void askAtEnd(QApplication &application, frmApp &window, SignalWatcher &watcher, RecoveryKeeper &keeper)
{
    QObject::connect(&watcher, &SignalWatcher::endRequested, &window, [&window, &keeper] {
        keeper.flush();
        closeFromOutside(window);
    });
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &window,
        [&window, &keeper](QSessionManager &session) {
            keeper.flush();
            if (session.allowsInteraction() && !QApplication::activeModalWidget() && !window.close())
                session.cancel();
        },
        Qt::DirectConnection);
}

void listen(SingleInstance &instance, frmApp &window, RecoveryOffer &offer)
{
    QObject::connect(&instance, &SingleInstance::activated, &window, [&window](const QString &token) {
        ActivationToken::use(token);
        window.bringToFront();
    });
    QObject::connect(&instance, &SingleInstance::received, &window,
                     [&offer](const QString &text) { offer.open(text); });
    QObject::connect(&window, &frmApp::closed, &instance, [&instance] {
        const QStringList unanswered = instance.leave();
        for (const QString &text : unanswered)
            DetachedProcess::start(QApplication::applicationFilePath(), {text});
    });
    instance.serve();
}

/// Whether the user is asked something or is typing: a box that comes then is answered unread.
bool isUserBusy(frmApp &window)
{
    const frmDoc *document = window.context().documents.active();
    return !window.isVisible() || QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
           (document && document->Rutor()->EditMode());
}

/// Tells, once, that changes are not secured against a crash.
void tellOfMissingCopies(RecoveryKeeper &keeper, frmApp &window, AlertBox &alertBox)
{
    QObject::connect(&keeper, &RecoveryKeeper::cannotKeep, &window, [&window, &alertBox, told = false]() mutable {
        if (told || isUserBusy(window))
            return;
        told = true;
        alertBox.show(nullptr, {.prompt = resText(14076).arg(recoveryFolder()), .sound = true, .exclamation = true});
    });
}

/// Says, once for each trouble, that answers are not remembered. The quiz goes on.
void tellOfMemory(const StoredMemory &memory, const frmApp &window)
{
    QObject::connect(&memory, &StoredMemory::troubled, &window, [&window](MemoryTrouble trouble, const QString &kept) {
        modSBFunc &status = window.context().status;
        status.ShowStatus(0);
        status.showText(kept.isEmpty() ? resText(14440 + int(trouble))
                                       : resText(14445).arg(QFileInfo(kept).fileName()));
    });
}

/// The splash in its start-up role, or null if the user wants none.
std::unique_ptr<frmSplash> makeSplash(const CommandLine &commandLine)
{
    if (!commandLine.splash)
        return {};
    auto splash = std::make_unique<frmSplash>(QVersionNumber::fromString(QApplication::applicationVersion()));
    splash->setLoadStatus(frmSplash::StartUp);
    splash->Form_Load();
    return splash;
}

/// The main window shows while the splash still stands before it. When the splash has gone, the file named on the
/// command line opens, and what was left behind is offered. Without a splash nothing waits.
void showInTurn(frmSplash *splash, frmApp &window, const QString &file, RecoveryOffer &offer)
{
    if (splash)
        splash->show();
    const bool opensFile = !splash && !file.isEmpty();
    const auto timMain_ThatTime = [splash, &window, opensFile] {
        if (!opensFile)
            window.updateStartPage(); // so that it is drawn with the window
        window.show();
        if (splash)
            splash->raise();
    };
    const auto timSplash_ThatTime = [splash, &offer, file] {
        if (splash)
            splash->close();
        offer.start(file);
    };
    QTimer::singleShot(splash ? timMain : 0, &window, timMain_ThatTime);
    QTimer::singleShot(splash ? timSplash : 0, &window, timSplash_ThatTime);
}

} // namespace

QString modKod::textLanguage(const CommandLine &commandLine)
{
    const QString &wanted = commandLine.language;
    return TextLanguage::bestOf(wanted.isNull() ? QLocale::system().uiLanguages() : QStringList(wanted));
}

int modKod::convert(const QStringList &files)
{
    QTextStream complaints(stderr);
    if (files.size() != 2) {
        complaints << resText(14566) << '\n' << resText(12601) << '\n';
        return UsageError;
    }
    const QLocale locale = QLocale::system();
    return Conversion::run(files[0], files[1], {CodePage::nameFor(locale), locale}, complaints);
}

bool modKod::answer(const CommandLine &commandLine, int &exitCode)
{
    exitCode = 0;
    if (!commandLine.unknownOption.isEmpty()) {
        exitCode = UsageError;
        QTextStream(stderr) << resText(12602).arg(commandLine.unknownOption) << '\n' << resText(12601) << '\n';
    } else if (!commandLine.language.isNull() && !TextLanguage::isKnown(commandLine.language)) {
        exitCode = UsageError;
        const QString known = TextLanguage::available().join(QStringLiteral(", "));
        QTextStream(stderr) << resText(14900).arg(commandLine.language, known) << '\n';
    } else if (commandLine.help) {
        QTextStream(stdout) << resText(12600) << '\n';
    } else if (commandLine.version) {
        QTextStream(stdout) << "Glosaria " << GLOSARIA_VERSION << '\n';
    } else {
        return false;
    }
    return true;
}

int modKod::run(QApplication &application, const CommandLine &commandLine, const std::function<void()> &beforeWindows)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    SingleInstance instance(InstancePlace::socketPath());
    if (instance.start(commandLine.text, ActivationToken::ofThisStart()) == SingleInstance::Role::Second)
        return 0;
    Program program;
    if (QLibraryInfo::version() < OldestControls) {
        showAlert(program.alert, resText(723));
        return 0;
    }
    SignalWatcher watcher;
    QApplication::setStyle(new ProgramStyle);
    QuietPanes::install();
    TextBoxAccessible::install();
    const ContextMenuKey contextMenuKey(application);
    const EscapeKey escapeKey(application);
    const PopupCloser popupCloser(application);
    const MenuBarFocus menuBarFocus(application);
    ClipboardOwner clipboardOwner;
    const PasteGuard pasteGuard(application, clipboardOwner);
    const ScreenFit screenFit(application);
    const HandleReserve handleReserve(application);
    readSettings(program);
    if (beforeWindows)
        beforeWindows();

    const std::unique_ptr<frmSplash> splash = makeSplash(commandLine);
    RecoveryKeeper keeper(program.codePage, recoveryFolder());
    frmApp window({program.flags, program.undo, program.settings, program.store, program.alert, program.prompts, keeper,
                   program.printer, program.dialogs, program.codePage, program.random, program.errorSound, program.help,
                   pasteGuard, ProgramFiles::path(QStringLiteral("samples")), &program.memory, &program.speaker});
    tellOfMemory(program.memory, window);
    DialogHelp dialogHelp(program.help, program.alert, HelpTarget::ofProgram());
    program.alert.setMainWindow(&window);
    program.prompts.setOwner(&window);
    QObject::connect(&window, &frmApp::closed, &application, &QApplication::quit);
    keeper.follow(window.context().documents, window.context().files);
    tellOfMissingCopies(keeper, window, program.alert);
    RecoveryOffer offer(keeper, program.alert, window);
    listen(instance, window, offer);
    askAtEnd(application, window, watcher, keeper);
    showInTurn(splash.get(), window, commandLine.text, offer);
    QGuiApplication::restoreOverrideCursor();
    return QApplication::exec();
}
