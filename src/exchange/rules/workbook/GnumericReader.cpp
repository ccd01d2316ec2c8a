#include "exchange/rules/archive/Unpacked.h"
#include "exchange/rules/archive/XmlParts.h"
#include "exchange/rules/workbook/CellFormat.h"
#include "exchange/rules/workbook/SheetCells.h"
#include "exchange/rules/workbook/Workbook.h"

namespace {

/// What a cell of the file holds.
enum ValueType { Nothing = 10, Truth = 20, Whole = 30, Number = 40, Text = 60 };

/// Reads the sheets of a Gnumeric workbook. It holds no results of formulas.
class GnumericReader
{
public:
    GnumericReader(XmlParts &xml, const Limits &limits, const QLocale &locale)
        : m_xml(xml)
        , m_limits(limits)
        , m_locale(locale)
    {
    }

    std::vector<Workbook::Sheet> sheets()
    {
        if (!m_xml.next() || m_xml.name() != u"Workbook")
            throw ReadFailure(ReadError::OtherKind);
        std::vector<Workbook::Sheet> all;
        while (m_xml.next()) {
            if (m_xml.isStart() && m_xml.name() == u"DateConvention")
                m_from1904 = m_xml.text().contains(u"1904");
            else if (m_xml.isStart() && m_xml.name() == u"Sheet")
                WorkbookReader::addSheet(all, sheet());
        }
        return all;
    }

private:
    /// The format of the cells of a rectangle.
    struct Region
    {
        int left, top, right, bottom;
        QString format;
    };

    Workbook::Sheet sheet()
    {
        const int depth = m_xml.depth();
        Workbook::Sheet sheet;
        sheet.hidden = m_xml.attribute(u"Visibility").startsWith(u"GNM_SHEET_VISIBILITY_") &&
                       m_xml.attribute(u"Visibility") != u"GNM_SHEET_VISIBILITY_VISIBLE";
        SheetCells cells(m_limits);
        m_regions.clear();
        while (m_xml.next() && (m_xml.isStart() || m_xml.depth() > depth)) {
            if (!m_xml.isStart())
                continue;
            if (m_xml.name() == u"Name" && m_xml.depth() == depth + 1)
                sheet.name = m_xml.text();
            else if (m_xml.name() == u"StyleRegion")
                takeRegion();
            else if (m_xml.name() == u"Cell")
                takeCell(cells);
        }
        sheet.table = cells.take();
        return sheet;
    }

    void takeRegion()
    {
        static constexpr size_t MostRegions = 1000;
        Region region{m_xml.number(u"startCol", 0),
                      m_xml.number(u"startRow", 0),
                      m_xml.number(u"endCol", 0),
                      m_xml.number(u"endRow", 0),
                      {}};
        if (m_xml.next() && m_xml.isStart() && m_xml.name() == u"Style")
            region.format = m_xml.attribute(u"Format").toString();
        if (!region.format.isEmpty() && region.format != u"General" && m_regions.size() < MostRegions)
            m_regions.push_back(region);
    }

    QString formatOf(int row, int column) const
    {
        const auto holds = [row, column](const Region &region) {
            return column >= region.left && column <= region.right && row >= region.top && row <= region.bottom;
        };
        const auto found = std::find_if(m_regions.begin(), m_regions.end(), holds);
        return found == m_regions.end() ? QString() : found->format;
    }

    void takeCell(SheetCells &cells)
    {
        const int row = m_xml.number(u"Row", -1);
        const int column = m_xml.number(u"Col", -1);
        const int type = m_xml.number(u"ValueType", Nothing);
        QString format = m_xml.attribute(u"ValueFormat").toString();
        const bool formula = m_xml.attribute(u"ValueType").isEmpty();
        const QString content = m_xml.text();
        if (formula)
            return cells.addMissing();
        if (type != Number && type != Whole)
            return cells.add(row, column, content);
        if (format.isEmpty() || format.startsWith(u'@'))
            format = formatOf(row, column);
        bool isNumber = false;
        const double value = content.toDouble(&isNumber);
        cells.add(row, column, isNumber ? CellFormat::shown(value, format, m_from1904, m_locale) : content);
    }

    XmlParts &m_xml;
    const Limits &m_limits;
    QLocale m_locale;
    std::vector<Region> m_regions;
    bool m_from1904 = false;
};

std::unique_ptr<PackedStream> asItIs(const QByteArray &bytes, Limits &limits)
{
    const auto source = [&bytes, at = qsizetype(0)](char *out, qint64 most) mutable {
        const qsizetype size = std::min<qsizetype>(most, bytes.size() - at);
        std::copy_n(bytes.constData() + at, size, out);
        at += size;
        return qint64(size);
    };
    return std::make_unique<PackedStream>(source, limits);
}

} // namespace

std::vector<Workbook::Sheet> WorkbookReader::gnumeric(const QByteArray &bytes, const QLocale &locale)
{
    Limits limits(bytes.size());
    const auto stream = bytes.startsWith('<') ? asItIs(bytes, limits) : Unpacked::gzip(bytes, limits);
    XmlParts xml(*stream);
    return GnumericReader(xml, limits, locale).sheets();
}
