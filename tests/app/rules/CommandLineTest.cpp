#include "app/rules/CommandLine.h"
#include "app/rules/RequestedFile.h"

TEST(CommandLine, ArgumentsMakeOneAbsolutePath)
{
    // The arguments, separated by |, and the text.
    const char *const cases[][2] = {{"", ""},
                                    {"/a/b.gla", "/a/b.gla"},
                                    {"b.gla", "/cwd/b.gla"},
                                    {"../b.gla", "/cwd/../b.gla"},
                                    {"my|words.gla", "/cwd/my words.gla"},
                                    {"\"my words.gla\"", "\"/cwd/my words.gla\""},
                                    {"\"/a/my words.gla\"", "\"/a/my words.gla\""},
                                    {"\"/a/my|words.gla\"", "\"/a/my words.gla\""},
                                    {"b.gla|--no-splash", "/cwd/b.gla"},
                                    {"-session|id_1|--style=fusion|b.gla|-platform", "/cwd/b.gla"},
                                    {"--|--help.gla", "/cwd/--help.gla"},
                                    {"-", "/cwd/-"},
                                    {"file:///a/my%20words.gla", "/a/my words.gla"}};
    for (const auto &[given, text] : cases) {
        const QStringList arguments = QString::fromUtf8(given).split(QLatin1Char('|'), Qt::SkipEmptyParts);
        const CommandLine line = CommandLine::parse(arguments, "/cwd");
        EXPECT_EQ(line.text.toStdString(), text);
        EXPECT_EQ(line.splash, !arguments.contains("--no-splash")) << given;
        EXPECT_TRUE(!line.help && !line.version && line.unknownOption.isEmpty()) << given;
    }
}

TEST(CommandLine, OptionsAreToldFromPaths)
{
    const CommandLine line = CommandLine::parse({"--version", "-x", "--help", "--y", "/a.gla"}, "/cwd");
    EXPECT_TRUE(line.help && line.version);
    EXPECT_EQ(line.unknownOption, "-x");
    EXPECT_EQ(line.text, "/a.gla");
    EXPECT_EQ(CommandLine::parse({"--language", "de", "a.gla"}, "/cwd").language, "de");
    EXPECT_EQ(CommandLine::parse({"--language=fr", "a.gla"}, "/cwd").language, "fr");
    EXPECT_EQ(CommandLine::parse({"--language"}, "/cwd").unknownOption, "--language");
}

TEST(CommandLine, EverythingBehindConvertIsAFile)
{
    // The arguments and the files, separated by |.
    const char *const cases[][2] = {{"--convert", ""},
                                    {"--convert|in.csv", "in.csv"},
                                    {"--no-splash|--convert|file:///a/my%20words.csv|-", "/a/my words.csv|-"},
                                    {"--convert|--help|--|-x", "--help|--|-x"}};
    for (const auto &[given, files] : cases) {
        const CommandLine line = CommandLine::parse(QString::fromUtf8(given).split(QLatin1Char('|')), "/cwd");
        EXPECT_TRUE(line.convert && !line.help && line.unknownOption.isEmpty()) << given;
        EXPECT_EQ(line.convertFiles.join(QLatin1Char('|')).toStdString(), files);
    }
}

TEST(RequestedFile, TextsFromOutside)
{
    QTemporaryDir folder;
    const QString root = QDir(folder.path()).canonicalPath();
    writeFile(root + "/My Words.gla", "");
    // The text, and the path that it asks for; null: it is ignored. @ stands for the folder.
    const char *const cases[][2] = {{"@/My Words.gla", "@/My Words.gla"},
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
                                    {"", nullptr}};
    const auto inFolder = [&root](const char *text) { return QString::fromUtf8(text).replace(QLatin1Char('@'), root); };
    for (const auto &[text, expected] : cases) {
        const std::optional<QString> path = RequestedFile::requestedPath(inFolder(text));
        ASSERT_EQ(path.has_value(), expected != nullptr) << text;
        EXPECT_EQ(path.value_or(QString()), inFolder(expected));
    }
}
