#include "exchange/rules/archive/ZipPackage.h"

#include <zip.h>

ZipPackage::ZipPackage(const QByteArray &bytes)
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t *source = zip_source_buffer_create(bytes.constData(), zip_uint64_t(bytes.size()), 0, &error);
    m_archive = source ? zip_open_from_source(source, ZIP_RDONLY, &error) : nullptr;
    zip_error_fini(&error);
    if (m_archive)
        return;
    if (source)
        zip_source_free(source);
    throw ReadFailure(ReadError::Damaged);
}

ZipPackage::~ZipPackage()
{
    zip_discard(m_archive);
}

bool ZipPackage::contains(const QString &name) const
{
    return zip_name_locate(m_archive, name.toUtf8().constData(), 0) >= 0;
}

std::unique_ptr<PackedStream> ZipPackage::open(const QString &name, Limits &limits) const
{
    const zip_int64_t index = zip_name_locate(m_archive, name.toUtf8().constData(), 0);
    if (index < 0)
        throw ReadFailure(ReadError::Damaged);
    const std::shared_ptr<zip_file_t> entry(zip_fopen_index(m_archive, zip_uint64_t(index), 0), [](zip_file_t *file) {
        if (file)
            zip_fclose(file);
    });
    if (!entry) {
        const int error = zip_error_code_zip(zip_get_error(m_archive));
        throw ReadFailure(error == ZIP_ER_NOPASSWD ? ReadError::Locked : ReadError::Damaged);
    }
    const auto unpack = [entry](char *out, qint64 most) { return zip_fread(entry.get(), out, zip_uint64_t(most)); };
    return std::make_unique<PackedStream>(unpack, limits);
}

QByteArray ZipPackage::start(const QString &name, qsizetype most) const
{
    Limits limits(most);
    return contains(name) ? open(name, limits)->read(most) : QByteArray();
}
