#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/frmApp.h"
#include "document/FileCommands.h"
#include "exchange/ListCommands.h"
#include "resources/Pictures.h"
#include "services/settings/clsMRUFileList.h"
#include "services/status/modSBFunc.h"

namespace {

using enum AppState;

constexpr StateSet NotBusy(StateDocument, StateNoDocument);
constexpr StateSet Document(StateDocument);
constexpr StateSet DocumentOrEditing(StateDocument, StateEditing);
constexpr StateSet Always(StateDocument, StateNoDocument, StateEditing, StatePreview);

void addRecentFile(CommandTable &table, const AppContext &context, int n)
{
    const QString key = QStringLiteral("mnuFileMRU(%1)").arg(n);
    table.add({key, 400, {}, 13, 0, NotBusy, [&context, n] {
                   context.files.LoadVocabulary(context.recentFiles.File(n));
                   context.status.ShowStatus(modSBFunc::Ready);
               }});
}

} // namespace

void AppCommands::addFileCommands(CommandTable &table, const AppContext &context)
{
    FileCommands &files = context.files;
    table.add({"mnuFileNew", 401, "Ctrl+N", 2, PictureNew, NotBusy, [&files] { files.newDocument(); }});
    table.add({"mnuFileOpen", 402, "Ctrl+O", 3, PictureOpen, NotBusy, [&files] { files.open(); }});
    table.add({"mnuFileClose", 403, "Ctrl+W", 4, PictureClose, DocumentOrEditing, [&files] { files.closeActive(); }});
    table.add({"mnuFileSave", 405, "Ctrl+S", 6, PictureSave, DocumentOrEditing, [&files] { files.save(); }});
    table.add({"mnuFileSaveAs", 406, "", 7, PictureSaveAs, DocumentOrEditing, [&files] { files.saveAs(); }});
    ListCommands &lists = context.lists;
    table.add(
        {"mnuFileImport", 14500, "", 14503, 0, Document, [&context] { context.lists.importFile(&context.window); }});
    table.add({"mnuFileExport", 14501, "", 14504, 0, Document, [&lists] { lists.exportActive(); }});
    for (int n = 1; n <= clsMRUFileList::Capacity; ++n)
        addRecentFile(table, context, n);
    table.add({"mnuFileExit", 417, "", 18, PictureExit, Always, [&context] { context.window.close(); }});
}
