#include "app/DocumentDialogs.h"

#include "app/AppContext.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "services/status/modSBFunc.h"
#include "tools/ToolDialog.h"

namespace {

void followActiveDocument(ToolDialog &dialog, const DocumentList &documents)
{
    QObject::connect(&documents, &DocumentList::activeChanged, &dialog, [&dialog](frmDoc *active) {
        if (active)
            dialog.workOn(*active);
        else
            dialog.leaveDocument();
    });
    // Queued: the document behind a closed one becomes active afterwards.
    QObject::connect(
        &documents, &DocumentList::removed, &dialog,
        [&dialog, &documents] {
            if (!documents.active())
                dialog.close();
        },
        Qt::QueuedConnection);
}

} // namespace

void DocumentDialogs::show(ToolDialog &dialog, const AppContext &context)
{
    dialog.setAttribute(Qt::WA_DeleteOnClose);
    followActiveDocument(dialog, context.documents);
    QObject::connect(&dialog, &QDialog::finished, &context.window,
                     [&context] { context.status.ShowStatus(modSBFunc::Ready); });
    dialog.show();
}

void DocumentDialogs::closeAll(const AppContext &context)
{
    for (auto *dialog : context.window.findChildren<ToolDialog *>())
        dialog->close();
}
