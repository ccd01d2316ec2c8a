#pragma once

#include <QByteArrayView>
#include <QString>

#include <functional>

/// Replaces the content of a file as a whole: after any failure (full disk, size limit, killed program) the old content
/// is still there, and no unfinished file lies beside it. After success the new content survives a power failure.
/// Symbolic links are followed; mode, owner and group of an existing file are kept as far as the user may set them.
namespace AtomicFile {

/// Takes the next bytes of the content, pieces of any size. False: they cannot be written, producing more is useless.
using Sink = std::function<bool(QByteArrayView bytes)>;

/// Hands the content to the sink from its start to its end; false gives up and keeps the old file. It is called a
/// second time when the folder turns out to allow no new file.
using Producer = std::function<bool(const Sink &sink)>;

/// Writes beside the file and renames. Where the folder allows no new file but the file itself can be written, it is
/// written in place while a copy in the user's state folder keeps the old content; should that copy be needed and
/// putting it back fail too, the error names it; overwriting, if given, is called before the file is touched. False:
/// error, if given, says why in the words of the system.
bool write(const QString &path, const Producer &producer, QString *error = nullptr,
           const std::function<void()> &overwriting = {});
bool write(const QString &path, QByteArrayView content, QString *error = nullptr);

} // namespace AtomicFile
