#pragma once

#include "document/rules/file/FileStamp.h"
#include "document/rules/file/VocabularyCodec.h"

/// A vocabulary file on the disk. Reading goes in two steps, so that the user can be told of an older version and the
/// document window be made in between.
class VocabularyFile
{
public:
    explicit VocabularyFile(const QString &path)
        : m_path(path)
    {
    }

    /// The name of a file without its folder and without its last four characters (the extension).
    static QString title(const QString &path);

    /// Reads the file, no further than the header unless that is Ok. Failed: missing, unreadable, no regular file, or
    /// larger than LargestSize.
    VocabularyCodec::Header readHeader();

    /// Bytes of the file; known once the header was Ok.
    qint64 size() const { return m_bytes.size(); }

    /// The file as it was when it was read.
    const FileStamp &stamp() const { return m_stamp; }

    /// Reads the rest; only after a header that was Ok.
    VocabularyCodec::DecodeResult read(const CodePage &codePage, const VocabularyCodec::Progress &progress = {}) const;

    /// What is called while a file is saved.
    struct Watchers
    {
        VocabularyCodec::Progress progress;
        /// The file has to be overwritten in place, which must not be cut short.
        std::function<void()> overwriting;
    };

    /// Replaces the file. False: it is as it was before; error, if given, says why in the words of the system.
    bool save(const Vocabulary &vocabulary, const CodePage &codePage, const Watchers &watchers = {},
              QString *error = nullptr) const;

    static constexpr qint64 LargestSize = qint64(1) << 30;

private:
    QString m_path;
    QByteArray m_bytes;
    FileStamp m_stamp;
};
