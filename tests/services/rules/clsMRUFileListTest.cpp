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

TEST_F(MRUFileListTest, NewestFirstWithoutDoubles)
{
    for (const auto &[added, expected] :
         {std::pair("", ""), {"A B C D E", "E D C B"}, {"A B C D b", "b D C A"}, {"A B b", "b A"}})
        EXPECT_EQ(filesOf(with(added)), expected) << added;
}

TEST_F(MRUFileListTest, CaptionShortensTheMiddleOfThePath)
{
    const QString cases =
        "/a/exactly_20_px.g = /a/exactly_20_px.g; /a/one_letter_more.g = /a/one_letter_more.g; /abcd/one_letter_mo = "
        "/.../one_letter_mo; /home/anna/words/french.gla = /hom.../french.gla; /a/b/c&d/e/f/g/h/x&y.gla = "
        "/a/b/c&&.../x&&y.gla; /folder/a_name_wider_than_the_menu.gla = .../a_name_wider_than_the_menu.gla; "
        "no_folder_but_a_long_name.gla = no_folder_but_a_long_name.gla; /ab/long_in_a_short_one = "
        "/ab/long_in_a_short_one; "
        "/ab\U0001F600\U0001F600\U0001F600\U0001F600/words.gla = /ab\U0001F600.../words.gla; "
        "/abc\U0001F600\U0001F600\U0001F600\U0001F600/words.gla = /abc.../words.gla";
    for (const QString &each : cases.split("; "))
        EXPECT_EQ(with(each.section(" = ", 0, 0)).MenuCaption(1), "&1 " + each.section(" = ", 1));
    EXPECT_EQ(with("/a" + QString(QChar::Null) + "b").MenuCaption(1), "&1 /a");
}

TEST_F(MRUFileListTest, SavedListComesBackAsFarAsItsNumbersCanBeTrusted)
{
    with("A B C D").Save(registry);
    with("E F").Save(registry);
    clsMRUFileList list = with("X Y Z");
    list.Load(registry);
    EXPECT_TRUE(filesOf(list) == "F E" && list.MaxFileCount() == 4);
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
