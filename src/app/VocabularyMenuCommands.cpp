#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "resources/Pictures.h"

namespace {

constexpr StateSet Document(AppState::StateDocument);

} // namespace

void AppCommands::addVocabularyCommands(CommandTable &table, const AppContext &)
{
    table.add({"mnuVocabularyLanguage", 432, "Ctrl+L", 33, PictureLanguages, Document, {}});
    table.add({"mnuVocabularyRowHeight", 434, "", 35, PictureRowHeight, Document, {}});
    table.add({"mnuVocabularyColumnWidth", 435, "", 36, PictureColumnWidth, Document, {}});
    table.add({"mnuVocabularyFont", 437, "", 38, PictureFont, Document, {}});
    table.add({"mnuVocabularySort", 438, "", 39, PictureSort, Document, {}});
}
