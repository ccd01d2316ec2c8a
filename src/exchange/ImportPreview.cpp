#include "exchange/ImportPreview.h"

#include "document/rules/Vocabulary.h"
#include "platform/Twips.h"
#include "resources/StringTable.h"

#include <QResizeEvent>
#include <QStyle>

namespace {

constexpr int FirstLanguageId = 501;
constexpr int LeftCentre = 1;

} // namespace

ImportPreview::ImportPreview(QWidget *parent)
    : FlexGrid(parent)
{
    setCols(3);
    setRowNumbers(true);
    for (int col = 1; col < 3; ++col)
        setColAlignment(col, LeftCentre);
    setGridFont(VocabularyFont().toFont());
}

void ImportPreview::show(Vocabulary &&words)
{
    std::array columns{&words.first, &words.second};
    for (int i = 0; i < 2; ++i) {
        if (columns[size_t(i)]->front().isEmpty())
            columns[size_t(i)]->front() = resText(FirstLanguageId + i);
    }
    setRedraw(false);
    setWords(std::move(words.first), std::move(words.second), std::move(words.heights));
    for (int row = 1; row < Rows(); ++row)
        setRowHeight(row, std::max(RowHeight(row), fittingRowHeight(row)));
    if (Rows() > 1)
        Select(1, 1, 1, 1);
    setTopRow(1);
    setRedraw(true);
}

void ImportPreview::resizeEvent(QResizeEvent *event)
{
    FlexGrid::resizeEvent(event);
    const int numbers = Twips::fromPixelsX(fontMetrics().horizontalAdvance(QStringLiteral("10000")));
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 6; // pixels, with the lines
    const int left = Twips::fromPixelsX(std::max(0, width() - bar)) - numbers;
    setColWidth(0, numbers);
    for (int col = 1; col <= 2; ++col)
        setColWidth(col, std::max(0, left / 2));
}
