#include "print/rules/modUtskrift.h"

#include "print/rules/LineBreaker.h"
#include "print/rules/PrinterDevice.h"

#include <QColor>

#include <algorithm>
#include <cmath>

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
    int row = document.Rows() - 1;
    while (row > 0 && document.TextMatrix(row, 1).isEmpty())
        --row;
    return std::max(0, row);
}

} // namespace

modUtskrift::modUtskrift(PrinterDevice &printer, PageStarted pageStarted)
    : m_printer(printer)
    , m_pageStarted(std::move(pageStarted))
{
}

modUtskrift::~modUtskrift() = default;

void modUtskrift::PrintLayout(Mode mode, const PrintSource &document)
{
    readDocument(document);
    findPages();
    if (mode == PrintMode)
        printPages();
}

void modUtskrift::readDocument(const PrintSource &document)
{
    m_document = &document;
    m_pageTitle = QStringLiteral("Glosaria - ") + document.Caption();
    m_heading1 = u' ' + document.TextMatrix(0, 1);
    m_heading2 = u' ' + document.TextMatrix(0, 2);
    m_font = document.Font();
    m_textColor = textColorOf(document.ForeColor());
    m_lastRow = lastRowWithWord(document);

    PrintFont bold = m_font;
    bold.Bold = true;
    m_measure = m_printer.measure(m_font);
    m_boldMeasure = m_printer.measure(bold);
    m_lineHeight = m_measure->TextHeight() + LineSpacing;
    m_column2Left = m_printer.Width() / 2 + Column2Offset;
    m_columnGap = m_measure->TextWidth(QStringLiteral("ZZZZZZZZ"));
    m_lineBreaker = std::make_unique<LineBreaker>(*m_measure);
}

void modUtskrift::findPages()
{
    m_device = nullptr;
    m_pageStarts.clear();
    int row = 1;
    do
        m_pageStarts.push_back(row);
    while (layOutPage(row));
}

void modUtskrift::printPages()
{
    ZoomDivisor = 1.0;
    for (const int page : chosenPages()) {
        for (int copy = 0; copy < CopiesOfPage; ++copy) {
            if (m_pageStarted)
                m_pageStarted(page + 1);
            m_printer.startPage();
            drawPage(page, m_printer);
        }
    }
}

std::vector<int> modUtskrift::chosenPages() const
{
    std::vector<int> pages;
    for (int page = 0; page < pageCount(); ++page) {
        const bool inRange = FromPage == 0 || (page + 1 >= FromPage && page + 1 <= ToPage);
        if (inRange && m_printer.wantsPage(page + 1))
            pages.push_back(page);
    }
    if (m_printer.lastPageFirst())
        std::reverse(pages.begin(), pages.end());
    return pages;
}

void modUtskrift::drawPage(int page, PrintSurface &device)
{
    m_device = &device;
    m_page = page;
    int row = m_pageStarts.at(size_t(page));
    layOutPage(row);
    m_device = nullptr;
}

// Lays out the page that begins with row and sets row to the first row after it. Returns whether another page follows:
// as the break comes after the row that fills the page, one that the last row has filled is followed by an empty one.
bool modUtskrift::layOutPage(int &row)
{
    PrintPageHeader();
    bool full = false;
    for (; row <= m_lastRow && !full; ++row) {
        layOutRow(row);
        full = m_currentY > m_printer.ScaleHeight() - BottomHeight;
    }
    PrintPageFooter();
    return full;
}

void modUtskrift::layOutRow(int row)
{
    const int rowTop = m_currentY;
    if (m_device) {
        const QString number = m_document->TextMatrix(row, 0);
        setColor(Black);
        draw(NumberRight - m_measure->TextWidth(number), rowTop, number);
        setColor(m_textColor);
    }
    PrintWrapped(m_document->TextMatrix(row, 1), Column1Left, m_column2Left);
    const int end1 = m_currentY;
    m_currentY = rowTop;
    PrintWrapped(m_document->TextMatrix(row, 2), m_column2Left, m_printer.Width());
    m_currentY = std::max(end1, m_currentY) + m_lineHeight;
}

void modUtskrift::PrintPageHeader()
{
    m_currentY = HeaderTop;
    setBold(m_font.Bold);
    setColor(Black);
    draw(NumberRight, m_currentY, m_pageTitle);
    m_currentY += m_measure->TextHeight() + 2 * m_lineHeight;
    setBold(true);
    printHeading(m_heading1, Column1Left, m_column2Left);
    printHeading(m_heading2, m_column2Left, m_printer.Width());
    m_currentY += m_boldMeasure->TextHeight() + m_lineHeight;
    setBold(m_font.Bold);
    setColor(m_textColor);
}

void modUtskrift::PrintPageFooter()
{
    draw(m_printer.Width() / 2, m_printer.Height() - FooterHeight, QString::number(m_page + 1));
}

void modUtskrift::printHeading(const QString &text, int left, int right)
{
    if (m_device)
        printLine(text, *m_boldMeasure, left, right, text.isRightToLeft());
}

void modUtskrift::PrintWrapped(const QString &text, int left, int right)
{
    const int width = right - m_columnGap - left;
    if (!m_device && m_lineBreaker->surelyFits(text, width))
        return;
    const QStringList lines = m_lineBreaker->lines(text, width);
    const bool rightToLeft = text.isRightToLeft();
    for (const QString &line : lines) {
        if (m_device)
            printLine(line, *m_measure, left, right, rightToLeft);
        m_currentY += m_lineHeight;
    }
    m_currentY -= m_lineHeight;
}

// A text that reads from the right begins where the words of other texts end. One that is too wide runs over to the
// right as others do.
void modUtskrift::printLine(const QString &line, const TextMeasure &measure, int left, int right, bool rightToLeft)
{
    draw(rightToLeft ? std::max(right - m_columnGap, left + measure.TextWidth(line)) : left, m_currentY, line,
         rightToLeft);
}

void modUtskrift::draw(int x, int y, const QString &text, bool rightToLeft)
{
    if (m_device && !text.isEmpty())
        m_device->drawText(divided(x), divided(y), text, rightToLeft);
}

void modUtskrift::setColor(QRgb color)
{
    if (m_device)
        m_device->setForeColor(color);
}

void modUtskrift::setBold(bool bold)
{
    if (!m_device)
        return;
    PrintFont font = m_font;
    font.Size = std::max(1, int(m_font.Size / ZoomDivisor));
    font.Bold = bold;
    m_device->setFont(font);
}

int modUtskrift::divided(int twips) const
{
    return int(std::lround(twips / ZoomDivisor));
}

int modUtskrift::pageWidth() const
{
    return divided(m_printer.Width());
}

int modUtskrift::pageHeight() const
{
    return divided(m_printer.Height());
}
