#include "progress/frmProgress.h"

#include "memory/StoredMemory.h"
#include "progress/BarChart.h"
#include "support/OpenDocument.h"
#include "support/ScriptedAlertBox.h"

/// Opened with the quiz mode "backwards in order".
struct Progress : ::testing::Test, OpenDocument
{
    Progress()
        : OpenDocument(Words{{"dog", "Hund"}, {"cat", "Katze"}, {"", "x"}, {"bird", "Vogel"}})
    {
        for (const bool right : {true, false})
            memory.remember({WordKey::of("cat", "Katze"), Answer::Kind::Practice, right, false, 1});
        memory.remember({WordKey::of("Vogel", "bird"), Answer::Kind::Practice, true, false, 1});
        dialog = std::make_unique<frmProgress>(document, 2, needs, &window);
        dialog->show();
        table = dialog->findChild<QTreeView *>();
        model = table->model();
    }
    /// Each cell as it is seen, said and aligned.
    std::string lines() const
    {
        QString lines("\n");
        for (int column = 0; column < 7; ++column)
            lines += model->headerData(column, Qt::Horizontal).toString() + ' ';
        for (int cell = 0; cell < 7 * model->rowCount(); ++cell) {
            lines += cell % 7 ? " | " : "\n";
            for (const int role : {Qt::DisplayRole, Qt::AccessibleTextRole, Qt::TextAlignmentRole})
                lines += model->index(cell / 7, cell % 7).data(role).toString() + ' ';
        }
        return lines.toStdString() + '\n';
    }
    void click(const char *button) const { dialog->findChild<QAbstractButton *>(button)->click(); }

    QTemporaryDir folder;
    QString file = folder.filePath("table.csv");
    QDateTime now{QDate(2026, 11, 25), QTime(12, 0)};
    StoredMemory memory{folder.filePath("memory.sqlite"), [this] { return now; }};
    ScriptedAlertBox alert;
    const frmProgress::Needs needs{memory, alert, [this](QWidget *, const QString &) { return file; }};
    std::unique_ptr<frmProgress> dialog;
    QTreeView *table;
    QAbstractItemModel *model;
};

TEST_F(Progress, ShowsTheWordsInTheDirectionThatIsChosenExportsThemAndLeadsToOne)
{
    std::string seen = lines() + shown(*dialog).toStdString() + '\n';
    auto *due = dialog->findChild<BarChart *>("chtDue"); // with the days of every second week below
    const QImage days = due->grab({0, due->height() - 16, -1, -1}).toImage();
    EXPECT_GT(inkOf(days, days.pixelColor(0, 0)).width(), days.width() - 4);
    click("chkNumbers");
    const auto *numbers = dialog->findChild<QPlainTextEdit *>();
    seen += numbers->isVisible() ? numbers->toPlainText().toStdString() : "";
    dialog->findChild<QComboBox *>()->setCurrentIndex(0);
    seen += '\n' + dialog->findChild<QComboBox *>()->currentText().toStdString() + lines();
    const auto strength = [&](int row) {
        return table->viewport()->grab(table->visualRect(model->index(row, ProgressModel::Strength))).toImage();
    };
    const QImage bar = strength(1);
    EXPECT_EQ(inkOf(bar, bar.pixelColor(0, 0)), bar.rect().adjusted(4, 4, -4, -4));
    EXPECT_EQ(bar.pixelColor(bar.width() / 2, 4), table->palette().highlight().color());
    table->setCurrentIndex(model->index(1, 0));
    EXPECT_EQ(strength(1).pixelColor(5, 5), table->palette().highlightedText().color());
    EXPECT_EQ(inkOf(bar.copy(0, 6, bar.width() / 2, 1), bar.pixelColor(0, 0)), QRect(4, 0, (bar.width() - 8) / 10, 1));
    EXPECT_TRUE(inkOf(strength(2), Qt::white).isEmpty());
    EXPECT_EQ(table->columnWidth(ProgressModel::Asked), table->fontMetrics().horizontalAdvance("Asked") + 16);
    EXPECT_EQ(table->columnWidth(ProgressModel::Last), table->fontMetrics().horizontalAdvance("28 Dec 2028") + 16);
    for (const auto &[mode, chosen] : {std::pair(1, 0), {2, 1}, {5, 0}})
        EXPECT_EQ(frmProgress(document, mode, needs, &window).findChild<QComboBox *>()->currentIndex(), chosen) << mode;
    table->sortByColumn(ProgressModel::Answer, Qt::DescendingOrder);
    click("btnExport");
    EXPECT_EQ(table->currentIndex(), model->index(1, 0)) << "still the cat";
    seen += lines() + readFile(file).toStdString();
    file = folder.filePath("no/table.csv");
    click("btnExport");
    table->sortByColumn(ProgressModel::Right, Qt::DescendingOrder);
    seen += lines();
    now = now.addDays(1);
    Q_EMIT memory.changed();
    EXPECT_EQ(seen + lines(), readFile(SOURCE_FOLDER "/tests/progress/data/words.txt").toStdString());
    Q_EMIT table->doubleClicked({});
    EXPECT_TRUE(!dialog->isVisible() && dialog->chosenRow() == 2 && alert.shown[0].sound && alert.shown[0].exclamation);
}

TEST_F(Progress, ForgetsOnlyAfterAsking)
{
    QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    table->setCurrentIndex(model->index(2, 0));
    alert.answers = {AlertBox::AnswerNo, AlertBox::AnswerYes, AlertBox::AnswerNo, AlertBox::AnswerYes};
    QString kept;
    QMenu *menu = dialog->findChild<QPushButton *>("btnForget")->menu();
    for (const int entry : {0, 0, 1, 2}) {
        Q_EMIT menu->aboutToShow();
        menu->actions().at(entry)->trigger();
        memory.finish();
        for (const Card &card : memory.cards({WordKey::of("cat", "Katze"), WordKey::of("Vogel", "bird")}))
            kept += QString::number(card.asked);
        kept += ' ' + menu->actions().at(entry)->text() + alert.shown.back().prompt + '\n';
    }
    EXPECT_EQ(kept.toStdString(), readFile(SOURCE_FOLDER "/tests/progress/data/forgotten.txt").toStdString());
    EXPECT_TRUE(QTest::qWaitFor([this] { return lines().find("2026") == std::string::npos; }));
    table->clearSelection();
    Q_EMIT menu->aboutToShow();
    EXPECT_FALSE(menu->actions().at(0)->isEnabled() || dialog->findChild<QPushButton *>("btnSelect")->isEnabled());
}
