#include "progress/StrengthDelegate.h"

#include <QStyle>
#include <QWidget>

void StrengthDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    constexpr int Margin = 4; // pixels
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    item.text.clear();
    item.widget->style()->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    const int strength = index.data(Qt::UserRole).toInt();
    if (strength == 0)
        return;
    const bool isSelected = item.state & QStyle::State_Selected;
    const QColor colour = item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Highlight);
    const QRect room = item.rect.adjusted(Margin, Margin, -Margin, -Margin);
    QRect bar = room;
    bar.setWidth(std::max(1, room.width() * strength / 100));
    painter->save();
    painter->setPen(colour);
    painter->drawRect(room.adjusted(0, 0, -1, -1));
    painter->fillRect(QStyle::visualRect(item.direction, room, bar), colour);
    painter->restore();
}
