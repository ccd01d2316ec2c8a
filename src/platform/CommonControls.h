#pragma once

#include <QVersionNumber>

/// The library that draws the controls.
namespace CommonControls {

/// Its major and minor version, as loaded.
QVersionNumber version();

/// Whether the program can run with it: 4.72 or later.
bool isRecentEnough(const QVersionNumber &version);

} // namespace CommonControls
