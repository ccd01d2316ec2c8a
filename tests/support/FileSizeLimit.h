#pragma once

#include <QtGlobal>

/// While it lives, no file of this process can grow beyond a size: writes come up short as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(quint64 bytes);
    ~FileSizeLimit();
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    quint64 m_before = 0;
};
