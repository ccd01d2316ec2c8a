#include "tools/frmSort.h"

#include "support/OpenDocument.h"
#include "tools/modSorting.h"

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
    const std::tuple<QStringList, int, const char *> cases[] = {
        {{}, 2, "b2^1 c10^3 c9^4 x^2 ^5"},
        {{"optOrder1"}, 2, "c10^3 c9^4 b2^1 x^2 ^5"},
        {{"optLang1"}, 2, "b2^1 c9^4 c10^3 x^2 ^5"},
        {{"optLang1", "optOrder1"}, 2, "x^2 c10^3 c9^4 b2^1 ^5"},
        {{"optLang1", "optLang0", "optOrder1", "optOrder0"}, 2, "b2^1 c10^3 c9^4 x^2 ^5"},
        {{"chkSelection"}, 2, "b2^1 x^2 c9^4 c10^3 ^5"},
        {{"chkSelection"}, 1, "b2^1 c10^3 c9^4 x^2 ^5"}, // disabled
    };
    const auto rows = [this] { // with the last digit of their heights
        QStringList texts;
        for (int row = 1; row < grid.Rows(); ++row)
            texts += grid.TextMatrix(row, 1) + grid.TextMatrix(row, 2) + QString("^%1").arg(grid.RowHeight(row) - 300);
        return texts.join(' ').toStdString();
    };
    for (const auto &[clicked, columns, sorted] : cases) {
        setWords({{"b", "2"}, {"", "x"}, {"c", "10"}, {"c", "9"}});
        for (int row = 1; row < 6; ++row)
            grid.setRowHeight(row, 300 + row);
        select(4, 2, 3, 3 - columns);
        document.setDirty(false);
        const Words before = words();
        window.setFocus();
        sortWith(clicked, Qt::Key_Return);
        EXPECT_TRUE(grid.Redraw() && window.focusWidget() == grid.focusProxy());
        EXPECT_EQ(rows(), sorted) << clicked.join(u' ').toStdString();
        EXPECT_EQ(document.Dirty(), words() != before);
        commands.Undo(document);
        EXPECT_EQ(words(), before);
        EXPECT_EQ(document.selection(), (GridSelection{4, 2, 3, 3 - columns}));
    }
}

TEST_F(Sorting, CancelAndASortedVocabularyAreNoChange)
{
    setWords({{"b", ""}, {"a", ""}});
    select(1, 1, 1, 2);
    EXPECT_EQ(sortWith({}, Qt::Key_Escape),
              "Sort | Sort Based On | >[x] &1 Language 1 | [ ] &2 Language 2 | Sort Direction | [x] &Ascending | "
              "[ ] &Descending | ([ ] &Sort Selection Only) | OK | Cancel | ?");
    EXPECT_TRUE(grid.TextMatrix(1, 1) == "b" && undo.kind() == UndoKind::None);
    setWords({{"a", ""}, {"b", ""}});
    sortWith({}, Qt::Key_Return);
    EXPECT_TRUE(!document.Dirty() && undo.kind() == UndoKind::Sort);
}
