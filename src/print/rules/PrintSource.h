#pragma once

#include "print/rules/PrintSurface.h"

#include <QString>

#include <vector>

/// A vocabulary as it is to be printed: what its document held when the command was given. The document may change or
/// close while its pages are drawn.
struct PrintSource
{
    QString Caption; ///< of the document's window
    PrintFont Font;
    int ForeColor = 0; ///< 0x00BBGGRR; with the top bit set a colour of the system

    /// One entry a row in both; row 0 holds the names of the languages and is always there.
    std::vector<QString> first;
    std::vector<QString> second;

    QString Folder = {}; ///< of the document's file; empty when it has none
};
