#include "app/frmRecovery.h"

#include "document/RecoveryKeeper.h"
#include "resources/StringTable.h"
#include "services/AlertBox.h"
#include "services/FormTexts.h"
#include "services/rules/TextDigits.h"
#include "ui_frmRecovery.h"

#include <QFileInfo>
#include <QLocale>

namespace {

enum Column { NameColumn, CauseColumn, TimeColumn, FolderColumn };

QString causeText(RecoveryCopy::Cause cause)
{
    switch (cause) {
    case RecoveryCopy::Cause::Closed:
        return resText(14068);
    case RecoveryCopy::Cause::NotInFile:
        return resText(14069);
    default:
        return resText(14067);
    }
}

} // namespace

frmRecovery::frmRecovery(RecoveryKeeper &keeper, std::vector<RecoveryFolder::Orphan> orphans, AlertBox &alert,
                         QWidget *parent)
    : QDialog(parent)
    , m_keeper(keeper)
    , m_orphans(std::move(orphans))
    , m_alert(alert)
    , m_ui(std::make_unique<Ui::frmRecovery>())
{
    m_ui->setupUi(this);
    FormTexts::apply(this);
    fill();
    connect(m_ui->btnRecover, &QPushButton::clicked, this, &frmRecovery::recoverSelected);
    connect(m_ui->btnDiscard, &QPushButton::clicked, this, &frmRecovery::discardSelected);
    connect(m_ui->btnLater, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->lstCopies, &QTreeWidget::itemSelectionChanged, this, [this] {
        m_ui->btnRecover->setEnabled(!selectedRows().isEmpty());
        m_ui->btnDiscard->setEnabled(!selectedRows().isEmpty());
    });
    m_ui->lstCopies->selectAll();
}

frmRecovery::~frmRecovery() = default;

void frmRecovery::fill()
{
    m_ui->lstCopies->setHeaderLabels({resText(12613), resText(14066), resText(12615), resText(12614)});
    for (const RecoveryFolder::Orphan &orphan : m_orphans) {
        const RecoveryCopy &copy = orphan.copy;
        const QString name = copy.isFileChanged() ? resText(12628).arg(copy.caption) : copy.caption;
        const QString folder = copy.docName.isEmpty() ? resText(12619) : QFileInfo(copy.docName).path();
        const QString time = TextDigits::time(copy.time);
        auto *item = new QTreeWidgetItem(m_ui->lstCopies, {name, causeText(copy.cause), time, folder});
        item->setToolTip(NameColumn, name);
        item->setToolTip(FolderColumn, folder);
    }
    // The folder takes what is left, so that the others are always in sight.
    for (int column = 0; column < FolderColumn; ++column)
        m_ui->lstCopies->resizeColumnToContents(column);
    const int share = width() / 3; // of the dialog, which is not laid out yet
    m_ui->lstCopies->setColumnWidth(NameColumn, std::min(m_ui->lstCopies->columnWidth(NameColumn), share));
}

/// From the last to the first, so that rows can be taken out in that order.
QList<int> frmRecovery::selectedRows() const
{
    QList<int> rows;
    for (int row = m_ui->lstCopies->topLevelItemCount() - 1; row >= 0; --row) {
        if (m_ui->lstCopies->topLevelItem(row)->isSelected())
            rows.append(row);
    }
    return rows;
}

void frmRecovery::takeOut(const QList<int> &rows)
{
    for (const int row : rows) {
        delete m_ui->lstCopies->takeTopLevelItem(row);
        m_orphans.erase(m_orphans.begin() + row);
    }
    if (m_orphans.empty())
        accept();
}

void frmRecovery::recoverSelected()
{
    const QList<int> rows = selectedRows();
    for (const int row : rows)
        m_keeper.recover(m_orphans[size_t(row)]);
    takeOut(rows);
}

bool frmRecovery::confirmDiscard(const QList<int> &rows)
{
    const QString prompt = rows.size() == 1 ? resText(12621).arg(m_orphans[size_t(rows.first())].copy.caption)
                                            : resText(12620).arg(rows.size());
    return m_alert.show(this, {.prompt = prompt, .buttons = Alert::YesNo}) == AlertBox::AnswerYes;
}

void frmRecovery::discardSelected()
{
    const QList<int> rows = selectedRows();
    if (!confirmDiscard(rows))
        return;
    for (const int row : rows)
        m_keeper.discard(m_orphans[size_t(row)]);
    takeOut(rows);
}
