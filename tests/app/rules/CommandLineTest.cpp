#include "app/rules/CommandLine.h"
#include "app/rules/RequestedFile.h"

TEST(CommandLine, ArgumentsMakeOneAbsolutePath)
{
    // Arguments, separated by |, and the text.
    const QString cases = " => ; /a/b.gla => /a/b.gla; b.gla => /cwd/b.gla; ../b.gla => /cwd/../b.gla; "
                          "my|words.gla => /cwd/my words.gla; \"my words.gla\" => \"/cwd/my words.gla\"; "
                          "\"/a/my words.gla\" => \"/a/my words.gla\"; \"/a/my|words.gla\" => \"/a/my words.gla\"; "
                          "b.gla|--no-splash => /cwd/b.gla; "
                          "--style=fusion|-session|id_1|my|-reverse|words.gla|-platform => /cwd/my words.gla; "
                          "--|-name|--help.gla => /cwd/-name --help.gla; - => /cwd/-; "
                          "file:///a/my%20words.gla => /a/my words.gla";
    for (const QString &each : cases.split("; ")) {
        const QStringList arguments = each.section(" => ", 0, 0).split('|', Qt::SkipEmptyParts);
        const CommandLine line = CommandLine::parse(arguments, "/cwd");
        EXPECT_EQ(line.text, each.section(" => ", 1)) << each.toStdString();
        EXPECT_EQ(line.splash, !arguments.contains("--no-splash")) << each.toStdString();
        EXPECT_TRUE(!line.help && !line.version && line.unknownOption.isEmpty()) << each.toStdString();
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
    const QString cases = "--convert => ; --convert|in.csv => in.csv; "
                          "--no-splash|--convert|file:///a/my%20words.csv|- => /a/my words.csv|-; "
                          "--convert|--help|--|-x => --help|--|-x";
    for (const QString &each : cases.split("; ")) {
        const CommandLine line = CommandLine::parse(each.section(" => ", 0, 0).split('|'), "/cwd");
        EXPECT_TRUE(line.convert && !line.help && line.unknownOption.isEmpty()) << each.toStdString();
        EXPECT_EQ(line.convertFiles.join('|'), each.section(" => ", 1));
    }
}

TEST(RequestedFile, TextsFromOutside)
{
    QTemporaryDir folder;
    const QString root = QDir(folder.path()).canonicalPath();
    writeFile(root + "/My Words.gla", "");
    // The text, and the path that it asks for, if any. @ stands for the folder.
    const QString cases = "@/My Words.gla => @/My Words.gla; \"@/My Words.gla\" => @/My Words.gla; "
                          "\"@/My Words.gla => @/My Words.gla; @//./My Words.gla\" => @/My Words.gla; "
                          "@/missing/LIST.GLA => @/missing/LIST.GLA; relative.gla => relative.gla; "
                          "@/My Words.gla  => ; \"\"@/My Words.gla\"\" => ; @/notes.txt => ; gla => ; \" => ;  => ";
    for (const QString &each : cases.split("; ")) {
        const QStringList parts = QString(each).replace('@', root).split(" => ");
        EXPECT_EQ(RequestedFile::requestedPath(parts[0]).value_or(""), parts[1]) << each.toStdString();
    }
}
