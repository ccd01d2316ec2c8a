#pragma once

#include <QStringList>

/// How the file dialogs read a filter text and what they make of a chosen name.
namespace FileDialogRules {

/// The filters of a text of descriptions and patterns separated by "|", in the platform's form: "Text | *.a;*.b" gives
/// "Text (*.a *.b)". Blanks around a part do not count; a pattern list that the description names already is not named
/// twice; a description without a pattern is left out.
QStringList nameFilters(const QString &filter);

/// The extension of a path's file name: the text after the last dot of the name, empty when there is none. A dot at the
/// beginning of the name or in a folder begins no extension.
QString extension(const QString &path);

/// The path with the extension ext (without dot) in place of its own, or appended when it has none. A path that has ext
/// already, in capitals or not, stays as it is.
QString withExtension(const QString &path, const QString &ext);

/// The path with ext appended, unless it ends in ext already.
QString withAppendedExtension(const QString &path, const QString &ext);

} // namespace FileDialogRules
