#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

/// UTF-8 that loses nothing: a surrogate without its partner, which UTF-8 proper cannot hold, is written in three bytes
/// like any other code point of that size, and read back.
namespace Utf8Text {

/// The most bytes that one QChar needs.
constexpr qsizetype BytesPerChar = 3;

/// Writes text at out, which must have room for BytesPerChar bytes a QChar; returns the end of what was written.
char *encodeTo(QStringView text, char *out);

/// Of bytes that are known to be proper UTF-8. A byte-order mark is a letter like any other.
QString decodeProper(QByteArrayView bytes);

/// No value when the bytes are something else.
std::optional<QString> decode(QByteArrayView bytes);

} // namespace Utf8Text
