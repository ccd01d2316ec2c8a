#pragma once

#include <QString>
#include <QStringList>

/// What the program was started with.
struct CommandLine
{
    /// Help is wanted, the version is wanted, or the splash window is not.
    bool help = false;
    bool version = false;
    bool splash = true;
    /// The language that the texts are wanted in, as a locale's name; null: the desktop's.
    QString language;
    /// A file is to be turned into another one, without a window: their paths, or fewer where they were not given.
    bool convert = false;
    QStringList convertFiles;
    /// The first option that the program does not have; empty: none.
    QString unknownOption;
    /// All that is no option, joined by blanks: the path of one file, absolute, and in quotes if it was given so.
    /// Empty: none. This is what a copy that runs already is handed.
    QString text;

    /// arguments come without the program's name; a relative path belongs to folder. After "--" nothing is an option.
    /// The window toolkit's own options are passed over.
    static CommandLine parse(const QStringList &arguments, const QString &folder);
};
