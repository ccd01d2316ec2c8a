#include "memory/WordKey.h"

namespace {

quint64 mixed(quint64 value)
{
    // The finalizer of a 64-bit Murmur hash: every bit of the input reaches every bit of the result.
    value = (value ^ (value >> 33)) * 0xff51afd7ed558ccdULL;
    value = (value ^ (value >> 33)) * 0xc4ceb9fe1a85ec53ULL;
    return value ^ (value >> 33);
}

quint64 with(quint64 number, const QString &text)
{
    constexpr quint64 Prime = 0x100000001b3ULL;
    for (const QChar c : text)
        number = (number ^ c.unicode()) * Prime;
    return mixed(number + quint64(text.size())); // the length parts one word from the next
}

} // namespace

WordKey WordKey::of(const QString &asked, const QString &answer)
{
    return {asked.normalized(QString::NormalizationForm_C), answer.normalized(QString::NormalizationForm_C)};
}

qint64 WordKey::number() const
{
    constexpr quint64 Start = 0xcbf29ce484222325ULL;
    return qint64(with(with(Start, asked), answer));
}
