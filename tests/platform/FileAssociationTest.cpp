#include "platform/FileAssociation.h"

#include "platform/UserFolders.h"
#include "support/ToolFolder.h"

#include <QDir>
#include <QMimeDatabase>

namespace {

FileAssociation glosaria(const QString &path = QStringLiteral("/opt/glosaria/glosaria"))
{
    return {path, QStringLiteral("Glosaria"), QStringLiteral("Words & <tags>"), "<svg>program</svg>",
            "<svg>file</svg>"};
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// A data folder of its own for the user, and one for the system.
class FileAssociationTest : public ::testing::Test
{
protected:
    FileAssociationTest()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_user.path()));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(m_system.path()));
    }
    ~FileAssociationTest() override
    {
        qputenv("XDG_DATA_HOME", m_home);
        qputenv("XDG_DATA_DIRS", m_dirs);
    }

    QByteArray m_home = qgetenv("XDG_DATA_HOME");
    QByteArray m_dirs = qgetenv("XDG_DATA_DIRS");
    QTemporaryDir m_user;
    QTemporaryDir m_system;
    ToolFolder m_tools;
};

} // namespace

TEST_F(FileAssociationTest, DesktopLearnsTypeIconAndProgram)
{
    for (const char *tool : {"update-mime-database", "update-desktop-database", "xdg-mime"})
        m_tools.addTool(QString::fromLatin1(tool));
    ASSERT_TRUE(glosaria().registerType());
    const QString mimeFolder = m_user.filePath(QStringLiteral("mime"));
    EXPECT_EQ(m_tools.calls(3),
              (QStringList{QStringLiteral("update-desktop-database ") + m_user.filePath(QStringLiteral("applications")),
                           QStringLiteral("update-mime-database ") + mimeFolder,
                           QStringLiteral("xdg-mime default glosaria.desktop application/x-glosaria")}));
    EXPECT_EQ(contentOf(m_user.filePath(QStringLiteral("icons/hicolor/scalable/apps/glosaria.svg"))),
              "<svg>program</svg>");
    EXPECT_EQ(contentOf(m_user.filePath(QStringLiteral("icons/hicolor/scalable/mimetypes/application-x-glosaria.svg"))),
              "<svg>file</svg>");
    EXPECT_TRUE(contentOf(m_user.filePath(QStringLiteral("applications/glosaria.desktop")))
                    .contains("\nExec=\"/opt/glosaria/glosaria\" %f\n"));
    const QMimeType type = QMimeDatabase().mimeTypeForFile(QStringLiteral("x.gla"), QMimeDatabase::MatchExtension);
    EXPECT_EQ(type.name(), FileAssociation::mimeType());
    EXPECT_EQ(type.comment(), QStringLiteral("Words & <tags>"));

    // The second time nothing has changed, until the program has moved.
    ASSERT_TRUE(glosaria().registerType());
    ASSERT_TRUE(glosaria(QStringLiteral("/usr/bin/glosaria")).registerType());
    EXPECT_EQ(m_tools.calls(6).size(), 6);
}

TEST_F(FileAssociationTest, WorksWithoutTheDesktopsTools)
{
    EXPECT_TRUE(glosaria().registerType());
    EXPECT_TRUE(QFile::exists(m_user.filePath(QStringLiteral("applications/glosaria.desktop"))));
}

TEST_F(FileAssociationTest, InstalledPackageComesFirst)
{
    for (const char *name : {"mime/packages/glosaria.xml", "applications/glosaria.desktop"}) {
        EXPECT_FALSE(FileAssociation::isInstalled());
        const QString path = m_system.filePath(QString::fromLatin1(name));
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    EXPECT_TRUE(FileAssociation::isInstalled());
    EXPECT_TRUE(glosaria().registerType());
    EXPECT_TRUE(QDir(m_user.path()).isEmpty());
}

TEST_F(FileAssociationTest, FailureIsReported)
{
    QFile inTheWay(m_user.filePath(QStringLiteral("applications")));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_FALSE(glosaria().registerType());
}

TEST(FileAssociation, ProgramPathIsQuoted)
{
    struct Case
    {
        const char *path;
        const char *exec;
    };
    const Case cases[] = {
        {"/opt/my programs/glosaria", R"("/opt/my programs/glosaria" %f)"},
        {"/opt/100%/glosaria", R"("/opt/100%%/glosaria" %f)"},
        {"/a\"b$c`d/glosaria", R"("/a\\"b\\$c\\`d/glosaria" %f)"},
        {"/a\\b/%1/glosaria", R"("/a\\\\b/%%1/glosaria" %f)"},
    };
    for (const Case &each : cases) {
        const QByteArray entry = glosaria(QString::fromUtf8(each.path)).desktopEntry();
        EXPECT_TRUE(entry.contains(QByteArray("\nExec=").append(each.exec).append('\n'))) << entry.constData();
    }
}
