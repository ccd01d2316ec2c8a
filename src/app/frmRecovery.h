#pragma once

#include "document/rules/recovery/RecoveryFolder.h"

#include <QDialog>

#include <memory>

class AlertBox;
class RecoveryKeeper;

namespace Ui {
class frmRecovery;
}

/// Offers what was left behind: each vocabulary, with the cause why it is there, can be recovered or discarded; what is
/// neither stays for the next start.
class frmRecovery : public QDialog
{
    Q_OBJECT

public:
    frmRecovery(RecoveryKeeper &keeper, std::vector<RecoveryFolder::Orphan> orphans, AlertBox &alert, QWidget *parent);
    ~frmRecovery() override;

private:
    void fill();
    void recoverSelected();
    void discardSelected();
    bool confirmDiscard(const QList<int> &rows);
    QList<int> selectedRows() const;
    void takeOut(const QList<int> &rows);

    RecoveryKeeper &m_keeper;
    std::vector<RecoveryFolder::Orphan> m_orphans;
    AlertBox &m_alert;
    std::unique_ptr<Ui::frmRecovery> m_ui;
};
