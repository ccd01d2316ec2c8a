#pragma once

#include <QStyledItemDelegate>

/// Draws the strength of a word as a bar; the model gives it from 0 to 100 as Qt::UserRole.
class StrengthDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
