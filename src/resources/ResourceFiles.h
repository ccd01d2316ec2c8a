#pragma once

#include <QByteArray>
#include <QLatin1String>

/// The files that the program carries within itself.
namespace ResourceFiles {

inline constexpr QLatin1String StringTable("strings.txt");
/// Wave resource 101: 16-bit PCM, mono.
inline constexpr QLatin1String ErrorSound("error.wav");
inline constexpr QLatin1String ApplicationIcon("pictures/glosaria.svg");
inline constexpr QLatin1String DocumentIcon("pictures/document.svg");
/// What the desktop is told of the program and of its files, as a package installs it.
inline constexpr QLatin1String DesktopEntry("desktop/glosaria.desktop");
inline constexpr QLatin1String MimePackage("desktop/glosaria.xml");
/// The product's name as a picture, and the tile of the pattern beside it.
inline constexpr QLatin1String ProductPicture("pictures/product.svg");
inline constexpr QLatin1String SplashPattern("pictures/splashpattern.svg");

/// The bytes of a carried file; a name that none has gives no bytes.
QByteArray contents(QLatin1String name);

} // namespace ResourceFiles
