#include "exchange/packages/LibzipArchive.h"

#include <zip.h>

std::unique_ptr<ZipArchive> LibzipArchive::of(const QByteArray &bytes)
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t *source = zip_source_buffer_create(bytes.constData(), zip_uint64_t(bytes.size()), 0, &error);
    zip_t *archive = source ? zip_open_from_source(source, ZIP_RDONLY, &error) : nullptr;
    zip_error_fini(&error);
    if (archive)
        return std::make_unique<LibzipArchive>(archive);
    if (source)
        zip_source_free(source);
    return nullptr;
}

LibzipArchive::~LibzipArchive()
{
    zip_discard(m_archive);
}

bool LibzipArchive::contains(const QByteArray &name) const
{
    return zip_name_locate(m_archive, name.constData(), 0) >= 0;
}

PackedStream::Source LibzipArchive::open(const QByteArray &name, bool &locked) const
{
    locked = false;
    const zip_int64_t index = zip_name_locate(m_archive, name.constData(), 0);
    if (index < 0)
        return {};
    const std::shared_ptr<zip_file_t> entry(zip_fopen_index(m_archive, zip_uint64_t(index), 0), [](zip_file_t *file) {
        if (file)
            zip_fclose(file);
    });
    if (!entry) {
        locked = zip_error_code_zip(zip_get_error(m_archive)) == ZIP_ER_NOPASSWD;
        return {};
    }
    return [entry](char *out, qint64 most) { return zip_fread(entry.get(), out, zip_uint64_t(most)); };
}
