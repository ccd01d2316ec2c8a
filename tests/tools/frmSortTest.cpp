#include "tools/frmSort.h"

#include "support/OpenDocument.h"
#include "support/Shown.h"
#include "tools/modSorting.h"
#include "tools/rules/SortFlag.h"

struct Sorting : ::testing::Test, OpenDocument
{
    /// Clicks on controls of the dialog that SortVocabulary shows, then presses a key. What the dialog showed.
    std::string sortWith(const QStringList &clicked, Qt::Key key)
    {
        std::string before;
        QTimer::singleShot(0, qApp, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog && QTest::qWaitForWindowActive(dialog));
            before = shown(*dialog).toStdString();
            for (const QString &name : clicked)
                QTest::mouseClick(dialog->findChild<QAbstractButton *>(name), Qt::LeftButton);
            QTest::keyClick(clicked.isEmpty() ? dialog : dialog->focusWidget(), key);
        });
        modSorting::SortVocabulary(document, undo, QLocale(QLocale::English), &window);
        return before;
    }
};

TEST_F(Sorting, OrdersByTheChosenLanguageAndOrderWhatWasChosen)
{
    // what is clicked, the columns that are selected in rows 3 and 4, and the rows afterwards
    const std::tuple<QStringList, int, QString> cases[] = {
        {{}, 2, "b2,c10,c9,x,"},
        {{"optOrder1"}, 2, "c10,c9,b2,x,"},
        {{"optLang1"}, 2, "b2,c9,c10,x,"},
        {{"optLang1", "optOrder1"}, 2, "x,c10,c9,b2,"},
        {{"optLang1", "optLang0", "optOrder1", "optOrder0"}, 2, "b2,c10,c9,x,"},
        {{"chkSelection"}, 2, "b2,x,c9,c10,"},
        {{"chkSelection"}, 1, "b2,c10,c9,x,"}, // disabled
    };
    for (const auto &[clicked, columns, sorted] : cases) {
        setWords({{"b", "2"}, {"", "x"}, {"c", "10"}, {"c", "9"}});
        select(4, 2, 3, 3 - columns);
        sortWith(clicked, Qt::Key_Return);
        QStringList rows;
        for (const auto &row : words())
            rows += row[0] + row[1];
        EXPECT_EQ(rows.join(u','), sorted) << clicked.join(u' ').toStdString();
    }
}

TEST_F(Sorting, CancelAndASortedVocabularyAreNoChange)
{
    setWords({{"b", ""}, {"a", ""}});
    select(1, 1, 1, 2);
    EXPECT_EQ(sortWith({}, Qt::Key_Escape),
              "Sort | Sort Based On | >[x] &1 Language 1 | [ ] &2 Language 2 | Sort Direction | [x] &Ascending | "
              "[ ] &Descending | ([ ] &Sort Selection Only) | OK | Cancel | ?");
    EXPECT_EQ(grid.TextMatrix(1, 1), "b");
    EXPECT_EQ(undo.kind(), UndoKind::None);
    setWords({{"a", ""}, {"b", ""}});
    sortWith({}, Qt::Key_Return);
    EXPECT_FALSE(document.Dirty());
    EXPECT_EQ(undo.kind(), UndoKind::Sort);
}

TEST_F(Sorting, MovesWholeRowsAndIsUndone)
{
    std::mt19937 engine{5};
    for (int round = 0; round < 200; ++round) {
        const Words before = setRandomWords(engine);
        const GridSelection selection = document.selection();
        for (int row = 1; row < grid.Rows(); ++row)
            grid.setRowHeight(row, 300 + 15 * int(grid.TextMatrix(row, 1).size()));
        modSorting::sortBy((1 << engine() % 2) | (4 << engine() % 2) | (16 << engine() % 2), document, undo,
                           QLocale("en"));
        for (int row = 1; row < grid.Rows(); ++row)
            ASSERT_EQ(grid.RowHeight(row), 300 + 15 * int(grid.TextMatrix(row, 1).size()));
        ASSERT_THAT(words(), ::testing::UnorderedElementsAreArray(before));
        commands.Undo(document);
        ASSERT_EQ(words(), before);
        ASSERT_EQ(document.selection(), selection);
    }
}
