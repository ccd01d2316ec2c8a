#pragma once

#include "print/rules/PageLayout.h"
#include "print/rules/PrintSource.h"

#include <memory>

class LineBreaker;
class PrinterMetrics;

/// A vocabulary laid out in pages, made for a printer's page and a zoom; it never changes. Everything is laid out in
/// twips of the printed page with the printer's measures; only what is drawn is divided by ZoomDivisor. So a preview
/// breaks lines and pages where the printer does, at every zoom.
class PrintLayout final : public PageLayout
{
public:
    /// Lays the document out. The printer is not needed any more afterwards; ZoomDivisor is 1.0 for printing and at
    /// least 1.0 in the preview.
    PrintLayout(std::shared_ptr<const PrintSource> document, const PrinterMetrics &printer, double ZoomDivisor = 1.0);
    ~PrintLayout() override;
    Q_DISABLE_COPY_MOVE(PrintLayout)

    const QString &PageTitle() const override { return m_pageTitle; }
    /// The number of pages minus 1.
    int PageIndex() const { return pageCount() - 1; }
    int pageCount() const override { return int(m_pageStarts.size()); }

    int pageWidth() const override { return divided(m_width); }
    int pageHeight() const override { return divided(m_height); }
    void drawPage(int page, PrintSurface &PrintDevice) const override;

private:
    class Page;

    void findPages();
    int divided(int twips) const;

    std::shared_ptr<const PrintSource> m_document;
    double m_zoomDivisor;
    int m_width; ///< of the printed page, as all that follows
    int m_height;
    int m_scaleHeight; ///< the height that can be drawn on
    QString m_pageTitle;
    QString m_heading1;
    QString m_heading2;
    QRgb m_textColor;
    std::unique_ptr<TextMeasure> m_measure;
    std::unique_ptr<TextMeasure> m_boldMeasure;
    std::unique_ptr<LineBreaker> m_lineBreaker;
    int m_lastRow;
    int m_lineHeight;
    int m_column2Left;
    int m_columnGap;               ///< kept free before a column's right limit
    std::vector<int> m_pageStarts; ///< the first row of each page
};
