#include "platform/FileAssociation.h"

#include <QDir>
#include <QMimeDatabase>

namespace {

FileAssociation glosaria(const char *path = "/opt/glosaria/glosaria")
{
    return {QString::fromUtf8(path), "Glosaria", "Words & <tags>", "<svg>program</svg>", "<svg>file</svg>"};
}

/// Folders for the data of the user and of the system, and a desktop without tools.
struct FileAssociationTest : ::testing::Test
{
    FileAssociationTest()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(user.path()));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(system.path()));
        qputenv("PATH", "/missing");
    }
    ~FileAssociationTest() override { qputenv("PATH", path); }

    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir user, system;
};

} // namespace

TEST_F(FileAssociationTest, DesktopLearnsTypeIconsAndProgram)
{
    ASSERT_TRUE(glosaria().registerType());
    for (const char *name : {"icons/hicolor/scalable/apps/glosaria.svg", "applications/glosaria.desktop",
                             "icons/hicolor/scalable/mimetypes/application-x-glosaria.svg"})
        EXPECT_GT(QFileInfo(user.filePath(name)).size(), 0) << name;
    const QMimeType type = QMimeDatabase().mimeTypeForFile("x.gla", QMimeDatabase::MatchExtension);
    EXPECT_EQ(type.name(), FileAssociation::mimeType());
    EXPECT_EQ(type.comment(), "Words & <tags>");
}

TEST_F(FileAssociationTest, InstalledPackageComesFirst)
{
    for (const char *name : {"mime/packages/glosaria.xml", "applications/glosaria.desktop"}) {
        EXPECT_FALSE(FileAssociation::isInstalled());
        QFile file(system.filePath(name));
        QDir().mkpath(QFileInfo(file).path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    EXPECT_TRUE(glosaria().registerType());
    EXPECT_TRUE(QDir(user.path()).isEmpty());
}

TEST(FileAssociation, ProgramPathIsQuoted)
{
    const char *const cases[][2] = {
        {"/opt/my programs/glosaria", R"("/opt/my programs/glosaria" %f)"},
        {"/opt/100%/glosaria", R"("/opt/100%%/glosaria" %f)"},
        {"/a\"b$c`d/glosaria", R"("/a\\"b\\$c\\`d/glosaria" %f)"},
        {"/a\\b/%1/glosaria", R"("/a\\\\b/%%1/glosaria" %f)"},
    };
    for (const auto &[path, exec] : cases)
        EXPECT_TRUE(glosaria(path).desktopEntry().contains(QByteArray("\nExec=").append(exec).append('\n'))) << path;
}
