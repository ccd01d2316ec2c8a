#include "progress/frmProgress.h"

#include "document/ctlGrid.h"
#include "document/frmDoc.h"
#include "memory/Day.h"
#include "memory/StoredMemory.h"
#include "platform/files/AtomicFile.h"
#include "progress/StrengthDelegate.h"
#include "resources/StringTable.h"
#include "resources/TextLanguage.h"
#include "services/AlertBox.h"
#include "services/FormTexts.h"
#include "services/Hourglass.h"
#include "services/rules/QuizModes.h"
#include "services/rules/TextDigits.h"

#include "ui_frmProgress.h"

#include <QHeaderView>
#include <QLocale>
#include <QMenu>

namespace {

constexpr int DaysBack = 84;
constexpr int DaysAhead = 30;
constexpr int DaysOfWeek = 7;

/// The words of a document that a quiz asks, in one of the two directions.
std::vector<ProgressWord> wordsOf(const ctlGrid &grid, bool answersInSecond)
{
    std::vector<ProgressWord> words;
    for (int row = 1; row < grid.Rows(); ++row) {
        const QString first = grid.TextMatrix(row, 1);
        const QString second = grid.TextMatrix(row, 2);
        if (!first.isEmpty())
            words.push_back({row, answersInSecond ? WordKey::of(first, second) : WordKey::of(second, first), {}});
    }
    return words;
}

/// One bar a day; every week has its first day below.
std::vector<BarChart::Bar> daily(const std::vector<int> &counts, int first)
{
    std::vector<BarChart::Bar> bars;
    for (int i = 0; i < int(counts.size()); ++i) {
        const QDate date = Day::date(first + i);
        const bool isMarked = i % (2 * DaysOfWeek) == 0;
        bars.push_back(
            {TextDigits::date(date), counts[size_t(i)], isMarked ? TextDigits::date(date, resText(14908)) : QString()});
    }
    return bars;
}

} // namespace

frmProgress::frmProgress(const frmDoc &document, int quizMode, const Needs &needs, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::frmProgress>())
    , m_document(document)
    , m_needs(needs)
{
    m_ui->setupUi(this);
    FormTexts::apply(this);
    setWindowTitle(resText(14402).arg(TextLanguage::isolated(document.Caption())));
    m_ui->tblWords->setModel(&m_model);
    m_ui->tblWords->setItemDelegateForColumn(ProgressModel::Strength, new StrengthDelegate(this));
    dressTable();
    fillDirections(quizMode);
    fillForgetMenu();
    if (isRightToLeft()) { // which the box leaves to each line, and all of them at the left
        QTextOption lines(Qt::AlignRight);
        lines.setTextDirection(Qt::RightToLeft);
        m_ui->txtNumbers->document()->setDefaultTextOption(lines);
    }
    connectControls();
    refresh();
}

frmProgress::~frmProgress() = default;

/// All columns have room at once; the words share what the numbers leave.
void frmProgress::dressTable()
{
    constexpr int Margin = 16; ///< pixels
    const QFontMetrics metrics = m_ui->tblWords->fontMetrics();
    const QString date = TextDigits::date(QDate(2028, 12, 28));
    QHeaderView *header = m_ui->tblWords->header();
    header->setStretchLastSection(false);
    for (int column = 0; column < ProgressModel::Columns; ++column) {
        const bool isWord = column <= ProgressModel::Answer;
        const bool isCount = column == ProgressModel::Asked || column == ProgressModel::Right;
        header->setSectionResizeMode(column, isWord ? QHeaderView::Stretch : QHeaderView::Interactive);
        const int heading = metrics.horizontalAdvance(ProgressModel::headings().at(column));
        header->resizeSection(column, std::max(heading, isCount ? 0 : metrics.horizontalAdvance(date)) + Margin);
    }
    m_ui->tblWords->sortByColumn(-1, Qt::AscendingOrder); // as in the vocabulary
}

void frmProgress::connectControls()
{
    connect(m_ui->cboDirection, &QComboBox::currentIndexChanged, this, &frmProgress::refresh);
    connect(m_ui->tblWords->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmProgress::enableButtons);
    connect(m_ui->tblWords, &QTreeView::doubleClicked, this, &frmProgress::goToWord);
    connect(m_ui->chkNumbers, &QCheckBox::toggled, m_ui->stkCharts, &QStackedWidget::setCurrentIndex);
    connect(m_ui->btnSelect, &QPushButton::clicked, this, &frmProgress::goToWord);
    connect(m_ui->btnExport, &QPushButton::clicked, this, &frmProgress::exportTable);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &frmProgress::reject);
    connect(&m_needs.memory, &StoredMemory::changed, this, &frmProgress::refresh);
}

void frmProgress::fillDirections(int quizMode)
{
    const QString direction = resText(14404);
    const std::array languages = {m_document.language(1), m_document.language(2)};
    m_ui->cboDirection->addItem(direction.arg(languages[0], languages[1]));
    m_ui->cboDirection->addItem(direction.arg(languages[1], languages[0]));
    m_ui->cboDirection->setCurrentIndex(QuizModes::bothWays(quizMode) || QuizModes::answersInSecond(quizMode) ? 0 : 1);
}

void frmProgress::fillForgetMenu()
{
    auto *menu = new QMenu(this);
    for (const Forgotten what : {Selected, All, Everything})
        menu->addAction(resText(14428 + what), this, [this, what] { forget(what); });
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->actions().constFirst()->setEnabled(m_ui->tblWords->selectionModel()->hasSelection());
    });
    m_ui->btnForget->setMenu(menu);
}

void frmProgress::refresh()
{
    const Hourglass hourglass;
    std::vector<ProgressWord> words = wordsOf(*m_document.Rutor(), m_ui->cboDirection->currentIndex() == 0);
    std::vector<WordKey> asked;
    asked.reserve(words.size());
    for (const ProgressWord &word : words)
        asked.push_back(word.word);
    const std::vector<Card> cards = m_needs.memory.cards(asked);
    for (size_t i = 0; i < words.size(); ++i)
        words[i].card = cards[i];
    m_model.setList({std::move(words), m_needs.memory.today()});
    m_ui->tblWords->setCurrentIndex(m_model.index(0, 0));
    showCharts();
    enableButtons();
}

void frmProgress::showCharts()
{
    const ProgressList &list = m_model.list();
    const int firstDay = list.today() - DaysBack + 1;
    std::vector<BarChart::Bar> states;
    for (const int count : list.byState()) {
        const QString state = resText(14415 + int(states.size()));
        states.push_back({state, count, state});
    }
    m_ui->chtStates->setBars(resText(14412), states);
    m_ui->chtAnswers->setBars(resText(14413), daily(m_needs.memory.answersByDay(keys(), firstDay, DaysBack), firstDay));
    m_ui->chtDue->setBars(resText(14414), daily(list.dueByDay(DaysAhead), list.today()));
    m_ui->txtNumbers->setPlainText(m_ui->chtStates->asText() + QStringLiteral("\n\n") + m_ui->chtDue->asText() +
                                   QStringLiteral("\n\n") + m_ui->chtAnswers->asText());
}

void frmProgress::enableButtons()
{
    m_ui->btnSelect->setEnabled(m_ui->tblWords->selectionModel()->hasSelection());
    m_ui->btnExport->setEnabled(m_model.rowCount() > 0);
}

std::vector<WordKey> frmProgress::keys() const
{
    std::vector<WordKey> keys;
    keys.reserve(size_t(m_model.list().count()));
    for (int i = 0; i < m_model.list().count(); ++i)
        keys.push_back(m_model.list().at(i).word);
    return keys;
}

std::vector<WordKey> frmProgress::selectedKeys() const
{
    std::vector<WordKey> keys;
    const QModelIndexList lines = m_ui->tblWords->selectionModel()->selectedRows();
    for (const QModelIndex &line : lines)
        keys.push_back(m_model.at(line.row()).word);
    return keys;
}

void frmProgress::goToWord()
{
    const QModelIndex line = m_ui->tblWords->currentIndex();
    if (!line.isValid())
        return;
    m_chosenRow = m_model.at(line.row()).row;
    accept();
}

void frmProgress::exportTable()
{
    const QString path = m_needs.askFile(this, m_document.Caption() + QStringLiteral(".csv"));
    if (path.isEmpty())
        return;
    const QByteArray table = m_model.list().csv(ProgressModel::headings(), m_model.order());
    QString error;
    if (!AtomicFile::write(path, table, &error))
        m_needs.alert.show(this, {.prompt = resText(14434).arg(path, error), .sound = true, .exclamation = true});
}

void frmProgress::forget(Forgotten what)
{
    const std::vector<WordKey> gone = what == Selected ? selectedKeys() : keys();
    const QString question = what == Everything ? resText(14433)
                             : gone.size() == 1 ? resText(14376 + what)
                                                : resText(14431 + what).arg(gone.size());
    if (m_needs.alert.show(this, {.prompt = question, .buttons = Alert::YesNo}) != AlertBox::AnswerYes)
        return;
    if (what == Everything)
        m_needs.memory.forgetAll();
    else
        m_needs.memory.forget(gone);
}
