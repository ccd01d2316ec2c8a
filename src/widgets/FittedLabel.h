#pragma once

#include <QLabel>

/// Plain text on one line that always fits its label: what is too long first takes a smaller type, down to the smallest
/// allowed, then ends in an ellipsis, with the whole text as tooltip. It is fitted anew when the label is resized.
class FittedLabel : public QLabel
{
    Q_OBJECT

public:
    /// The share of a label's width that its text may take.
    static constexpr double UsableWidth = 0.97;

    explicit FittedLabel(QWidget *parent = nullptr);

    /// Shows a text and makes it the accessible name; text() is what the label shows of it.
    void setFullText(const QString &text);

    /// The type the label prefers and the smallest it may take, as multiples of the window's type.
    void setTypeSizes(double preferred, double smallest);
    /// The family to write in instead of the window's.
    void setFamily(const QString &family);
    /// The type is chosen as if this text were shown: a text that grows up to it does not change its size.
    void setRoomFor(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

    /// The text in normalization form C.
    const QString &fullText() const { return m_fullText; }
    /// The width that the text may take, in pixels.
    double usableWidth() const { return contentsRect().width() * UsableWidth; }
    double preferredType() const { return m_preferred; }
    double smallestType() const { return m_smallest; }
    QFont scaledFont(double factor) const;
    /// Gives the label its type and what it shows of its text.
    virtual void fit();
    void showFitted(const QString &text, const QFont &type);

private:
    QFont fittingFont(double width) const;

    QString m_family;
    QString m_fullText;
    QString m_roomFor;
    double m_preferred = 1;
    double m_smallest = 1;
    bool m_fitting = false;
};

/// The text as it fits a width in pixels in the given type: whole, or its end replaced by an ellipsis.
QString fittedText(const QString &text, const QFont &font, double width);
