#pragma once

#include "exchange/rules/ListReader.h"

class QTextStream;

/// Turns one file that holds a list into another, without a window.
namespace Conversion {

/// What the process ends with.
enum ExitStatus { Done = 0, Failed = 1, WrongUse = 2 };

/// in: any file that can be imported. out: its form follows from the end of its name: csv, txt and tsv (tabs),
/// anki.txt, html, gla; "-" is standard output, with tabs. What went wrong is told to complaints.
int run(const QString &in, const QString &out, const ListReader::Surroundings &surroundings, QTextStream &complaints);

} // namespace Conversion
