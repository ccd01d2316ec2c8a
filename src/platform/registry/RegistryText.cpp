#include "platform/registry/RegistryText.h"

#include <QStringDecoder>

namespace {

const QLatin1String Header("Glosaria registry 1");
const QLatin1String End("end");

struct RootName
{
    int root;
    QLatin1String name;
};
const RootName RootNames[] = {{HKEY_CLASSES_ROOT, QLatin1String("HKEY_CLASSES_ROOT")},
                              {HKEY_CURRENT_USER, QLatin1String("HKEY_CURRENT_USER")}};

struct TypeName
{
    RegistryType type;
    QLatin1String name;
};
const TypeName TypeNames[] = {{RegistryType::String, QLatin1String("string")},
                              {RegistryType::ExpandString, QLatin1String("expandable-string")},
                              {RegistryType::Binary, QLatin1String("binary")},
                              {RegistryType::Number, QLatin1String("number")},
                              {RegistryType::BigEndianNumber, QLatin1String("big-endian-number")},
                              {RegistryType::StringList, QLatin1String("string-list")}};

struct Escape
{
    char16_t letter;
    char16_t character;
};
constexpr Escape Escapes[] = {{u'\\', u'\\'}, {u'"', u'"'}, {u'n', u'\n'}, {u'r', u'\r'}, {u't', u'\t'}};

bool standsAlone(QStringView text, qsizetype i)
{
    if (text[i].isHighSurrogate())
        return i + 1 >= text.size() || !text[i + 1].isLowSurrogate();
    return text[i].isLowSurrogate() && (i == 0 || !text[i - 1].isHighSurrogate());
}

QString quoted(QStringView text)
{
    QString result(QLatin1Char('"'));
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const auto *escape = std::find_if(std::begin(Escapes), std::end(Escapes),
                                          [c](const Escape &candidate) { return candidate.character == c; });
        if (escape != std::end(Escapes))
            result += QLatin1Char('\\') + QChar(escape->letter);
        else if (c.category() == QChar::Other_Control || standsAlone(text, i))
            result += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            result += c;
    }
    return result + QLatin1Char('"');
}

QString dataText(const RegistryValue &value)
{
    switch (value.type) {
    case RegistryType::Binary:
        return QString::fromLatin1(std::get<QByteArray>(value.data).toHex(' '));
    case RegistryType::Number:
    case RegistryType::BigEndianNumber:
        return QString::number(std::get<quint32>(value.data));
    case RegistryType::StringList: {
        QStringList parts;
        for (const QString &part : std::get<QStringList>(value.data))
            parts += quoted(part);
        return parts.join(QLatin1Char(' '));
    }
    default:
        return quoted(std::get<QString>(value.data));
    }
}

QString typeName(RegistryType type)
{
    const auto *found = std::find_if(std::begin(TypeNames), std::end(TypeNames),
                                     [type](const TypeName &candidate) { return candidate.type == type; });
    return found->name;
}

/// Exactly so many hexadecimal digits, and no sign, which Qt's own conversion would take.
std::optional<ushort> hexNumber(QStringView digits, qsizetype count)
{
    bool isNumber = false;
    const ushort number = digits.toUShort(&isNumber, 16);
    const bool isPlain = digits.size() == count && !digits.startsWith(QLatin1Char('+'));
    return isNumber && isPlain ? std::optional(number) : std::nullopt;
}

/// Reads one line from left to right. What does not fit makes every later question fail.
class LineReader
{
public:
    explicit LineReader(QStringView line)
        : m_rest(line.trimmed())
    {
    }

    bool atEnd() const { return m_rest.isEmpty(); }

    /// The letters up to the next blank.
    QStringView word()
    {
        const qsizetype blank = m_rest.indexOf(QLatin1Char(' '));
        return take(blank < 0 ? m_rest.size() : blank);
    }

    std::optional<QString> quotedText()
    {
        if (!m_rest.startsWith(QLatin1Char('"')))
            return std::nullopt;
        QString text;
        for (qsizetype i = 1; i < m_rest.size(); ++i) {
            if (m_rest[i] == QLatin1Char('"')) {
                take(i + 1);
                return text;
            }
            if (m_rest[i] != QLatin1Char('\\'))
                text += m_rest[i];
            else if (!unescape(++i, text))
                return std::nullopt;
        }
        return std::nullopt;
    }

private:
    QStringView take(qsizetype length)
    {
        const QStringView taken = m_rest.left(length);
        m_rest = m_rest.mid(length).trimmed();
        return taken;
    }

    /// i is the letter after the backslash, and the last letter of the escape afterwards.
    bool unescape(qsizetype &i, QString &text) const
    {
        if (i >= m_rest.size())
            return false;
        if (m_rest[i] == QLatin1Char('u')) {
            const std::optional<ushort> number = hexNumber(m_rest.mid(i + 1, 4), 4);
            text += QChar(number.value_or(0));
            i += 4;
            return number.has_value();
        }
        for (const Escape &escape : Escapes) {
            if (m_rest[i] == escape.letter) {
                text += QChar(escape.character);
                return true;
            }
        }
        return false;
    }

    QStringView m_rest;
};

std::optional<QByteArray> readBytes(LineReader &line)
{
    QByteArray bytes;
    while (!line.atEnd()) {
        const std::optional<ushort> byte = hexNumber(line.word(), 2);
        if (!byte)
            return std::nullopt;
        bytes += char(*byte);
    }
    return bytes;
}

std::optional<QStringList> readList(LineReader &line)
{
    QStringList list;
    while (!line.atEnd()) {
        const std::optional<QString> text = line.quotedText();
        if (!text)
            return std::nullopt;
        list += *text;
    }
    return list;
}

std::optional<quint32> readNumber(LineReader &line)
{
    bool isNumber = false;
    const quint32 number = line.word().toUInt(&isNumber, 10);
    return isNumber ? std::optional(number) : std::nullopt;
}

template <class Data>
std::optional<RegistryValue> valueOf(RegistryType type, const std::optional<Data> &data, const LineReader &line)
{
    return data && line.atEnd() ? std::optional(RegistryValue{type, *data}) : std::nullopt;
}

std::optional<RegistryValue> readValue(LineReader &line)
{
    const QStringView name = line.word();
    for (const TypeName &candidate : TypeNames) {
        if (candidate.name != name)
            continue;
        switch (candidate.type) {
        case RegistryType::Binary:
            return valueOf(candidate.type, readBytes(line), line);
        case RegistryType::Number:
        case RegistryType::BigEndianNumber:
            return valueOf(candidate.type, readNumber(line), line);
        case RegistryType::StringList:
            return valueOf(candidate.type, readList(line), line);
        default:
            return valueOf(candidate.type, line.quotedText(), line);
        }
    }
    return std::nullopt;
}

/// The tree being read and the key that the next values belong to.
struct Reading
{
    RegistryTree tree;
    std::optional<int> root;
    QString key;

    bool readKey(QStringView text)
    {
        LineReader line(text);
        const QStringView name = line.word();
        for (const RootName &candidate : RootNames) {
            const std::optional<QString> path = candidate.name == name ? line.quotedText() : std::nullopt;
            if (path && line.atEnd()) {
                root = candidate.root;
                key = *path;
                return tree.createKey(*root, key);
            }
        }
        return false;
    }

    bool readNamedValue(QStringView text)
    {
        LineReader line(text);
        const std::optional<QString> name = line.quotedText();
        if (!root || !name || line.word() != QLatin1String("="))
            return false;
        const std::optional<RegistryValue> value = readValue(line);
        return value && tree.setValue(*root, key, *name, *value);
    }
};

} // namespace

namespace RegistryText {

QByteArray write(const RegistryTree &tree)
{
    QString text = Header + QLatin1Char('\n');
    for (const RootName &root : RootNames) {
        for (const auto &[folded, key] : tree.roots().at(root.root)) {
            if (key.path.isEmpty() && key.values.empty())
                continue;
            text += root.name + QLatin1Char(' ') + quoted(key.path) + QLatin1Char('\n');
            for (const auto &[name, entry] : key.values)
                text += QLatin1String("  ") + quoted(entry.name) + QLatin1String(" = ") + typeName(entry.value.type) +
                        QLatin1Char(' ') + dataText(entry.value) + QLatin1Char('\n');
        }
    }
    return (text + End + QLatin1Char('\n')).toUtf8();
}

std::optional<RegistryTree> read(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::nullopt;
    Reading reading;
    const QList<QStringView> lines = QStringView(text).split(QLatin1Char('\n'));
    if (lines.first().trimmed() != Header)
        return std::nullopt;
    for (QStringView line : lines.mid(1)) {
        const QStringView content = line.trimmed();
        if (content == End)
            return reading.tree;
        const bool understood =
            content.isEmpty() ||
            (content.startsWith(QLatin1Char('"')) ? reading.readNamedValue(content) : reading.readKey(content));
        if (!understood)
            return std::nullopt;
    }
    return std::nullopt;
}

} // namespace RegistryText
