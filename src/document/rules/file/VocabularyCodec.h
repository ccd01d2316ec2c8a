#pragma once

#include "document/rules/Vocabulary.h"
#include "document/rules/file/CodePage.h"

#include <functional>

/// The vocabulary file: a signature line, a version line, the font, the column widths, then two lines a row. Turns its
/// bytes into a Vocabulary and back; knows neither files nor messages.
namespace VocabularyCodec {

enum class Outcome {
    Ok,
    BadFormat,    ///< the first line is not the signature
    NewerVersion, ///< saved by a program with a newer format
    TooManyRows,  ///< more than Vocabulary::MostRows
    Failed        ///< ends too early, or holds a value that is none or cannot be shown
};

/// Told now and then how far the work has come, never more than some hundred times in a run.
using Progress = std::function<void(qint64 done)>;

struct Header
{
    Outcome outcome = Outcome::Failed;
    bool olderVersion = false; ///< readable, but holds only the rows
};

/// How many bytes from the start of a file readHeader() needs at most.
constexpr qsizetype HeaderBytes = 16;

/// Judges the first two lines. bytes: the file or its first HeaderBytes.
Header readHeader(QByteArrayView bytes);

struct DecodeResult
{
    Outcome outcome = Outcome::Failed;
    bool olderVersion = false;
    Vocabulary vocabulary; ///< empty unless Ok
};

/// Reads a whole file. Progress counts the characters of the rows' lines, at most one a byte.
///
/// The letters are UTF-8 when an "[Encoding]" section says so, or when there is none and all bytes are valid UTF-8;
/// else they are of the code page. A line that is damaged in a file declared as UTF-8 is read in the code page, so that
/// nothing is lost. A lone line feed within a word becomes a blank.
DecodeResult decode(QByteArrayView bytes, const CodePage &codePage, const Progress &progress = {});

/// The bytes of the file: all rows up to the last with a word in the first language. Progress counts rows.
///
/// Letters are written in the code page if it holds every one and the bytes would not be taken for UTF-8; else in UTF-8
/// under an "[Encoding]" section, which programs that do not know it skip. A line break within a word becomes a blank;
/// values that no reader would accept are moved to the nearest that it does.
QByteArray encode(const Vocabulary &vocabulary, const CodePage &codePage, const Progress &progress = {});

} // namespace VocabularyCodec
