#include "platform/files/RegularFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace RegularFile {

bool open(QFile &file, const QString &path)
{
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (handle < 0)
        return false;
    struct stat status = {};
    const bool regular = ::fstat(handle, &status) == 0 && S_ISREG(status.st_mode);
    if (regular && file.open(handle, QIODevice::ReadOnly, QFile::AutoCloseHandle))
        return true;
    ::close(handle);
    return false;
}

} // namespace RegularFile
