// Reading lists of other programs from their bytes to pairs of words, CSV beside a bare counterpart that splits the
// same text into lines and words without knowing about quotes.

#include "support/SampleLists.h"
#include "support/SampleVocabulary.h"

#include "exchange/rules/ListReader.h"
#include "exchange/rules/ListWriter.h"
#include "exchange/rules/Pairs.h"

#include <malloc.h>

namespace {

using Writer = QByteArray (*)(const Vocabulary &);

size_t heapInUse()
{
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

struct Read
{
    ListReader::Result opened;
    ListReader::Table table;
};

Read read(const QByteArray &bytes)
{
    Read read{ListReader::open(bytes, {"windows-1252", QLocale::c()}), {}};
    if (!read.opened.source)
        qFatal("The sample cannot be read");
    read.table = ListReader::read(*read.opened.source, read.opened.source->proposal());
    return read;
}

void import(benchmark::State &state, Writer writer)
{
    const QByteArray bytes = writer(SampleVocabulary::make(state.range(0)));
    for (auto _ : state) {
        const Read list = read(bytes);
        Vocabulary words = Pairs::take(list.table.table, Pairs::proposal(list.table.table, false));
        benchmark::DoNotOptimize(words);
    }
    const size_t before = heapInUse();
    const Read list = read(bytes);
    state.counters["memory"] = double(heapInUse() - before) / double(bytes.size());
}

void bareCsv(benchmark::State &state)
{
    const QByteArray bytes = SampleLists::csv(SampleVocabulary::make(state.range(0)));
    for (auto _ : state) {
        const QString text = QString::fromUtf8(bytes);
        std::vector<QStringList> rows;
        for (const QStringView line : QStringView(text).tokenize(u'\n'))
            rows.push_back(line.toString().split(u','));
        benchmark::DoNotOptimize(rows);
    }
}

void exportCsv(benchmark::State &state)
{
    const Vocabulary vocabulary = SampleVocabulary::make(state.range(0));
    for (auto _ : state) {
        QByteArray bytes = ListWriter::write(vocabulary, ListWriter::Format::Csv, {});
        benchmark::DoNotOptimize(bytes);
    }
}

} // namespace

BENCHMARK_CAPTURE(import, csv, SampleLists::csv)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(bareCsv)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK_CAPTURE(import, ods, SampleLists::ods)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK_CAPTURE(import, xlsx, SampleLists::xlsx)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK_CAPTURE(import, apkg, SampleLists::apkg)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(exportCsv)->Apply(SampleVocabulary::atAllSizes);
