#pragma once

#include "exchange/rules/ListSource.h"

#include <QLocale>

/// Opens files that hold lists, whatever they are called: what they are is told by their bytes.
namespace ListReader {

/// What is known of the user, for what a file does not say.
struct Surroundings
{
    QByteArray codePage; ///< of texts
    QLocale locale;      ///< of numbers in workbooks
};

struct Result
{
    std::unique_ptr<ListSource> source; ///< null: error says why
    ReadError error = ReadError::None;
};

constexpr qint64 LargestFile = qint64(1) << 30;

Result open(const QByteArray &bytes, const Surroundings &surroundings);
Result openFile(const QString &path, const Surroundings &surroundings);
/// A text that is none of a file's: it can only be lines of words.
Result openText(const QString &text);

/// The same for a table, which may turn out to be damaged or too large only when it is read.
struct Table
{
    TextTable table;
    ReadError error = ReadError::None;
};
Table read(const ListSource &source, const ReadChoices &choices);

/// What the user is told, %1 standing for the file.
QString message(ReadError error);

} // namespace ListReader
