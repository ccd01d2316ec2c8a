#include "print/rules/TestLayout.h"

#include "print/rules/FlashCards.h"
#include "print/rules/TestSheet.h"
#include "resources/StringTable.h"

TestLayout::TestLayout(const PrintSource &vocabulary, const TestChoice &choice, const PrinterMetrics &printer,
                       double ZoomDivisor)
    : m_pageTitle(resText(choice.kind == TestChoice::Cards ? 14757 : 14756).arg(vocabulary.Caption))
    , m_items(TestWords::items(vocabulary, choice))
    , m_zoomDivisor(ZoomDivisor)
    , m_width(printer.Width())
    , m_height(printer.Height())
{
}

std::unique_ptr<const PageLayout> PrintedTest::layOut(const PrintSource &vocabulary, const TestChoice &choice,
                                                      const PrinterMetrics &printer, double ZoomDivisor)
{
    if (choice.kind == TestChoice::Cards)
        return std::make_unique<const FlashCards>(vocabulary, choice, printer, ZoomDivisor);
    return std::make_unique<const TestSheet>(vocabulary, choice, printer, ZoomDivisor);
}
