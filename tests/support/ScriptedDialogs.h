#pragma once

#include "print/dialogs/CommonDialogs.h"
#include "print/rules/PrinterDevice.h"

/// Answers the common dialogs as a user would, and keeps what it was asked.
struct ScriptedDialogs : CommonDialogs
{
    QStringList chosen;               ///< names chosen one after the other; then Cancel
    std::optional<PrintChoice> pages; ///< empty: the print dialogs are cancelled
    int filter = 0;                   ///< the kind of file that is chosen with them
    QString printerFault;
    std::function<void()> duringSetup; ///< what the user does in the page setup
    std::function<void()> duringPrint; ///< what happens while the print dialog is open
    FileRequest file;
    PrintRequest print;

    std::optional<FileChoice> openFile(const FileRequest &request) override { return saveFile(request); }
    std::optional<FileChoice> saveFile(const FileRequest &request) override
    {
        file = request;
        return chosen.isEmpty() ? std::nullopt : std::optional(FileChoice{chosen.takeFirst(), filter});
    }
    bool fileExists(const QString &) override { return false; }
    bool confirmReplace(QWidget *, const QString &, const QString &) override { return false; }
    std::optional<PrintChoice> choosePages(const PrintRequest &request) override
    {
        print = request;
        if (!printerFault.isEmpty())
            throw PrinterError(printerFault);
        if (duringPrint)
            duringPrint();
        return pages;
    }
    bool setUpPrinter(QWidget *) override
    {
        if (duringSetup)
            duringSetup();
        return duringSetup != nullptr;
    }
    bool callHelp(QWidget *, const QString &, int, int) override { return false; }
};
