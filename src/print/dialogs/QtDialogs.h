#pragma once

#include "print/dialogs/CommonDialogs.h"

class HelpDisplay;
class QFileDialog;
class QPrintDialog;
class QPrinter;
class QtPrinter;

/// The dialogs of the toolkit, or of the desktop where it has its own. They remember the folder of the file that
/// was chosen last.
class QtDialogs : public CommonDialogs
{
public:
    /// The print dialogs carry the user's choices over to the printer, which must outlive the object.
    QtDialogs(QtPrinter &printer, HelpDisplay &help);

    std::optional<FileChoice> openFile(const FileRequest &request) override;
    std::optional<FileChoice> saveFile(const FileRequest &request) override;
    bool fileExists(const QString &path) override;
    bool confirmReplace(QWidget *owner, const QString &title, const QString &path) override;
    std::optional<PrintChoice> choosePages(const PrintRequest &request) override;
    bool setUpPrinter(QWidget *owner) override;
    bool callHelp(QWidget *owner, const QString &file, int command, int key) override;

private:
    std::optional<FileChoice> show(QFileDialog &dialog, const FileRequest &request);
    QString startFolder(const FileRequest &request) const;
    QString startFolder(const QString &folder) const;
    void proposeFile(const QPrintDialog &dialog, const QPrinter &printer, const PrintRequest &request) const;

    QtPrinter &m_printer;
    HelpDisplay &m_help;
    QString m_lastFolder;
};
