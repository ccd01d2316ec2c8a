#include "print/rules/FlashCards.h"

#include "print/rules/LineBreaker.h"

#include <algorithm>

namespace {

constexpr int Columns = 2;
constexpr int Rows = 4;
constexpr int CardsOfPage = Columns * Rows;
constexpr int Margin = 567;  // twips around all cards, a centimetre
constexpr int Padding = 280; // twips within a card
constexpr int NumberSize = 8;
constexpr QRgb Black = 0xff000000;
constexpr QRgb Gray = 0xff808080;

} // namespace

/// A size in which words are written, the largest that fits.
class FlashCards::WordFont
{
public:
    WordFont(const PrintFont &wordFont, const PrinterMetrics &printer)
        : font(wordFont)
        , measure(printer.measure(wordFont))
        , breaker(*measure)
    {
    }
    bool fits(const QString &word, const QSize &space) const
    {
        const QStringList lines = breaker.lines(word, space.width());
        const auto isNarrow = [&](const QString &line) { return measure->TextWidth(line) <= space.width(); };
        return lines.size() * measure->TextHeight() <= space.height() &&
               std::all_of(lines.begin(), lines.end(), isNarrow);
    }

    PrintFont font;
    std::unique_ptr<TextMeasure> measure;
    LineBreaker breaker;
};

FlashCards::FlashCards(const PrintSource &vocabulary, const TestChoice &choice, const PrinterMetrics &printer,
                       double ZoomDivisor)
    : TestLayout(vocabulary, choice, printer, ZoomDivisor)
    , m_mirrorsColumns((width() <= height()) != printer.turnsOverShortEdge())
{
    for (const int size : {24, 20, 16, 13, 10, NumberSize}) {
        PrintFont font = vocabulary.Font;
        font.Size = size;
        m_fonts.push_back(std::make_unique<WordFont>(font, printer));
    }
}

FlashCards::~FlashCards() = default;

int FlashCards::pageCount() const
{
    const int sheets = (int(items().size()) + CardsOfPage - 1) / CardsOfPage;
    return 2 * std::max(1, sheets);
}

QRect FlashCards::card(int slot, bool back) const
{
    int column = slot % Columns;
    int row = slot / Columns;
    if (back)
        (m_mirrorsColumns ? column : row) = m_mirrorsColumns ? Columns - 1 - column : Rows - 1 - row;
    const QSize size((width() - 2 * Margin) / Columns, (height() - 2 * Margin) / Rows);
    return {QPoint(Margin + column * size.width(), Margin + row * size.height()), size};
}

void FlashCards::drawPage(int page, PrintSurface &PrintDevice) const
{
    PagePen pen = penFor(PrintDevice);
    const bool back = page % 2;
    if (!back)
        drawCutLines(pen);
    const size_t first = size_t(page / 2) * CardsOfPage;
    for (size_t i = first; i < std::min(items().size(), first + CardsOfPage); ++i) {
        const QRect place = card(int(i - first), back);
        drawWord(pen, place, back ? items()[i].answer : items()[i].question);
        const WordFont &small = *m_fonts.back();
        pen.setFont(small.font);
        pen.setColor(Gray);
        const QString number = QString::number(i + 1);
        pen.draw(place.right() - Padding - small.measure->TextWidth(number),
                 place.bottom() - Padding - small.measure->TextHeight(), number);
    }
}

void FlashCards::drawCutLines(PagePen &pen) const
{
    const QRect all = card(0, false) | card(CardsOfPage - 1, false);
    pen.setColor(Gray);
    for (int column = 0; column <= Columns; ++column) {
        const int x = all.left() + column * all.width() / Columns;
        pen.drawLine(x, all.top(), x, all.bottom());
    }
    for (int row = 0; row <= Rows; ++row) {
        const int y = all.top() + row * all.height() / Rows;
        pen.drawLine(all.left(), y, all.right(), y);
    }
}

const FlashCards::WordFont &FlashCards::fontFor(const QString &word, const QSize &space) const
{
    const auto fits = [&](const std::unique_ptr<WordFont> &font) { return font->fits(word, space); };
    const auto found = std::find_if(m_fonts.begin(), m_fonts.end(), fits);
    return found == m_fonts.end() ? *m_fonts.back() : **found;
}

void FlashCards::drawWord(PagePen &pen, const QRect &card, const QString &word) const
{
    const QRect space = card.adjusted(Padding, Padding, -Padding, -Padding);
    const WordFont &font = fontFor(word, space.size());
    const QStringList lines = font.breaker.lines(word, space.width());
    const int lineHeight = font.measure->TextHeight();
    int y = space.top() + (space.height() - int(lines.size()) * lineHeight) / 2;
    pen.setFont(font.font);
    pen.setColor(Black);
    for (const QString &line : lines) {
        pen.drawCentred(space.left(), space.right(), y, line.trimmed(), *font.measure);
        y += lineHeight;
    }
}
