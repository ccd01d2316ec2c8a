#include "tools/frmSort.h"

#include "ui_frmSort.h"

#include "document/frmDoc.h"
#include "services/FormTexts.h"
#include "services/desktop/EnterKey.h"
#include "tools/rules/SortFlag.h"

frmSort::frmSort(frmDoc &document, QWidget *parent)
    : ToolDialog(document, parent)
    , m_ui(std::make_unique<Ui::frmSort>())
{
    m_ui->setupUi(this);
    EnterKey::leaveToDialog(*this);
    FormTexts::apply(this);
    const std::array optLang{m_ui->optLang0, m_ui->optLang1};
    for (int i = 0; i < 2; ++i) {
        FormTexts::setCaption(optLang[i],
                              QStringLiteral("&%1 ").arg(i + 1) + FormTexts::escapeMnemonic(document.language(i + 1)));
    }
    const GridSelection selection = document.selection();
    m_ui->chkSelection->setEnabled(selection.colCount() > 1 && selection.rowCount() > 1);
    connect(m_ui->btnOK, &QPushButton::clicked, this, &frmSort::accept);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &frmSort::reject);
}

frmSort::~frmSort() = default;

int frmSort::SortFlags() const
{
    if (result() != Accepted)
        return 0;
    return (m_ui->optLang0->isChecked() ? SortFlag::Language1 : SortFlag::Language2) |
           (m_ui->optOrder0->isChecked() ? SortFlag::Ascending : SortFlag::Descending) |
           (m_ui->chkSelection->isChecked() ? SortFlag::Selection : SortFlag::Vocabulary);
}
