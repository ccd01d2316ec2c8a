#include "services/help/rules/HelpBook.h"
#include "services/help/rules/HelpSearch.h"
#include "services/rules/CellText.h"
#include "services/rules/ClipText.h"
#include "services/rules/LanguageNames.h"
#include "services/rules/LetterCount.h"
#include "services/rules/QuotedText.h"
#include "services/rules/SortOrder.h"
#include "services/rules/TextDigits.h"
#include "services/settings/clsMRUFileList.h"

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
    const int top = with[0] == "falling" ? 1 : 3;
    std::vector<int> columns;
    for (const QChar column : with[3])
        columns.push_back(column.digitValue());
    const auto rule = SortOrder::Rule(QStringList{"generic", "numeric", "nocase", "string"}.indexOf(with[2]));
    QStringList result;
    for (const int row :
         SortOrder::sortedRows([&](int row, int col) { return all[row - top].section(':', col - 1, col - 1); },
                               {top, top + int(all.size()) - 1, columns, with[0] == "falling", QLocale(with[1]), rule}))
        result += all[row - top];
    return result.join('|');
}

/// Those of the languages in the order of all.
QString listed(const QStringList &with, const QString &text)
{
    QStringList names = LanguageNames(with.value(1), LanguageNames::InList).all();
    names.removeIf([wanted = text.split(", ")](const QString &name) { return !wanted.contains(name); });
    return names.join(", ");
}

QString inDigits(const QStringList &with, const QString &text)
{
    QLocale::setDefault(QLocale(with[1]));
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    const QString shown = with[0] == "number" ? TextDigits::numbers().toString(text.toDouble())
                          : with[0] == "date" ? TextDigits::date(time.date(), with.value(2))
                                              : TextDigits::time(time);
    QLocale::setDefault(QLocale::c());
    return shown;
}

/// Files that were opened one after the other, in a menu whose letters are ten pixels wide.
QString recent(const QStringList &with, const QString &text)
{
    clsMRUFileList list([](const QString &shown) { return int(shown.size()) * 10; });
    QStringList files;
    for (const QString &path : text.split(' ', Qt::SkipEmptyParts))
        list.AddFile(path);
    for (int i = 1; i <= list.FileCount(); ++i)
        files += list.File(i);
    return with[0] == "caption" ? list.MenuCaption(1) : files.join(' ');
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
    {"rising", sorted},
    {"falling", sorted},
    {"isNumber", [](auto &, auto &text) { return QString(SortOrder::isNumber(text, u',') ? "yes" : "no"); }},
    {"listed", listed},
    {"entry",
     [](auto &with, auto &text) { return LanguageNames(with.value(1), LanguageNames::InList).translated(text); }},
    {"within", [](auto &with, auto &text) { return LanguageNames(with[1]).translated(text); }},
    {"named", [](auto &with, auto &text) { return LanguageNames(with[1]).of(text.toLatin1()); }},
    {"number", inDigits},
    {"date", inDigits},
    {"time", inDigits},
    {"caption", recent},
    {"recent", recent},
    {"search", searched},
    {"page", [](auto &with, auto &text) { return translatedPage(text, with[1]); }},
    {"title", [](auto &, auto &text) { return titleOfPage(text.toUtf8()); }}};

/// "NAME WORDS: TEXT = WHAT COMES OF IT", with control characters and outer blanks by their pictures from U+2400 on,
/// and the separators of lines and paragraphs as U+2424 and U+2425.
TEST(Rules, MakeOfTextsWhatTheTableSays)
{
    for (QString line :
         QString(readFile(SOURCE_FOLDER "/tests/services/rules/rules.txt")).split('\n', Qt::SkipEmptyParts)) {
        const std::string written = line.toStdString();
        for (QChar &c : line) {
            if (c >= u'\u2400' && c <= u'\u2425')
                c = QChar(c.unicode() - (c < u'\u2424' ? 0x2400 : 0x2424 - QChar::LineSeparator));
        }
        const qsizetype colon = line.indexOf(": "), equals = line.lastIndexOf(" =");
        const QStringList words = line.left(colon).split(' ');
        EXPECT_EQ(Rules.at(words[0])(words, line.mid(colon + 2, equals - colon - 2)).toStdString(),
                  line.mid(equals + 3).toStdString())
            << written;
    }
    EXPECT_TRUE(SortOrder::sortedRows({}, {5, 3, {1}, false, QLocale()}).empty());
}
