#pragma once

#include <QString>

/// Asks the user for the name of a file. The program shows the common dialogs; tests answer themselves.
class FilePrompts
{
public:
    virtual ~FilePrompts() = default;

    /// The path of an existing file, or an empty text when the user cancelled. folder is where to look first; empty:
    /// where the last file was.
    virtual QString askOpen(const QString &folder) = 0;
    /// The path to save under, or an empty text when the user cancelled. proposed is the name offered.
    virtual QString askSave(const QString &proposed, const QString &folder) = 0;

    /// The same for lists of other programs. The end of the name that askExport gives tells the form.
    virtual QString askImport(const QString &folder) = 0;
    virtual QString askExport(const QString &proposed, const QString &folder) = 0;
};
