#pragma once

#include "widgets/grid/FlexGrid.h"
#include "widgets/grid/FlexGridView.h"

/// A grid that notes what it announces to those who build on it.
struct ToldGrid : FlexGrid
{
    int left = 0, places = 0;
    QStringList told;
    void leavingCell() override { ++left; }
    void laidOut() override { ++places; }
    void gridFocused() override { told += "focused"; }
    void characterTyped(int character) override { told += QString("typed %1").arg(character); }
    void cellDoubleClicked() override { told += "double"; }
};

/// What can be done with a grid: r stands for the number of a row, c for that of a column, both also for ones that do
/// not exist, n for how many, s for a size, b for a choice.
struct Operation
{
    const char *arguments;
    std::function<void(FlexGrid &, const QList<int> &)> run;
};
inline constexpr const char *RedDot[] = {"1 1 1 1", "x c red", "x"};
using Numbers = const QList<int> &;

inline const std::map<QString, Operation> Operations{
    {"insertRows", {"rn", [](FlexGrid &g, Numbers n) { g.insertRows(n[0], n[1]); }}},
    {"removeRows", {"rn", [](FlexGrid &g, Numbers n) { g.removeRows(n[0], n[1]); }}},
    {"RowPosition", {"rr", [](FlexGrid &g, Numbers n) { g.setRowPosition(n[0], n[1]); }}},
    {"ColPosition", {"cc", [](FlexGrid &g, Numbers n) { g.setColPosition(n[0], n[1]); }}},
    {"Rows", {"r", [](FlexGrid &g, Numbers n) { g.setRows(n[0] + 1); }}},
    {"Cols", {"c", [](FlexGrid &g, Numbers n) { g.setCols(n[0] + 1); }}},
    {"TextMatrix", {"rcs", [](FlexGrid &g, Numbers n) { g.setTextMatrix(n[0], n[1], QString::number(n[2])); }}},
    {"TextArray", {"rs", [](FlexGrid &g, Numbers n) { g.setTextArray(n[0], QString::number(n[1])); }}},
    {"Text", {"s", [](FlexGrid &g, Numbers n) { g.setText(QString("x\n%1").arg(n[0])); }}},
    {"Clip", {"s", [](FlexGrid &g, Numbers n) { g.setClip(QString("x\ty\tz\r%1").arg(n[0])); }}},
    {"copyTo", {"rc", [](FlexGrid &g, Numbers n) { g.setTextMatrix(n[0], n[1], g.Clip()); }}},
    {"Clear", {"", [](FlexGrid &g, Numbers) { g.Clear(); }}},
    {"Sort", {"n", [](FlexGrid &g, Numbers n) { g.setSort(n[0]); }}},
    {"RightToLeft", {"b", [](FlexGrid &g, Numbers n) { g.setRightToLeft(n[0]); }}},
    {"RowNumbers", {nullptr, [](FlexGrid &g, Numbers n) { g.setRowNumbers(n[0]); }}},
    {"RowHeight", {"rs", [](FlexGrid &g, Numbers n) { g.setRowHeight(n[0], n[1]); }}},
    {"ColWidth", {"cs", [](FlexGrid &g, Numbers n) { g.setColWidth(n[0], std::min(n[1], 2250)); }}},
    {"Select", {"rcrc", [](FlexGrid &g, Numbers n) { g.Select(n[0], n[1], n[2], n[3]); }}},
    {"Row", {"r", [](FlexGrid &g, Numbers n) { g.setRow(n[0]); }}},
    {"Col", {"c", [](FlexGrid &g, Numbers n) { g.setCol(n[0]); }}},
    {"RowSel", {"r", [](FlexGrid &g, Numbers n) { g.setRowSel(n[0]); }}},
    {"ColSel", {"c", [](FlexGrid &g, Numbers n) { g.setColSel(n[0]); }}},
    {"size", {"rr", [](FlexGrid &g, Numbers n) { g.resize(150 + 10 * n[0], 100 + 10 * n[1]); }}},
    // not drawn at random
    {"Words",
     {nullptr,
      [](FlexGrid &g, Numbers) {
          g.setLocale(QLocale(QLocale::English));
          g.setWords({"L1", "x", "b", "10", "", "A", "9", "B", "a", "-1.5", "ä"},
                     {"L2", "a\r\nb\rc\nd\u2028e\u2029f\tg\r\r\n\n"}, {285, 1234, -1});
      }}},
    {"Blanks",
     {nullptr,
      [](FlexGrid &g, Numbers n) { g.setClip((QString(n[0], ' ') + "\t" + QString(n[0], ' ') + "\r").repeated(2)); }}},
    {"Dot",
     {nullptr, [](FlexGrid &g, Numbers n) { g.setCellPicture(QPixmap(RedDot)), g.setCellPictureAlignment(n[0]); }}},
    {"MergeCells", {nullptr, [](FlexGrid &g, Numbers n) { g.setMergeCells(n[0]); }}},
    {"MergeCol", {nullptr, [](FlexGrid &g, Numbers n) { g.setMergeCol(n[0], n[1]); }}},
    {"CellBackColor", {nullptr, [](FlexGrid &g, Numbers n) { g.setCellBackColor(n[0]); }}},
    {"TopRow", {nullptr, [](FlexGrid &g, Numbers n) { g.setTopRow(n[0]); }}},
    {"Focus", {nullptr, [](FlexGrid &g, Numbers n) { n[0] ? g.setFocus() : g.hwndGrid()->clearFocus(); }}},
    {"MergeRow", {nullptr, [](FlexGrid &g, Numbers n) { g.setMergeRow(n[0], n[1]); }}},
    {"CellForeColor", {nullptr, [](FlexGrid &g, Numbers n) { g.setCellForeColor(n[0]); }}},
    {"DefaultRowHeight", {nullptr, [](FlexGrid &g, Numbers n) { g.setDefaultRowHeight(n[0]); }}},
    {"ColAlignment", {nullptr, [](FlexGrid &g, Numbers n) { g.setColAlignment(n[0], n[1]); }}},
    {"ColData", {nullptr, [](FlexGrid &g, Numbers n) { g.setColData(n[0], n[1]); }}},
};

/// Operations and properties, each with its numbers: "Row 3; GridLines 2".
inline void perform(FlexGrid &grid, const QString &steps)
{
    for (const QString &step : steps.split("; ")) {
        QList<int> numbers;
        for (const QString &number : step.split(u' ').mid(1))
            numbers += number.toInt(nullptr, 0);
        const auto operation = Operations.find(step.section(u' ', 0, 0));
        if (operation == Operations.end())
            EXPECT_TRUE(grid.setProperty(step.section(u' ', 0, 0).toLatin1().constData(), numbers[0]));
        else
            operation->second.run(grid, numbers);
    }
}
