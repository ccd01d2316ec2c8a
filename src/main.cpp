#include "app/ToolkitLanguage.h"
#include "app/modKod.h"
#include "app/rules/CommandLine.h"
#include "platform/DarkWish.h"
#include "platform/FontReader.h"
#include "resources/Pictures.h"
#include "resources/TextLanguage.h"

#include <QApplication>
#include <QDir>

#include <optional>

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
    const QString language = modKod::textLanguage(commandLine);
    TextLanguage::use(language);
    int exitCode = 0;
    if (modKod::answer(commandLine, exitCode))
        return exitCode;
    if (commandLine.convert) {
        const QCoreApplication application(argc, argv);
        return modKod::convert(commandLine.convertFiles);
    }

    std::optional<DarkWish> darkWish(std::in_place);
    std::optional<FontReader> fontReader(std::in_place);
    QApplication application(argc, argv);
    QApplication::setWindowIcon(picture(PictureApplication));
    QApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication::setDesktopFileName(QStringLiteral("glosaria"));
    const ToolkitLanguage toolkitLanguage(application, language);
    return modKod::run(application, commandLine, [&] {
        fontReader.reset();
        darkWish.reset(); // the thread before it may look at the environment
    });
}
