#include "exchange/rules/workbook/Workbook.h"

namespace {

bool hasWords(const Workbook::Sheet &sheet)
{
    for (qsizetype row = 0; row < sheet.table.rows(); ++row) {
        if (!sheet.table.isBlank(row))
            return true;
    }
    return false;
}

} // namespace

Workbook::Workbook(std::vector<Sheet> sheets)
    : m_sheets(std::move(sheets))
{
    const auto isHidden = [](const Sheet &sheet) { return sheet.hidden; };
    if (!std::all_of(m_sheets.begin(), m_sheets.end(), isHidden))
        std::erase_if(m_sheets, isHidden);
    const auto found = std::find_if(m_sheets.begin(), m_sheets.end(), hasWords);
    if (found == m_sheets.end())
        throw ReadFailure(ReadError::Empty);
    m_proposal.list = int(found - m_sheets.begin());
}

QStringList Workbook::lists() const
{
    QStringList names;
    for (const Sheet &sheet : m_sheets)
        names += sheet.name;
    return names;
}

void WorkbookReader::addSheet(std::vector<Workbook::Sheet> &sheets, Workbook::Sheet &&sheet)
{
    static constexpr size_t MostSheets = 1000;
    if (sheets.size() == MostSheets)
        throw ReadFailure(ReadError::TooLarge);
    sheets.push_back(std::move(sheet));
}
