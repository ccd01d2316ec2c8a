#pragma once

#include <QByteArray>
#include <QString>

/// Makes the desktop know vocabulary files: a MIME type for *.gla with an icon, and a menu entry of the program that
/// opens them, in the user's data folder. The names of the files are those of the installed package, which comes first.
struct FileAssociation
{
    QString programPath; ///< absolute
    QString programName;
    QString typeName; ///< what a file of the type is called
    QByteArray programIcon;
    QByteArray typeIcon; ///< both as SVG

    static QString mimeType();

    /// True when a data folder of the system knows the program and the type.
    static bool isInstalled();

    QByteArray mimePackage() const;
    QByteArray desktopEntry() const;

    /// Writes what is missing or has changed, unless isInstalled, and has the desktop's own tools, where there are
    /// any, note it; does not wait for them. False: something could not be written.
    bool registerType() const;
};
