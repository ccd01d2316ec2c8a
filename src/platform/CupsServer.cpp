#include "platform/CupsServer.h"

#include <QFile>

namespace {

constexpr int LibraryVersion = 2;

/// An option as the library takes it.
struct CupsOption
{
    const char *name;
    const char *value;
};
using PrintFile = int (*)(const char *queue, const char *file, const char *title, int optionCount,
                          const CupsOption *options);
using LastErrorString = const char *(*)();

} // namespace

CupsServer::CupsServer()
    : m_library(QStringLiteral("cups"), LibraryVersion)
{
}

bool CupsServer::isThere()
{
    return m_library.resolve("cupsPrintFile") && m_library.resolve("cupsLastErrorString");
}

QString CupsServer::send(const QString &queue, const QString &file, const QString &title, const Options &options)
{
    const auto printFile = reinterpret_cast<PrintFile>(m_library.resolve("cupsPrintFile"));
    const auto lastErrorString = reinterpret_cast<LastErrorString>(m_library.resolve("cupsLastErrorString"));
    std::vector<CupsOption> list;
    for (const auto &[name, value] : options)
        list.push_back({name.constData(), value.constData()});
    const int job = printFile(queue.toLocal8Bit().constData(), QFile::encodeName(file).constData(),
                              title.toUtf8().constData(), int(list.size()), list.data());
    if (job != 0)
        return {};
    const QString refusal = QString::fromUtf8(lastErrorString());
    return refusal.isEmpty() ? queue : refusal;
}
