#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "quiz/frmLang.h"
#include "resources/Pictures.h"
#include "services/modSBFunc.h"

namespace {

constexpr StateSet Document(AppState::StateDocument);
constexpr int HelpButtonForHelp = 504;
constexpr int Ready = 506;

void nameLanguages(const AppContext &context)
{
    frmDoc *document = context.documents.active();
    if (!document)
        return;
    frmLang dialog(*document, &context.window);
    context.status.ShowStatus(HelpButtonForHelp);
    dialog.exec();
    context.status.ShowStatus(Ready);
}

} // namespace

void AppCommands::addVocabularyCommands(CommandTable &table, const AppContext &context)
{
    table.add({"mnuVocabularyLanguage", 432, "Ctrl+L", 33, PictureLanguages, Document,
               [&context] { nameLanguages(context); }});
    table.add({"mnuVocabularyRowHeight", 434, "", 35, PictureRowHeight, Document, {}});
    table.add({"mnuVocabularyColumnWidth", 435, "", 36, PictureColumnWidth, Document, {}});
    table.add({"mnuVocabularyFont", 437, "", 38, PictureFont, Document, {}});
    table.add({"mnuVocabularySort", 438, "", 39, PictureSort, Document, {}});
}
