#pragma once

#include <QByteArray>
#include <QString>

/// Makes the desktop know vocabulary files: a MIME type for *.gla with an icon, and a menu entry of the program that
/// opens them, in the user's data folder. The names of the files are those of the installed package, which comes first.
struct FileAssociation
{
    QString programPath;     ///< absolute
    QByteArray desktopEntry; ///< as installed: it starts the program as "glosaria"
    QByteArray mimePackage;
    QByteArray programIcon;
    QByteArray typeIcon; ///< both as SVG

    static QString mimeType();

    /// True when a data folder of the system knows the program and the type.
    static bool isInstalled();

    /// True when the user's own menu entry starts a program that has gone. It would hide an installed one.
    static bool isBroken();

    /// The menu entry that starts programPath.
    QByteArray userEntry() const;

    /// Writes what is missing or has changed and has the desktop's own tools, where there are any, note it; does not
    /// wait for them. Where the package isInstalled nothing is written, and a broken entry goes. False: something could
    /// not be written or removed.
    bool registerType() const;
};
