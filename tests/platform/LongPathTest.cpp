#include "platform/files/LongPath.h"

namespace {

/// A disk on which letter case does not count.
QString onOldDisk(const QString &folder, const QString &name)
{
    const QString wanted = folder + QLatin1Char('/') + name;
    for (const char *path : {"/Disk", "/Disk/.hidden", "/Disk/Program Files", "/Disk/Program Files/My Words.gla"}) {
        if (wanted.compare(QLatin1String(path), Qt::CaseInsensitive) == 0)
            return QString::fromLatin1(path).section(QLatin1Char('/'), -1);
    }
    return QString();
}

} // namespace

TEST(LongPath, EveryComponentIsSpelledAsListed)
{
    const char *const cases[][2] = {{"/disk/program files/MY WORDS.GLA", "/Disk/Program Files/My Words.gla"},
                                    {"//DISK//./program files/", "/Disk/Program Files"},
                                    {"/disk/program files/../.HIDDEN", "/Disk/.hidden"},
                                    {"/../../disk", "/Disk"},
                                    {"/", "/"},
                                    {"/disk/missing/a.gla", ""},
                                    {"/disk/program files/my words.gla/a.gla", ""},
                                    {"disk/.hidden", ""},
                                    {"", ""}};
    for (const auto &[path, expected] : cases)
        EXPECT_EQ(LongPath::ExpandLongPath(QString::fromUtf8(path), onOldDisk).toStdString(), expected);
}
