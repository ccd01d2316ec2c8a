#pragma once

#include <QStringList>

#include <functional>

struct CommandLine;
class QApplication;

/// The program from its start to its end.
namespace modKod {

/// The language to take the texts from, as TextLanguage names it: the one asked for, else the desktop's.
QString textLanguage(const CommandLine &commandLine);

/// What can be answered without a display: the help text, the version, or that an option or a language is unknown. True
/// when it was; exitCode is that of the process then.
bool answer(const CommandLine &commandLine, int &exitCode);

/// Turns the first of two files into the second, without a display. Returns the exit code of the process.
int convert(const QStringList &files);

/// Runs as the only copy on the user's desktop, or hands the command line to the copy that runs already and returns.
/// What must be ready for the first window is waited for by beforeWindows. Returns the exit code of the process.
int run(QApplication &application, const CommandLine &commandLine, const std::function<void()> &beforeWindows = {});

} // namespace modKod
