#include "document/rules/file/VocabularyFile.h"

#include "platform/files/AtomicFile.h"
#include "platform/files/RegularFile.h"

using VocabularyCodec::Outcome;

QString VocabularyFile::title(const QString &path)
{
    QString name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    name.chop(4);
    return name;
}

VocabularyCodec::Header VocabularyFile::readHeader()
{
    QFile file;
    if (!RegularFile::open(file, m_path) || file.size() > LargestSize)
        return {Outcome::Failed};
    m_stamp = FileStamp::of(m_path);
    const VocabularyCodec::Header header = VocabularyCodec::readHeader(file.peek(VocabularyCodec::HeaderBytes));
    if (header.outcome == Outcome::Ok)
        m_bytes = file.readAll();
    return file.error() == QFile::NoError ? header : VocabularyCodec::Header{Outcome::Failed};
}

VocabularyCodec::DecodeResult VocabularyFile::read(const CodePage &codePage,
                                                   const VocabularyCodec::Progress &progress) const
{
    return VocabularyCodec::decode(m_bytes, codePage, progress);
}

bool VocabularyFile::save(const Vocabulary &vocabulary, const CodePage &codePage, const Watchers &watchers,
                          QString *error) const
{
    const QByteArray bytes = VocabularyCodec::encode(vocabulary, codePage, watchers.progress);
    const auto producer = [&bytes](const AtomicFile::Sink &sink) { return sink(bytes); };
    return AtomicFile::write(m_path, producer, error, watchers.overwriting);
}
