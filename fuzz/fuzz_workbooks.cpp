// Any bytes as the XML of a workbook and as a format of its numbers: the first byte chooses the reader, the rest goes
// to it as it would after unpacking.

#include "Application.h"
#include "Archive.h"
#include "Require.h"

#include "exchange/rules/archive/ZipPackage.h"
#include "exchange/rules/workbook/CellFormat.h"
#include "exchange/rules/workbook/Workbook.h"

#include <cstdint>

namespace {

const QByteArray Relations =
    "<Relationships><Relationship Id='1' Type='x/worksheet' Target='s.xml'/><Relationship Id='2' "
    "Type='x/sharedStrings' Target='t.xml'/><Relationship Id='3' Type='x/styles' "
    "Target='y.xml'/></Relationships>";
const QByteArray Book = "<workbook><sheets><sheet name='a' id='1'/></sheets></workbook>";

std::vector<Workbook::Sheet> read(int reader, const QByteArray &xml)
{
    if (reader == 0)
        return WorkbookReader::gnumeric(xml, QLocale::c());
    const std::vector<QByteArray> halves{xml.left(xml.indexOf('\0')), xml.mid(xml.indexOf('\0') + 1)};
    const QByteArray bytes = reader == 1 ? archiveOf({{"content.xml", xml}}, false)
                                         : archiveOf({{"xl/workbook.xml", Book},
                                                      {"xl/_rels/workbook.xml.rels", Relations},
                                                      {"xl/t.xml", halves[0]},
                                                      {"xl/y.xml", halves[0]},
                                                      {"xl/s.xml", halves[1]}},
                                                     false);
    const ZipPackage package(bytes);
    return reader == 1 ? WorkbookReader::ods(bytes, package) : WorkbookReader::xlsx(bytes, package, QLocale::c());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    beApplication();
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1);
    try {
        for (const Workbook::Sheet &sheet : read(data[0] % 3, bytes)) {
            require(sheet.table.keptColumns() <= TextTable::MostColumns, "no more columns than are kept");
            for (qsizetype row = 0; row < sheet.table.rows(); ++row)
                sheet.table.isBlank(row);
        }
    } catch (const ReadFailure &failure) {
        require(failure.error() != ReadError::None, "a failure has a reason");
    }
    const QString code = QString::fromUtf8(bytes.left(40));
    for (const double value : {0.0, -1.5, 45413.75, 1e300})
        CellFormat::shown(value, code, false, QLocale::c());
    return 0;
}
