#pragma once

#include <QByteArray>

#include <vector>
#include <zip.h>

/// The parts of a zip archive, by their names.
struct ArchivePart
{
    QByteArray name;
    QByteArray bytes;
};

/// An archive with the parts, packed or as they are.
inline QByteArray archiveOf(const std::vector<ArchivePart> &parts, bool packed)
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t *target = zip_source_buffer_create(nullptr, 0, 0, &error);
    zip_source_keep(target);
    zip_t *writer = zip_open_from_source(target, ZIP_TRUNCATE, &error);
    for (const auto &[name, bytes] : parts) {
        zip_source_t *part = zip_source_buffer(writer, bytes.constData(), zip_uint64_t(bytes.size()), 0);
        const zip_int64_t index = zip_file_add(writer, name.constData(), part, ZIP_FL_OVERWRITE);
        zip_set_file_compression(writer, zip_uint64_t(index), packed ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 0);
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

/// The parts that can be unpacked, none larger than most bytes.
inline std::vector<ArchivePart> partsOf(const QByteArray &bytes, qsizetype most)
{
    std::vector<ArchivePart> parts;
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t *source = zip_source_buffer_create(bytes.constData(), zip_uint64_t(bytes.size()), 0, &error);
    zip_t *reader = zip_open_from_source(source, ZIP_RDONLY, &error);
    if (!reader) {
        zip_source_free(source);
        return parts;
    }
    for (zip_int64_t i = 0; i < zip_get_num_entries(reader, 0); ++i) {
        zip_file_t *file = zip_fopen_index(reader, zip_uint64_t(i), 0);
        if (!file)
            continue;
        QByteArray content(most, Qt::Uninitialized);
        const zip_int64_t size = zip_fread(file, content.data(), zip_uint64_t(most));
        zip_fclose(file);
        if (size >= 0)
            parts.push_back({zip_get_name(reader, zip_uint64_t(i), 0), content.left(size)});
    }
    zip_discard(reader);
    return parts;
}
