#pragma once

#include <QString>

#include <utility>
#include <vector>

/// The desktop's print server, which takes finished files as jobs.
class PrintServer
{
public:
    /// What the server is told about a job, names and values.
    using Options = std::vector<std::pair<QByteArray, QByteArray>>;

    virtual ~PrintServer() = default;

    /// False where printing has another way: then nothing is ever sent.
    virtual bool isThere() = 0;
    /// Hands a file over to a queue. Returns what the server says when it refuses the job, else an empty text.
    virtual QString send(const QString &queue, const QString &file, const QString &title, const Options &options) = 0;
};
