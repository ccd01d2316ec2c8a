#pragma once

#include "platform/PrintServer.h"

#include <QLibrary>

/// The print server of Unix desktops, by way of its client library, which is there wherever a printer is.
class CupsServer : public PrintServer
{
public:
    CupsServer();

    bool isThere() override;
    QString send(const QString &queue, const QString &file, const QString &title, const Options &options) override;

private:
    QLibrary m_library;
};
