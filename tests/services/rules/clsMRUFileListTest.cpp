#include "services/rules/clsMRUFileList.h"

#include "platform/RegistryTree.h"
#include "services/rules/clsRegistry.h"

namespace {

/// Every letter is ten pixels wide.
int tenPixelsALetter(const QString &text)
{
    return int(text.size()) * 10;
}

QStringList filesOf(const clsMRUFileList &list)
{
    QStringList files;
    for (int i = 1; i <= list.FileCount(); ++i)
        files += list.File(i);
    return files;
}

clsMRUFileList listWith(const QString &paths)
{
    clsMRUFileList list(tenPixelsALetter);
    for (const QString &path : paths.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        list.AddFile(path);
    return list;
}

clsRegistry registryOf(RegistryStore &store)
{
    clsRegistry registry(store);
    registry.setSectionKey(QStringLiteral("Software\\Glosaria\\MRUFiles"));
    return registry;
}

} // namespace

TEST(MRUFileList, NewestFirstWithoutDoubles)
{
    struct Case
    {
        const char *added;
        const char *expected;
    };
    const Case cases[] = {
        {"", ""},
        {"A", "A"},
        {"A B C D E", "E D C B"},
        {"A B C D b", "b D C A"},
        {"A B C D a", "a D C B"},
        {"A B C D d", "d C B A"},
        {"A B b", "b A"},
    };
    for (const Case &each : cases)
        EXPECT_EQ(filesOf(listWith(QLatin1String(each.added))).join(QLatin1Char(' ')), QLatin1String(each.expected))
            << each.added;
}

TEST(MRUFileList, CapacityBoundsTheList)
{
    clsMRUFileList list = listWith(QStringLiteral("A B C D"));
    list.setMaxFileCount(2);
    EXPECT_EQ(filesOf(list), (QStringList{QStringLiteral("D"), QStringLiteral("C")}));
    EXPECT_FALSE(list.FileExists(0) || list.FileExists(3));
    list.setMaxFileCount(-5);
    list.AddFile(QStringLiteral("E"));
    EXPECT_EQ(list.FileCount(), 0);
}

TEST(MRUFileList, CaptionShortensTheMiddleOfThePath)
{
    struct Case
    {
        const char *path;
        const char *caption;
    };
    const Case cases[] = {
        {"/a/exactly_20_px.g", "&1 /a/exactly_20_px.g"},
        {"/a/one_letter_more.g", "&1 /a/one_letter_more.g"},
        {"/abcd/one_letter_mo", "&1 /.../one_letter_mo"},
        {"/home/anna/words/french.gla", "&1 /hom.../french.gla"},
        {"/home/anna/words/fr.gla", "&1 /home/an.../fr.gla"},
        {"/a/b/c&d/e/f/g/h/x&y.gla", "&1 /a/b/c&&.../x&&y.gla"},
        {"/folder/a_name_wider_than_the_menu.gla", "&1 .../a_name_wider_than_the_menu.gla"},
        {"/a_name_wider_than_the_menu.gla", "&1 /a_name_wider_than_the_menu.gla"},
        {"no_folder_but_a_long_name.gla", "&1 no_folder_but_a_long_name.gla"},
    };
    for (const Case &each : cases)
        EXPECT_EQ(listWith(QString::fromUtf8(each.path)).MenuCaption(1).toStdString(), each.caption);
    const QString twoUnits = QString::fromUtf8("/\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600/f.gla");
    EXPECT_TRUE(listWith(twoUnits + twoUnits).MenuCaption(1).isValidUtf16());
}

TEST(MRUFileList, SavedListComesBack)
{
    RegistryTree store;
    clsRegistry registry = registryOf(store);
    listWith(QStringLiteral("A B C D")).Save(registry);
    listWith(QStringLiteral("E F")).Save(registry);
    clsMRUFileList list = listWith(QStringLiteral("X Y Z"));
    list.Load(registry);
    EXPECT_EQ(filesOf(list), (QStringList{QStringLiteral("F"), QStringLiteral("E")}));
    EXPECT_EQ(list.MaxFileCount(), 4);
    registry.setValueKey(QStringLiteral("File3"));
    EXPECT_EQ(registry.Value(), QVariant(QStringLiteral("B")));
}

TEST(MRUFileList, StoredNumbersThatCannotBeTrusted)
{
    struct Case
    {
        QVariant maxCount;
        QVariant count;
        int expected;
    };
    const Case cases[] = {
        {2, 4, 2},
        {4, 3, 3},
        {9, 9, 9},
        {-1, 3, 0},
        {4, -1, 0},
        {0, 2, 0},
        {2147483647, 2147483647, clsMRUFileList::LargestCapacity},
    };
    for (const Case &each : cases) {
        RegistryTree store;
        clsRegistry registry = registryOf(store);
        listWith(QStringLiteral("A B C D")).Save(registry);
        registry.setValueType(RegistryType::Number);
        registry.setValueKey(QStringLiteral("MaxCount"));
        registry.setValue(each.maxCount);
        registry.setValueKey(QStringLiteral("Count"));
        registry.setValue(each.count);
        clsMRUFileList list(tenPixelsALetter);
        list.Load(registry);
        EXPECT_EQ(list.FileCount(), each.expected);
        list.setMaxFileCount(4);
        EXPECT_LE(list.FileCount(), 4);
    }
}
