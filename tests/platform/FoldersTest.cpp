#include "platform/ActivationToken.h"
#include "platform/Twips.h"
#include "platform/files/FolderLock.h"
#include "platform/files/LongPath.h"
#include "platform/files/ProgramFiles.h"
#include "platform/files/RegularFile.h"
#include "platform/files/UserFolders.h"

TEST(Folders, StandWhereTheDesktopWantsThem)
{
    const QByteArray before = qgetenv("XDG_STATE_HOME");
    const QString home = QDir::homePath() + "/.local/state";
    for (const auto &[variable, folder] : {std::pair("/a/b/", QString("/a/b")), {"b", home}, {"", home}}) {
        qputenv("XDG_STATE_HOME", variable);
        EXPECT_EQ(UserFolders::state(), folder + "/glosaria");
    }
    qputenv("XDG_STATE_HOME", before);
    for (const char *token : {"token", ""})
        ActivationToken::use(token);
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN") + ActivationToken::ofThisStart().toUtf8(), "token") << "not on Wayland";
    EXPECT_EQ(UserFolders::config(), qEnvironmentVariable("XDG_CONFIG_HOME") + "/glosaria");
    EXPECT_EQ(UserFolders::sharedData(), qEnvironmentVariable("XDG_DATA_HOME"));
    for (const auto place : {ProgramFiles::path, ProgramFiles::module})
        EXPECT_EQ(place("nothing"), QCoreApplication::applicationDirPath() + "/nothing");
}

TEST(Folders, AreLockedForOneAtATimeAndTellWhatIsInThem)
{
    const QTemporaryDir folder;
    const FolderLock first(folder.path(), 0);
    const QDeadlineTimer wait(60);
    EXPECT_TRUE(first.isHeld() && !FolderLock(folder.path(), 60).isHeld() && wait.hasExpired());
    EXPECT_TRUE(FolderLock("/no/such/folder", 0).isHeld());
    const QString file = writeFile(folder.filePath("Words.gla"), "words");
    ASSERT_TRUE(QFile::link("/nowhere", folder.filePath("link")) && QFile::link("/", folder.filePath("LINK")));
    ASSERT_EQ(::link(qPrintable(file), qPrintable(folder.filePath("wORDS.GLA"))), 0);
    for (const char *name : {"Words.gla", "wORDS.GLA", "link", "LINK", "missing", "words.gla"})
        EXPECT_EQ(LongPath::directoryEntry(folder.path(), name),
                  QDir(folder.path()).entryList(QDir::AllEntries | QDir::System).contains(name) ? name : "");
    QFile opened, other;
    ASSERT_TRUE(QDir(folder.path()).mkpath("real/inner") && QFile::link("real/inner", folder.filePath("up")));
    EXPECT_EQ(LongPath::ExpandLongPath(folder.filePath("up/../inner")), folder.filePath("real/inner"));
    EXPECT_TRUE(RegularFile::open(opened, file) && opened.readAll() == "words");
    const uint handles = QDir("/proc/self/fd").count();
    for (const QString &path : {folder.path(), folder.filePath("missing"), QString("/dev/null")})
        EXPECT_FALSE(RegularFile::open(other, path) || QDir("/proc/self/fd").count() != handles);
}

TEST(Twips, AreAFifteenthOfAPixelWithoutAScreen)
{
    for (const int pixels : {0, 1, 19, -3}) {
        EXPECT_EQ(Twips::fromPixelsX(pixels) + Twips::fromPixelsY(pixels), 30 * pixels);
        for (const int twips : {15 * pixels - 7, 15 * pixels, 15 * pixels + 7})
            EXPECT_TRUE(Twips::toPixelsX(twips) == pixels && Twips::toPixelsY(twips) == pixels) << twips;
    }
}

TEST(LongPath, EveryComponentIsSpelledAsListed)
{
    const auto onOldDisk = [](const QString &folder, const QString &name) { // where letter case does not count
        const QStringList paths{"/Disk", "/Disk/.hidden", "/Disk/Program Files", "/Disk/Program Files/My Words.gla"};
        const QString wanted = '^' + QRegularExpression::escape(folder + '/' + name) + '$';
        return paths.value(paths.indexOf(QRegularExpression("(?i)" + wanted))).section('/', -1);
    };
    const char *const cases[][2] = {{"/disk/program files/MY WORDS.GLA", "/Disk/Program Files/My Words.gla"},
                                    {"//DISK//./program files/", "/Disk/Program Files"},
                                    {"/disk/program files/../.HIDDEN", "/Disk/.hidden"},
                                    {"/../../disk", "/Disk"},
                                    {"/", "/"}};
    for (const auto &[path, expected] : cases)
        EXPECT_EQ(LongPath::ExpandLongPath(path, onOldDisk), expected);
    for (const char *path : {"/disk/missing/a.gla", "/disk/program files/my words.gla/a.gla", "disk/.hidden", ""})
        EXPECT_EQ(LongPath::ExpandLongPath(path, onOldDisk), "");
}
