#pragma once

#include "document/rules/Vocabulary.h"
#include "document/rules/file/FileStamp.h"

#include <QByteArray>

class QIODevice;

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

    /// Whether the document's file is not the one that the document was read from or saved to any more.
    bool isFileChanged() const;

    QByteArray toBytes() const;
    /// No value when what the device holds is no whole copy, or more than a copy can be.
    static std::optional<RecoveryCopy> read(QIODevice &device);

    static constexpr qint64 LargestSize = qint64(4) << 30; ///< bytes
};
