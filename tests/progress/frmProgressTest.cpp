#include "progress/frmProgress.h"

#include "memory/StoredMemory.h"
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
    std::string lines() const
    {
        QString lines;
        for (int cell = 0; cell < 7 * model->rowCount(); ++cell)
            lines += ' ' + model->index(cell / 7, cell % 7).data().toString() + (cell % 7 == 6 ? "," : "");
        return lines.simplified().toStdString();
    }
    void click(const char *button) const { dialog->findChild<QAbstractButton *>(button)->click(); }

    QTemporaryDir folder;
    QString file = folder.filePath("table.csv");
    StoredMemory memory{folder.filePath("memory.sqlite"), [] { return QDateTime(QDate(2026, 11, 25), QTime(12, 0)); }};
    ScriptedAlertBox alert;
    const frmProgress::Needs needs{memory, alert, [this](QWidget *, const QString &) { return file; }};
    std::unique_ptr<frmProgress> dialog;
    QTreeView *table;
    QAbstractItemModel *model;
};

TEST_F(Progress, ShowsTheWordsInTheDirectionThatIsChosenExportsThemAndLeadsToOne)
{
    EXPECT_EQ(lines(), "Hund dog 0 , Katze cat 0 , Vogel bird 1 1 25 Nov 2026 27 Nov 2026 20 %,");
    EXPECT_EQ(shown(*dialog).toStdString(), "Progress -  | As&ked: | {Language 2 to Language 1} | [ ] &Numbers instead "
                                            "of pictures | ? | &Select in Vocabulary | &Forget | &Export... | &Close");
    click("chkNumbers");
    const auto *numbers = dialog->findChild<QPlainTextEdit *>();
    EXPECT_EQ(numbers->toPlainText().split('\n').filter(QRegularExpression(": [1-9]|[a-z]$")).join(", ").toStdString(),
              "Words by state, New: 2, Learning: 1, Words due, next 30 days, 27 Nov 2026: 1, Answers a day, last 12 "
              "weeks, 25 Nov 2026: 1");
    dialog->findChild<QComboBox *>()->setCurrentIndex(0);
    EXPECT_EQ(lines(), "dog Hund 0 , cat Katze 2 1 25 Nov 2026 26 Nov 2026 10 %, bird Vogel 0 ,");
    const auto at = [this](int row, int column) { return model->index(row, column); };
    EXPECT_EQ(at(0, ProgressModel::Last).data(Qt::AccessibleTextRole), "none");
    EXPECT_EQ(at(1, ProgressModel::Asked).data(Qt::AccessibleTextRole), "2");
    EXPECT_EQ(at(0, ProgressModel::Asked).data(Qt::TextAlignmentRole).toInt(), 130);
    EXPECT_EQ(model->columnCount(at(0, 0)), 0);
    EXPECT_EQ(model->headerData(ProgressModel::Strength, Qt::Horizontal), "Strength");
    EXPECT_TRUE(numbers->isVisible() && numbers->blockCount() == 123 && !model->headerData(0, Qt::Vertical).isValid());
    const auto strength = [&](int row) {
        return table->viewport()->grab(table->visualRect(at(row, ProgressModel::Strength))).toImage();
    };
    const QImage bar = strength(1);
    EXPECT_EQ(inkOf(bar, bar.pixelColor(0, 0)), bar.rect().adjusted(4, 4, -4, -4));
    EXPECT_EQ(bar.pixelColor(bar.width() / 2, 4), table->palette().highlight().color());
    table->setCurrentIndex(at(1, 0));
    EXPECT_EQ(strength(1).pixelColor(5, 5), table->palette().highlightedText().color());
    EXPECT_EQ(inkOf(bar.copy(0, 6, bar.width() / 2, 1), bar.pixelColor(0, 0)), QRect(4, 0, (bar.width() - 8) / 10, 1));
    EXPECT_TRUE(inkOf(strength(2), Qt::white).isEmpty());
    const auto wide = [this](const char *text) { return table->fontMetrics().horizontalAdvance(text) + 16; };
    EXPECT_EQ(table->columnWidth(ProgressModel::Asked), wide("Asked"));
    EXPECT_EQ(table->columnWidth(ProgressModel::Strength), wide("28 Dec 2028"));
    for (const auto &[mode, chosen] : {std::pair(1, 0), {2, 1}, {5, 0}})
        EXPECT_EQ(frmProgress(document, mode, needs, &window).findChild<QComboBox *>()->currentIndex(), chosen) << mode;
    table->sortByColumn(ProgressModel::Word, Qt::AscendingOrder);
    click("btnExport");
    EXPECT_EQ(readFile(file).replace('"', '\'').toStdString(),
              "\xEF\xBB\xBF'Word','Answer','Asked','Right','Last','Due','Strength'\r\n'bird','Vogel','0','0','','','0'"
              "\r\n'cat','Katze','2','1','2026-11-25','2026-11-26','10'\r\n'dog','Hund','0','0','','','0'\r\n");
    file = folder.filePath("no/table.csv");
    click("btnExport");
    table->sortByColumn(ProgressModel::Right, Qt::DescendingOrder);
    EXPECT_EQ(lines(), "cat Katze 2 1 25 Nov 2026 26 Nov 2026 10 %, dog Hund 0 , bird Vogel 0 ,");
    table->setCurrentIndex(at(0, 0));
    click("btnSelect");
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
        kept += ' ' + menu->actions().at(entry)->text() + alert.shown.back().prompt.section(' ', 2, 7) + '\n';
    }
    EXPECT_EQ(kept.toStdString(),
              "21 &Selected Words...answers to the selected word?\n20 &Selected Words...answers to the selected "
              "word?\n20 All Words of this &Vocabulary...answers to the 3 words of\n00 &Everything...answers that "
              "were ever given, to\n");
    EXPECT_TRUE(QTest::qWaitFor([this] { return lines() == "Hund dog 0 , Katze cat 0 , Vogel bird 0 ,"; }));
    table->clearSelection();
    Q_EMIT menu->aboutToShow();
    EXPECT_FALSE(menu->actions().at(0)->isEnabled() || dialog->findChild<QPushButton *>("btnSelect")->isEnabled());
}
