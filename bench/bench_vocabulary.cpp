// Loading and saving vocabulary files, each beside a bare counterpart that handles the same bytes without knowing the
// format: read, decode and split into lines; join, encode and write.

#include "support/SampleVocabulary.h"

#include "document/rules/file/VocabularyFile.h"
#include "platform/files/AtomicFile.h"

#include <QFile>
#include <QStringDecoder>
#include <QStringEncoder>
#include <QTemporaryDir>

#include <malloc.h>

namespace {

using SampleVocabulary::Letters;

class Folder
{
public:
    QString file() const { return m_folder.filePath(QStringLiteral("words.gla")); }

private:
    QTemporaryDir m_folder;
};

void writeSample(const QString &path, qsizetype pairs, Letters letters, const CodePage &codePage)
{
    if (!VocabularyFile(path).save(SampleVocabulary::make(pairs, letters), codePage))
        qFatal("The sample cannot be written");
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

size_t heapInUse()
{
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// What a loaded vocabulary takes on the heap, in sizes of its file.
double memoryInFileSizes(const QString &path, const CodePage &codePage)
{
    VocabularyFile file(path);
    file.readHeader();
    const size_t before = heapInUse();
    const VocabularyCodec::DecodeResult result = file.read(codePage);
    return double(heapInUse() - before) / double(file.size());
}

void load(benchmark::State &state, Letters letters)
{
    const Folder folder;
    const CodePage codePage;
    writeSample(folder.file(), state.range(0), letters, codePage);
    for (auto _ : state) {
        VocabularyFile file(folder.file());
        file.readHeader();
        VocabularyCodec::DecodeResult result = file.read(codePage);
        benchmark::DoNotOptimize(result);
    }
    state.counters["memory"] = memoryInFileSizes(folder.file(), codePage);
}

void bareLoad(benchmark::State &state, Letters letters, const char *encoding)
{
    const Folder folder;
    writeSample(folder.file(), state.range(0), letters, CodePage());
    for (auto _ : state) {
        QStringDecoder decoder(encoding);
        const QString text = decoder(contentOf(folder.file()));
        QStringList lines = text.split(QStringLiteral("\r\n"));
        benchmark::DoNotOptimize(lines);
    }
}

void save(benchmark::State &state, Letters letters)
{
    const Folder folder;
    const CodePage codePage;
    const Vocabulary vocabulary = SampleVocabulary::make(state.range(0), letters);
    for (auto _ : state)
        VocabularyFile(folder.file()).save(vocabulary, codePage);
}

void bareSave(benchmark::State &state, Letters letters, const char *encoding)
{
    const Folder folder;
    const Vocabulary vocabulary = SampleVocabulary::make(state.range(0), letters);
    for (auto _ : state) {
        QString text;
        for (size_t row = 0; row < vocabulary.first.size(); ++row)
            text.append(vocabulary.first[row])
                .append(QLatin1String("   [0000000285]\r\n"))
                .append(vocabulary.second[row])
                .append(QLatin1String("\r\n"));
        QStringEncoder encoder(encoding);
        AtomicFile::write(folder.file(), QByteArray(encoder(text)));
    }
}

constexpr char Western[] = "ISO-8859-1";
constexpr char Utf8[] = "UTF-8";

} // namespace

BENCHMARK_CAPTURE(load, western, Letters::Western)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK_CAPTURE(bareLoad, western, Letters::Western, Western)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK_CAPTURE(load, utf8, Letters::Cyrillic)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK_CAPTURE(bareLoad, utf8, Letters::Cyrillic, Utf8)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK_CAPTURE(save, western, Letters::Western)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK_CAPTURE(bareSave, western, Letters::Western, Western)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK_CAPTURE(save, utf8, Letters::Cyrillic)->Apply(SampleVocabulary::atAllSizes);
BENCHMARK_CAPTURE(bareSave, utf8, Letters::Cyrillic, Utf8)->Apply(SampleVocabulary::atAllSizes);
