#include "progress/frmProgress.h"

#include "memory/StoredMemory.h"
#include "support/OpenDocument.h"
#include "support/ScriptedAlertBox.h"

namespace {

constexpr int BackwardsInOrder = 2; // quiz mode

struct Progress : ::testing::Test, OpenDocument
{
    Progress()
        : OpenDocument(Words{{"dog", "Hund"}, {"cat", "Katze"}, {"", "x"}, {"bird", "Vogel"}})
    {
        for (const bool right : {true, false})
            memory.remember({WordKey::of("cat", "Katze"), Answer::Kind::Practice, right, false, 1});
        memory.remember({WordKey::of("Vogel", "bird"), Answer::Kind::Practice, true, false, 1});
    }
    std::unique_ptr<frmProgress> open(int mode = 1)
    {
        const auto askFile = [this](QWidget *, const QString &) { return file; };
        auto dialog =
            std::make_unique<frmProgress>(document, mode, frmProgress::Needs{memory, alert, askFile}, &window);
        dialog->show();
        return dialog;
    }
    static QStringList lines(const frmProgress &dialog)
    {
        const QAbstractItemModel &model = *dialog.findChild<QTreeView *>()->model();
        QStringList lines;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column)
                cells += model.index(row, column).data().toString();
            lines += cells.join(u' ').trimmed();
        }
        return lines;
    }
    static void choose(frmProgress &dialog, int entry) { dialog.findChild<QMenu *>()->actions().at(entry)->trigger(); }

    QTemporaryDir folder;
    QString file = folder.filePath("table.csv");
    StoredMemory memory{folder.filePath("memory.sqlite"), [] { return QDateTime(QDate(2026, 11, 25), QTime(12, 0)); }};
    ScriptedAlertBox alert;
};

} // namespace

TEST_F(Progress, ShowsTheWordsInTheDirectionThatIsChosen)
{
    const auto dialog = open();
    EXPECT_EQ(lines(*dialog).join(", ").toStdString(),
              "dog Hund 0, cat Katze 2 1 25 Nov 2026 26 Nov 2026 10 %, bird Vogel 0");
    dialog->findChild<QComboBox *>()->setCurrentIndex(1);
    EXPECT_EQ(lines(*dialog).join(", ").toStdString(),
              "Hund dog 0, Katze cat 0, Vogel bird 1 1 25 Nov 2026 27 Nov 2026 20 %");
    EXPECT_EQ(lines(*open(BackwardsInOrder)), lines(*dialog));
    dialog->findChild<QTreeView *>()->sortByColumn(ProgressModel::Asked, Qt::DescendingOrder);
    EXPECT_TRUE(lines(*dialog).first().startsWith("Vogel bird 1 1 "));
    const auto *numbers = dialog->findChild<QWidget *>("chtAnswers");
    EXPECT_TRUE(numbers->accessibleDescription().endsWith(": 1"));
}

TEST_F(Progress, LeadsToAWordOfTheVocabulary)
{
    const auto dialog = open();
    auto *table = dialog->findChild<QTreeView *>();
    table->sortByColumn(ProgressModel::Word, Qt::DescendingOrder);
    QTest::keyClick(table, Qt::Key_End);
    QTest::mouseClick(dialog->findChild<QPushButton *>("btnSelect"), Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->chosenRow(), 4);
}

TEST_F(Progress, ForgetsOnlyAfterAsking)
{
    enum { Selected, All, Everything };
    const auto dialog = open();
    const QStringList before = lines(*dialog);
    auto *table = dialog->findChild<QTreeView *>();
    table->setCurrentIndex(table->model()->index(1, 0));
    alert.answers = {AlertBox::AnswerNo, AlertBox::AnswerYes};
    choose(*dialog, Selected);
    memory.finish();
    EXPECT_EQ(lines(*dialog), before);
    choose(*dialog, Selected);
    EXPECT_TRUE(QTest::qWaitFor([&] { return lines(*dialog)[1] == "cat Katze 0"; }));
    EXPECT_EQ(memory.cards({WordKey::of("Vogel", "bird")})[0].asked, 1);
    alert.answers = {AlertBox::AnswerYes};
    choose(*dialog, Everything);
    memory.finish();
    EXPECT_EQ(memory.cards({WordKey::of("Vogel", "bird")})[0].asked, 0);
}

TEST_F(Progress, ExportsItsTable)
{
    const auto dialog = open();
    auto *button = dialog->findChild<QPushButton *>("btnExport");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(readFile(file).contains("\"cat\",\"Katze\",\"2\",\"1\",\"2026-11-25\""));
    file = folder.filePath("no/table.csv");
    alert.answers = {AlertBox::AnswerOk};
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(alert.shown.size(), 1U);
}

TEST_F(Progress, IsQuickWithManyWords)
{
    Words many;
    for (int i = 0; i < 32767; ++i)
        many.push_back({QString::number(i), QString::number(-i)});
    setWords(many);
    const auto dialog = open();
    EXPECT_EQ(dialog->findChild<QTreeView *>()->model()->rowCount(), 32767);
    EXPECT_LT(dialog->findChildren<QWidget *>().size(), 100);
}
