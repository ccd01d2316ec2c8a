#pragma once

#include "document/DocumentCopies.h"
#include "document/DocumentList.h"
#include "document/FileCommands.h"
#include "document/ctlGrid.h"
#include "platform/registry/RegistryTree.h"
#include "resources/StringTable.h"
#include "services/rules/ProgramFlags.h"
#include "services/settings/clsAppProperties.h"
#include "services/settings/clsMRUFileList.h"
#include "services/status/modSBFunc.h"
#include "support/ScriptedAlertBox.h"
#include "support/ScriptedPrompts.h"

/// A running program as far as its documents and their files go; what is still open goes with the object, unasked.
struct OpenFiles : DocumentCopies
{
    RegistryTree store;
    clsAppProperties settings{store, QStringLiteral("/usr/bin/glosaria")};
    ProgramFlags flags;
    UndoRecord undo;
    modSBFunc status{flags};
    ScriptedAlertBox alert;
    ScriptedPrompts prompts;
    clsMRUFileList recent{[](const QString &text) { return int(text.size()); }};
    DocumentList documents{{flags, undo, status, settings}};
    FileCommands files{{documents, recent, status, alert, prompts, *this}, CodePage()};

    ~OpenFiles() override
    {
        for (frmDoc *document : std::vector<frmDoc *>(documents.open()))
            delete document;
    }

    bool secure(frmDoc &) override { return true; }
    frmDoc *newDocument()
    {
        files.newDocument();
        documents.setActive(documents.open().back());
        return documents.active();
    }
};
