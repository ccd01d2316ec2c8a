#include "exchange/rules/archive/XmlParts.h"
#include "exchange/rules/archive/ZipPackage.h"
#include "exchange/rules/workbook/CellFormat.h"
#include "exchange/rules/workbook/SheetCells.h"
#include "exchange/rules/workbook/Workbook.h"

#include <QHash>

namespace {

const QString WorkbookPart = QStringLiteral("xl/workbook.xml");

/// The place of a cell from 0 on, of "B12" say. Negative where the reference has none.
struct Place
{
    int row = -1;
    int column = -1;

    static Place of(QStringView reference)
    {
        static constexpr int Most = 10000000;
        Place place{0, 0};
        for (const QChar c : reference) {
            if (c.isDigit() && place.row < Most)
                place.row = place.row * 10 + c.digitValue();
            else if (c >= u'A' && c <= u'Z' && place.column < Most)
                place.column = place.column * 26 + (c.unicode() - u'A' + 1);
        }
        return {place.row - 1, place.column - 1};
    }
};

/// Reads the parts of an Office Open XML workbook.
class XlsxReader
{
public:
    XlsxReader(const ZipPackage &package, qsizetype fileSize, const QLocale &locale)
        : m_package(package)
        , m_limits(fileSize)
        , m_locale(locale)
    {
    }

    std::vector<Workbook::Sheet> sheets()
    {
        readRelations();
        readPart(m_partsByKind.value(QStringLiteral("sharedStrings")), &XlsxReader::readStrings);
        readPart(m_partsByKind.value(QStringLiteral("styles")), &XlsxReader::readStyles);
        readPart(WorkbookPart, &XlsxReader::readWorkbook);
        qsizetype kept = m_strings.bytes();
        for (const QString &part : m_sheetParts) {
            Workbook::Sheet &sheet = m_sheets[size_t(m_read++)];
            readPart(part, &XlsxReader::readSheet);
            sheet.table = m_cells->take();
            m_limits.keep(kept += sheet.table.bytes());
        }
        return std::move(m_sheets);
    }

private:
    void readPart(const QString &name, void (XlsxReader::*read)(XmlParts &))
    {
        m_cells.emplace(m_limits);
        if (name.isEmpty() || !m_package.contains(name))
            return;
        const std::unique_ptr<PackedStream> stream = m_package.open(name, m_limits);
        XmlParts xml(*stream);
        (this->*read)(xml);
    }

    /// Which part holds what; names are relative to the folder of the workbook's own part.
    void readRelations() { readPart(QStringLiteral("xl/_rels/workbook.xml.rels"), &XlsxReader::readRelations); }
    void readRelations(XmlParts &xml)
    {
        while (xml.next()) {
            if (!xml.isStart() || xml.name() != u"Relationship")
                continue;
            const QString target = xml.attribute(u"Target").toString();
            const QString part = target.startsWith(u'/') ? target.mid(1) : QStringLiteral("xl/") + target;
            m_partsById.insert(xml.attribute(u"Id").toString(), part);
            m_partsByKind.insert(xml.attribute(u"Type").toString().section(u'/', -1), part);
        }
    }

    void readWorkbook(XmlParts &xml)
    {
        while (xml.next()) {
            if (!xml.isStart())
                continue;
            if (xml.name() == u"workbookPr") {
                const QStringView from1904 = xml.attribute(u"date1904");
                m_from1904 = from1904 == u"1" || from1904 == u"true";
            } else if (xml.name() == u"sheet") {
                Workbook::Sheet sheet;
                sheet.name = xml.attribute(u"name").toString();
                sheet.hidden = xml.attribute(u"state").contains(u"idden");
                WorkbookReader::addSheet(m_sheets, std::move(sheet));
                m_sheetParts += m_partsById.value(xml.attribute(u"id").toString());
            }
        }
    }

    void readStrings(XmlParts &xml)
    {
        while (xml.next()) {
            if (!xml.isStart() || xml.name() != u"si")
                continue;
            m_strings.addCell(richText(xml));
            m_strings.endRow();
            m_limits.keep(m_strings.bytes());
        }
    }

    /// All runs of a text, without what tells how to read it aloud.
    static QString richText(XmlParts &xml)
    {
        const int depth = xml.depth();
        QString text;
        while (xml.next() && (xml.isStart() || xml.depth() > depth)) {
            if (xml.isStart() && xml.name() == u"t")
                text += xml.text();
            else if (xml.isStart() && xml.name() == u"rPh")
                xml.skip();
        }
        return text;
    }

    void readStyles(XmlParts &xml)
    {
        QHash<int, QString> codes;
        bool inCells = false;
        while (xml.next()) {
            if (xml.name() == u"cellXfs")
                inCells = xml.isStart();
            if (!xml.isStart())
                continue;
            if (xml.name() == u"numFmt") {
                codes.insert(xml.number(u"numFmtId", 0), xml.attribute(u"formatCode").toString());
            } else if (inCells && xml.name() == u"xf") {
                const int format = xml.number(u"numFmtId", 0);
                m_formats.push_back(codes.value(format, CellFormat::builtIn(format, m_locale)));
            }
        }
    }

    void readSheet(XmlParts &xml)
    {
        int row = -1;
        int column = -1;
        while (xml.next()) {
            if (!xml.isStart())
                continue;
            if (xml.name() == u"row") {
                row = xml.number(u"r", row + 2) - 1;
                column = -1;
            } else if (xml.name() == u"c") {
                const Place place = Place::of(xml.attribute(u"r"));
                column = place.column >= 0 ? place.column : column + 1;
                takeCell(xml, place.row >= 0 ? place.row : row, column);
            }
        }
    }

    void takeCell(XmlParts &xml, int row, int column)
    {
        const int depth = xml.depth();
        const QString type = xml.attribute(u"t").toString();
        const int style = xml.number(u"s", 0);
        bool formula = false;
        QString text;
        while (xml.next() && (xml.isStart() || xml.depth() > depth)) {
            if (!xml.isStart())
                continue;
            formula |= xml.name() == u"f";
            if (xml.name() == u"is")
                text = richText(xml);
            else if (xml.name() == u"v")
                text = xml.text();
        }
        if (formula && text.isEmpty() && type != u"str")
            m_cells->addMissing();
        else
            m_cells->add(row, column, shown(text, type, style));
    }

    /// A value as it shows.
    QString shown(const QString &value, const QString &type, int style) const
    {
        bool isNumber = false;
        if (type == u"s") {
            const qsizetype index = value.toLongLong(&isNumber);
            return isNumber && index >= 0 && index < m_strings.rows() ? m_strings.cell(index, 0).toString() : QString();
        }
        if (type == u"b")
            return value == u"0" ? QStringLiteral("FALSE") : QStringLiteral("TRUE");
        const double number = value.toDouble(&isNumber);
        if (!isNumber || (!type.isEmpty() && type != u"n"))
            return value;
        const QString code = size_t(style) < m_formats.size() ? m_formats[size_t(style)] : QString();
        return CellFormat::shown(number, code, m_from1904, m_locale);
    }

    const ZipPackage &m_package;
    Limits m_limits;
    QLocale m_locale;
    QHash<QString, QString> m_partsById;
    QHash<QString, QString> m_partsByKind;
    TextTable m_strings; ///< one a row
    std::vector<QString> m_formats;
    bool m_from1904 = false;
    std::vector<Workbook::Sheet> m_sheets;
    QStringList m_sheetParts;
    qsizetype m_read = 0;
    std::optional<SheetCells> m_cells;
};

} // namespace

std::vector<Workbook::Sheet> WorkbookReader::xlsx(const QByteArray &bytes, const ZipPackage &package,
                                                  const QLocale &locale)
{
    return XlsxReader(package, bytes.size(), locale).sheets();
}
