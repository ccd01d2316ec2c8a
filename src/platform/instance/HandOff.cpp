#include "platform/instance/HandOff.h"

#include <QtEndian>

namespace HandOff {

namespace {

enum Kind : quint32 { Text = 0, Token = 1 };

QByteArray block(Kind kind, const QString &text)
{
    const qsizetype size = text.size() * 2;
    QByteArray bytes(HeaderSize + size, '\0');
    qToLittleEndian(quint32(kind), bytes.data());
    qToLittleEndian(quint32(size), bytes.data() + 4);
    qToLittleEndian<char16_t>(text.utf16(), text.size(), bytes.data() + HeaderSize);
    return bytes;
}

/// Reads the block that the bytes begin with and takes it off them.
State take(QByteArrayView &bytes, Kind kind, qsizetype largest, QString &text)
{
    if (bytes.size() < HeaderSize)
        return State::Incomplete;
    const auto dwData = qFromLittleEndian<quint32>(bytes.data());
    const auto cbData = qFromLittleEndian<quint32>(bytes.data() + 4);
    if (dwData != kind || cbData % 2 != 0 || cbData > largest)
        return State::Malformed;
    if (bytes.size() < HeaderSize + qsizetype(cbData))
        return State::Incomplete;
    text.resize(cbData / 2);
    qFromLittleEndian<char16_t>(bytes.data() + HeaderSize, text.size(), text.data());
    bytes = bytes.sliced(HeaderSize + cbData);
    return State::Complete;
}

bool beginsWithToken(QByteArrayView bytes)
{
    return bytes.size() >= HeaderSize && qFromLittleEndian<quint32>(bytes.data()) == Token &&
           qFromLittleEndian<quint32>(bytes.data() + 4) > 0;
}

} // namespace

QByteArray message(const QString &text, const QString &token)
{
    const QByteArray before = token.isEmpty() || token.size() * 2 > LargestToken ? QByteArray() : block(Token, token);
    return before + block(Text, text.size() * 2 <= LargestText ? text : QString());
}

Parsed parse(QByteArrayView bytes)
{
    QString text, token;
    State state = beginsWithToken(bytes) ? take(bytes, Token, LargestToken, token) : State::Complete;
    if (state == State::Complete)
        state = take(bytes, Text, LargestText, text);
    if (state == State::Complete && !bytes.isEmpty())
        state = State::Malformed;
    return state == State::Complete ? Parsed{state, text, token} : Parsed{state, {}, {}};
}

} // namespace HandOff
