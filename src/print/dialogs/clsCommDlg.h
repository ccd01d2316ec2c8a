#pragma once

#include "print/dialogs/CommonDialogs.h"

#include <QString>

#include <stdexcept>

class AlertBox;
class QWidget;

/// A dialog of clsCommDlg ended without a result: the caller's command ends quietly.
class CommDlgError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The user cancelled the dialog.
class CommDlgCancelled : public CommDlgError
{
public:
    CommDlgCancelled()
        : CommDlgError("cancelled")
    {
    }
};

/// The common dialogs as one object: set the properties, call setAction, read the results back from the same
/// properties. A dialog that ends without a result throws CommDlgError.
class clsCommDlg
{
public:
    enum DialogAction { ActionOpen = 1, ActionSaveAs = 2, ActionPrint = 5, ActionHelp = 6 };

    /// Bits of flags for the file dialogs.
    enum FileFlag {
        OverwritePrompt = 0x2,
        HideReadOnly = 0x4,
        ExtensionDifferent = 0x400, ///< output of Save As
        FileMustExist = 0x1000,
        Explorer = 0x80000
    };
    /// Bits of flags for the print dialog; the first two, Collate and PageNumbers are output too.
    enum PrintFlag {
        Selection = 0x1,
        PageNumbers = 0x2,
        NoSelection = 0x4,
        NoPageNumbers = 0x8,
        Collate = 0x10,
        PrintSetup = 0x40,         ///< the page setup instead of the print dialog
        HidePrintToFile = 0x100000 ///< no check box; a PDF file is one of the printers
    };

    clsCommDlg(CommonDialogs &dialogs, AlertBox &alertBox);

    int Copies = 1;
    int ToPage = 0;
    int FromPage = 0;
    int MaxPage = 0;
    int MinPage = 0;
    bool Bold = false;
    QString DefaultExt;
    QString Filter;
    int HelpCommand = 0;
    QString HelpFile;
    QString HelpKey;
    QString InitDir;
    bool Italic = false;
    QWidget *Owner = nullptr; ///< null: the active window
    int RGBResult = 0;
    bool StrikeThru = false;
    bool Underline = false;
    QString FileTitle;
    QString FileName;
    int FilterIndex = 0; ///< 1-based
    int flags = 0;
    QString DialogTitle;

    int Action() const { return m_action; }
    /// Shows the dialog of a DialogAction and returns when it has closed; other values show nothing. A failing printer
    /// is reported in the "Printer Error" box before CommDlgError is thrown.
    void setAction(int action);

    /// Tells in the "Printer Error" box what a printer has failed to do.
    static void reportPrinterError(AlertBox &alertBox, QWidget *owner, const QString &text);

private:
    void openFile();
    void saveFile();
    void print();
    void choosePages();
    void callHelp();
    FileRequest fileRequest() const;
    void takeFile(const FileChoice &choice);
    bool mayReplace(const QString &path);

    CommonDialogs &m_dialogs;
    AlertBox &m_alertBox;
    int m_action = 0;
};
