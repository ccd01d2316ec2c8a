#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "resources/Pictures.h"

namespace {

using enum AppState;

constexpr StateSet Document(StateDocument);
constexpr StateSet DocumentOrEditing(StateDocument, StateEditing);

} // namespace

void AppCommands::addEditCommands(CommandTable &table, const AppContext &)
{
    table.add({"mnuEditUndo", 419, "Ctrl+Z", 20, PictureUndo, DocumentOrEditing, {}});
    table.add({"mnuEditCut", 421, "Ctrl+X", 22, PictureCut, DocumentOrEditing, {}});
    table.add({"mnuEditCopy", 422, "Ctrl+C", 23, PictureCopy, DocumentOrEditing, {}});
    table.add({"mnuEditPaste", 423, "Ctrl+V", 24, PicturePaste, DocumentOrEditing, {}});
    table.add({"mnuEditClear", 424, "", 25, PictureClear, Document, {}});
    table.add({"mnuEditInsert", 426, "Ctrl+I", 27, PictureInsert, Document, {}});
    table.add({"mnuEditDelete", 427, "Ctrl+K", 28, PictureDelete, Document, {}});
    table.add({"mnuEditFind", 429, "Ctrl+F", 30, PictureFind, Document, {}});
    table.add({"mnuEditReplace", 430, "Ctrl+H", 31, PictureReplace, Document, {}});
}
