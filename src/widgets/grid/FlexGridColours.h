#pragma once

#include <QColor>
#include <QPalette>

/// Turns stored colour values (0x00BBGGRR, or a system colour with the top bit set) into colours of the palette.
namespace FlexGridColours {

/// The colour of a ground or a line.
QColor ground(int value, const QPalette &palette);
/// The colour of a text that stands on a ground: system colours that name a ground give the window's text colour, and
/// on a dark ground black and other dark colours are shown light enough to be read.
QColor text(int value, const QPalette &palette, const QColor &ground);

} // namespace FlexGridColours
