// What a document window adds to loading and saving: from the file into a grid that shows itself, and back; and what
// the copies against a crash cost: the user waits while one is handed over, and goes on while it is written.

#include "support/SampleVocabulary.h"

#include "document/GridContent.h"
#include "document/ctlGrid.h"
#include "document/rules/file/VocabularyFile.h"
#include "document/rules/recovery/RecoveryFolder.h"
#include "services/rules/ProgramFlags.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <malloc.h>

namespace {

/// A sample on the disk and a grid set up as a document's.
class Document
{
public:
    explicit Document(qsizetype pairs)
        : m_grid(&m_flags)
    {
        if (!VocabularyFile(path()).save(SampleVocabulary::make(pairs), m_codePage))
            qFatal("The sample cannot be written");
        m_grid.loadProperties(ctlGrid::documentDesign());
        m_grid.setRowNumbers(true);
        m_grid.resize(800, 600);
        m_grid.show();
    }

    void open()
    {
        VocabularyFile file(path());
        file.readHeader();
        GridContent::fill(m_grid, file.read(m_codePage).vocabulary);
        m_size = file.size();
    }

    void enlarge()
    {
        QFont font = m_grid.Font();
        font.setPointSize(24);
        m_grid.setGridFont(font);
        m_grid.makeRoom();
    }

    void showIt() { m_grid.grab(); }
    bool save() { return VocabularyFile(path()).save(GridContent::read(m_grid), m_codePage); }
    RecoveryCopy copy() const
    {
        return {QStringLiteral("words"), path(), {}, QDateTime::currentDateTime(), GridContent::read(m_grid)};
    }
    double size() const { return double(m_size); }

private:
    QString path() const { return m_folder.filePath(QStringLiteral("words.gla")); }

    QTemporaryDir m_folder;
    ProgramFlags m_flags;
    CodePage m_codePage;
    ctlGrid m_grid;
    qint64 m_size = 0;
};

double heapInUse()
{
    const struct mallinfo2 info = ::mallinfo2();
    return double(info.uordblks + info.hblkhd);
}

void openInGrid(benchmark::State &state)
{
    Document document(state.range(0));
    document.showIt();
    const double before = heapInUse();
    for (auto _ : state) {
        document.open();
        document.showIt();
    }
    state.counters["memory"] = (heapInUse() - before) / document.size();
}

void enlargeFont(benchmark::State &state)
{
    Document document(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        document.open();
        state.ResumeTiming();
        document.enlarge();
    }
}

void saveFromGrid(benchmark::State &state)
{
    Document document(state.range(0));
    document.open();
    for (auto _ : state) {
        if (!document.save())
            state.SkipWithError("not saved");
    }
}

void handOverCopy(benchmark::State &state)
{
    Document document(state.range(0));
    document.open();
    for (auto _ : state)
        benchmark::DoNotOptimize(document.copy());
}

void writeCopy(benchmark::State &state)
{
    Document document(state.range(0));
    document.open();
    const RecoveryCopy copy = document.copy();
    const QTemporaryDir place;
    RecoveryFolder folder(place.filePath(QStringLiteral("recovery")));
    QString path;
    for (auto _ : state) {
        if (!folder.write(path, copy))
            state.SkipWithError("not written");
    }
}

} // namespace

BENCHMARK(openInGrid)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(enlargeFont)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(saveFromGrid)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(handOverCopy)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(writeCopy)->Apply(SampleVocabulary::atAllSizes);
