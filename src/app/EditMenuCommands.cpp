#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "document/EditCommands.h"
#include "resources/Pictures.h"
#include "services/rules/ProgramFlags.h"
#include "services/status/modSBFunc.h"
#include "tools/frmFindReplace.h"

namespace {

using enum AppState;

constexpr StateSet Document(StateDocument);
constexpr StateSet DocumentOrEditing(StateDocument, StateEditing);
constexpr int DialogOpen = 504;

std::function<void()> onActive(const AppContext &context, void (EditCommands::*command)(frmDoc &))
{
    return [&context, command] {
        if (frmDoc *document = context.documents.active())
            (context.edit.*command)(*document);
    };
}

/// The dialog belongs to the document that was active: it closes when that one does or another becomes active.
void openFindReplace(const AppContext &context, frmDoc &document, bool replace)
{
    context.status.ShowStatus(DialogOpen);
    (replace ? context.flags.ReplaceMode : context.flags.FindMode) = true;
    const frmFindReplace::Needs needs{context.flags, context.undo, context.alert};
    auto *dialog = new frmFindReplace(document, needs, &context.window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(&context.documents, &DocumentList::activeChanged, dialog, [dialog, &document](frmDoc *active) {
        if (active != &document)
            dialog->leaveDocument();
    });
    QObject::connect(&context.documents, &DocumentList::removed, dialog, [dialog, &document](frmDoc *removed) {
        if (removed == &document)
            dialog->leaveDocument();
    });
    QObject::connect(dialog, &QDialog::finished, &context.window,
                     [&context] { context.status.ShowStatus(modSBFunc::Ready); });
    dialog->show();
}

void showFindReplace(const AppContext &context, bool replace)
{
    frmDoc *document = context.documents.active();
    auto *dialog = context.window.findChild<frmFindReplace *>();
    if (dialog && dialog->isVisible())
        dialog->showAgain(replace);
    else if (document)
        openFindReplace(context, *document, replace);
}

} // namespace

void AppCommands::addEditCommands(CommandTable &table, const AppContext &context)
{
    table.add(
        {"mnuEditUndo", 419, "Ctrl+Z", 20, PictureUndo, DocumentOrEditing, onActive(context, &EditCommands::Undo)});
    table.add({"mnuEditCut", 421, "Ctrl+X", 22, PictureCut, DocumentOrEditing, onActive(context, &EditCommands::Cut)});
    table.add(
        {"mnuEditCopy", 422, "Ctrl+C", 23, PictureCopy, DocumentOrEditing, onActive(context, &EditCommands::Copy)});
    table.add(
        {"mnuEditPaste", 423, "Ctrl+V", 24, PicturePaste, DocumentOrEditing, onActive(context, &EditCommands::Paste)});
    table.add({"mnuEditClear", 424, "", 25, PictureClear, Document, onActive(context, &EditCommands::Clear)});
    table.add({"mnuEditInsert", 426, "Ctrl+I", 27, PictureInsert, Document, onActive(context, &EditCommands::Insert)});
    table.add({"mnuEditDelete", 427, "Ctrl+K", 28, PictureDelete, Document, onActive(context, &EditCommands::Delete)});
    table.add(
        {"mnuEditFind", 429, "Ctrl+F", 30, PictureFind, Document, [&context] { showFindReplace(context, false); }});
    table.add({"mnuEditReplace", 430, "Ctrl+H", 31, PictureReplace, Document,
               [&context] { showFindReplace(context, true); }});
}
