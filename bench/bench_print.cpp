// Laying out, previewing and printing vocabularies.

#include "support/SampleVocabulary.h"

#include "print/PaintedSurface.h"
#include "print/QtPrinter.h"
#include "print/rules/modUtskrift.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

namespace {

class VocabularySource : public PrintSource
{
public:
    explicit VocabularySource(qsizetype pairs)
        : m_vocabulary(SampleVocabulary::make(pairs))
    {
    }
    QString Caption() const override { return QStringLiteral("Words"); }
    int Rows() const override { return int(m_vocabulary.rows()); }
    QString TextMatrix(int row, int col) const override
    {
        if (col == 0)
            return QString::number(row);
        return (col == 1 ? m_vocabulary.first : m_vocabulary.second)[size_t(row)];
    }
    PrintFont Font() const override { return {QStringLiteral("Arial"), 10, false, false}; }
    int ForeColor() const override { return 0; }

private:
    Vocabulary m_vocabulary;
};

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
    const VocabularySource source(state.range(0));
    QtPrinter printer;
    const PeakMemory memory;
    modUtskrift layout(printer);
    for (auto _ : state)
        layout.PrintLayout(modUtskrift::PreviewMode, source);
    memory.report(state);
    state.counters["pages"] = layout.pageCount();
}

void drawPreviewPage(benchmark::State &state)
{
    const VocabularySource source(state.range(0));
    QtPrinter printer;
    const PeakMemory memory;
    modUtskrift layout(printer);
    layout.PrintLayout(modUtskrift::PreviewMode, source);
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
    const VocabularySource source(state.range(0));
    QtPrinter printer;
    printer.printer().setOutputFileName(folder.filePath(QStringLiteral("words.pdf")));
    const PeakMemory memory;
    modUtskrift layout(printer);
    for (auto _ : state) {
        layout.PrintLayout(modUtskrift::PrintMode, source);
        printer.endDoc();
    }
    memory.report(state);
    state.counters["pages"] = layout.pageCount();
}

} // namespace

BENCHMARK(countPages)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(drawPreviewPage)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK(printToPdf)->Apply(SampleVocabulary::atAllSizes);
