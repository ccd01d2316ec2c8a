#include "print/rules/TestSheet.h"

#include "resources/StringTable.h"

#include <algorithm>

namespace {

// Twips on the printed page.
constexpr int Margin = 1000;
constexpr int ColumnGap = 500;
constexpr int Gap = 150; // between number, word and answer
constexpr int FooterHeight = 1300;
constexpr int BottomMargin = 1600;
constexpr int WritingHeight = 520; // from one line to write on to the next
constexpr int KeyGap = 80;         // between the rows of the key
constexpr int TitleGap = 300;
constexpr int LineSpacing = 10;

constexpr int WordShare = 45; // percent of a column's width that the words take
constexpr int HandShare = 60; // percent of its printed width that a text has on a line when it is written by hand
constexpr int MostAnswerLines = 6;
constexpr QRgb Black = 0xff000000;

PrintFont titleFont(PrintFont font)
{
    font.Size += 4;
    font.Bold = true;
    return font;
}

QString languagesOf(const PrintSource &vocabulary, TestChoice::Asked asked)
{
    const QString &first = vocabulary.first[0];
    const QString &second = vocabulary.second[0];
    switch (asked) {
    case TestChoice::FirstLanguage:
        return resText(14750).arg(first, second);
    case TestChoice::SecondLanguage:
        return resText(14750).arg(second, first);
    default:
        return resText(14751).arg(first, second);
    }
}

} // namespace

TestSheet::TestSheet(const PrintSource &vocabulary, const TestChoice &choice, const PrinterMetrics &printer,
                     double ZoomDivisor)
    : TestLayout(vocabulary, choice, printer, ZoomDivisor)
    , m_choice(choice)
    , m_title(vocabulary.Caption)
    , m_languages(languagesOf(vocabulary, choice.asked))
    , m_font(vocabulary.Font)
    , m_titleFont(titleFont(vocabulary.Font))
    , m_measure(printer.measure(m_font))
    , m_titleMeasure(printer.measure(m_titleFont))
    , m_breaker(*m_measure)
    , m_lineHeight(m_measure->TextHeight() + LineSpacing)
    , m_numberWidth(m_measure->TextWidth(QString::number(items().size()) + u'.'))
{
    const int nameLine = choice.nameAndDate ? WritingHeight + TitleGap : 0;
    m_questionPages =
        place(m_questions, headerTop() + nameLine, [this](const TestItem &item) { return questionHeight(item); });
    if (choice.key)
        m_keyPages = place(m_keys, headerTop(), [this](const TestItem &item) { return keyHeight(item); });
}

/// Gives every item its place and returns the number of pages.
template <typename Height> int TestSheet::place(std::vector<ColumnFlow::Place> &places, int firstTop, Height heightOf)
{
    ColumnFlow flow({m_choice.columns, firstTop, Margin, height() - BottomMargin});
    for (const TestItem &item : items())
        places.push_back(flow.add(heightOf(item)));
    return flow.pageCount();
}

int TestSheet::headerTop() const
{
    return Margin + m_titleMeasure->TextHeight() + m_lineHeight + TitleGap;
}

int TestSheet::columnWidth() const
{
    return (width() - 2 * Margin - (m_choice.columns - 1) * ColumnGap) / m_choice.columns;
}

int TestSheet::columnLeft(int column) const
{
    return Margin + column * (columnWidth() + ColumnGap);
}

int TestSheet::wordLeft(int column) const
{
    return columnLeft(column) + m_numberWidth + Gap;
}

int TestSheet::wordWidth() const
{
    return columnWidth() * WordShare / 100 - m_numberWidth - Gap;
}

int TestSheet::answerLeft(int column) const
{
    return wordLeft(column) + wordWidth() + Gap;
}

int TestSheet::answerWidth() const
{
    return columnLeft(0) + columnWidth() - answerLeft(0);
}

int TestSheet::answerLines(const TestItem &item) const
{
    const int written = m_measure->TextWidth(item.answer) * 100 / HandShare;
    return std::clamp((written + answerWidth() - 1) / answerWidth(), 1, MostAnswerLines);
}

int TestSheet::questionHeight(const TestItem &item) const
{
    const int words = int(linesOf(item.question, wordWidth()).size()) * m_lineHeight;
    return std::max(WritingHeight - m_lineHeight + words + Gap / 2, answerLines(item) * WritingHeight);
}

int TestSheet::keyHeight(const TestItem &item) const
{
    const auto lines = std::max(linesOf(item.question, wordWidth()).size(), linesOf(item.answer, answerWidth()).size());
    return int(lines) * m_lineHeight + KeyGap;
}

void TestSheet::drawPage(int page, PrintSurface &PrintDevice) const
{
    PagePen pen = penFor(PrintDevice);
    pen.setColor(Black);
    const bool isKey = page >= m_questionPages;
    const int pageOfPart = isKey ? page - m_questionPages : page;
    if (pageOfPart == 0)
        drawTitle(pen, isKey ? resText(14752).arg(m_title) : m_title, !isKey && m_choice.nameAndDate);
    pen.setFont(m_font);
    const std::vector<ColumnFlow::Place> &places = isKey ? m_keys : m_questions;
    const auto isBefore = [](const ColumnFlow::Place &place, int number) { return place.page < number; };
    auto place = std::lower_bound(places.begin(), places.end(), pageOfPart, isBefore);
    for (; place != places.end() && place->page == pageOfPart; ++place) {
        const auto item = size_t(place - places.begin());
        isKey ? drawKey(pen, item) : drawQuestion(pen, item);
    }
    drawFooter(pen, page);
}

void TestSheet::drawTitle(PagePen &pen, const QString &title, bool nameAndDate) const
{
    pen.setFont(m_titleFont);
    const bool rightToLeft = title.isRightToLeft();
    pen.draw(rightToLeft ? width() - Margin : Margin, Margin, title, rightToLeft);
    pen.setFont(m_font);
    pen.draw(Margin, Margin + m_titleMeasure->TextHeight(), m_languages);
    if (!nameAndDate)
        return;
    const int y = headerTop() + WritingHeight - m_lineHeight;
    const int middle = Margin + (width() - 2 * Margin) * 2 / 3;
    drawField(pen, resText(14753), Margin, middle - ColumnGap, y);
    drawField(pen, resText(14754), middle, width() - Margin, y);
}

/// A name and a line to write on behind it.
void TestSheet::drawField(PagePen &pen, const QString &name, int left, int right, int y) const
{
    pen.draw(left, y, name);
    const int bottom = y + m_measure->TextHeight();
    pen.drawLine(left + m_measure->TextWidth(name) + Gap, bottom, right, bottom);
}

void TestSheet::drawFooter(PagePen &pen, int page) const
{
    const int y = height() - FooterHeight;
    if (m_choice.shuffled)
        pen.draw(Margin, y, resText(14755).arg(m_choice.number));
    pen.drawCentred(0, width(), y, QString::number(page + 1), *m_measure);
}

void TestSheet::drawQuestion(PagePen &pen, size_t item) const
{
    const ColumnFlow::Place &place = m_questions[item];
    const int y = place.top + WritingHeight - m_lineHeight;
    drawNumber(pen, item, place.column, y);
    drawText(pen, linesOf(items()[item].question, wordWidth()), wordLeft(place.column), wordWidth(), y);
    const int left = answerLeft(place.column);
    for (int line = 1; line <= answerLines(items()[item]); ++line) {
        const int bottom = place.top + line * WritingHeight - LineSpacing;
        pen.drawLine(left, bottom, left + answerWidth(), bottom);
    }
}

void TestSheet::drawKey(PagePen &pen, size_t item) const
{
    const ColumnFlow::Place &place = m_keys[item];
    drawNumber(pen, item, place.column, place.top);
    drawText(pen, linesOf(items()[item].question, wordWidth()), wordLeft(place.column), wordWidth(), place.top);
    drawText(pen, linesOf(items()[item].answer, answerWidth()), answerLeft(place.column), answerWidth(), place.top);
}

/// With its right end where the words begin.
void TestSheet::drawNumber(PagePen &pen, size_t item, int column, int y) const
{
    const QString number = QString::number(item + 1) + u'.';
    pen.draw(columnLeft(column) + m_numberWidth - m_measure->TextWidth(number), y, number);
}

void TestSheet::drawText(PagePen &pen, const QStringList &lines, int left, int width, int y) const
{
    const bool rightToLeft = lines.join(QString()).isRightToLeft();
    for (const QString &line : lines) {
        pen.draw(rightToLeft ? left + width : left, y, line, rightToLeft);
        y += m_lineHeight;
    }
}
