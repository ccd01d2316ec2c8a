#include "document/GridLetters.h"

#include "document/ctlGrid.h"
#include "document/ctlGridEdit.h"
#include "services/rules/LetterCount.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

namespace {

constexpr int LookInterval = 300; ///< milliseconds between looks for changes of the words

void press(QWidget *receiver, const QString &text)
{
    QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, text);
    QApplication::sendEvent(receiver, &event);
}

} // namespace

GridLetters::GridLetters(ctlGrid &grid, QWidget *parent)
    : LetterRow(parent)
    , m_grid(grid)
{
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &GridLetters::refresh);
    connect(&grid, &ctlGrid::RowColChange, this, &GridLetters::refresh);
    connect(this, &LetterRow::typed, this, &GridLetters::typeInto);
    timer->start(LookInterval);
    refresh();
}

void GridLetters::refresh()
{
    if (m_column == m_grid.Col() && m_revision == m_grid.revision())
        return;
    m_column = m_grid.Col();
    m_revision = m_grid.revision();
    LetterCount count;
    const int rows = m_grid.Rows();
    for (int row = 1; row < rows; ++row)
        count.add(m_grid.word(row, m_column));
    setLetters(count.mostFrequent(MostLetters, QLocale()));
}

/// As keys do, so that all that follows from typing follows. The first character opens the cell, the edit box takes the
/// others.
void GridLetters::typeInto(const QString &letter)
{
    qsizetype typed = 0;
    if (!m_grid.EditMode()) {
        m_grid.setFocus();
        typed = letter[0].isHighSurrogate() ? 2 : 1;
        press(QApplication::focusWidget(), letter.left(typed));
    }
    if (m_grid.EditMode() && typed < letter.size())
        press(m_grid.hwndText(), letter.mid(typed));
}
