#pragma once

#include <QStringList>

class AlertBox;
class RecoveryKeeper;
class frmApp;

/// Asks at the start what is to become of the copies that were left behind, and takes what is to be opened from
/// outside: a file that is being asked about waits for the answer, and the document recovered from its copy then counts
/// as the one that was wanted.
class RecoveryOffer
{
public:
    RecoveryOffer(RecoveryKeeper &keeper, AlertBox &alert, frmApp &window);

    /// Opens what the program was started on (empty: nothing) and returns when the user has answered.
    void start(const QString &requested);
    /// Opens a file that was named from outside.
    void open(const QString &requested);

private:
    void openWaiting(const QString &path);

    RecoveryKeeper &m_keeper;
    AlertBox &m_alert;
    frmApp &m_window;
    QStringList m_offered; ///< paths in lower case, while the user is asked
    QStringList m_waiting; ///< paths that were asked for meanwhile
};
