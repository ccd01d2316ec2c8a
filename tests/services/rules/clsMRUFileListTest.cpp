#include "services/settings/clsMRUFileList.h"

#include "platform/registry/RegistryTree.h"
#include "services/settings/clsRegistry.h"

namespace {

int tenPixelsALetter(const QString &text)
{
    return int(text.size()) * 10;
}

std::string filesOf(const clsMRUFileList &list)
{
    QStringList files;
    for (int i = 1; i <= list.FileCount(); ++i)
        files += list.File(i);
    return files.join(QLatin1Char(' ')).toStdString();
}

clsMRUFileList listWith(const char *paths)
{
    clsMRUFileList list(tenPixelsALetter);
    for (const QString &path : QString::fromUtf8(paths).split(QLatin1Char(' '), Qt::SkipEmptyParts))
        list.AddFile(path);
    return list;
}

clsRegistry registryOf(RegistryStore &store)
{
    clsRegistry registry(store);
    registry.setSectionKey("Software\\Glosaria\\MRUFiles");
    registry.setValueType(RegistryType::Number);
    return registry;
}

} // namespace

TEST(MRUFileList, NewestFirstWithoutDoubles)
{
    const char *const cases[][2] = {
        {"", ""},
        {"A B C D E", "E D C B"},
        {"A B C D b", "b D C A"},
        {"A B C D a", "a D C B"},
        {"A B C D d", "d C B A"},
        {"A B b", "b A"},
    };
    for (const auto &[added, expected] : cases)
        EXPECT_EQ(filesOf(listWith(added)), expected) << added;
}

TEST(MRUFileList, CaptionShortensTheMiddleOfThePath)
{
    const char *const cases[][2] = {
        {"/a/exactly_20_px.g", "&1 /a/exactly_20_px.g"},
        {"/a/one_letter_more.g", "&1 /a/one_letter_more.g"},
        {"/abcd/one_letter_mo", "&1 /.../one_letter_mo"},
        {"/home/anna/words/french.gla", "&1 /hom.../french.gla"},
        {"/a/b/c&d/e/f/g/h/x&y.gla", "&1 /a/b/c&&.../x&&y.gla"},
        {"/folder/a_name_wider_than_the_menu.gla", "&1 .../a_name_wider_than_the_menu.gla"},
        {"no_folder_but_a_long_name.gla", "&1 no_folder_but_a_long_name.gla"},
        {"/ab\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600/words.gla", "&1 /ab\U0001F600.../words.gla"},
    };
    for (const auto &[path, caption] : cases)
        EXPECT_EQ(listWith(path).MenuCaption(1).toStdString(), caption);
}

TEST(MRUFileList, SavedListComesBack)
{
    RegistryTree store;
    clsRegistry registry = registryOf(store);
    listWith("A B C D").Save(registry);
    listWith("E F").Save(registry);
    clsMRUFileList list = listWith("X Y Z");
    list.Load(registry);
    EXPECT_EQ(filesOf(list), "F E");
    EXPECT_EQ(list.MaxFileCount(), 4);
    registry.setValueKey("File3");
    EXPECT_EQ(registry.Value(), QVariant("B"));
}

TEST(MRUFileList, StoredNumbersThatCannotBeTrusted)
{
    const int huge = std::numeric_limits<int>::max();
    const int cases[][3] = {
        {2, 4, 2}, {4, 3, 3}, {-1, 3, 0}, {4, -1, 0}, {huge, huge, clsMRUFileList::LargestCapacity}};
    for (const auto &[maxCount, count, expected] : cases) {
        RegistryTree store;
        clsRegistry registry = registryOf(store);
        registry.setValueKey("MaxCount");
        registry.setValue(maxCount);
        registry.setValueKey("Count");
        registry.setValue(count);
        clsMRUFileList list(tenPixelsALetter);
        list.Load(registry);
        EXPECT_EQ(list.FileCount(), expected);
        list.setMaxFileCount(2);
        list.AddFile("newest");
        EXPECT_EQ(list.FileCount(), std::min(expected + 1, 2));
    }
}
