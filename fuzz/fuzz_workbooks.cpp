// Any bytes as the XML of a workbook and as a format of its numbers: the first byte chooses the reader, the rest goes
// to it as it would after unpacking.

#include "Require.h"

#include "exchange/rules/archive/ZipPackage.h"
#include "exchange/rules/workbook/CellFormat.h"
#include "exchange/rules/workbook/Workbook.h"

#include <cstdint>
#include <zip.h>

namespace {

/// An archive with the parts as they are, unpacked.
QByteArray archive(const std::vector<std::pair<const char *, QByteArray>> &parts)
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t *target = zip_source_buffer_create(nullptr, 0, 0, &error);
    zip_source_keep(target);
    zip_t *writer = zip_open_from_source(target, ZIP_TRUNCATE, &error);
    for (const auto &[name, bytes] : parts) {
        const zip_int64_t index =
            zip_file_add(writer, name, zip_source_buffer(writer, bytes.constData(), zip_uint64_t(bytes.size()), 0), 0);
        zip_set_file_compression(writer, zip_uint64_t(index), ZIP_CM_STORE, 0);
    }
    zip_close(writer);
    zip_stat_t status;
    zip_source_stat(target, &status);
    QByteArray bytes(qsizetype(status.size), Qt::Uninitialized);
    zip_source_open(target);
    zip_source_read(target, bytes.data(), zip_uint64_t(bytes.size()));
    zip_source_close(target);
    zip_source_free(target);
    return bytes;
}

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
    const QByteArray bytes = reader == 1 ? archive({{"content.xml", xml}})
                                         : archive({{"xl/workbook.xml", Book},
                                                    {"xl/_rels/workbook.xml.rels", Relations},
                                                    {"xl/t.xml", halves[0]},
                                                    {"xl/y.xml", halves[0]},
                                                    {"xl/s.xml", halves[1]}});
    const ZipPackage package(bytes);
    return reader == 1 ? WorkbookReader::ods(bytes, package) : WorkbookReader::xlsx(bytes, package, QLocale::c());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
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
