#pragma once

#include <QStringList>

#include <optional>

class QWidget;

/// What a file dialog is asked to show.
struct FileRequest
{
    QWidget *owner = nullptr;
    QString title;
    QString folder;          ///< where it starts; empty: where the user was last
    QString fileName;        ///< proposed, with or without a folder; may be empty
    QStringList nameFilters; ///< in the platform's form
    int filterIndex = 0;     ///< selected filter, 0-based
    QString defaultExt;      ///< without dot; appended to a typed name that has none
    bool mustExist = false;
};

struct FileChoice
{
    QString path;
    int filterIndex = 0;
};

/// What the print dialog is asked to show. Page numbers count from 1.
struct PrintRequest
{
    QWidget *owner = nullptr;
    QString folder; ///< where a PDF file goes; empty: where the user was last
    int minPage = 1;
    int maxPage = 1;
    int fromPage = 1;
    int toPage = 1;
    bool pageNumbers = false; ///< a range of pages is chosen, not all
    bool offerPageNumbers = true;
    bool offerSelection = false;
    bool collate = false;
};

struct PrintChoice
{
    int copies = 1;
    int fromPage = 1;
    int toPage = 1;
    bool pageNumbers = false;
    bool selection = false;
    bool collate = false;
};

/// The platform's modal dialogs behind clsCommDlg. An empty result is the user's Cancel.
class CommonDialogs
{
public:
    virtual ~CommonDialogs() = default;

    virtual std::optional<FileChoice> openFile(const FileRequest &request) = 0;
    /// Asks for a name only: whether it may replace a file is asked by confirmReplace.
    virtual std::optional<FileChoice> saveFile(const FileRequest &request) = 0;
    virtual bool fileExists(const QString &path) = 0;
    virtual bool confirmReplace(QWidget *owner, const QString &title, const QString &path) = 0;

    /// Both carry the chosen printer and its settings over to the program's printer, and throw PrinterError.
    virtual std::optional<PrintChoice> choosePages(const PrintRequest &request) = 0;
    virtual bool setUpPrinter(QWidget *owner) = 0;

    /// False when there is no such help.
    virtual bool callHelp(QWidget *owner, const QString &file, int command, int key) = 0;
};
