#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/frmApp.h"
#include "resources/Pictures.h"

namespace {

using enum AppState;

constexpr StateSet DocumentOrEditing(StateDocument, StateEditing);

} // namespace

void AppCommands::addWindowCommands(CommandTable &table, const AppContext &context)
{
    const auto arrange = [&context](WindowArrangement how) { return [&context, how] { context.window.arrange(how); }; };
    table.add({"mnuWindow(0)", 450, "", 51, PictureCascade, DocumentOrEditing, arrange(WindowArrangement::Cascade)});
    table.add({"mnuWindow(1)", 451, "", 52, PictureTileHorizontally, DocumentOrEditing,
               arrange(WindowArrangement::TileHorizontally)});
    table.add({"mnuWindow(2)", 452, "", 53, PictureTileVertically, DocumentOrEditing,
               arrange(WindowArrangement::TileVertically)});
    table.add({"mnuWindow(3)", 453, "", 54, PictureArrangeIcons, DocumentOrEditing,
               arrange(WindowArrangement::ArrangeIcons)});
}
