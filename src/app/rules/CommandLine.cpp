#include "app/rules/CommandLine.h"

#include <QDir>
#include <QUrl>

namespace {

/// A file manager may hand over a file's address in place of its path.
QString localPath(const QString &argument)
{
    return argument.startsWith(QStringLiteral("file:///")) ? QUrl(argument).toLocalFile() : argument;
}

QString absoluteText(const QString &text, const QString &folder)
{
    const qsizetype quote = text.startsWith(QLatin1Char('"')) ? 1 : 0;
    if (text.size() == quote || QDir::isAbsolutePath(text.mid(quote)))
        return text;
    return text.left(quote) + folder + QLatin1Char('/') + text.mid(quote);
}

bool isOption(const QString &argument)
{
    return argument.size() > 1 && argument.startsWith(QLatin1Char('-'));
}

/// How many arguments an option of the window toolkit takes up; 0 for other options. The toolkit reads them itself, and
/// a session manager starts programs with them. One dash or two, and a value may follow an equals sign.
int toolkitArguments(const QString &option)
{
    static const char *const WithValue[] = {
        "platform", "platformpluginpath", "platformtheme", "plugin",          "session",
        "display",  "geometry",           "name",          "qwindowgeometry", "qwindowtitle",
        "title",    "qwindowicon",        "icon",          "style",           "stylesheet"};
    const QString name = option.mid(option.startsWith(QStringLiteral("--")) ? 2 : 1);
    const bool takesValue = std::any_of(std::begin(WithValue), std::end(WithValue), [&name](const char *known) {
        return name.section(QLatin1Char('='), 0, 0) == QLatin1String(known);
    });
    if (takesValue)
        return name.contains(QLatin1Char('=')) ? 1 : 2;
    return name == QStringLiteral("reverse") ? 1 : 0;
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments, const QString &folder)
{
    CommandLine line;
    QStringList words;
    bool options = true;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        const int toolkits = options && isOption(argument) ? toolkitArguments(argument) : 0;
        if (line.convert)
            line.convertFiles += localPath(argument);
        else if (toolkits > 0)
            i += toolkits - 1;
        else if (!options || !isOption(argument))
            words += localPath(argument);
        else if (argument == QStringLiteral("--"))
            options = false;
        else if (argument == QStringLiteral("--help"))
            line.help = true;
        else if (argument == QStringLiteral("--version"))
            line.version = true;
        else if (argument == QStringLiteral("--convert"))
            line.convert = true;
        else if (argument == QStringLiteral("--no-splash"))
            line.splash = false;
        else if (argument.startsWith(QStringLiteral("--language=")))
            line.language = argument.section(QLatin1Char('='), 1);
        else if (argument == QStringLiteral("--language") && i + 1 < arguments.size())
            line.language = arguments.at(++i);
        else if (line.unknownOption.isEmpty())
            line.unknownOption = argument;
    }
    line.text = absoluteText(words.join(QLatin1Char(' ')), folder);
    return line;
}
