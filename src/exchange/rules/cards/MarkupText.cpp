#include "exchange/rules/cards/MarkupText.h"

#include <QRegularExpression>

#include <array>

namespace {

/// The names of the letters from U+00A0 on.
constexpr char Latin1Names[] =
    "nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg macr deg plusmn sup2 sup3 acute "
    "micro "
    "para middot cedil sup1 ordm raquo frac14 frac12 frac34 iquest Agrave Aacute Acirc Atilde Auml Aring AElig Ccedil "
    "Egrave Eacute Ecirc Euml Igrave Iacute Icirc Iuml ETH Ntilde Ograve Oacute Ocirc Otilde Ouml times Oslash Ugrave "
    "Uacute Ucirc Uuml Yacute THORN szlig agrave aacute acirc atilde auml aring aelig ccedil egrave eacute ecirc euml "
    "igrave iacute icirc iuml eth ntilde ograve oacute ocirc otilde ouml divide oslash ugrave uacute ucirc uuml yacute "
    "thorn yuml";

/// Tags after which a new line begins.
constexpr std::array Blocks{u"br", u"div",   u"p",  u"li", u"ul", u"ol", u"tr",
                            u"td", u"table", u"hr", u"h1", u"h2", u"h3"};

char32_t letterNamed(QStringView name)
{
    static const std::pair<const char16_t *, char32_t> others[] = {
        {u"amp", U'&'},        {u"lt", U'<'},         {u"gt", U'>'},         {u"quot", U'"'},
        {u"apos", U'\''},      {u"ndash", U'\u2013'}, {u"mdash", U'\u2014'}, {u"hellip", U'\u2026'},
        {u"rsquo", U'\u2019'}, {u"lsquo", U'\u2018'}, {u"ldquo", U'\u201C'}, {u"rdquo", U'\u201D'},
        {u"bdquo", U'\u201E'}, {u"oelig", U'\u0153'}, {u"euro", U'\u20AC'}};
    for (const auto &[known, letter] : others) {
        if (name == known)
            return letter;
    }
    static const QStringList latin1 = QString::fromLatin1(Latin1Names).split(u' ');
    const qsizetype at = latin1.indexOf(name);
    return at < 0 ? 0 : char32_t(0xA0 + at);
}

char32_t letterOf(QStringView reference)
{
    if (!reference.startsWith(u'#'))
        return letterNamed(reference);
    const bool hex = reference.mid(1, 1).compare(u"x", Qt::CaseInsensitive) == 0;
    const uint code = reference.mid(hex ? 2 : 1).toUInt(nullptr, hex ? 16 : 10);
    return code > 0x10FFFF || QChar::isSurrogate(code) ? 0 : code;
}

/// Reads markup from its start to its end.
class Reader
{
public:
    explicit Reader(QStringView markup)
        : m_markup(markup)
    {
    }

    QString text()
    {
        while (m_at < m_markup.size()) {
            const QChar c = m_markup[m_at];
            if ((c == u'<' && takeTag()) || (c == u'&' && takeReference()))
                continue;
            m_text += c == u'\n' || c == u'\r' || c == u'\t' ? QChar(u' ') : c;
            ++m_at;
        }
        return m_text;
    }

private:
    bool takeTag()
    {
        const bool comment = m_markup.mid(m_at).startsWith(u"<!--");
        const QChar next = m_at + 1 < m_markup.size() ? m_markup[m_at + 1] : QChar();
        if (!comment && !next.isLetter() && next != u'/')
            return false;
        const qsizetype end = m_noTagAfter < m_at ? -1 : m_markup.indexOf(comment ? u"-->" : u">", m_at);
        if (end < 0) {
            m_noTagAfter = m_at;
            return false;
        }
        const QStringView tag = m_markup.mid(m_at + 1, end - m_at - 1);
        m_at = end + (comment ? 3 : 1);
        leaveOut(tag);
        return true;
    }

    void leaveOut(QStringView tag)
    {
        const qsizetype start = tag.startsWith(u'/') ? 1 : 0;
        qsizetype end = start;
        while (end < tag.size() && tag[end].isLetterOrNumber())
            ++end;
        const QString name = tag.mid(start, end - start).toString().toLower();
        if (std::any_of(Blocks.begin(), Blocks.end(), [&name](const char16_t *block) { return name == block; }))
            m_text += u' ';
        if (start == 0 && (name == QStringLiteral("style") || name == QStringLiteral("script"))) {
            const qsizetype close = m_markup.indexOf(QStringLiteral("</") + name, m_at, Qt::CaseInsensitive);
            m_at = close < 0 ? m_markup.size() : close;
        }
    }

    bool takeReference()
    {
        static constexpr qsizetype Longest = 10;
        const qsizetype end = m_markup.mid(m_at, Longest).indexOf(u';');
        const char32_t letter = end < 2 ? 0 : letterOf(m_markup.mid(m_at + 1, end - 1));
        if (letter == 0)
            return false;
        m_text += letter == 0xA0 ? QStringLiteral(" ") : QString::fromUcs4(&letter, 1);
        m_at += end + 1;
        return true;
    }

    QStringView m_markup;
    qsizetype m_at = 0;
    qsizetype m_noTagAfter = std::numeric_limits<qsizetype>::max();
    QString m_text;
};

/// Every part of a text from open to the next close is replaced by what inside makes of what stands between.
template <typename Inside> QString replaced(const QString &text, QStringView open, QStringView close, Inside inside)
{
    QString result;
    qsizetype from = 0;
    for (;;) {
        const qsizetype start = text.indexOf(open, from);
        const qsizetype end = start < 0 ? -1 : text.indexOf(close, start);
        if (end < 0)
            return result += QStringView(text).mid(from);
        const QStringView between = QStringView(text).mid(start + open.size(), end - start - open.size());
        result += QStringView(text).mid(from, start - from);
        result += inside(between);
        from = end + close.size();
    }
}

/// Of "1::Haus::what", which stood in braces with a c before it.
QStringView filledGap(QStringView gap)
{
    const qsizetype word = gap.indexOf(u"::");
    if (word < 0)
        return gap;
    const qsizetype hint = gap.indexOf(u"::", word + 2);
    return gap.mid(word + 2, hint < 0 ? -1 : hint - word - 2);
}

} // namespace

QString MarkupText::plain(QStringView markup)
{
    QString text = Reader(markup).text();
    text = replaced(text, u"[sound:", u"]", [](QStringView) { return QStringView(); });
    return replaced(text, u"{{c", u"}}", filledGap).simplified();
}

bool MarkupText::isLikely(QStringView text)
{
    static const QRegularExpression common(
        QStringLiteral(
            "<(br|b|i|u|div|span|p|img|font|sub|sup|strong|em)\\b[^>]{0,200}>|&(nbsp|amp|lt|gt|quot|#\\d+);"),
        QRegularExpression::CaseInsensitiveOption);
    return common.match(text.toString()).hasMatch();
}
