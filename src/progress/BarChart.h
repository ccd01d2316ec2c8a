#pragma once

#include <QWidget>

#include <vector>

/// A row of bars with a title, in the colours of the palette. The arrow keys go from bar to bar; the one that they or
/// the pointer have come to is named in the line above the bars, and told to a screen reader.
class BarChart : public QWidget
{
    Q_OBJECT

public:
    struct Bar
    {
        QString label; ///< what is counted: "Mon 3 Aug"
        int value;     ///< 0 or more
        QString below; ///< stands under the bar; may be empty
    };

    explicit BarChart(QWidget *parent = nullptr);

    void setBars(const QString &title, std::vector<Bar> bars);
    /// Title and all numbers, a line each.
    QString asText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    static constexpr int None = -1;

    QFont titleFont() const;
    QRectF barsArea() const;
    QRectF place(int bar) const;
    QString numbers() const;
    QString name(int bar) const;
    void goTo(int bar);
    void paintBars(QPainter &painter) const;
    void paintTexts(QPainter &painter) const;
    void paintTextsBelow(QPainter &painter) const;
    void measureTexts();

    QString m_title;
    std::vector<Bar> m_bars;
    int m_highest = 0;
    int m_widestText = 0; ///< pixels, with a gap
    int m_current = None;
};
