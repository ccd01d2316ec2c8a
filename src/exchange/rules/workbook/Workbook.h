#pragma once

#include "exchange/rules/ListSource.h"

#include <QLocale>

class ZipPackage;

/// The sheets of a spreadsheet as they show: of the kinds that LibreOffice, Gnumeric and Excel write today.
class Workbook : public ListSource
{
public:
    struct Sheet
    {
        QString name;
        TextTable table;
        bool hidden = false;
    };

    /// Hidden sheets are left out where there are others. The first with a word is proposed. Throws ReadFailure when no
    /// sheet has one.
    explicit Workbook(std::vector<Sheet> sheets);

    Kind kind() const override { return Kind::Workbook; }
    QStringList lists() const override;
    ReadChoices proposal() const override { return m_proposal; }
    TextTable table(const ReadChoices &choices) const override { return m_sheets.at(size_t(choices.list)).table; }

private:
    std::vector<Sheet> m_sheets;
    ReadChoices m_proposal;
};

/// Readers of the three kinds. The locale says how numbers and dates show where the file does not. Each throws
/// ReadFailure.
namespace WorkbookReader {

/// Throws ReadFailure when there are more than anybody makes.
void addSheet(std::vector<Workbook::Sheet> &sheets, Workbook::Sheet &&sheet);

std::vector<Workbook::Sheet> xlsx(const QByteArray &bytes, const ZipPackage &package, const QLocale &locale);
std::vector<Workbook::Sheet> ods(const QByteArray &bytes, const ZipPackage &package);
/// Packed by gzip, or as it is.
std::vector<Workbook::Sheet> gnumeric(const QByteArray &bytes, const QLocale &locale);

} // namespace WorkbookReader
