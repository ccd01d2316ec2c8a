#pragma once

#include <QColor>
#include <QComboBox>

/// A drop-down list whose entries can show a colour and which can complete what is typed from its entries. Enter while
/// the list is closed is left to the window.
class ExtendedComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ExtendedComboBox(QWidget *parent = nullptr);

    /// Appends an entry with a swatch of its colour.
    void addColor(const QString &name, QColor color, const QVariant &itemData);

    /// Makes the box editable for entries of its list only: typing completes to the first entry that begins so,
    /// whatever the case. Leaving the box with any other text puts the selected entry's text back. The text shown at
    /// first may be none of the list's; it stands until an entry is selected.
    void setAutoComplete(const QString &shown);
    /// Makes the box editable for whole numbers; the list, whose item data are numbers, is a choice of them and nothing
    /// is completed. The number shown at first may be any.
    void setNumbersOnly(double shown);

    /// The entry that the text stands for, whatever the case; -1 for none.
    int matchingIndex() const { return findText(currentText(), Qt::MatchFixedString); }

protected:
    void showEvent(QShowEvent *event) override; ///< its parts take its name for screen readers
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setTextBox(QLineEdit *box);
    void putBackSelected(const QString &unlisted);
    void drawSwatches();
    QIcon swatch(QColor color) const;
};
