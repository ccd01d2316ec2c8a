#include "widgets/grid/FlexGrid.h"

#include "platform/Twips.h"
#include "widgets/grid/FlexGridCellText.h"
#include "widgets/grid/FlexGridView.h"

#include <QAbstractItemModel>
#include <QFontMetricsF>
#include <QStringList>

#include <cmath>

namespace {

/// The alignment value for the sign before a header text, -1 for none.
int alignmentOfSign(QChar sign)
{
    switch (sign.unicode()) {
    case u'<':
        return 1;
    case u'^':
        return 4;
    case u'>':
        return 7;
    default:
        return -1;
    }
}

} // namespace

void FlexGrid::setFormatString(const QString &format)
{
    m_formatString = format;
    propertyChanged("FormatString");
    const QStringList parts = format.split(u';');
    const QStringList headers = parts.at(0).isEmpty() ? QStringList() : parts.at(0).split(u'|');
    const QStringList names = parts.size() > 1 ? parts.at(1).split(u'|') : QStringList();
    if (headers.size() > Cols())
        setCols(int(headers.size()));
    if (names.size() > Rows())
        setRows(int(names.size()));
    const QFontMetricsF metrics(Font());
    for (int col = 0; col < headers.size(); ++col) {
        QString header = headers.at(col);
        const int alignment = header.isEmpty() ? -1 : alignmentOfSign(header.at(0));
        if (alignment >= 0) {
            header.remove(0, 1);
            setColAlignment(col, alignment);
        }
        setTextMatrix(0, col, header.trimmed());
        const int pixels = int(std::ceil(metrics.horizontalAdvance(header))) + 2 * FlexGridCellText::Margin + 1;
        setColWidth(col, Twips::fromPixelsX(pixels));
    }
    for (int row = 0; row < names.size(); ++row)
        setTextMatrix(row, 0, names.at(row).trimmed());
}

void FlexGrid::setDataSource(QAbstractItemModel *model)
{
    if (m_dataSource)
        m_dataSource->disconnect(this);
    m_dataSource = model;
    if (!model)
        return;
    const auto fill = [this] { fillFromDataSource(); };
    connect(model, &QAbstractItemModel::modelReset, this, fill);
    connect(model, &QAbstractItemModel::layoutChanged, this, fill);
    connect(model, &QAbstractItemModel::dataChanged, this, fill);
    connect(model, &QAbstractItemModel::headerDataChanged, this, fill);
    connect(model, &QAbstractItemModel::rowsInserted, this, fill);
    connect(model, &QAbstractItemModel::rowsRemoved, this, fill);
    connect(model, &QAbstractItemModel::columnsInserted, this, fill);
    connect(model, &QAbstractItemModel::columnsRemoved, this, fill);
    fill();
}

void FlexGrid::fillFromDataSource()
{
    const QAbstractItemModel &model = *m_dataSource;
    setRows(FixedRows() + model.rowCount());
    setCols(FixedCols() + model.columnCount());
    for (int col = 0; col < model.columnCount(); ++col) {
        if (FixedRows() > 0)
            m_state.cells.setText(0, FixedCols() + col, model.headerData(col, Qt::Horizontal).toString());
        for (int row = 0; row < model.rowCount(); ++row)
            m_state.cells.setText(FixedRows() + row, FixedCols() + col, model.index(row, col).data().toString());
    }
    draw();
}
