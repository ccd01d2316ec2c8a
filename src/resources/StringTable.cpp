#include "resources/StringTable.h"

#include "resources/ResourceFiles.h"
#include "resources/TextLanguage.h"

#include <QLocale>

#include <algorithm>
#include <optional>

namespace {

/// Resolves the escapes of a text; false when one is unknown or cut off.
bool unescape(QString &text)
{
    for (qsizetype at = text.indexOf(QLatin1Char('\\')); at >= 0; at = text.indexOf(QLatin1Char('\\'), at + 1)) {
        constexpr QLatin1String Names("nts\\"), Meanings("\n\t \\");
        const qsizetype which = at + 1 < text.size() ? Names.indexOf(text.at(at + 1)) : -1;
        if (which < 0)
            return false;
        text.replace(at, 2, Meanings.at(which));
    }
    return true;
}

struct Line
{
    std::optional<int> id; ///< none: there is no number before a tab
    QByteArrayView text;   ///< as it stands in the file
};

Line split(QByteArrayView line)
{
    const qsizetype tab = line.indexOf('\t');
    bool isNumber = false;
    const int id = line.first(std::max<qsizetype>(tab, 0)).toInt(&isNumber);
    return {isNumber ? std::optional(id) : std::nullopt, line.sliced(tab + 1)};
}

/// Takes one line into the table; returns what is wrong with it, or an empty text.
QString takeLine(const Line &line, QHash<int, QString> &table)
{
    QString text = QString::fromUtf8(line.text);
    if (!line.id || text.isEmpty() || text.front().isSpace() || text.back().isSpace() || !unescape(text))
        return QStringLiteral("malformed");
    if (table.contains(*line.id))
        return QStringLiteral("doubled id %1").arg(*line.id);
    table.insert(*line.id, text);
    return {};
}

/// Calls with every line that holds something, and its number.
template <typename Take> void forEachLine(QByteArrayView source, Take take)
{
    for (int number = 1; !source.isEmpty(); ++number) {
        const qsizetype end = source.indexOf('\n');
        const QByteArrayView line = end < 0 ? source : source.first(end);
        source = end < 0 ? QByteArrayView() : source.sliced(end + 1);
        if (!line.isEmpty() && !line.startsWith('#'))
            take(split(line), number);
    }
}

/// The texts in use, as they stand in their files: of a thousand a start asks for two hundred.
class Texts
{
public:
    Texts() { lay(ResourceFiles::StringTable); }

    /// Lays a table over those that are there. It holds no faults, which a test looks for.
    void lay(QLatin1String file)
    {
        m_files.push_back(ResourceFiles::contents(file));
        m_texts.reserve(m_files.back().count('\n'));
        forEachLine(m_files.back(), [this](const Line &line, int) { m_texts.insert(line.id.value_or(0), line.text); });
    }

    QString text(int id) const
    {
        QString text = QString::fromUtf8(m_texts.value(id));
        unescape(text);
        return text;
    }
    QList<int> ids() const { return m_texts.keys(); }

private:
    std::vector<QByteArray> m_files;
    QHash<int, QByteArrayView> m_texts;
};

/// English ones until another table is laid over them.
Texts &texts()
{
    static Texts texts;
    return texts;
}

/// Whose table lies over the English one.
QString &languageInUse()
{
    static QString language;
    return language;
}

} // namespace

const QString &TextLanguage::inUse()
{
    return languageInUse();
}

QString TextLanguage::isolated(const QString &name)
{
    constexpr QChar FirstStrongIsolate(0x2068), PopIsolate(0x2069);
    const bool mixes = QLocale(languageInUse()).textDirection() == Qt::RightToLeft;
    return mixes ? FirstStrongIsolate + name + PopIsolate : name;
}

void TextLanguage::use(const QString &language)
{
    if (language.isEmpty())
        return;
    languageInUse() = language;
    const QByteArray name = "strings." + language.toLatin1() + ".txt";
    texts().lay(QLatin1String(name));
}

QHash<int, QString> parseStringTable(QByteArrayView source, QStringList *faults)
{
    QHash<int, QString> table;
    table.reserve(source.count('\n'));
    forEachLine(source, [&table, faults](const Line &line, int number) {
        const QString fault = takeLine(line, table);
        if (faults && !fault.isEmpty())
            faults->append(QStringLiteral("line %1: %2").arg(number).arg(fault));
    });
    return table;
}

QString resText(int id)
{
    QString text = texts().text(id);
    if (text.isEmpty())
        qWarning("There is no text with the id %d", id);
    return text;
}

QList<int> resTextIds()
{
    QList<int> ids = texts().ids();
    std::sort(ids.begin(), ids.end());
    return ids;
}
