#include "exchange/rules/workbook/CellFormat.h"

#include <QDateTime>
#include <QLocale>

#include <cmath>
#include <map>

namespace {

/// A piece of a format code: letters that stand as they are, or a run of one placeholder.
struct Piece
{
    bool literal;
    QString text;
};

bool isDateLetter(QChar c)
{
    return QStringView(u"ymdhs").contains(c.toLower());
}

/// The part of a code for numbers of that sign.
QStringView section(QStringView code, double value)
{
    std::vector<QStringView> sections;
    bool quoted = false;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= code.size(); ++i) {
        const bool ends = i == code.size() || (code[i] == u';' && !quoted);
        quoted ^= i < code.size() && code[i] == u'"';
        if (!ends)
            continue;
        sections.push_back(code.mid(start, i - start));
        start = i + 1;
    }
    const size_t wanted = value < 0 ? 1 : (value == 0 ? 2 : 0);
    return sections.size() > wanted ? sections[wanted] : sections.front();
}

std::vector<Piece> pieces(QStringView code)
{
    std::vector<Piece> all;
    const auto add = [&all](bool literal, QStringView text) {
        const bool same = !all.empty() && all.back().literal == literal &&
                          (literal || all.back().text.front().toLower() == text.front().toLower());
        if (!same)
            all.push_back({literal, {}});
        all.back().text += text;
    };
    for (qsizetype i = 0; i < code.size(); ++i) {
        const QChar c = code[i];
        if (c == u'"' || c == u'[') {
            const qsizetype end = std::max(i, code.indexOf(c == u'"' ? u'"' : u']', i + 1));
            const QStringView inside = code.mid(i + 1, std::max<qsizetype>(0, end - i - 1));
            if (c == u'"' && !inside.isEmpty())
                add(true, inside);
            else if (inside.startsWith(u'$') && inside.indexOf(u'-') > 1) // a currency: [$€-407]
                add(true, inside.mid(1, inside.indexOf(u'-') - 1));
            else if (c == u'[' && !inside.isEmpty() && QStringView(u"hms").contains(inside.front().toLower()))
                add(false, inside);
            i = end;
        } else if (c == u'\\' || c == u'_' || c == u'*') {
            if (++i, c == u'\\' && i < code.size())
                add(true, code.mid(i, 1));
        } else if (code.mid(i, 5).compare(u"am/pm", Qt::CaseInsensitive) == 0) {
            add(false, u"a");
            i += 4;
        } else {
            add(!isDateLetter(c) && !QStringView(u"0#?.,%E").contains(c), code.mid(i, 1));
        }
    }
    return all;
}

bool isDate(const std::vector<Piece> &all)
{
    return std::any_of(all.begin(), all.end(),
                       [](const Piece &piece) { return !piece.literal && isDateLetter(piece.text.front()); });
}

/// One run of a letter in the form in which the toolkit writes dates.
QString datePattern(const std::vector<Piece> &all, size_t at, bool halfDays)
{
    const QString &run = all[at].text;
    const QChar letter = run.front().toLower();
    const auto neighbour = [&all](size_t i, char16_t wanted) {
        return i < all.size() && !all[i].literal && all[i].text.front().toLower() == wanted;
    };
    const auto isMinutes = [&] {
        for (size_t i = at; i-- > 0;) {
            if (!all[i].literal && isDateLetter(all[i].text.front()))
                return neighbour(i, u'h');
        }
        return neighbour(at + 1, u's') || neighbour(at + 2, u's');
    };
    if (letter == u'm' && !isMinutes())
        return QString(std::min<qsizetype>(run.size(), 4), u'M');
    if (letter == u'y')
        return QString(run.size() > 2 ? 4 : 2, u'y');
    if (letter == u'h')
        return QString(std::min<qsizetype>(run.size(), 2), halfDays ? u'h' : u'H');
    return QString(std::min<qsizetype>(run.size(), letter == u'd' ? 4 : 2), letter);
}

QString shownDate(double value, const std::vector<Piece> &all, bool from1904, const QLocale &locale)
{
    static constexpr double LastDay = 2958466; // of the year 9999
    static constexpr double SecondsOfDay = 86400;
    if (!(value >= 0 && value < LastDay))
        return {};
    const QDate first = from1904 ? QDate(1904, 1, 1) : QDate(1899, 12, 30);
    const double day = std::floor(value);
    const qint64 seconds = std::llround((value - day) * SecondsOfDay);
    const QDateTime time = QDateTime(first, QTime(0, 0), Qt::UTC).addDays(qint64(day)).addSecs(seconds);
    const bool halfDays =
        std::any_of(all.begin(), all.end(), [](const Piece &p) { return !p.literal && p.text == u"a"; });
    QString text;
    for (size_t i = 0; i < all.size(); ++i) {
        if (all[i].literal || QStringView(u"0#?.,%E").contains(all[i].text.front()))
            text += all[i].text;
        else if (all[i].text == u"a")
            text += locale.toString(time, QStringLiteral("AP"));
        else if (const QString pattern = datePattern(all, i, halfDays);
                 pattern.startsWith(u'h')) // alone it has no noon
            text += locale.toString(time, pattern + QStringLiteral(" AP")).section(u' ', 0, 0);
        else
            text += locale.toString(time, pattern);
    }
    return text;
}

QString general(double value, const QLocale &locale)
{
    static constexpr double Exact = 1e15;
    QLocale plain(locale);
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    if (value == std::floor(value) && std::fabs(value) < Exact)
        return plain.toString(value, 'f', 0);
    return plain.toString(value, 'g', 11);
}

/// With as many zeros in front as the code's whole part asks for, and in groups if it asks for them.
QString written(double value, const QString &whole, int decimals, const QLocale &locale)
{
    QLocale style(locale);
    style.setNumberOptions(QLocale::OmitGroupSeparator);
    QString number = style.toString(value, 'f', decimals);
    const qsizetype end = number.indexOf(locale.decimalPoint());
    const qsizetype missing = std::max<qsizetype>(0, whole.count(u'0') - (end < 0 ? number.size() : end));
    number.prepend(QString(missing, u'0'));
    if (!whole.contains(u','))
        return number;
    if (missing == 0) { // then the locale knows where its groups begin
        style.setNumberOptions(QLocale::DefaultNumberOptions);
        return style.toString(value, 'f', decimals);
    }
    for (qsizetype i = whole.count(u'0') - 3; i > 0; i -= 3)
        number.insert(i, locale.groupSeparator());
    return number;
}

QString shownNumber(double value, const std::vector<Piece> &all, const QLocale &locale)
{
    QString before;
    QString digits;
    QString after;
    for (const Piece &piece : all) {
        if (!piece.literal && digits.isEmpty() && piece.text.startsWith(u'%'))
            before += piece.text;
        else if (!piece.literal && after.isEmpty() && !piece.text.startsWith(u'%'))
            digits += piece.text;
        else
            (digits.isEmpty() ? before : after) += piece.text;
    }
    const bool known = digits.isEmpty() || digits.contains(u'0') || digits.contains(u'#');
    const bool odd = std::any_of(all.begin(), all.end(), [](const Piece &piece) {
        return !piece.literal && (piece.text.contains(u'?') || piece.text.contains(u'E'));
    });
    if (odd || !known || all.empty())
        return general(value, locale);
    if (before.contains(u'%') || after.contains(u'%'))
        value *= 100;
    const qsizetype point = digits.indexOf(u'.');
    const QString decimals = point < 0 ? QString() : digits.mid(point + 1);
    if (digits.isEmpty())
        return before + after;
    QString number =
        written(std::fabs(value), digits.left(point), int(std::min<qsizetype>(decimals.size(), 30)), locale);
    for (qsizetype i = decimals.size(); i > 0 && decimals[i - 1] == u'#' && number.endsWith(u'0'); --i)
        number.chop(1);
    return (value < 0 ? locale.negativeSign() : QString()) + before + number + after;
}

} // namespace

namespace CellFormat {

QString shown(double value, QStringView code, bool from1904, const QLocale &locale)
{
    if (!std::isfinite(value))
        return {};
    if (code.isEmpty() || code == u"@" || code.contains(u"General", Qt::CaseInsensitive))
        return general(value, locale);
    const QStringView part = section(code, value);
    const std::vector<Piece> all = pieces(part);
    if (isDate(all))
        return shownDate(value, all, from1904, locale);
    const bool ownSign = value < 0 && part.data() != code.data();
    return shownNumber(ownSign ? -value : value, all, locale);
}

QString builtIn(int number, const QLocale &locale)
{
    static const std::map<int, const char *> codes{
        {1, "0"},         {2, "0.00"},           {3, "#,##0"},          {4, "#,##0.00"},
        {9, "0%"},        {10, "0.00%"},         {15, "d-mmm-yy"},      {16, "d-mmm"},
        {17, "mmm-yy"},   {18, "h:mm AM/PM"},    {19, "h:mm:ss AM/PM"}, {20, "h:mm"},
        {21, "h:mm:ss"},  {22, "m/d/yyyy h:mm"}, {37, "#,##0"},         {38, "#,##0"},
        {39, "#,##0.00"}, {40, "#,##0.00"},      {45, "mm:ss"},         {46, "h:mm:ss"}};
    static constexpr int UsualDate = 14;
    if (number == UsualDate)
        return locale.dateFormat(QLocale::ShortFormat).toLower();
    const auto found = codes.find(number);
    return found == codes.end() ? QString() : QString::fromLatin1(found->second);
}

} // namespace CellFormat
