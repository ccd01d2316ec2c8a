#include "print/rules/modUtskrift.h"

#include "print/rules/LineBreaker.h"
#include "print/rules/PagePen.h"
#include "resources/StringTable.h"

#include <QColor>

#include <algorithm>

namespace {

// Twips on the printed page.
constexpr int NumberRight = 1500;
constexpr int Column1Left = 1750;
constexpr int Column2Offset = 750; // right of the middle
constexpr int HeaderTop = 1000;
constexpr int FooterHeight = 2000; // from the lower edge to the top of the page number
constexpr int BottomHeight = 2500; // a row that ends below this is the page's last
constexpr int LineSpacing = 10;

constexpr QRgb Black = 0xff000000;

QRgb textColorOf(int color)
{
    const bool systemColor = color < 0;
    return systemColor ? Black : qRgb(color & 0xff, (color >> 8) & 0xff, (color >> 16) & 0xff);
}

int lastRowWithWord(const PrintSource &document)
{
    int row = int(document.first.size()) - 1;
    while (row > 0 && document.first[size_t(row)].isEmpty())
        --row;
    return row;
}

PrintFont bold(PrintFont font)
{
    font.Bold = true;
    return font;
}

} // namespace

/// Lays out one page from the title to the page number. Without a device it only finds where the page ends.
class PrintLayout::Page
{
public:
    Page(const PrintLayout &layout, int number, PrintSurface *PrintDevice)
        : m_layout(layout)
        , m_number(number)
        , m_pen(PrintDevice, layout.m_zoomDivisor)
    {
    }

    bool layOut(int &row);

private:
    void layOutRow(int row);
    void PrintPageHeader();
    void PrintPageFooter();
    void PrintWrapped(const QString &text, int left, int right);
    void printHeading(const QString &text, int left, int right);
    void printLine(const QString &line, const TextMeasure &measure, int left, int right, bool rightToLeft);
    void setBold(bool bold);

    const PrintLayout &m_layout;
    int m_number; ///< from 0
    PagePen m_pen;
    int m_currentY = 0;
};

// Begins with row and sets row to the first row after the page. Returns whether another page follows: as the break
// comes after the row that fills the page, one that the last row has filled is followed by an empty one.
bool PrintLayout::Page::layOut(int &row)
{
    PrintPageHeader();
    bool full = false;
    for (; row <= m_layout.m_lastRow && !full; ++row) {
        layOutRow(row);
        full = m_currentY > m_layout.m_scaleHeight - BottomHeight;
    }
    PrintPageFooter();
    return full;
}

void PrintLayout::Page::layOutRow(int row)
{
    const int rowTop = m_currentY;
    if (m_pen.draws()) {
        const QString number = QString::number(row);
        m_pen.setColor(Black);
        m_pen.draw(NumberRight - m_layout.m_measure->TextWidth(number), rowTop, number);
        m_pen.setColor(m_layout.m_textColor);
    }
    PrintWrapped(m_layout.m_document->first[size_t(row)], Column1Left, m_layout.m_column2Left);
    const int end1 = m_currentY;
    m_currentY = rowTop;
    PrintWrapped(m_layout.m_document->second[size_t(row)], m_layout.m_column2Left, m_layout.m_width);
    m_currentY = std::max(end1, m_currentY) + m_layout.m_lineHeight;
}

void PrintLayout::Page::PrintPageHeader()
{
    const bool documentBold = m_layout.m_document->Font.Bold;
    m_currentY = HeaderTop;
    setBold(documentBold);
    m_pen.setColor(Black);
    m_pen.draw(NumberRight, m_currentY, m_layout.m_pageTitle);
    m_currentY += m_layout.m_measure->TextHeight() + 2 * m_layout.m_lineHeight;
    setBold(true);
    printHeading(m_layout.m_heading1, Column1Left, m_layout.m_column2Left);
    printHeading(m_layout.m_heading2, m_layout.m_column2Left, m_layout.m_width);
    m_currentY += m_layout.m_boldMeasure->TextHeight() + m_layout.m_lineHeight;
    setBold(documentBold);
    m_pen.setColor(m_layout.m_textColor);
}

void PrintLayout::Page::PrintPageFooter()
{
    m_pen.draw(m_layout.m_width / 2, m_layout.m_height - FooterHeight, QString::number(m_number + 1));
}

void PrintLayout::Page::printHeading(const QString &text, int left, int right)
{
    if (m_pen.draws())
        printLine(text, *m_layout.m_boldMeasure, left, right, text.isRightToLeft());
}

void PrintLayout::Page::PrintWrapped(const QString &text, int left, int right)
{
    const int width = right - m_layout.m_columnGap - left;
    if (!m_pen.draws() && m_layout.m_lineBreaker->surelyFits(text, width))
        return;
    const QStringList lines = m_layout.m_lineBreaker->lines(text, width);
    const bool rightToLeft = text.isRightToLeft();
    for (const QString &line : lines) {
        if (m_pen.draws())
            printLine(line, *m_layout.m_measure, left, right, rightToLeft);
        m_currentY += m_layout.m_lineHeight;
    }
    m_currentY -= m_layout.m_lineHeight;
}

// A text that reads from the right begins where the words of other texts end. One that is too wide runs over to the
// right as others do.
void PrintLayout::Page::printLine(const QString &line, const TextMeasure &measure, int left, int right,
                                  bool rightToLeft)
{
    const int end = std::max(right - m_layout.m_columnGap, left + measure.TextWidth(line));
    m_pen.draw(rightToLeft ? end : left, m_currentY, line, rightToLeft);
}

void PrintLayout::Page::setBold(bool bold)
{
    PrintFont font = m_layout.m_document->Font;
    font.Bold = bold;
    m_pen.setFont(font);
}

PrintLayout::PrintLayout(std::shared_ptr<const PrintSource> document, const PrinterMetrics &printer, double ZoomDivisor)
    : m_document(std::move(document))
    , m_zoomDivisor(ZoomDivisor)
    , m_width(printer.Width())
    , m_height(printer.Height())
    , m_scaleHeight(printer.ScaleHeight())
    , m_pageTitle(resText(14090).arg(m_document->Caption))
    , m_heading1(u' ' + m_document->first[0])
    , m_heading2(u' ' + m_document->second[0])
    , m_textColor(textColorOf(m_document->ForeColor))
    , m_measure(printer.measure(m_document->Font))
    , m_boldMeasure(printer.measure(bold(m_document->Font)))
    , m_lineBreaker(std::make_unique<LineBreaker>(*m_measure))
    , m_lastRow(lastRowWithWord(*m_document))
    , m_lineHeight(m_measure->TextHeight() + LineSpacing)
    , m_column2Left(m_width / 2 + Column2Offset)
    , m_columnGap(m_measure->TextWidth(QStringLiteral("ZZZZZZZZ")))
{
    findPages();
}

PrintLayout::~PrintLayout() = default;

void PrintLayout::findPages()
{
    int row = 1;
    do
        m_pageStarts.push_back(row);
    while (Page(*this, PageIndex(), nullptr).layOut(row));
}

void PrintLayout::drawPage(int page, PrintSurface &PrintDevice) const
{
    int row = m_pageStarts.at(size_t(page));
    Page(*this, page, &PrintDevice).layOut(row);
}

int PrintLayout::divided(int twips) const
{
    return PagePen::divided(twips, m_zoomDivisor);
}
