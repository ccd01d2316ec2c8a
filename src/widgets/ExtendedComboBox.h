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
    /// whatever the case. Leaving the box with any other text puts the selected entry's text back.
    void setAutoComplete();
    /// Makes the box editable for whole numbers; the list is a choice of them and nothing is completed.
    void setNumbersOnly();

    /// The entry that the text stands for, whatever the case; -1 for none.
    int matchingIndex() const { return findText(currentText(), Qt::MatchFixedString); }

protected:
    void showEvent(QShowEvent *event) override; ///< its parts take its name for screen readers
    void changeEvent(QEvent *event) override;

private:
    void placeTextBox();
    void putBackSelected();
    void drawSwatches();
    QIcon swatch(QColor color) const;
};
