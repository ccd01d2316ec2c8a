#include "platform/files/LongPath.h"

/// A disk on which letter case does not count.
QString onOldDisk(const QString &folder, const QString &name)
{
    for (const QString path : {"/Disk", "/Disk/.hidden", "/Disk/Program Files", "/Disk/Program Files/My Words.gla"}) {
        if (path.compare(folder + '/' + name, Qt::CaseInsensitive) == 0)
            return path.section('/', -1);
    }
    return {};
}

TEST(LongPath, EveryComponentIsSpelledAsListed)
{
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
