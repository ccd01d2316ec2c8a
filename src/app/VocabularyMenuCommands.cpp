#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/DocumentDialogs.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "document/ctlGrid.h"
#include "document/frmDoc.h"
#include "print/dialogs/clsCommDlg.h"
#include "progress/frmProgress.h"
#include "quiz/frmLang.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "services/settings/clsAppProperties.h"
#include "services/status/modSBFunc.h"
#include "tools/frmCheck.h"
#include "tools/frmColRow.h"
#include "tools/frmFont.h"
#include "tools/modSorting.h"
#include "widgets/grid/FlexGridZoom.h"

namespace {

constexpr StateSet Document(AppState::StateDocument);
constexpr StateSet DocumentOrEditing(AppState::StateDocument, AppState::StateEditing);

/// A command that shows a modal dialog about the active document.
std::function<void()> withDialog(const AppContext &context, const std::function<void(frmDoc &)> &show)
{
    return [&context, show] {
        frmDoc *document = context.documents.active();
        if (!document)
            return;
        context.status.ShowStatus(modSBFunc::DialogOpen);
        show(*document);
        context.status.ShowStatus(modSBFunc::Ready);
    };
}

std::function<void()> withSizeDialog(const AppContext &context, frmColRow::Mode mode)
{
    return withDialog(context,
                      [&context, mode](frmDoc &document) { frmColRow(document, mode, &context.window).exec(); });
}

void showCheck(const AppContext &context)
{
    frmDoc *document = context.documents.active();
    if (auto *dialog = DocumentDialogs::open<frmCheck>(context.window)) {
        dialog->activateWindow();
    } else if (document) {
        document->endEdit();
        context.status.ShowStatus(modSBFunc::DialogOpen);
        DocumentDialogs::show(*new frmCheck(*document, {context.edit, context.undo}, &context.window), context);
    }
}

/// The file that a table is to be exported to; empty when the user does not want to.
QString askTableFile(const AppContext &context, QWidget *owner, const QString &proposed)
{
    clsCommDlg dialog(context.dialogs, context.alert);
    dialog.DialogTitle = resText(14438);
    dialog.Owner = owner;
    dialog.FileName = proposed;
    dialog.Filter = resText(14437);
    dialog.DefaultExt = QStringLiteral("csv");
    dialog.flags = clsCommDlg::Explorer | clsCommDlg::OverwritePrompt | clsCommDlg::HideReadOnly;
    try {
        dialog.setAction(clsCommDlg::ActionSaveAs);
    } catch (const CommDlgError &) {
        return {};
    }
    return dialog.FileName;
}

void showProgress(const AppContext &context, frmDoc &document)
{
    const auto askFile = [&context](QWidget *owner, const QString &proposed) {
        return askTableFile(context, owner, proposed);
    };
    document.endEdit();
    frmProgress dialog(document, context.settings.QuizMode(), {*context.memory, context.alert, askFile},
                       &context.window);
    dialog.exec();
    if (const std::optional<int> row = dialog.chosenRow())
        document.select({*row, 1, *row, 2});
}

void showLetters(const AppContext &context, bool shown)
{
    context.settings.setShowLetters(shown);
    for (frmDoc *document : context.documents.open())
        document->showLetters(shown);
}

void addZoomCommands(CommandTable &table, const AppContext &context)
{
    const auto zoom = [&context](const std::function<void(frmDoc &)> &change) {
        return [&context, change] {
            if (frmDoc *document = context.documents.active())
                change(*document);
        };
    };
    table.add({"mnuZoomIn", 14952, "Ctrl++; Ctrl+=", 14953, PictureZoomIn, DocumentOrEditing,
               zoom([](frmDoc &document) { document.zoomBy(1); })});
    table.add({"mnuZoomOut", 14954, "Ctrl+-", 14955, PictureZoomOut, DocumentOrEditing,
               zoom([](frmDoc &document) { document.zoomBy(-1); })});
    table.add({"mnuZoomNormal", 14956, "Ctrl+0", 14957, PictureZoomNormal, DocumentOrEditing,
               zoom([](frmDoc &document) { document.zoomTo(FlexGridZoom::Normal); })});
}

} // namespace

void AppCommands::addVocabularyCommands(CommandTable &table, const AppContext &context)
{
    table.add({"mnuVocabularyLanguage", 432, "Ctrl+L", 33, PictureLanguages, Document,
               withDialog(context, [&context](frmDoc &document) { frmLang(document, &context.window).exec(); })});
    table.add({"mnuVocabularyRowHeight", 434, "", 35, PictureRowHeight, Document,
               withSizeDialog(context, frmColRow::RowHeight)});
    table.add({"mnuVocabularyColumnWidth", 435, "", 36, PictureColumnWidth, Document,
               withSizeDialog(context, frmColRow::ColumnWidth)});
    table.add(
        {"mnuVocabularyFont", 437, "", 38, PictureFont, Document, withDialog(context, [&context](frmDoc &document) {
             frmFont(document, context.settings, context.alert, &context.window).exec();
         })});
    table.add(
        {"mnuVocabularySort", 438, "", 39, PictureSort, Document, withDialog(context, [&context](frmDoc &document) {
             modSorting::SortVocabulary(document, context.undo, QLocale(), &context.window);
         })});
    table.add({"mnuVocabularyCheck", 14130, "", 14131, 0, Document, [&context] { showCheck(context); }});
    table.add({"mnuVocabularyProgress", 14400, "", 14401, 0, Document,
               withDialog(context, [&context](frmDoc &document) { showProgress(context, document); })});
    table.setAvailable(QStringLiteral("mnuVocabularyProgress"), context.memory);
    table.add({"mnuVocabularyLetters", 14372, "", 14373, 0, DocumentOrEditing,
               [&context] { showLetters(context, !context.settings.ShowLetters()); },
               [&context] { return context.settings.ShowLetters(); }});
    addZoomCommands(table, context);
}
