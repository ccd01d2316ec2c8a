#pragma once

#include <QRect>

/// Where a dialog opens so that the user still sees what it is about. Rectangles are pixels of the screen.
namespace DialogPlace {

struct Request
{
    QSize dialog;     ///< with its frame
    QPoint preferred; ///< taken when nothing is hidden there
    QRect owner;      ///< the main window, with its frame
    QRect screen;     ///< the dialog stays within it
    QRect keepFree;   ///< what should not be hidden
};

/// The preferred place, or else the corner of the owner, or the side of what is to be kept free, where the dialog hides
/// least of it. The first of equally good places is taken.
QPoint topLeft(const Request &request);

} // namespace DialogPlace
