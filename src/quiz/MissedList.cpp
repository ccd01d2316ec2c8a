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

constexpr int ShownRows = 4; ///< what there is room for at least

QPushButton *addButton(QBoxLayout &row, const char *name, int textId, int whatsThisId)
{
    auto *button = new QPushButton(resText(textId));
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    FormTexts::setWhatsThis(button, whatsThisId);
    row.addWidget(button);
    return button;
}

} // namespace

MissedList::MissedList(QWidget *parent)
    : QWidget(parent)
    , m_table(new QTableWidget(0, Columns))
{
    m_table->setObjectName(QStringLiteral("lstMissed"));
    m_table->setAccessibleName(resText(14360));
    m_table->setHorizontalHeaderLabels({resText(14361), resText(911), resText(913)});
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    FormTexts::setWhatsThis(m_table, 21320);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table);
    auto *buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    connect(addButton(*buttons, "btnCopyMissed", 14362, 21321), &QPushButton::clicked, this, &MissedList::copy);
    connect(addButton(*buttons, "btnKeepMissed", 14363, 21322), &QPushButton::clicked, this,
            &MissedList::keepRequested);
    buttons->addStretch();
    auto *copyKey = new QShortcut(QKeySequence::Copy, m_table);
    copyKey->setContext(Qt::WidgetShortcut);
    connect(copyKey, &QShortcut::activated, this, &MissedList::copy);
}

void MissedList::setAnswers(const std::vector<MissedAnswer> &answers, bool withGiven)
{
    m_table->setColumnHidden(Given, !withGiven);
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
    m_table->setCurrentCell(answers.empty() ? -1 : 0, Asked, QItemSelectionModel::NoUpdate);
}

QSize MissedList::sizeHint() const
{
    const QSize hint = QWidget::sizeHint();
    const int rows = m_table->verticalHeader()->defaultSectionSize() * ShownRows;
    const int table = m_table->horizontalHeader()->sizeHint().height() + rows + 2 * m_table->frameWidth();
    return {hint.width(), hint.height() - m_table->sizeHint().height() + table};
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
