#pragma once

#include "print/rules/TestLayout.h"

#include <QRect>

/// Cards to cut out, a page of fronts with the questions followed by a page of backs with the answers. A back stands
/// where its front is when the sheet has been turned over.
class FlashCards final : public TestLayout
{
public:
    FlashCards(const PrintSource &vocabulary, const TestChoice &choice, const PrinterMetrics &printer,
               double ZoomDivisor);
    ~FlashCards() override;

    int pageCount() const override;
    void drawPage(int page, PrintSurface &PrintDevice) const override;

private:
    class WordFont;

    QRect card(int slot, bool back) const;
    void drawCutLines(PagePen &pen) const;
    void drawWord(PagePen &pen, const QRect &card, const QString &word) const;
    const WordFont &fontFor(const QString &word, const QSize &space) const;

    bool m_mirrorsColumns; ///< on the backs; else the rows
    std::vector<std::unique_ptr<WordFont>> m_fonts;
};
