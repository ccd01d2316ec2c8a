#include "app/RecoveryOffer.h"

#include "app/DocumentArea.h"
#include "app/frmApp.h"
#include "app/frmRecovery.h"
#include "app/rules/RequestedFile.h"
#include "document/DocumentList.h"
#include "document/RecoveryKeeper.h"

RecoveryOffer::RecoveryOffer(RecoveryKeeper &keeper, AlertBox &alert, frmApp &window)
    : m_keeper(keeper)
    , m_alert(alert)
    , m_window(window)
{
}

void RecoveryOffer::start(const QString &requested)
{
    std::vector<RecoveryFolder::Orphan> orphans = m_keeper.orphans();
    for (const RecoveryFolder::Orphan &orphan : orphans)
        m_offered.append(orphan.copy.docName.toLower());
    if (!requested.isEmpty())
        open(requested);
    if (!orphans.empty())
        frmRecovery(m_keeper, std::move(orphans), m_alert, &m_window).exec();
    m_offered.clear();
    const QStringList waiting = std::exchange(m_waiting, {});
    for (const QString &path : waiting)
        openWaiting(path);
}

void RecoveryOffer::open(const QString &requested)
{
    const std::optional<QString> path = RequestedFile::requestedPath(requested);
    const bool isOffered = path && m_offered.contains(path->toLower());
    if (isOffered && !m_window.context().documents.findByPath(*path))
        m_waiting.append(*path);
    else
        m_window.OpenRequestedFile(requested);
}

void RecoveryOffer::openWaiting(const QString &path)
{
    if (frmDoc *recovered = m_window.context().documents.findByPath(path))
        m_window.documentArea()->activate(*recovered);
    else
        m_window.OpenRequestedFile(path);
}
