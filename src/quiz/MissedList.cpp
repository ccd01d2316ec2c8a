#include "quiz/MissedList.h"

#include "quiz/rules/MissedAnswers.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

enum Column { Asked, Given, Right, Columns };

constexpr int ShownRows = 3; ///< what there is room for at least
constexpr int RowMargin = 6; ///< pixels

QPushButton *addButton(QBoxLayout &column, const char *name, int textId, int whatsThisId)
{
    auto *button = new QPushButton(resText(textId));
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    FormTexts::setWhatsThis(button, whatsThisId);
    column.addWidget(button);
    return button;
}

} // namespace

MissedList::MissedList(QWidget &before, QWidget *parent)
    : QWidget(parent)
    , m_before(before)
    , m_table(new QTableWidget(0, Columns))
{
    m_table->setObjectName(QStringLiteral("lstMissed"));
    m_table->setAccessibleName(resText(14360));
    m_table->setHorizontalHeaderLabels({resText(14361), resText(911), resText(913)});
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    FormTexts::setWhatsThis(m_table, 21320);
    const int rowHeight = fontMetrics().height() + RowMargin;
    m_table->verticalHeader()->setDefaultSectionSize(rowHeight);
    m_table->setMinimumHeight(m_table->horizontalHeader()->sizeHint().height() + rowHeight * ShownRows +
                              2 * m_table->frameWidth());
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table, 1);
    auto *buttons = new QVBoxLayout;
    layout->addLayout(buttons);
    m_buttons = {addButton(*buttons, "btnCopyMissed", 14362, 21321),
                 addButton(*buttons, "btnKeepMissed", 14363, 21322)};
    buttons->addStretch();
    connect(m_buttons[0], &QPushButton::clicked, this, &MissedList::copy);
    connect(m_buttons[1], &QPushButton::clicked, this, &MissedList::keepRequested);
    auto *copyKey = new QShortcut(QKeySequence::Copy, m_table);
    copyKey->setContext(Qt::WidgetShortcut);
    connect(copyKey, &QShortcut::activated, this, &MissedList::copy);
}

void MissedList::setAnswers(const std::vector<MissedAnswer> &answers, bool withGiven)
{
    m_table->setColumnHidden(Given, !withGiven);
    shareWidth();
    m_table->setRowCount(int(answers.size()));
    int row = 0;
    for (const MissedAnswer &each : answers) {
        const std::array texts = {each.question.askedWord(), each.given, each.question.correctAnswer()};
        for (int column = 0; column < Columns; ++column) {
            auto *item = new QTableWidgetItem(texts[size_t(column)]);
            item->setToolTip(FormTexts::plainToolTip(texts[size_t(column)]));
            m_table->setItem(row, column, item);
        }
        ++row;
    }
    setTabOrder(&m_before, m_table);
    setTabOrder(m_table, m_buttons[0]);
    setTabOrder(m_buttons[0], m_buttons[1]);
    // The toolkit would tell screen readers that the focus is in the table.
    const QSignalBlocker unannounced(m_table->selectionModel());
    m_table->setCurrentCell(answers.empty() ? -1 : 0, Asked, QItemSelectionModel::NoUpdate);
}

/// The columns are equally wide, but one whose heading needs more room has that.
void MissedList::shareWidth()
{
    QHeaderView *header = m_table->horizontalHeader();
    const int share = (m_table->width() - 2 * m_table->frameWidth()) / (Columns - header->hiddenSectionCount());
    for (int column = 0; column < Columns; ++column) {
        const int heading = header->sectionSizeHint(column);
        header->setSectionResizeMode(column, heading > share ? QHeaderView::Fixed : QHeaderView::Stretch);
        if (heading > share)
            header->resizeSection(column, heading);
    }
}

void MissedList::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    shareWidth();
}

QSize MissedList::sizeHint() const
{
    return minimumSizeHint();
}

/// The selected rows, or all when none is.
void MissedList::copy()
{
    QStringList lines;
    const QItemSelectionModel &selection = *m_table->selectionModel();
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (selection.hasSelection() && !selection.isRowSelected(row))
            continue;
        QStringList fields;
        for (int column = 0; column < Columns; ++column) {
            if (!m_table->isColumnHidden(column))
                fields += m_table->item(row, column)->text();
        }
        lines += fields.join(u'\t');
    }
    QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}
