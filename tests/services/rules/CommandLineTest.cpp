#include "services/rules/CommandLine.h"
#include "services/rules/RequestedFile.h"

#include <QDir>

TEST(CommandLine, ArgumentsMakeOneAbsolutePath)
{
    struct Case
    {
        const char *arguments; // separated by |
        const char *text;
    };
    const Case cases[] = {
        {"", ""},
        {"/a/b.gla", "/a/b.gla"},
        {"b.gla", "/cwd/b.gla"},
        {"../b.gla", "/cwd/../b.gla"},
        {"my|words.gla", "/cwd/my words.gla"},
        {"\"my words.gla\"", "\"/cwd/my words.gla\""},
        {"\"/a/my words.gla\"", "\"/a/my words.gla\""},
        {"\"/a/my|words.gla\"", "\"/a/my words.gla\""},
        {"\"", "\""},
        {"--no-splash|b.gla", "/cwd/b.gla"},
        {"b.gla|--no-splash", "/cwd/b.gla"},
        {"--|--help.gla", "/cwd/--help.gla"},
        {"-", "/cwd/-"},
        {"file:///a/my%20words.gla", "/a/my words.gla"},
    };
    for (const Case &each : cases) {
        const QStringList arguments = QString::fromUtf8(each.arguments).split(QLatin1Char('|'), Qt::SkipEmptyParts);
        const CommandLine line = CommandLine::parse(arguments, QStringLiteral("/cwd"));
        EXPECT_EQ(line.text.toStdString(), each.text);
        EXPECT_EQ(line.splash, !arguments.contains(QStringLiteral("--no-splash"))) << each.arguments;
        EXPECT_TRUE(!line.help && !line.version && line.unknownOption.isEmpty()) << each.arguments;
    }
}

TEST(CommandLine, OptionsAreToldFromPaths)
{
    const QStringList arguments = {QStringLiteral("--version"), QStringLiteral("-x"), QStringLiteral("--help"),
                                   QStringLiteral("--y"), QStringLiteral("/a.gla")};
    const CommandLine line = CommandLine::parse(arguments, QStringLiteral("/cwd"));
    EXPECT_TRUE(line.help && line.version);
    EXPECT_EQ(line.unknownOption, QStringLiteral("-x"));
    EXPECT_EQ(line.text, QStringLiteral("/a.gla"));
}

TEST(RequestedFile, TextsFromOutside)
{
    QTemporaryDir folder;
    const QString root = QDir(folder.path()).canonicalPath();
    QFile file(root + QStringLiteral("/My Words.gla"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    struct Case
    {
        const char *text; // @ stands for the folder
        const char *path; // null: ignored
    };
    const Case cases[] = {
        {"@/My Words.gla", "@/My Words.gla"},
        {"\"@/My Words.gla\"", "@/My Words.gla"},
        {"\"@/My Words.gla", "@/My Words.gla"},
        {"@//./My Words.gla\"", "@/My Words.gla"},
        {"@/missing/LIST.GLA", "@/missing/LIST.GLA"},
        {"relative.gla", "relative.gla"},
        {"@/My Words.gla ", nullptr},
        {"\"\"@/My Words.gla\"\"", nullptr},
        {"@/notes.txt", nullptr},
        {"gla", nullptr},
        {"\"", nullptr},
        {"", nullptr},
    };
    for (const Case &each : cases) {
        const QString text = QString::fromUtf8(each.text).replace(QLatin1Char('@'), root);
        const std::optional<QString> path = RequestedFile::requestedPath(text);
        ASSERT_EQ(path.has_value(), each.path != nullptr) << each.text;
        EXPECT_EQ(path.value_or(QString()), QString::fromUtf8(each.path).replace(QLatin1Char('@'), root));
    }
}
