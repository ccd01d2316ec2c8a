#include "platform/instance/HandOff.h"

#include <QtEndian>

namespace HandOff {

QByteArray message(const QString &text)
{
    const qsizetype size = text.size() * 2 <= LargestText ? text.size() * 2 : 0;
    QByteArray bytes(HeaderSize + size, '\0');
    qToLittleEndian(quint32(size), bytes.data() + 4);
    qToLittleEndian<char16_t>(text.utf16(), size / 2, bytes.data() + HeaderSize);
    return bytes;
}

Parsed parse(QByteArrayView bytes)
{
    if (bytes.size() < HeaderSize)
        return {};
    const auto dwData = qFromLittleEndian<quint32>(bytes.data());
    const auto cbData = qFromLittleEndian<quint32>(bytes.data() + 4);
    if (dwData != 0 || cbData % 2 != 0 || cbData > LargestText || bytes.size() > HeaderSize + qsizetype(cbData))
        return {State::Malformed, {}};
    if (bytes.size() < HeaderSize + qsizetype(cbData))
        return {};
    QString text(cbData / 2, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(bytes.data() + HeaderSize, text.size(), text.data());
    return {State::Complete, text};
}

} // namespace HandOff
