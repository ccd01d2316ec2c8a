#include "exchange/rules/archive/XmlParts.h"

namespace {

constexpr int MostDepth = 100;
constexpr qsizetype LongestToken = qsizetype(1024) * 1024; ///< bytes without a "<"; a cell has 32,767 letters at most
constexpr int MostAttributes = 200;                        ///< of an element; the parser compares each with all others

} // namespace

/// Lets no token grow without end, nor the attributes of an element: the parser would keep them all.
class XmlParts::Guard : public QIODevice
{
public:
    explicit Guard(PackedStream &stream)
        : m_stream(stream)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    /// Throws ReadFailure when the document ends early through no fault of its XML.
    void require() const
    {
        m_stream.require();
        if (isTooMuch())
            throw ReadFailure(ReadError::TooLarge);
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *out, qint64 most) override
    {
        const qint64 size = m_stream.read(out, most);
        for (qint64 i = 0; i < size; ++i)
            look(out[i]);
        return size <= 0 || isTooMuch() ? -1 : size;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    bool isTooMuch() const { return m_longest > LongestToken || m_most > MostAttributes; }

    /// Comments and the like may hold a "<" and are tokens all the same.
    void look(char c)
    {
        m_longest = std::max(m_longest, ++m_token);
        lookForAttribute(c);
        if (c == '<' && !m_special)
            m_token = 0;
        else if (m_last == '<' && (c == '!' || c == '?'))
            m_special = true;
        else if (c == '>' && (m_last == '-' || m_last == ']' || m_last == '?'))
            m_special = false;
        m_last = c;
    }

    /// A value stands in quotes; equals signs within it, of a formula say, mean nothing.
    void lookForAttribute(char c)
    {
        if (m_quote != 0 && c != '<') {
            m_quote = c == m_quote ? char(0) : m_quote;
        } else if (c == '<' || c == '>' || m_special) {
            m_inTag = c == '<' && !m_special;
            m_quote = 0;
            m_attributes = 0;
        } else if (m_inTag && (c == '"' || c == '\'')) {
            m_quote = c;
        } else if (m_inTag && c == '=') {
            m_most = std::max(m_most, ++m_attributes);
        }
    }

    PackedStream &m_stream;
    qsizetype m_token = 0;
    qsizetype m_longest = 0;
    int m_attributes = 0;
    int m_most = 0;
    bool m_inTag = false;
    char m_quote = 0;
    bool m_special = false;
    char m_last = 0;
};

XmlParts::XmlParts(PackedStream &stream)
    : m_guard(std::make_unique<Guard>(stream))
    , m_xml(m_guard.get())
{
}

XmlParts::~XmlParts() = default;

bool XmlParts::next()
{
    while (nextWithText()) {
        if (!isText())
            return true;
    }
    return false;
}

bool XmlParts::nextWithText()
{
    if (m_xml.isEndElement())
        --m_depth;
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++m_depth > MostDepth)
                throw ReadFailure(ReadError::Damaged);
            m_attributes = m_xml.attributes();
            return true;
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::Characters:
            return true;
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
            throw ReadFailure(ReadError::Damaged);
        default:
            break;
        }
    }
    m_guard->require();
    if (m_xml.hasError())
        throw ReadFailure(ReadError::Damaged);
    return false;
}

QStringView XmlParts::attribute(QStringView name) const
{
    for (const QXmlStreamAttribute &attribute : m_attributes) {
        if (attribute.name() == name)
            return attribute.value();
    }
    return {};
}

int XmlParts::number(QStringView name, int fallback) const
{
    bool isNumber = false;
    const int number = attribute(name).toInt(&isNumber);
    return isNumber && number >= 0 ? number : fallback;
}

void XmlParts::skip()
{
    const int depth = m_depth;
    while (next() && (isStart() || m_depth > depth)) {
    }
}

QString XmlParts::text()
{
    const int depth = m_depth;
    QString text;
    while (nextWithText()) {
        if (isText())
            text += m_depth == depth ? m_xml.text() : QStringView();
        else if (!isStart() && m_depth == depth)
            break;
    }
    return text;
}
