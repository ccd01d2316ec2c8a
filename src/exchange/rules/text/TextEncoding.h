#pragma once

#include <QByteArrayView>
#include <QString>

#include <vector>

/// In which character set the bytes of a text are written, and how they read in any.
namespace TextEncoding {

/// Names of the platform's converters that a user can choose from, the usual ones first.
const std::vector<QByteArray> &known();

/// By the byte-order mark, else by the form of the bytes, else by how often letters and pairs of them occur; fallback
/// when that says little.
QByteArray detect(QByteArrayView bytes, const QByteArray &fallback);

/// Without a byte-order mark. What is none in that character set reads as U+FFFD; a name that is not known as Latin-1.
QString decode(QByteArrayView bytes, const QByteArray &encoding);

} // namespace TextEncoding
