#include "platform/registry/RegistryTree.h"
#include "services/help/rules/HelpBook.h"
#include "services/help/rules/HelpFavorites.h"
#include "services/help/rules/HelpSearch.h"
#include "services/rules/CellText.h"
#include "services/rules/ClipText.h"
#include "services/rules/LanguageNames.h"
#include "services/rules/LetterCount.h"
#include "services/rules/QuotedText.h"
#include "services/rules/SortOrder.h"
#include "services/rules/TextDigits.h"
#include "services/settings/clsMRUFileList.h"
#include "services/settings/clsRegistry.h"

/// What the rules make of a text, with the words that follow their name in rules.txt.
using Rule = QString (*)(const QStringList &with, const QString &text);

QString pasted(const QStringList &, const QString &text)
{
    QStringList rows;
    for (const ClipText::Row &row : ClipText::parse(text))
        rows += QStringList(row.begin(), row.end()).join('|');
    return rows.join('/');
}

QString letters(const QStringList &with, const QString &text)
{
    LetterCount count;
    for (const QString &word : text.split(' '))
        count.add(word);
    return count.mostFrequent(with[2].toInt(), QLocale(with[1])).join(' ');
}

/// Rows between bars, with their cells between colons.
QString sorted(const QStringList &with, const QString &text)
{
    const QStringList all = text.split('|');
    const bool falls = with[1] == "falling";
    const int top = falls ? 1 : 3;
    std::vector<int> columns;
    for (const QChar column : with[4])
        columns.push_back(column.digitValue());
    const auto rule = SortOrder::Rule(QStringList{"generic", "numeric", "nocase", "string"}.indexOf(with[3]));
    const auto cell = [&](int row, int col) { return all[row - top].section(':', col - 1, col - 1); };
    QStringList result;
    for (const int row :
         SortOrder::sortedRows(cell, {top, top + int(all.size()) - 1, columns, falls, QLocale(with[2]), rule}))
        result += all[row - top];
    return result.join('|');
}

/// The text in another language, or several names in the order of its list.
QString languages(const QStringList &with, const QString &text)
{
    const LanguageNames names(with.value(2), with[1] == "within" ? LanguageNames::InText : LanguageNames::InList);
    if (with[1] != "listed")
        return with[1] == "named" ? names.of(text.toLatin1()) : names.translated(text);
    QStringList all = names.all();
    all.removeIf([wanted = text.split(", ")](const QString &name) { return !wanted.contains(name); });
    return all.join(", ");
}

QString digits(const QStringList &with, const QString &text)
{
    QLocale::setDefault(QLocale(with[2]));
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    const QString shown = with[1] == "number" ? TextDigits::numbers().toString(text.toDouble())
                          : with[1] == "date" ? TextDigits::date(time.date(), with.value(3))
                                              : TextDigits::time(time);
    QLocale::setDefault(QLocale::c());
    return shown;
}

/// A list of files that were opened one after the other, in a menu whose letters are ten pixels wide.
clsMRUFileList opened(const QString &files)
{
    clsMRUFileList list([](const QString &shown) { return int(shown.size()) * 10; });
    for (const QString &path : files.split(' ', Qt::SkipEmptyParts))
        list.AddFile(path);
    return list;
}

QString namesOf(const clsMRUFileList &list)
{
    QStringList files;
    for (int i = 1; i <= list.FileCount(); ++i)
        files += list.File(i);
    return files.join(' ');
}

QString searched(const QStringList &, const QString &text)
{
    HelpSearch search;
    search.addPage("a", "Sort", "Words in the order of the alphabet");
    search.addPage("c", "学习", "打开测验。");
    search.addPage("b", "Accents", "Type café and other words, sort them, sorted and sorting");
    search.addPage("d", "ひらがな", "とカタカナ");
    QString found;
    for (const HelpSearch::Hit &hit : search.find(text))
        found += hit.page;
    return found;
}

const std::map<QString, Rule> Rules = {
    {"cleaned", [](auto &, auto &text) { return CellText::cleaned(text); }},
    {"quoted", [](auto &, auto &text) { return quoted(text); }},
    {"emptied", [](auto &with, auto &) { return ClipText::emptyClip(with[1].toInt(), with[2].toInt()); }},
    {"pasted", pasted},
    {"letters", letters},
    {"sorted", sorted},
    {"isNumber", [](auto &, auto &text) { return QString(SortOrder::isNumber(text, u',') ? "yes" : "no"); }},
    {"languages", languages},
    {"digits", digits},
    {"files",
     [](auto &with, auto &text) { return with[1] == "caption" ? opened(text).MenuCaption(1) : namesOf(opened(text)); }},
    {"search", searched},
    {"topic", [](auto &with, auto &text) { return parseHelpContexts(text.toUtf8()).value(with[1].toInt()); }},
};

/// "NAME WORDS: TEXT = WHAT COMES OF IT", with control characters and outer blanks by their pictures from U+2400 on,
/// and the separators of lines and paragraphs as U+2424 and U+2425.
TEST(Rules, MakeOfTextsWhatTheTableSays)
{
    for (QString line :
         QString(readFile(SOURCE_FOLDER "/tests/services/rules/rules.txt")).split('\n', Qt::SkipEmptyParts)) {
        for (QChar &c : line) {
            if (c >= u'\u2400' && c <= u'\u2425')
                c = QChar(c.unicode() - (c < u'\u2424' ? 0x2400 : 0x2424 - QChar::LineSeparator));
        }
        const qsizetype colon = line.indexOf(": "), equals = line.lastIndexOf(" =");
        const QStringList words = line.left(colon).split(' ');
        EXPECT_EQ(Rules.at(words[0])(words, line.mid(colon + 2, equals - colon - 2)).toStdString(),
                  line.mid(equals + 3).toStdString())
            << words[0].toStdString();
    }
}

TEST(RecentFiles, SavedListComesBackAsFarAsItsNumbersCanBeTrusted)
{
    RegistryTree store;
    clsRegistry registry(store);
    registry.setSectionKey("Files");
    opened("A B C D").Save(registry);
    opened("E F").Save(registry);
    clsMRUFileList list = opened("X Y Z");
    list.Load(registry);
    EXPECT_TRUE(namesOf(list) == "F E" && list.MaxFileCount() == 4);
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

TEST(HelpFavorites, StandInTheirFileOnceEach)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("new/favorites");
    HelpFavorites favorites(path);
    for (const char *page : {"a", "b", "a"})
        favorites.add(page);
    EXPECT_EQ(HelpFavorites(path).pages() + favorites.pages(), (QStringList{"a", "b", "a", "b"}));
    favorites.remove("a");
    EXPECT_EQ(readFile(path), "b\n");
    QFile::remove(path);
    favorites.remove("a");
    EXPECT_FALSE(QFile::exists(path)) << "nothing has changed";
    writeFile(path, "x\r\n\ny \nx\n");
    EXPECT_EQ(HelpFavorites(path).pages(), (QStringList{"x", "y"}));
}
