// Laying out, previewing and printing vocabularies.

#include "support/SampleVocabulary.h"

#include "platform/CupsServer.h"
#include "print/PaintedSurface.h"
#include "print/printer/QtPrinter.h"
#include "print/rules/PrintRun.h"
#include "print/rules/modUtskrift.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

namespace {

std::shared_ptr<const PrintSource> sourceOf(qsizetype pairs)
{
    Vocabulary words = SampleVocabulary::make(pairs);
    return std::make_shared<const PrintSource>(PrintSource{QStringLiteral("Words"),
                                                           {QStringLiteral("Arial"), 10, false, false},
                                                           0,
                                                           std::move(words.first),
                                                           std::move(words.second)});
}

/// A value of the process's memory in MB: VmRSS, or VmHWM for the most since forgetPeak.
double megabytes(const QByteArray &name)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QFile::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return 0;
}

void forgetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QFile::WriteOnly))
        file.write("5");
}

/// Reports the memory that a case takes beyond its vocabulary.
class PeakMemory
{
public:
    PeakMemory()
    {
        forgetPeak();
        m_before = megabytes("VmRSS");
    }
    void report(benchmark::State &state) const { state.counters["peakMB"] = megabytes("VmHWM") - m_before; }

private:
    double m_before;
};

void countPages(benchmark::State &state)
{
    const std::shared_ptr<const PrintSource> source = sourceOf(state.range(0));
    CupsServer server;
    QtPrinter printer(server);
    const PeakMemory memory;
    int pages = 0;
    for (auto _ : state)
        pages = PrintLayout(source, printer).pageCount();
    memory.report(state);
    state.counters["pages"] = pages;
}

void drawPreviewPage(benchmark::State &state)
{
    const std::shared_ptr<const PrintSource> source = sourceOf(state.range(0));
    CupsServer server;
    QtPrinter printer(server);
    const PeakMemory memory;
    const PrintLayout layout(source, printer);
    QImage image(800, 1130, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.scale(1 / 15.0, 1 / 15.0);
        PaintedSurface surface(painter);
        layout.drawPage(layout.PageIndex(), surface);
    }
    memory.report(state);
}

void printToPdf(benchmark::State &state)
{
    const QTemporaryDir folder;
    const std::shared_ptr<const PrintSource> source = sourceOf(state.range(0));
    CupsServer server;
    QtPrinter printer(server);
    printer.printer().setOutputFileName(folder.filePath(QStringLiteral("words.pdf")));
    const PeakMemory memory;
    int pages = 0;
    for (auto _ : state) {
        PrintRun run(source, printer, {});
        for (; !run.finished(); ++pages)
            run.printSheet();
        run.end();
    }
    memory.report(state);
    state.counters["pages"] = benchmark::Counter(pages, benchmark::Counter::kAvgIterations);
}

} // namespace

BENCHMARK(countPages)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(drawPreviewPage)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(printToPdf)->Apply(SampleVocabulary::atAllSizes);
