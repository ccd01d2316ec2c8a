#include "tools/frmColRow.h"

#include "ui_frmColRow.h"

#include "document/ctlGrid.h"
#include "document/frmDoc.h"
#include "platform/Twips.h"
#include "services/FormTexts.h"

#include <QFontMetricsF>

#include <cmath>

namespace {

constexpr int HeaderMargin = 6; ///< pixels around the text of a header cell

} // namespace

frmColRow::frmColRow(frmDoc &document, Mode mode, QWidget *parent)
    : ToolDialog(document, parent)
    , m_ui(std::make_unique<Ui::frmColRow>())
    , m_mode(mode)
{
    m_ui->setupUi(this);
    FormTexts::setCaption(this, mode == RowHeight ? 9001 : 9000);
    FormTexts::setCaption(m_ui->lblCaption, mode == RowHeight ? 9003 : 9002);
    FormTexts::apply(this);
    m_ui->txtSize->setValue(currentSize());
    m_ui->txtSize->selectAll();
    connect(m_ui->btnOK, &QPushButton::clicked, this, &frmColRow::accept);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &frmColRow::reject);
}

frmColRow::~frmColRow() = default;

int frmColRow::currentSize() const
{
    const ctlGrid &grid = *document().Rutor();
    return m_mode == RowHeight ? Twips::toPixelsY(grid.RowHeight(grid.Row()))
                               : Twips::toPixelsX(grid.ColWidth(grid.Col()));
}

void frmColRow::accept()
{
    if (const std::optional<int> pixels = m_ui->txtSize->Value()) {
        ctlGrid &grid = *document().Rutor();
        grid.setRedraw(false);
        if (m_mode == RowHeight)
            applyHeight(*pixels);
        else
            applyWidth(*pixels);
        grid.setRedraw(true);
    }
    ToolDialog::accept();
}

void frmColRow::applyWidth(int pixels)
{
    ctlGrid &grid = *document().Rutor();
    const GridSelection selection = document().selection();
    for (int col = selection.left(); col <= selection.right(); ++col)
        grid.setColWidth(col, Twips::fromPixelsX(pixels));
    grid.makeRoomForRowNumbers();
}

void frmColRow::applyHeight(int pixels)
{
    ctlGrid &grid = *document().Rutor();
    const GridSelection selection = document().selection();
    for (int row = selection.top(); row <= selection.bottom(); ++row)
        grid.setRowHeight(row, Twips::fromPixelsY(pixels));
    const double textHeight = QFontMetricsF(grid.Font(), &grid).height();
    const int needed = Twips::fromPixelsY(int(std::ceil(textHeight)) + HeaderMargin);
    grid.setRowHeight(0, std::max(grid.RowHeight(0), needed));
}
