// The whole program on a display: from its start to its window drawn, beside a program that shows an empty main
// window; and what it takes in memory with a vocabulary open.

#include "support/SampleVocabulary.h"
#include "support/VirtualDisplay.h"

#include "document/rules/file/CodePage.h"
#include "document/rules/file/VocabularyFile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

namespace {

const QString NoSplash = QStringLiteral("--no-splash");

void measureStart(benchmark::State &state, const char *program, const QStringList &arguments)
{
    VirtualDisplay display;
    VirtualDisplay::end(*display.start(QString::fromUtf8(program), arguments)); // the first run sets things up
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        const auto process = display.start(QString::fromUtf8(program), arguments);
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
        VirtualDisplay::end(*process);
    }
}

void start(benchmark::State &state)
{
    measureStart(state, GLOSARIA_PROGRAM, {NoSplash});
}

void bareStart(benchmark::State &state)
{
    measureStart(state, EMPTY_WINDOW, {});
}

QByteArray processInfo(const QProcess &process, const char *name)
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(process.processId()).arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Waits until a process has used no processor time for a while.
void waitUntilIdle(const QProcess &process)
{
    constexpr int Quiet = 500; // milliseconds
    const auto used = [&process] { return processInfo(process, "stat").split(' ').mid(13, 2); };
    for (QList<QByteArray> before; before != used();) {
        before = used();
        QThread::msleep(Quiet);
    }
}

/// Bytes of memory that a process holds.
double residentSize(const QProcess &process)
{
    constexpr double PageSize = 4096;
    return processInfo(process, "statm").split(' ').value(1).toDouble() * PageSize;
}

double memoryOf(VirtualDisplay &display, const QStringList &arguments)
{
    const auto process = display.start(QStringLiteral(GLOSARIA_PROGRAM), arguments);
    waitUntilIdle(*process);
    const double size = residentSize(*process);
    VirtualDisplay::end(*process);
    return size;
}

void openDocument(benchmark::State &state)
{
    VirtualDisplay display;
    const QString file = display.home() + QStringLiteral("/words.gla");
    if (!VocabularyFile(file).save(SampleVocabulary::make(state.range(0)), CodePage()))
        qFatal("The sample cannot be written");
    const double empty = memoryOf(display, {NoSplash});
    for (auto _ : state) {
        const double beyond = memoryOf(display, {NoSplash, file}) - empty;
        state.counters["memory"] = beyond / double(QFileInfo(file).size());
        state.counters["MiB"] = beyond / (1024 * 1024);
        state.SetIterationTime(0);
    }
}

} // namespace

BENCHMARK(start)->UseManualTime()->Iterations(40)->Unit(benchmark::kMillisecond);
BENCHMARK(bareStart)->UseManualTime()->Iterations(40)->Unit(benchmark::kMillisecond);
BENCHMARK(openDocument)->UseManualTime()->Iterations(1)->Apply(SampleVocabulary::atAllSizes);
