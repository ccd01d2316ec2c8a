#include "widgets/ExtendedComboBox.h"

#include "widgets/NumberBox.h"

#include <QAbstractItemView>
#include <QCompleter>

namespace {

constexpr int ColorRole = Qt::UserRole + 1; ///< an entry's colour; its item data stands in Qt::UserRole

} // namespace

ExtendedComboBox::ExtendedComboBox(QWidget *parent)
    : QComboBox(parent)
{
    setInsertPolicy(NoInsert);
}

void ExtendedComboBox::addColor(const QString &name, QColor color, const QVariant &itemData)
{
    addItem(swatch(color), name, itemData);
    setItemData(count() - 1, color, ColorRole);
}

void ExtendedComboBox::setAutoComplete()
{
    setEditable(true);
    completer()->setCompletionMode(QCompleter::InlineCompletion);
    completer()->setCaseSensitivity(Qt::CaseInsensitive);
    placeTextBox();
    connect(lineEdit(), &QLineEdit::editingFinished, this, &ExtendedComboBox::putBackSelected);
}

void ExtendedComboBox::setNumbersOnly()
{
    setEditable(true);
    setLineEdit(new NumberBox(this));
    setCompleter(nullptr);
    placeTextBox();
}

/// The text box stands at the end of the window's order of Tab: Shift+Tab from the first box would end in it, that is
/// in the box that it belongs to. Its place is beside that one.
void ExtendedComboBox::placeTextBox()
{
    setTabOrder(this, lineEdit());
}

void ExtendedComboBox::putBackSelected()
{
    if (const int match = matchingIndex(); match >= 0)
        setCurrentIndex(match);
    if (currentIndex() >= 0)
        setEditText(itemText(currentIndex()));
}

void ExtendedComboBox::showEvent(QShowEvent *event)
{
    QComboBox::showEvent(event);
    view()->setAccessibleName(accessibleName());
    if (lineEdit())
        lineEdit()->setAccessibleName(accessibleName());
}

void ExtendedComboBox::changeEvent(QEvent *event)
{
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        drawSwatches();
}

void ExtendedComboBox::drawSwatches()
{
    for (int i = 0; i < count(); ++i) {
        if (const QVariant color = itemData(i, ColorRole); color.isValid())
            setItemIcon(i, swatch(color.value<QColor>()));
    }
}

QIcon ExtendedComboBox::swatch(QColor color) const
{
    const QSize size = iconSize();
    QPixmap pixmap(size * devicePixelRatioF());
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QColor border = palette().color(QPalette::Text);
    border.setAlphaF(0.4F);
    painter.setPen(border);
    painter.setBrush(color);
    painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected); // the highlight must not change the colour
    return icon;
}
