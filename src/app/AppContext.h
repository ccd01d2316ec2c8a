#pragma once

class AlertBox;
class CommonDialogs;
class DocumentList;
class EditCommands;
class FileCommands;
class ListCommands;
class MainHelp;
class PasteGuard;
class PrintCommands;
class QuizCommands;
class RandomSource;
class StoredMemory;
class Speaker;
class UndoRecord;
class clsAppProperties;
class clsMRUFileList;
class frmApp;
class modSBFunc;
struct ProgramFlags;

/// What commands work with. The main window fills it in while it loads and hands it to whoever declares commands.
struct AppContext
{
    frmApp &window;
    ProgramFlags &flags;
    UndoRecord &undo;
    clsAppProperties &settings;
    AlertBox &alert;
    modSBFunc &status;
    DocumentList &documents;
    FileCommands &files;
    EditCommands &edit;
    ListCommands &lists;
    const PasteGuard &pasteGuard;
    clsMRUFileList &recentFiles;
    PrintCommands &print;
    MainHelp &help;
    RandomSource &random;
    QuizCommands &quizzes;
    CommonDialogs &dialogs;
    StoredMemory *memory; ///< null: nothing is remembered of quizzes
    Speaker *speaker;     ///< null: no words can be read aloud
};
