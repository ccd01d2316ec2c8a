#pragma once

#include "print/rules/PageLayout.h"
#include "print/rules/PagePen.h"
#include "print/rules/TestWords.h"

/// What a test sheet and flash cards have in common: the page, its zoom and the questions.
class TestLayout : public PageLayout
{
public:
    const QString &PageTitle() const override { return m_pageTitle; }
    int pageWidth() const override { return PagePen::divided(m_width, m_zoomDivisor); }
    int pageHeight() const override { return PagePen::divided(m_height, m_zoomDivisor); }

protected:
    TestLayout(const PrintSource &vocabulary, const TestChoice &choice, const PrinterMetrics &printer,
               double ZoomDivisor);

    PagePen penFor(PrintSurface &surface) const { return {&surface, m_zoomDivisor}; }
    int width() const { return m_width; } ///< of the printed page in twips
    int height() const { return m_height; }
    const std::vector<TestItem> &items() const { return m_items; }

private:
    QString m_pageTitle;
    std::vector<TestItem> m_items;
    double m_zoomDivisor;
    int m_width;
    int m_height;
};

namespace PrintedTest {

/// The layout of what was chosen.
std::unique_ptr<const PageLayout> layOut(const PrintSource &vocabulary, const TestChoice &choice,
                                         const PrinterMetrics &printer, double ZoomDivisor);

} // namespace PrintedTest
