#pragma once

#include "print/rules/PrintSource.h"

#include <functional>
#include <vector>

class LineBreaker;
class PrinterDevice;

/// The one page layout for the printer and the preview. Everything is laid out in twips of the printed page with the
/// printer's measures; only what is drawn is divided by ZoomDivisor. So a preview breaks lines and pages where the
/// printer does, at every zoom.
class modUtskrift
{
public:
    enum Mode { PreviewMode = 1, PrintMode = 2 };
    /// Told the number (from 1) of every page that goes to the printer, before it is drawn.
    using PageStarted = std::function<void(int page)>;

    explicit modUtskrift(PrinterDevice &printer, PageStarted pageStarted = {});
    ~modUtskrift();

    /// The pages that PrintMode draws, from 1; FromPage 0 stands for all.
    int FromPage = 0;
    int ToPage = 0;
    /// How often PrintMode draws each page before the next.
    int CopiesOfPage = 1;
    /// What every drawn length is divided by; 1.0 on the printer, at least 1.0 in the preview.
    double ZoomDivisor = 1.0;

    /// Lays out the document, which must outlive the drawing of its pages. PreviewMode finds where each page begins and
    /// draws nothing: drawPage draws the pages that are looked at. PrintMode then draws the chosen pages on the printer
    /// and throws PrinterError.
    void PrintLayout(Mode mode, const PrintSource &document);

    /// Draws a page (from 0) of the laid out document.
    void drawPage(int page, PrintSurface &device);

    /// The title line of the last run.
    const QString &PageTitle() const { return m_pageTitle; }
    /// The number of pages of the last run minus 1.
    int PageIndex() const { return int(m_pageStarts.size()) - 1; }
    int pageCount() const { return int(m_pageStarts.size()); }

    /// The size of a preview page in twips.
    int pageWidth() const;
    int pageHeight() const;

private:
    void readDocument(const PrintSource &document);
    void findPages();
    void printPages();
    std::vector<int> chosenPages() const;
    bool layOutPage(int &row);
    void layOutRow(int row);
    void PrintPageHeader();
    void PrintPageFooter();
    void PrintWrapped(const QString &text, int left, int right);
    void printHeading(const QString &text, int left, int right);
    void printLine(const QString &line, const TextMeasure &measure, int left, int right, bool rightToLeft);
    void draw(int x, int y, const QString &text, bool rightToLeft = false);
    void setColor(QRgb color);
    void setBold(bool bold);
    int divided(int twips) const;

    PrinterDevice &m_printer;
    PageStarted m_pageStarted;
    std::vector<int> m_pageStarts; ///< the first row of each page

    // The document and what follows from it and the printer's page.
    const PrintSource *m_document = nullptr;
    QString m_pageTitle;
    QString m_heading1;
    QString m_heading2;
    PrintFont m_font;
    QRgb m_textColor = 0;
    std::unique_ptr<TextMeasure> m_measure;
    std::unique_ptr<TextMeasure> m_boldMeasure;
    std::unique_ptr<LineBreaker> m_lineBreaker;
    int m_lastRow = 0;
    int m_lineHeight = 0;
    int m_column2Left = 0;
    int m_columnGap = 0; ///< kept free before a column's right limit

    // The page being laid out.
    PrintSurface *m_device = nullptr; ///< null while pages are only counted
    int m_page = 0;
    int m_currentY = 0;
};
