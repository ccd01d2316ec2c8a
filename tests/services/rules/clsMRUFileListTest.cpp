#include "services/settings/clsMRUFileList.h"

#include "platform/registry/RegistryTree.h"
#include "services/settings/clsRegistry.h"

struct MRUFileListTest : ::testing::Test
{
    MRUFileListTest() { registry.setSectionKey("Files"); }
    /// A list in a menu whose letters are ten pixels wide.
    static clsMRUFileList with(const QString &paths)
    {
        clsMRUFileList list([](const QString &text) { return int(text.size()) * 10; });
        for (const QString &path : paths.split(' ', Qt::SkipEmptyParts))
            list.AddFile(path);
        return list;
    }
    static std::string filesOf(const clsMRUFileList &list)
    {
        QStringList files;
        for (int i = 1; i <= list.FileCount(); ++i)
            files += list.File(i);
        return files.join(' ').toStdString();
    }

    RegistryTree store;
    clsRegistry registry{store};
};

TEST_F(MRUFileListTest, SavedListComesBackAsFarAsItsNumbersCanBeTrusted)
{
    with("A B C D").Save(registry);
    with("E F").Save(registry);
    clsMRUFileList list = with("X Y Z");
    list.Load(registry);
    EXPECT_TRUE(filesOf(list) == "F E" && list.MaxFileCount() == 4);
    EXPECT_EQ(store.value(HKEY_CURRENT_USER, "Files", "Count")->type, RegistryType::Number);
    registry.setValueKey("File3");
    EXPECT_EQ(registry.Value(), QVariant("B"));
    const int cases[][3] = {
        {2, 4, 2}, {4, 3, 3}, {-1, 3, 0}, {4, -1, 0}, {INT_MAX, INT_MAX, clsMRUFileList::LargestCapacity}};
    for (const auto &[maxCount, count, expected] : cases) {
        for (const auto &[name, number] : {std::pair("MaxCount", maxCount), {"Count", count}})
            store.setValue(HKEY_CURRENT_USER, "Files", name, {RegistryType::Number, quint32(number)});
        list.Load(registry);
        EXPECT_EQ(list.FileCount(), expected);
        list.setMaxFileCount(2);
        list.AddFile("newest");
        EXPECT_EQ(list.FileCount(), std::min(expected + 1, 2));
    }
}
