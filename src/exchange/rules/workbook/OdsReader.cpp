#include "document/rules/Vocabulary.h"
#include "exchange/rules/archive/XmlParts.h"
#include "exchange/rules/archive/ZipPackage.h"
#include "exchange/rules/workbook/SheetCells.h"
#include "exchange/rules/workbook/Workbook.h"

namespace {

/// Reads the tables of an OpenDocument spreadsheet. Its cells hold the text that shows beside the value.
class OdsReader
{
public:
    OdsReader(XmlParts &xml, const Limits &limits)
        : m_xml(xml)
        , m_limits(limits)
    {
    }

    std::vector<Workbook::Sheet> sheets()
    {
        std::vector<Workbook::Sheet> all;
        while (m_xml.next()) {
            if (!m_xml.isStart())
                continue;
            if (m_xml.name() == u"table")
                WorkbookReader::addSheet(all, sheet());
            else if (m_xml.name() == u"style")
                m_style = m_xml.attribute(u"name").toString();
            else if (m_xml.name() == u"table-properties" && m_xml.attribute(u"display") == u"false")
                m_hiddenStyles += m_style;
        }
        return all;
    }

private:
    Workbook::Sheet sheet()
    {
        const int depth = m_xml.depth();
        Workbook::Sheet sheet{
            m_xml.attribute(u"name").toString(), {}, m_hiddenStyles.contains(m_xml.attribute(u"style-name"))};
        SheetCells cells(m_limits);
        m_row = 0;
        while (m_xml.next() && (m_xml.isStart() || m_xml.depth() > depth)) {
            if (!m_xml.isStart())
                continue;
            if (m_xml.name() == u"table-row")
                takeRow(cells);
            else if (m_xml.name() == u"shapes" || m_xml.name() == u"table")
                m_xml.skip();
        }
        sheet.table = cells.take();
        return sheet;
    }

    void takeRow(SheetCells &cells)
    {
        const int depth = m_xml.depth();
        const int rows = std::max(1, m_xml.number(u"number-rows-repeated", 1));
        int column = 0;
        while (m_xml.next() && (m_xml.isStart() || m_xml.depth() > depth)) {
            if (m_xml.isStart() && m_xml.name() == u"table-cell")
                takeCell(cells, rows, column);
            else if (m_xml.isStart() && m_xml.name() == u"covered-table-cell")
                passOver(column);
        }
        m_row = qMin(qint64(m_row) + rows, qint64(std::numeric_limits<int>::max()));
    }

    int repeated() const { return std::max(1, m_xml.number(u"number-columns-repeated", 1)); }

    void passOver(int &column)
    {
        column += std::min(repeated(), std::numeric_limits<int>::max() - column);
        m_xml.skip();
    }

    void takeCell(SheetCells &cells, int rows, int &column)
    {
        const int columns = std::min(repeated(), std::numeric_limits<int>::max() - column);
        const QString text = cellText();
        const int lastColumn = std::min<int>(column + columns, TextTable::MostColumns + 1);
        for (int row = 0; row < rows && !text.isEmpty() && m_row + row <= Vocabulary::MostRows; ++row) {
            for (int at = column; at < lastColumn; ++at)
                cells.add(int(m_row) + row, at, text);
        }
        column += columns;
    }

    /// The paragraphs of the cell, without notes to it.
    QString cellText()
    {
        const int depth = m_xml.depth();
        QString text;
        bool first = true;
        while (m_xml.next() && (m_xml.isStart() || m_xml.depth() > depth)) {
            if (!m_xml.isStart())
                continue;
            if (m_xml.name() != u"p") {
                m_xml.skip();
                continue;
            }
            if (!std::exchange(first, false))
                text += u'\n';
            takeParagraph(text);
        }
        return text;
    }

    void takeParagraph(QString &text)
    {
        const int depth = m_xml.depth();
        while (m_xml.nextWithText() && (m_xml.isText() || m_xml.isStart() || m_xml.depth() > depth)) {
            if (m_xml.isText())
                text += m_xml.letters();
            else if (!m_xml.isStart())
                continue;
            else if (m_xml.name() == u"s")
                text += QString(std::min(m_xml.number(u"c", 1), 1000), u' ');
            else if (m_xml.name() == u"tab" || m_xml.name() == u"line-break")
                text += u' ';
            else if (m_xml.name() == u"annotation" || m_xml.name() == u"note" || m_xml.name() == u"ruby-text")
                m_xml.skip();
        }
    }

    XmlParts &m_xml;
    const Limits &m_limits;
    QString m_style;
    QStringList m_hiddenStyles;
    qint64 m_row = 0;
};

bool isLocked(const ZipPackage &package)
{
    static constexpr qsizetype Most = qsizetype(64) * 1024;
    return package.start(QStringLiteral("META-INF/manifest.xml"), Most).contains("encryption-data");
}

} // namespace

std::vector<Workbook::Sheet> WorkbookReader::ods(const QByteArray &bytes, const ZipPackage &package)
{
    if (isLocked(package))
        throw ReadFailure(ReadError::Locked);
    Limits limits(bytes.size());
    const std::unique_ptr<PackedStream> content = package.open(QStringLiteral("content.xml"), limits);
    XmlParts xml(*content);
    return OdsReader(xml, limits).sheets();
}
