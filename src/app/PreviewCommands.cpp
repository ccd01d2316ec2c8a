#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "resources/Pictures.h"

namespace {

constexpr StateSet Preview(AppState::StatePreview);

} // namespace

void AppCommands::addPreviewCommands(CommandTable &table, const AppContext &)
{
    table.add({"Previous", 1101, "", 231, PicturePrevious, Preview, {}});
    table.add({"Next", 1102, "", 232, PictureNext, Preview, {}});
    table.add({"PageSetup", 1103, "", 234, PicturePageSetup, Preview, {}});
    table.add({"Close", 1105, "", 237, PictureClose, Preview, {}});
}
