#include "platform/LongPath.h"

#include <QDir>
#include <QFile>

#include <map>

namespace {

/// A disk on which letter case does not count.
QString onOldDisk(const QString &folder, const QString &name)
{
    static const std::map<QString, QStringList> Folders = {
        {QString(), {QStringLiteral("Disk")}},
        {QStringLiteral("/Disk"), {QStringLiteral("Program Files"), QStringLiteral(".hidden")}},
        {QStringLiteral("/Disk/Program Files"), {QStringLiteral("Words for school.gla")}},
    };
    const auto found = Folders.find(folder);
    const QStringList names = found == Folders.end() ? QStringList() : found->second;
    const auto entry = std::find_if(names.begin(), names.end(), [&name](const QString &candidate) {
        return candidate.compare(name, Qt::CaseInsensitive) == 0;
    });
    return entry == names.end() ? QString() : *entry;
}

} // namespace

TEST(LongPath, EveryComponentIsSpelledAsListed)
{
    struct Case
    {
        const char *path;
        const char *expected;
    };
    const Case cases[] = {
        {"/disk/program files/WORDS FOR SCHOOL.GLA", "/Disk/Program Files/Words for school.gla"},
        {"//DISK//./program files/", "/Disk/Program Files"},
        {"/disk/.hidden", "/Disk/.hidden"},
        {"/disk/program files/../.HIDDEN", "/Disk/.hidden"},
        {"/../../disk", "/Disk"},
        {"/", "/"},
        {"/disk/missing/a.gla", ""},
        {"/disk/program files/words for school.gla/a.gla", ""},
        {"disk/.hidden", ""},
        {"", ""},
    };
    for (const Case &each : cases)
        EXPECT_EQ(LongPath::ExpandLongPath(QString::fromUtf8(each.path), onOldDisk).toStdString(), each.expected);
}

TEST(LongPath, OnThisFileSystem)
{
    QTemporaryDir folder;
    const QDir root(QDir(folder.path()).canonicalPath());
    root.mkpath(QStringLiteral("deep/target"));
    ASSERT_TRUE(QFile::link(root.filePath(QStringLiteral("deep/target")), root.filePath(QStringLiteral("link"))));
    ASSERT_TRUE(QFile::link(QStringLiteral("nowhere"), root.filePath(QStringLiteral("dangling"))));
    for (const char *name : {"a\\b.gla", "List.gla", "deep/target/.x.gla"}) {
        QFile file(root.filePath(QString::fromUtf8(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    struct Case
    {
        const char *path;
        const char *expected; // null: does not exist
    };
    const Case cases[] = {
        {"a\\b.gla", "a\\b.gla"},       {"List.gla", "List.gla"}, {"missing.gla", nullptr},
        {"link/.x.gla", "link/.x.gla"}, {"dangling", "dangling"}, {"link/../target", "deep/target"},
        {"List.gla/x", nullptr},
    };
    for (const Case &each : cases) {
        const QString expected = each.expected ? root.filePath(QString::fromUtf8(each.expected)) : QString();
        EXPECT_EQ(LongPath::ExpandLongPath(root.filePath(QString::fromUtf8(each.path))), expected) << each.path;
    }
}
