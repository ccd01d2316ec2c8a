#include "services/help/rules/HelpSearch.h"

#include <QRegularExpression>

namespace {

/// A page whose title holds a word counts as if it named the word this often.
constexpr int TitleWeight = 1000;

/// The words of a text without case and accents.
QStringList wordsOf(const QString &text)
{
    static const QRegularExpression marks(QStringLiteral("\\p{M}"));
    static const QRegularExpression between(QStringLiteral("[^\\p{L}\\p{N}]+"));
    QString plain = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    return plain.remove(marks).split(between, Qt::SkipEmptyParts);
}

int countOf(const QString &beginning, const QStringList &words)
{
    const bool anywhere = HelpSearch::standsWithoutBlanks(beginning);
    return int(std::count_if(words.begin(), words.end(), [&](const QString &word) {
        return anywhere ? word.contains(beginning) : word.startsWith(beginning);
    }));
}

} // namespace

bool HelpSearch::standsWithoutBlanks(const QString &word)
{
    return std::any_of(word.begin(), word.end(), [](QChar letter) {
        const QChar::Script script = letter.script();
        return script == QChar::Script_Han || script == QChar::Script_Hiragana || script == QChar::Script_Katakana;
    });
}

void HelpSearch::addPage(const QString &page, const QString &title, const QString &text)
{
    m_pages.push_back({{page, title}, wordsOf(title), wordsOf(text)});
}

std::vector<HelpSearch::Hit> HelpSearch::find(const QString &query) const
{
    const QStringList wanted = wordsOf(query);
    std::vector<std::pair<int, const Page *>> found;
    for (const Page &page : m_pages) {
        int weight = 0;
        const bool all = std::all_of(wanted.begin(), wanted.end(), [&page, &weight](const QString &word) {
            const int count = TitleWeight * countOf(word, page.titleWords) + countOf(word, page.words);
            weight += count;
            return count > 0;
        });
        if (all && weight > 0)
            found.emplace_back(weight, &page);
    }
    std::stable_sort(found.begin(), found.end(), [](const auto &a, const auto &b) { return a.first > b.first; });
    std::vector<Hit> hits;
    hits.reserve(found.size());
    for (const auto &[weight, page] : found)
        hits.push_back(page->hit);
    return hits;
}
