#include "services/rules/CommandLine.h"

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

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments, const QString &folder)
{
    CommandLine line;
    QStringList words;
    bool options = true;
    for (const QString &argument : arguments) {
        if (!options || !isOption(argument))
            words += localPath(argument);
        else if (argument == QStringLiteral("--"))
            options = false;
        else if (argument == QStringLiteral("--help"))
            line.help = true;
        else if (argument == QStringLiteral("--version"))
            line.version = true;
        else if (argument == QStringLiteral("--no-splash"))
            line.splash = false;
        else if (line.unknownOption.isEmpty())
            line.unknownOption = argument;
    }
    line.text = absoluteText(words.join(QLatin1Char(' ')), folder);
    return line;
}
