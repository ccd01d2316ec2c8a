#pragma once

#include "platform/PrintServer.h"

/// A print server that answers as it is told and keeps what it was sent.
struct ScriptedPrintServer : PrintServer
{
    QString refusal;
    QString queue;
    QString title;
    QByteArray file;
    Options options;

    bool isThere() override { return true; }
    QString send(const QString &to, const QString &path, const QString &as, const Options &with) override
    {
        QFile sent(path);
        file = sent.open(QFile::ReadOnly) ? sent.readAll() : QByteArray();
        queue = to;
        title = as;
        options = with;
        return refusal;
    }
};
