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
        for (const auto &[name, folder] :
             {std::pair("XDG_DATA_HOME", &user), {"XDG_DATA_DIRS", &system}, {"PATH", &tools}})
            qputenv(name, folder->path().toUtf8());
    }
    ~FileAssociationTest() override { qputenv("PATH", path); }

    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir user, system, tools;
};

TEST_F(FileAssociationTest, DesktopLearnsTypeIconsAndProgram)
{
    const QString log = writeFile(tools.filePath("calls"), "");
    ASSERT_TRUE(glosaria().registerType());
    for (int i = 0; i < 4000 && readFile(log).count('\n') < 3; ++i)
        QThread::msleep(5);
    ASSERT_TRUE(glosaria().registerType()); // nothing has changed
    QStringList calls = QString(readFile(log)).split('\n', Qt::SkipEmptyParts);
    calls.sort();
    EXPECT_EQ(calls.join(", "), QString("update-desktop-database %1/applications, update-mime-database %1/mime, "
                                        "xdg-mime default glosaria.desktop application/x-glosaria")
                                    .arg(user.path()));
    const QString icons = user.filePath("icons/hicolor/scalable/");
    EXPECT_EQ(readFile(icons + "apps/glosaria.svg") + readFile(icons + "mimetypes/application-x-glosaria.svg"),
              "<svg>program</svg><svg>file</svg>");
    EXPECT_EQ(readFile(user.filePath("applications/glosaria.desktop")), glosaria().userEntry());
    EXPECT_EQ(QMimeDatabase().mimeTypeForFile("x.gla", QMimeDatabase::MatchExtension).name(), "application/x-glosaria");
    EXPECT_TRUE(packaged("glosaria.desktop").contains("\nMimeType=application/x-glosaria;\n"));
}

TEST_F(FileAssociationTest, InstalledPackageComesFirst)
{
    for (const auto &[program, broken] : {std::pair("/bin/sh", false), {"/missing\\it", true}}) {
        ASSERT_TRUE(glosaria(program).registerType());
        EXPECT_EQ(FileAssociation::isBroken(), broken) << program;
    }
    for (const QString name : {"mime/packages/glosaria.xml", "applications/glosaria.desktop"}) {
        EXPECT_FALSE(FileAssociation::isInstalled());
        QDir(system.path()).mkpath(name.section('/', 0, -2));
        writeFile(system.filePath(name), "");
    }
    for (const char *attempt : {"gives way", "is not written again"}) {
        EXPECT_TRUE(glosaria().registerType());
        EXPECT_FALSE(QFile::exists(user.filePath("applications/glosaria.desktop"))) << attempt;
    }
}

TEST(FileAssociation, ProgramPathIsQuoted)
{
    for (const auto &[path, exec] : {std::pair("/opt/my programs/glosaria", R"("/opt/my programs/glosaria" %f)"),
                                     {"/opt/100%/glosaria", R"("/opt/100%%/glosaria" %f)"},
                                     {"/a\"b$c`d/glosaria", R"("/a\\"b\\$c\\`d/glosaria" %f)"},
                                     {"/a\\b/%1/glosaria", R"("/a\\\\b/%%1/glosaria" %f)"}})
        EXPECT_TRUE(glosaria(path).userEntry().contains(QByteArray("\nExec=").append(exec).append('\n'))) << path;
}
