// Sort, Find and Replace All over the words of a vocabulary, each beside a bare counterpart over the same strings: a
// stable sort by collation keys, a loop that looks into every string, a loop that replaces in every string. Then the
// same commands, and Paste, in a document window, where undo, row heights and the grid are part of the work.

#include "support/SampleVocabulary.h"

#include "document/EditCommands.h"
#include "document/GridContent.h"
#include "document/ctlGrid.h"
#include "document/frmDoc.h"
#include "platform/registry/RegistryTree.h"
#include "services/rules/ProgramFlags.h"
#include "services/rules/SortOrder.h"
#include "services/settings/clsAppProperties.h"
#include "services/status/modSBFunc.h"
#include "tools/DocumentCells.h"
#include "tools/modSorting.h"
#include "tools/rules/ReplaceAll.h"
#include "tools/rules/SortFlag.h"
#include "tools/rules/VocabularyCheck.h"

#include <QApplication>
#include <QClipboard>
#include <QCollator>

#include <algorithm>
#include <numeric>

namespace {

const QLocale Locale(QLocale::German, QLocale::Germany);

/// The words of a sample vocabulary without a grid.
class SampleCells : public CellStore
{
public:
    explicit SampleCells(qsizetype pairs)
        : m_words(SampleVocabulary::make(pairs))
    {
    }
    int Rows() const override { return int(m_words.rows()); }
    QString TextMatrix(int row, int col) const override { return column(col)[size_t(row)]; }
    void setTextMatrix(int row, int col, const QString &text) override
    {
        (col == 1 ? m_words.first : m_words.second)[size_t(row)] = text;
    }
    const std::vector<QString> &column(int col) const { return col == 1 ? m_words.first : m_words.second; }

private:
    Vocabulary m_words;
};

/// A document window with a sample vocabulary.
struct SampleDocument
{
    explicit SampleDocument(qsizetype pairs)
    {
        document.setUpGrid({800, 600});
        GridContent::fill(*document.Rutor(), SampleVocabulary::make(pairs));
        document.showDocument();
    }

    ProgramFlags flags;
    UndoRecord undo;
    modSBFunc status{flags};
    RegistryTree store;
    clsAppProperties settings{store, QString()};
    frmDoc document{{flags, undo, status, settings}};
};

Search searchFor(const QString &what)
{
    Search search;
    search.SearchFlags = SearchFlag::WholeDocument;
    search.FindWhat = what;
    return search;
}

const QString Missing = QStringLiteral("q-q");
const QString Frequent = QStringLiteral("e");
const QString Other = QStringLiteral("xy");

void sort(benchmark::State &state)
{
    const SampleCells cells(state.range(0));
    const auto text = [&cells](int row, int col) { return cells.TextMatrix(row, col); };
    for (auto _ : state) {
        auto order = SortOrder::sortedRows(text, {1, cells.Rows() - 1, {1}, false, Locale});
        benchmark::DoNotOptimize(order);
    }
}

void bareSort(benchmark::State &state)
{
    const SampleCells cells(state.range(0));
    const std::vector<QString> &texts = cells.column(1);
    for (auto _ : state) {
        const QCollator collator(Locale);
        std::vector<QCollatorSortKey> keys;
        keys.reserve(texts.size());
        for (const QString &text : texts)
            keys.push_back(collator.sortKey(text));
        std::vector<int> order(texts.size());
        std::iota(order.begin(), order.end(), 0);
        std::stable_sort(order.begin(), order.end(),
                         [&](int a, int b) { return keys[size_t(a)].compare(keys[size_t(b)]) < 0; });
        benchmark::DoNotOptimize(order);
    }
}

void find(benchmark::State &state)
{
    const SampleCells cells(state.range(0));
    for (auto _ : state) {
        Search search = searchFor(Missing);
        auto match = search.FindNext(cells);
        benchmark::DoNotOptimize(match);
    }
}

void bareFind(benchmark::State &state)
{
    const SampleCells cells(state.range(0));
    for (auto _ : state) {
        qsizetype found = 0;
        for (const int col : {1, 2}) {
            for (const QString &text : cells.column(col))
                found += text.contains(Missing, Qt::CaseInsensitive);
        }
        benchmark::DoNotOptimize(found);
    }
}

void replaceAll(benchmark::State &state)
{
    const SampleCells original(state.range(0));
    for (auto _ : state) {
        SampleCells cells = original;
        int count = ReplaceAll(searchFor(Frequent), Other).run(cells).count;
        benchmark::DoNotOptimize(count);
    }
}

void bareReplaceAll(benchmark::State &state)
{
    const SampleCells original(state.range(0));
    for (auto _ : state) {
        std::vector<QString> columns[] = {original.column(1), original.column(2)};
        for (std::vector<QString> &column : columns) {
            for (QString &text : column)
                text.replace(Frequent, Other, Qt::CaseInsensitive);
        }
        benchmark::DoNotOptimize(columns);
    }
}

void sortInDocument(benchmark::State &state)
{
    SampleDocument sample(state.range(0));
    for (auto _ : state) {
        for (const int direction : {SortFlag::Ascending, SortFlag::Descending})
            modSorting::sortBy(SortFlag::Language1 | direction | SortFlag::Vocabulary, sample.document, sample.undo,
                               Locale);
    }
}

/// There and back: what is replaced is there again for the next round.
void replaceAllInDocument(benchmark::State &state)
{
    SampleDocument sample(state.range(0));
    ctlGrid &grid = *sample.document.Rutor();
    for (auto _ : state) {
        for (const auto &[what, with] : {std::pair(Frequent, QStringLiteral("#")), {QStringLiteral("#"), Frequent}}) {
            grid.setRedraw(false);
            DocumentCells cells(sample.document);
            ReplaceAll(searchFor(what), with).run(cells);
            grid.setRedraw(true);
        }
    }
}

void pasteInDocument(benchmark::State &state)
{
    const SampleCells words(state.range(0));
    QString text;
    for (int row = 1; row < words.Rows(); ++row)
        text += words.TextMatrix(row, 1) + QLatin1Char('\t') + words.TextMatrix(row, 2) + QLatin1Char('\n');
    QGuiApplication::clipboard()->setText(text);
    SampleDocument sample(1);
    EditCommands commands(sample.undo, *QGuiApplication::clipboard());
    for (auto _ : state) {
        commands.Paste(sample.document);
        commands.Undo(sample.document);
    }
}

void check(benchmark::State &state)
{
    const SampleCells cells(state.range(0));
    for (auto _ : state) {
        auto found = VocabularyCheck::findings(cells);
        benchmark::DoNotOptimize(found);
    }
}

} // namespace

BENCHMARK(sort)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(bareSort)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(find)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(bareFind)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(replaceAll)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(bareReplaceAll)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(sortInDocument)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(replaceAllInDocument)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(pasteInDocument)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(check)->Apply(SampleVocabulary::atAllSizes);
