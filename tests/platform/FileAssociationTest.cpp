#include "platform/FileAssociation.h"

#include <QDir>
#include <QMimeDatabase>

namespace {

FileAssociation glosaria(const char *path = "/opt/glosaria/glosaria")
{
    return {QString::fromUtf8(path), QStringLiteral("Glosaria"), QStringLiteral("Words & <tags>"), "<svg>program</svg>",
            "<svg>file</svg>"};
}

/// Folders for the data of the user and of the system, and a desktop without tools.
class FileAssociationTest : public ::testing::Test
{
protected:
    FileAssociationTest()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_user.path()));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(m_system.path()));
        qputenv("PATH", "/missing");
    }
    ~FileAssociationTest() override
    {
        for (size_t i = 0; i < m_before.size(); ++i)
            qputenv(Names[i], m_before[i]);
    }

    static constexpr const char *Names[] = {"XDG_DATA_HOME", "XDG_DATA_DIRS", "PATH"};
    const std::vector<QByteArray> m_before = {qgetenv(Names[0]), qgetenv(Names[1]), qgetenv(Names[2])};
    const QTemporaryDir m_user;
    const QTemporaryDir m_system;
};

} // namespace

TEST_F(FileAssociationTest, DesktopLearnsTypeIconsAndProgram)
{
    ASSERT_TRUE(glosaria().registerType());
    for (const char *name : {"icons/hicolor/scalable/apps/glosaria.svg", "applications/glosaria.desktop",
                             "icons/hicolor/scalable/mimetypes/application-x-glosaria.svg"})
        EXPECT_GT(QFileInfo(m_user.filePath(QLatin1String(name))).size(), 0) << name;
    const QMimeType type = QMimeDatabase().mimeTypeForFile(QStringLiteral("x.gla"), QMimeDatabase::MatchExtension);
    EXPECT_EQ(type.name(), FileAssociation::mimeType());
    EXPECT_EQ(type.comment(), QStringLiteral("Words & <tags>"));
}

TEST_F(FileAssociationTest, InstalledPackageComesFirst)
{
    for (const char *name : {"mime/packages/glosaria.xml", "applications/glosaria.desktop"}) {
        EXPECT_FALSE(FileAssociation::isInstalled());
        QFile file(m_system.filePath(QString::fromLatin1(name)));
        QDir().mkpath(QFileInfo(file).path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    EXPECT_TRUE(glosaria().registerType());
    EXPECT_TRUE(QDir(m_user.path()).isEmpty());
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
