#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/DocumentDialogs.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "document/ctlGrid.h"
#include "print/GridSource.h"
#include "print/PrintCommands.h"
#include "print/dialogs/frmTest.h"
#include "print/rules/TestLayout.h"
#include "quiz/rules/RandomSource.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "services/AlertBox.h"
#include "services/status/modSBFunc.h"

namespace {

constexpr StateSet Document(AppState::StateDocument);
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

/// The dialogs about documents go with them, which the preview hides: a match could not be seen.
void openPreview(const AppContext &context, const Printable &document)
{
    DocumentDialogs::closeAll(context);
    context.print.ShowPrintPreview(document);
}

void togglePreview(const AppContext &context)
{
    if (context.print.preview().isOpen())
        context.print.preview().close();
    else
        openPreview(context, activeDocument(context));
}

void print(const AppContext &context)
{
    if (context.print.preview().isOpen())
        context.print.printPreviewed();
    else
        context.print.PrintDocument(activeDocument(context));
}

Printable testOf(const PrintSource &vocabulary, const TestChoice &choice)
{
    const auto shared = std::make_shared<const PrintSource>(vocabulary);
    return {[shared, choice](const PrinterMetrics &printer, double ZoomDivisor) {
                return PrintedTest::layOut(*shared, choice, printer, ZoomDivisor);
            },
            vocabulary.Folder};
}

void printTest(const AppContext &context, TestChoice &last)
{
    const PrintSource vocabulary = activeDocument(context);
    if (!TestWords::count(vocabulary))
        return void(context.alert.show(nullptr, {.prompt = resText(14778)}));
    const auto newNumber = [&context] { return int(context.random.iGenRndNumber(TestChoice::LargestNumber, 1)); };
    context.status.ShowStatus(modSBFunc::DialogOpen);
    const int result = frmTest(vocabulary, last, newNumber, &context.window).exec();
    context.status.ShowStatus(modSBFunc::Ready);
    if (result == frmTest::Preview)
        openPreview(context, testOf(vocabulary, last));
    else if (result == frmTest::Print)
        context.print.PrintDocument(testOf(vocabulary, last));
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
    table.add({"mnuFilePrintTest", 14760, "", 14761, 0, Document,
               [&context, last = std::make_shared<TestChoice>()] { printTest(context, *last); }});
    table.add({"Previous", 1101, "", 231, PicturePrevious, Preview, [&preview] { preview.previousPage(); }});
    table.add({"Next", 1102, "", 232, PictureNext, Preview, [&preview] { preview.nextPage(); }});
    table.add({"PageSetup", 1103, "", 234, PicturePageSetup, Preview, [&printing] { printing.PageSetup(); }});
    table.add({"Close", 1105, "", 237, PictureClose, Preview, [&preview] { preview.close(); }});
}
