#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "document/ctlGrid.h"
#include "print/GridSource.h"
#include "print/PrintCommands.h"
#include "resources/Pictures.h"
#include "tools/frmFindReplace.h"

namespace {

constexpr StateSet Preview(AppState::StatePreview);
constexpr StateSet DocumentOrPreview(AppState::StateDocument, AppState::StatePreview);
constexpr StateSet AnyWindow(AppState::StateDocument, AppState::StateEditing, AppState::StatePreview);

PrintSource activeDocument(const AppContext &context)
{
    const frmDoc *document = context.documents.active();
    PrintSource source = GridSource::read(*document->Rutor(), document->Caption());
    source.Folder = document->folder();
    return source;
}

/// The search goes with the documents, which the preview hides: a match could not be seen.
void openPreview(const AppContext &context)
{
    if (auto *search = context.window.findChild<frmFindReplace *>())
        search->close();
    context.print.ShowPrintPreview(activeDocument(context));
}

void togglePreview(const AppContext &context)
{
    if (context.print.preview().isOpen())
        context.print.preview().close();
    else
        openPreview(context);
}

void print(const AppContext &context)
{
    if (context.print.preview().isOpen())
        context.print.printPreviewed();
    else
        context.print.PrintDocument(activeDocument(context));
}

} // namespace

void AppCommands::addPreviewCommands(CommandTable &table, const AppContext &context)
{
    PrintCommands &printing = context.print;
    PrintPreview &preview = printing.preview();
    table.add({"mnuFilePageSetup", 408, "", 9, PicturePageSetup, AnyWindow, [&printing] { printing.PageSetup(); }});
    table.add({"mnuFilePrintPreview", 409, "", 10, PicturePreview, DocumentOrPreview,
               [&context] { togglePreview(context); }});
    table.add({"mnuFilePrint", 410, "Ctrl+P", 11, PicturePrint, DocumentOrPreview, [&context] { print(context); }});
    table.add({"Previous", 1101, "", 231, PicturePrevious, Preview, [&preview] { preview.previousPage(); }});
    table.add({"Next", 1102, "", 232, PictureNext, Preview, [&preview] { preview.nextPage(); }});
    table.add({"PageSetup", 1103, "", 234, PicturePageSetup, Preview, [&printing] { printing.PageSetup(); }});
    table.add({"Close", 1105, "", 237, PictureClose, Preview, [&preview] { preview.close(); }});
}
