#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "resources/Pictures.h"

#include <QWhatsThis>

namespace {

using enum AppState;

constexpr StateSet Always(StateDocument, StateNoDocument, StateEditing, StatePreview);

} // namespace

void AppCommands::addHelpCommands(CommandTable &table, const AppContext &)
{
    table.add({"mnuHelpTopic", 455, "", 56, PictureHelpTopics, Always, {}});
    table.add({"mnuHelpAbout", 457, "", 58, PictureAbout, Always, {}});
    table.add({"Help", 1017, "Shift+F1", 224, PictureWhatsThis, Always, [] { QWhatsThis::enterWhatsThisMode(); }});
}
