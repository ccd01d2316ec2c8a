#pragma once

#include <QFrame>

/// Shows a text in a font and a colour of the grid's, on the grid's ground.
class FontSample : public QFrame
{
    Q_OBJECT

public:
    explicit FontSample(QWidget *parent = nullptr);

    void setText(const QString &text);
    QFont sampleFont() const { return m_font; }
    void setSampleFont(const QFont &font);
    /// The colours as the grid keeps them (0x00BBGGRR or a system colour).
    void setColors(int foreColor, int backColor);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void DrawSample(QPainter &painter) const;

    QString m_text;
    QFont m_font;
    int m_foreColor = 0;
    int m_backColor = 0xFFFFFF;
};
