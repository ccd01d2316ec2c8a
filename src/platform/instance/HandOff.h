#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// The message by which a second copy hands its command line to the first. All numbers are 32 bits, little-endian:
///
///     offset 0  dwData  always 0
///     offset 4  cbData  bytes of text that follow, even; 0 only asks to come to the front
///     offset 8  text    UTF-16, little-endian, without a closing NUL
///
/// Where the desktop has given the second copy a token by which a window may come to the front, a block with dwData 1
/// and the token as its text stands before it.
/// The receiver answers with the byte Handled and closes the connection.
namespace HandOff {

constexpr qsizetype HeaderSize = 8;
constexpr qsizetype LargestText = 65536; ///< bytes
constexpr qsizetype LargestToken = 1024; ///< bytes
constexpr qsizetype LargestMessage = HeaderSize + LargestToken + HeaderSize + LargestText;
constexpr char Handled = 1;

/// A text that is too long to be a command line, or a token, is left out.
QByteArray message(const QString &text, const QString &token = {});

enum class State { Incomplete, Complete, Malformed };

struct Parsed
{
    State state = State::Incomplete;
    QString text;
    QString token; ///< empty without one
};

/// What has arrived so far, from the message's first byte on.
Parsed parse(QByteArrayView bytes);

} // namespace HandOff
