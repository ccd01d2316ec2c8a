#include "platform/FileAssociation.h"

QByteArray packaged(const char *name)
{
    return readFile(QStringLiteral(SOURCE_FOLDER "/src/resources/desktop/") + name);
}

FileAssociation glosaria(const char *path = "/bin/sh")
{
    return {QString::fromUtf8(path), packaged("glosaria.desktop"), packaged("glosaria.xml"), "<svg>program</svg>",
            "<svg>file</svg>"};
}

/// Folders for the data of the user and of the system, and a desktop whose tools write down how they are called.
struct FileAssociationTest : ::testing::Test
{
    FileAssociationTest()
    {
        for (const char *name : {"update-mime-database", "update-desktop-database", "xdg-mime"}) {
            const QString tool = writeFile(tools.filePath(name), "#!/bin/sh\necho ${0##*/} $* >> ${0%/*}/calls\n");
            QFile::setPermissions(tool, QFile::ReadOwner | QFile::ExeOwner);
        }
        qputenv("XDG_DATA_HOME", QFile::encodeName(user.path()));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(system.path()));
        qputenv("PATH", QFile::encodeName(tools.path()));
    }
    ~FileAssociationTest() override { qputenv("PATH", path); }

    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir user, system, tools;
};

TEST_F(FileAssociationTest, DesktopLearnsTypeIconsAndProgram)
{
    ASSERT_TRUE(glosaria().registerType());
    for (const char *name : {"icons/hicolor/scalable/apps/glosaria.svg", "applications/glosaria.desktop",
                             "icons/hicolor/scalable/mimetypes/application-x-glosaria.svg"})
        EXPECT_GT(QFileInfo(user.filePath(name)).size(), 0) << name;
    QStringList calls;
    for (int i = 0; i < 4000 && calls.size() < 3; ++i, QThread::msleep(5)) {
        const QString log = tools.filePath("calls");
        calls = QFile::exists(log) ? QString(readFile(log)).split('\n', Qt::SkipEmptyParts) : calls;
    }
    calls.sort();
    EXPECT_EQ(calls.join(", "), QString("update-desktop-database %1/applications, update-mime-database %1/mime, "
                                        "xdg-mime default glosaria.desktop application/x-glosaria")
                                    .arg(user.path()));
    ASSERT_TRUE(glosaria().registerType());
    EXPECT_EQ(readFile(tools.filePath("calls")).count('\n'), 3) << "nothing has changed";
    const QMimeType type = QMimeDatabase().mimeTypeForFile("x.gla", QMimeDatabase::MatchExtension);
    EXPECT_EQ(type.name(), FileAssociation::mimeType());
    EXPECT_TRUE(packaged("glosaria.desktop").split('\n').contains("MimeType=" + type.name().toUtf8() + ';'));
}

TEST_F(FileAssociationTest, InstalledPackageComesFirst)
{
    for (const auto &[program, broken] : {std::pair("/bin/sh", false), std::pair("/missing\\it", true)}) {
        ASSERT_TRUE(glosaria(program).registerType());
        EXPECT_EQ(FileAssociation::isBroken(), broken) << program;
    }
    for (const char *name : {"mime/packages/glosaria.xml", "applications/glosaria.desktop"}) {
        EXPECT_FALSE(FileAssociation::isInstalled());
        QDir(system.path()).mkpath(QFileInfo(name).path());
        writeFile(system.filePath(name), "");
    }
    for (const char *attempt : {"gives way", "is not written again"}) {
        EXPECT_TRUE(glosaria().registerType());
        EXPECT_FALSE(QFile::exists(user.filePath("applications/glosaria.desktop"))) << attempt;
    }
}

TEST(FileAssociation, ProgramPathIsQuoted)
{
    const char *const cases[][2] = {{"/opt/my programs/glosaria", R"("/opt/my programs/glosaria" %f)"},
                                    {"/opt/100%/glosaria", R"("/opt/100%%/glosaria" %f)"},
                                    {"/a\"b$c`d/glosaria", R"("/a\\"b\\$c\\`d/glosaria" %f)"},
                                    {"/a\\b/%1/glosaria", R"("/a\\\\b/%%1/glosaria" %f)"}};
    for (const auto &[path, exec] : cases)
        EXPECT_TRUE(glosaria(path).userEntry().contains(QByteArray("\nExec=").append(exec).append('\n'))) << path;
}
