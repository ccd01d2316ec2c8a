#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/DocumentArea.h"
#include "app/MenuLayout.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "resources/Pictures.h"

namespace {

using enum AppState;

constexpr int Untitled = 500;
constexpr StateSet DocumentOrEditing(StateDocument, StateEditing);

/// A command for each open document; the Window menu gives it the caption that the document has when it drops down.
void addDocuments(CommandTable &table, const AppContext &context)
{
    QObject::connect(&context.documents, &DocumentList::created, &table, [&table, &context](frmDoc *document) {
        table.add({MenuLayout::documentKey(document->Tag()), Untitled, "", 0, 0, DocumentOrEditing,
                   [&context, document] { context.window.documentArea()->activate(*document); }});
    });
    QObject::connect(&context.documents, &DocumentList::removed, &table,
                     [&table](frmDoc *document) { table.remove(MenuLayout::documentKey(document->Tag())); });
}

} // namespace

void AppCommands::addWindowCommands(CommandTable &table, const AppContext &context)
{
    const auto arrange = [&context](WindowArrangement how) {
        return [&context, how] { context.window.documentArea()->arrange(how); };
    };
    table.add({"mnuWindow(0)", 450, "", 51, PictureCascade, DocumentOrEditing, arrange(WindowArrangement::Cascade)});
    table.add({"mnuWindow(1)", 451, "", 52, PictureTileHorizontally, DocumentOrEditing,
               arrange(WindowArrangement::TileHorizontally)});
    table.add({"mnuWindow(2)", 452, "", 53, PictureTileVertically, DocumentOrEditing,
               arrange(WindowArrangement::TileVertically)});
    table.add({"mnuWindow(3)", 453, "", 54, PictureArrangeIcons, DocumentOrEditing,
               arrange(WindowArrangement::ArrangeIcons)});
    addDocuments(table, context);
}
