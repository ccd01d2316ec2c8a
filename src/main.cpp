#include "app/modKod.h"
#include "resources/Pictures.h"
#include "services/rules/CommandLine.h"

#include <QApplication>
#include <QDir>

namespace {

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    return arguments;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("Glosaria"));
    QCoreApplication::setApplicationVersion(QStringLiteral(GLOSARIA_VERSION));
    const CommandLine commandLine = CommandLine::parse(argumentsOf(argc, argv), QDir::currentPath());
    int exitCode = 0;
    if (modKod::answer(commandLine, exitCode))
        return exitCode;

    QApplication application(argc, argv);
    QApplication::setWindowIcon(picture(PictureApplication));
    QApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication::setDesktopFileName(QStringLiteral("glosaria"));
    return modKod::run(application, commandLine);
}
