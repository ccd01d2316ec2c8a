#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/DocumentDialogs.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "document/EditCommands.h"
#include "exchange/ListCommands.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "services/AlertBox.h"
#include "services/desktop/PasteGuard.h"
#include "services/rules/ProgramFlags.h"
#include "services/status/modSBFunc.h"
#include "tools/FindOn.h"
#include "tools/frmFindReplace.h"

#include <memory>

namespace {

using enum AppState;

constexpr StateSet Document(StateDocument);
constexpr StateSet DocumentOrEditing(StateDocument, StateEditing);

std::function<void()> onActive(const AppContext &context, void (EditCommands::*command)(frmDoc &))
{
    return [&context, command] {
        if (frmDoc *document = context.documents.active())
            (context.edit.*command)(*document);
    };
}

void pasteIfItAnswers(const AppContext &context, const std::function<void()> &paste)
{
    if (context.pasteGuard.mayPaste())
        return paste();
    context.alert.show(nullptr, {.prompt = resText(14077), .sound = true, .exclamation = true});
}

void openFindReplace(const AppContext &context, frmDoc &document, bool replace, Search &last)
{
    context.status.ShowStatus(modSBFunc::DialogOpen);
    (replace ? context.flags.ReplaceMode : context.flags.FindMode) = true;
    const frmFindReplace::Needs needs{context.flags, context.undo, context.alert, last};
    DocumentDialogs::show(*new frmFindReplace(document, needs, &context.window), context);
}

void showFindReplace(const AppContext &context, bool replace, Search &last)
{
    frmDoc *document = context.documents.active();
    if (auto *dialog = DocumentDialogs::open<frmFindReplace>(context.window))
        dialog->showAgain(replace);
    else if (document)
        openFindReplace(context, *document, replace, last);
}

void findOn(const AppContext &context, bool backwards, Search &last)
{
    frmDoc *document = context.documents.active();
    if (auto *dialog = DocumentDialogs::open<frmFindReplace>(context.window))
        dialog->findOn(backwards);
    else if (last.FindWhat.isEmpty())
        showFindReplace(context, false, last);
    else if (document)
        FindOn::run(*document, last, backwards, context.alert, &context.window);
}

void addFindCommands(CommandTable &table, const AppContext &context)
{
    const auto last = std::make_shared<Search>();
    const auto show = [&context, last](bool replace) {
        return [&context, last, replace] { showFindReplace(context, replace, *last); };
    };
    const auto on = [&context, last](bool backwards) {
        return [&context, last, backwards] { findOn(context, backwards, *last); };
    };
    table.add({"mnuEditFind", 429, "Ctrl+F", 30, PictureFind, Document, show(false)});
    table.add({"mnuEditReplace", 430, "Ctrl+H", 31, PictureReplace, Document, show(true)});
    table.add({"mnuEditFindNext", 14042, "F3", 30, 0, DocumentOrEditing, on(false)});
    table.add({"mnuEditFindPrevious", 14043, "Shift+F3", 30, 0, DocumentOrEditing, on(true)});
}

} // namespace

void AppCommands::addEditCommands(CommandTable &table, const AppContext &context)
{
    table.add(
        {"mnuEditUndo", 419, "Ctrl+Z", 20, PictureUndo, DocumentOrEditing, onActive(context, &EditCommands::Undo)});
    table.add({"mnuEditCut", 421, "Ctrl+X", 22, PictureCut, DocumentOrEditing, onActive(context, &EditCommands::Cut)});
    table.add(
        {"mnuEditCopy", 422, "Ctrl+C", 23, PictureCopy, DocumentOrEditing, onActive(context, &EditCommands::Copy)});
    table.add({"mnuEditPaste", 423, "Ctrl+V", 24, PicturePaste, DocumentOrEditing,
               [&context] { pasteIfItAnswers(context, onActive(context, &EditCommands::Paste)); }});
    table.add({"mnuEditClear", 424, "", 25, PictureClear, Document, onActive(context, &EditCommands::Clear)});
    table.add({"mnuEditInsert", 426, "Ctrl+I", 27, PictureInsert, Document, onActive(context, &EditCommands::Insert)});
    table.add({"mnuEditDelete", 427, "Ctrl+K", 28, PictureDelete, Document, onActive(context, &EditCommands::Delete)});
    addFindCommands(table, context);
    table.add({"mnuEditPasteList", 14502, "", 14505, 0, Document,
               [&context] { pasteIfItAnswers(context, [&context] { context.lists.pasteList(&context.window); }); }});
}
