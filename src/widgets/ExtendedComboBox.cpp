#include "widgets/ExtendedComboBox.h"

#include "widgets/NumberBox.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>

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

void ExtendedComboBox::setAutoComplete(const QString &shown)
{
    setTextBox(new QLineEdit(this));
    completer()->setCompletionMode(QCompleter::InlineCompletion);
    completer()->setCaseSensitivity(Qt::CaseInsensitive);
    setCurrentIndex(findText(shown, Qt::MatchFixedString));
    setEditText(shown);
    connect(lineEdit(), &QLineEdit::editingFinished, this, [this, shown] { putBackSelected(shown); });
}

void ExtendedComboBox::setNumbersOnly(double shown)
{
    auto *box = new NumberBox(this);
    setTextBox(box);
    setCompleter(nullptr);
    setCurrentIndex(findData(shown));
    box->setValue(shown);
}

/// The text box takes its place in the order of Tab, beside this box, before this box is its focus proxy: afterwards
/// the toolkit would follow the proxy back, and chain the text box to itself.
void ExtendedComboBox::setTextBox(QLineEdit *box)
{
    setTabOrder(this, box);
    setEditable(true);
    setLineEdit(box);
}

void ExtendedComboBox::putBackSelected(const QString &unlisted)
{
    if (const int match = matchingIndex(); match >= 0)
        setCurrentIndex(match);
    setEditText(currentIndex() >= 0 ? itemText(currentIndex()) : unlisted);
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

void ExtendedComboBox::keyPressEvent(QKeyEvent *event)
{
    // some desktops would have Enter open a list that is not typed into
    if (!isEditable() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        event->ignore();
    else
        QComboBox::keyPressEvent(event);
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
    pixmap.fill(color);
    QPainter painter(&pixmap);
    QColor border = palette().color(QPalette::Text);
    border.setAlphaF(0.4F);
    painter.setPen(border);
    painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected); // the highlight must not change the colour
    return icon;
}
