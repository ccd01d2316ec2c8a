#include "exchange/rules/Pairs.h"

#include "exchange/rules/cards/MarkupText.h"
#include "resources/StringTable.h"
#include "services/rules/CellText.h"
#include "services/rules/LanguageNames.h"

#include <QSet>

#include <array>

namespace {

constexpr int FirstLanguageId = 501;
constexpr int ColumnId = 14530;
constexpr int NamedColumnId = 14425;
constexpr qsizetype SampleRows = 1000;

/// The names of languages in English, in themselves and as the program has them, small.
const QSet<QString> &languages()
{
    static const QSet<QString> all = [] {
        QSet<QString> names{resText(FirstLanguageId).toLower(), resText(FirstLanguageId + 1).toLower()};
        const LanguageNames english(QStringLiteral("en"));
        for (const QByteArray &code : LanguageNames::codes()) {
            names += english.of(code).toLower();
            names += LanguageNames(QString::fromLatin1(code)).of(code).toLower();
        }
        names -= QString();
        return names;
    }();
    return all;
}

qsizetype firstRowWithWords(const TextTable &table)
{
    qsizetype row = 0;
    while (row < table.rows() && table.isBlank(row))
        ++row;
    return row;
}

bool isLanguage(QStringView text)
{
    return languages().contains(text.trimmed().toString().toLower());
}

bool hasWord(const TextTable &table, qsizetype row, const PairChoice &choice)
{
    return !table.isBlank(row, choice.first) || !table.isBlank(row, choice.second);
}

QString asWord(QString text)
{
    if (text.contains(QChar()))
        text.remove(QChar());
    return CellText::cleaned(text);
}

QString word(const TextTable &table, qsizetype row, int column, bool markup)
{
    const QStringView cell = table.cell(row, column);
    QString text = markup && (cell.contains(u'<') || cell.contains(u'&') || cell.contains(u'[') || cell.contains(u'{'))
                       ? MarkupText::plain(cell)
                       : cell.toString();
    return asWord(std::move(text));
}

Pairs::Pair pair(const TextTable &table, qsizetype row, const PairChoice &choice)
{
    return {word(table, row, choice.first, choice.markup), word(table, row, choice.second, choice.markup)};
}

void append(Vocabulary &vocabulary, Pairs::Pair &&pair)
{
    vocabulary.append(std::move(pair.first), std::move(pair.second));
}

/// Words of few letters come again and again, and each takes more memory for itself than for its letters: those that
/// are alike are kept once.
class ShortWords
{
public:
    QString shared(QString word)
    {
        if (word.size() > LongestWord)
            return word;
        QString &known = m_words[qHash(word) % m_words.size()];
        if (known != word)
            known = std::move(word);
        return known;
    }

private:
    static constexpr qsizetype LongestWord = 4;

    std::array<QString, 4096> m_words;
};

/// The first row below the names.
qsizetype firstRow(const TextTable &table, const PairChoice &choice)
{
    const qsizetype first = choice.names ? firstRowWithWords(table) + 1 : 0;
    return std::min(first, table.rows());
}

/// The rows that arrive.
template <typename Taker> void eachRow(const TextTable &table, const PairChoice &choice, qsizetype most, Taker taker)
{
    for (qsizetype row = firstRow(table, choice); row < table.rows() && most > 0; ++row) {
        if (hasWord(table, row, choice)) {
            taker(row);
            --most;
        }
    }
}

/// Columns of a sample that hold words, and no others than words.
std::vector<int> wordColumns(const TextTable &table)
{
    std::vector<int> columns;
    for (int column = 0; column < int(table.keptColumns()); ++column) {
        const auto &others = table.otherColumns;
        if (std::find(others.begin(), others.end(), column) != others.end())
            continue;
        bool any = false;
        for (qsizetype row = 0; row < std::min(table.rows(), SampleRows) && !any; ++row)
            any = !table.isBlank(row, column);
        if (any)
            columns.push_back(column);
    }
    return columns;
}

} // namespace

PairChoice Pairs::proposal(const TextTable &table, bool markup)
{
    PairChoice choice;
    const std::vector<int> columns = wordColumns(table);
    if (!columns.empty())
        choice.first = columns[0];
    choice.second = columns.size() > 1 ? columns[1] : choice.first + 1;
    choice.markup = markup;
    const qsizetype row = firstRowWithWords(table);
    choice.names = table.columnNames.isEmpty() && row < table.rows() && isLanguage(table.cell(row, choice.first)) &&
                   isLanguage(table.cell(row, choice.second));
    return choice;
}

Pairs::Count Pairs::count(const TextTable &table, const PairChoice &choice, qsizetype most)
{
    Count count;
    for (qsizetype row = firstRow(table, choice); row < table.rows(); ++row)
        ++(!hasWord(table, row, choice) ? count.dropped.blankRows
           : count.rows < most          ? count.rows
                                        : count.dropped.rowsBeyond);
    const std::vector<int> columns = wordColumns(table);
    count.dropped.columns =
        table.columns() - table.keptColumns() + std::count_if(columns.begin(), columns.end(), [&choice](int column) {
            return column != choice.first && column != choice.second;
        });
    count.dropped.missingResults = table.missingResults;
    return count;
}

Pairs::Pair Pairs::names(const TextTable &table, const PairChoice &choice)
{
    const qsizetype first = firstRow(table, choice);
    if (choice.names && first > 0)
        return pair(table, first - 1, choice);
    return {asWord(table.columnNames.value(choice.first)), asWord(table.columnNames.value(choice.second))};
}

void Pairs::each(const TextTable &table, const PairChoice &choice, qsizetype most,
                 const std::function<void(Pair &&)> &taker)
{
    eachRow(table, choice, most, [&](qsizetype row) { taker(pair(table, row, choice)); });
}

Vocabulary Pairs::take(const TextTable &table, const PairChoice &choice, qsizetype most)
{
    Vocabulary vocabulary;
    append(vocabulary, names(table, choice));
    each(table, choice, most, [&vocabulary](Pair &&pair) { append(vocabulary, std::move(pair)); });
    return vocabulary;
}

Vocabulary Pairs::takeAll(TextTable &&table, const PairChoice &choice)
{
    static constexpr qsizetype Most = Vocabulary::MostRows - 1;
    Vocabulary vocabulary;
    vocabulary.reserve(count(table, choice, Most).rows + 1);
    append(vocabulary, names(table, choice));
    ShortWords known;
    eachRow(table, choice, Most, [&](qsizetype row) {
        auto [first, second] = pair(table, row, choice);
        append(vocabulary, {known.shared(std::move(first)), known.shared(std::move(second))});
        table.forgetBefore(row);
    });
    return vocabulary;
}

QStringList Pairs::columnNames(const TextTable &table, bool names)
{
    QStringList all;
    const qsizetype row = firstRowWithWords(table);
    for (int column = 0; column < std::max<int>(2, int(table.keptColumns())); ++column) {
        QString name = table.columnNames.value(column);
        if (names && row < table.rows())
            name = table.cell(row, column).trimmed().toString();
        const QString number = resText(ColumnId).arg(column + 1);
        all += name.isEmpty() ? number : resText(NamedColumnId).arg(number, CellText::cleaned(name).left(40));
    }
    return all;
}
