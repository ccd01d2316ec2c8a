#pragma once

class ToolDialog;
struct AppContext;

/// The dialogs that stay open beside the documents.
namespace DocumentDialogs {

/// Shows one that was made for the active document. It goes along to the document that becomes active, closes when
/// there is none left, and deletes itself then.
void show(ToolDialog &dialog, const AppContext &context);

/// The open one of a class, or null.
template <typename Dialog, typename Window> Dialog *open(const Window &window)
{
    auto *dialog = window.template findChild<Dialog *>();
    return dialog && dialog->isVisible() ? dialog : nullptr;
}

/// Closes all of them, as when the documents are hidden.
void closeAll(const AppContext &context);

} // namespace DocumentDialogs
