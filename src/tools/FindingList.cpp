#include "tools/FindingList.h"

#include "resources/StringTable.h"
#include "tools/GridCells.h"

namespace {

constexpr int FirstText = 14140; ///< of the finding whose kind is 0; the others follow

/// A text in which blanks can be seen, at the edges and where several stand together.
QString withVisibleBlanks(const QString &text)
{
    QString visible = text;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool blankBefore = i == 0 || text[i - 1].isSpace();
        const bool blankBehind = i == text.size() - 1 || text[i + 1].isSpace();
        if (text[i].isSpace() && (blankBefore || blankBehind))
            visible[i] = u'␣';
    }
    return visible;
}

} // namespace

void FindingList::lookThrough(const ctlGrid *grid)
{
    beginResetModel();
    m_grid = grid;
    m_findings = grid ? VocabularyCheck::findings(GridCells(*grid)) : std::vector<Finding>();
    endResetModel();
}

int FindingList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_findings.size());
}

QVariant FindingList::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid())
        return {};
    return text(at(index.row()));
}

/// The words are taken from the grid when the line is shown: they may have changed since.
QString FindingList::text(const Finding &finding) const
{
    const QString text = resText(FirstText + finding.kind);
    const int known = finding.kind == Finding::NoCounterpart ? 3 - finding.col : finding.col;
    const QString word = m_grid->TextMatrix(finding.row, known);
    switch (finding.kind) {
    case Finding::SamePair:
        return text.arg(finding.row).arg(finding.other).arg(word, m_grid->TextMatrix(finding.row, 2));
    case Finding::OtherAnswer:
        return text.arg(finding.row).arg(finding.other).arg(word);
    case Finding::Blanks:
        return text.arg(finding.row).arg(withVisibleBlanks(word));
    case Finding::Scripts:
        return text.arg(finding.row).arg(finding.part.section(u' ', 0, 0), finding.part.section(u' ', 1));
    default:
        return text.arg(finding.row).arg(word);
    }
}
