#pragma once

#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "document/EditCommands.h"
#include "document/rules/UndoRecord.h"
#include "services/settings/clsMRUFileList.h"

#include <QMainWindow>

#include <memory>

class AppMenus;
class AppToolbars;
class CodePage;
class CommonDialogs;
class DocumentArea;
class DocumentCopies;
class FilePrompts;
class HelpDisplay;
class ListCommands;
class MainHelp;
class PasteGuard;
class PrintCommands;
class PrintHost;
class PrinterDevice;
class QStackedWidget;
class RandomSource;
class RegistryStore;
class SoundPlayer;
class StartPage;
class Speaker;
class StoredMemory;
class WindowPosition;
class frmDoc;
class modSBMenuHelp;

/// The program's one frame window: holds the document windows, the menus, the toolbars and the status bar, keeps the
/// application's state, and takes files that are dropped on it or handed over by a second copy.
class frmApp : public QMainWindow
{
    Q_OBJECT

public:
    /// What the program hands to its main window; all of it outlives the window.
    struct Needs
    {
        ProgramFlags &flags;
        UndoRecord &undo;
        clsAppProperties &settings;
        RegistryStore &store;
        AlertBox &alert;
        FilePrompts &prompts;
        DocumentCopies &copies;
        PrinterDevice &printer;
        CommonDialogs &dialogs;
        const CodePage &codePage;
        RandomSource &random;
        SoundPlayer &errorSound;
        HelpDisplay &help;
        const PasteGuard &pasteGuard;
        QString lessonFolder;           ///< with the vocabularies that come with the program
        StoredMemory *memory = nullptr; ///< null: nothing is remembered of quizzes
        Speaker *speaker = nullptr;     ///< null: no words can be read aloud
    };

    explicit frmApp(const Needs &needs);
    ~frmApp() override;

    /// Runs the command with that key exactly as a menu click does.
    void DoMenuClick(const QString &key);

    /// The caption of the Undo command, which names what it undoes in the active document. Any text but the captions
    /// that there are for it means nothing to undo.
    QString UndoAction() const;
    void setUndoAction(const QString &caption);

    /// Switches menus, toolbars and commands to a state.
    void SetCommandState(AppState state);
    AppState state() const { return m_commands.state(); }

    /// Restores size, place and state of the window from the settings; what cannot be applied is replaced by the work
    /// area of the screen.
    void PositionWindow();

    /// Opens a vocabulary that was named from outside: on the command line, by a second copy, or by a dropped file.
    /// What is not named like a vocabulary is ignored.
    void OpenRequestedFile(const QString &text);

    /// The start page shows while no document is open.
    void updateStartPage();

    /// Shows the window, restores it if it is minimised, and brings it to the front.
    void bringToFront();

    /// The picture by which a button of the standard toolbar shows its state.
    int buttonPicture(const QString &button) const;
    void setButtonPicture(const QString &button, int pictureNumber);

    const AppContext &context() const { return *m_context; }
    const CommandTable &commands() const { return m_commands; }
    DocumentArea *documentArea() const { return m_area; }
    /// Height in pixels of the menu bar and the toolbars above the document area.
    int toolbarHeight() const;

Q_SIGNALS:
    /// The window has closed and its settings are stored: the program can end.
    void closed();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void createParts(const Needs &needs);
    QWidget *createCentre();
    void createStartPage(const QString &lessonFolder);
    void placeDocument(frmDoc *document);
    void onRemoved();
    void updateState();
    UndoKind undoable() const;
    void onUndoKind();
    void connectPreview();
    void loadRecentFiles();
    void saveSettings();
    void reportRegistryErrors(const std::function<void()> &action);

    RegistryStore &m_store;
    clsMRUFileList m_recentFiles;
    std::unique_ptr<EditCommands> m_editCommands;
    std::unique_ptr<ListCommands> m_listCommands;
    DocumentArea *m_area;
    QStackedWidget *m_views; ///< the document area, and the print preview in its place
    std::unique_ptr<PrintHost> m_printHost;
    std::unique_ptr<PrintCommands> m_print;
    std::unique_ptr<MainHelp> m_help;
    std::unique_ptr<AppContext> m_context;
    std::unique_ptr<WindowPosition> m_position;
    CommandTable m_commands;
    modSBMenuHelp *m_menuHelp = nullptr;
    AppMenus *m_menus = nullptr;
    AppToolbars *m_toolbars = nullptr;
    StartPage *m_startPage = nullptr;
};
