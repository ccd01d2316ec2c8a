#pragma once

#include "document/rules/FileStamp.h"
#include "document/rules/Vocabulary.h"

#include <QByteArray>

/// A changed document as it is kept against a crash: everything that its window held, with every row, and what it was
/// called.
struct RecoveryCopy
{
    /// Why the copy is there at a later start.
    enum class Cause : quint8 {
        Ended,    ///< the program ended before the document closed
        Closed,   ///< the document closed without being saved
        NotInFile ///< the document was saved, but the file cannot hold all its words
    };

    QString caption;
    QString docName;     ///< path of its file; empty for a document that was never saved
    FileStamp fileStamp; ///< that file as the document was read from it
    QDateTime time;      ///< when the copy was made
    Vocabulary vocabulary;
    Cause cause = Cause::Ended;

    static constexpr qint64 SignatureSize = 4;
    /// Whether bytes can be those of a copy, judged by the first SignatureSize of them.
    static bool canBegin(const QByteArray &bytes);

    /// Whether the document's file is not the one that the document was read from or saved to any more.
    bool isFileChanged() const;

    QByteArray toBytes() const;
    /// No value for bytes that are no whole copy.
    static std::optional<RecoveryCopy> fromBytes(const QByteArray &bytes);
};
