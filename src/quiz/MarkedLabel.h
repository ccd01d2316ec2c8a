#pragma once

#include "widgets/FittedLabel.h"

#include <QTextLayout>

#include <vector>

/// A fitted label that can mark letters of its text and add a note to it; then it takes up to two lines before it ends
/// in an ellipsis. Marks are drawn over the text, which keeps its shape: letters that join stay joined.
class MarkedLabel : public FittedLabel
{
    Q_OBJECT

public:
    enum class Mark {
        Surplus,   ///< struck out
        Exchanged, ///< underlined, in the colour of what is wrong
        Gap,       ///< a wedge before the letter
        Right      ///< underlined, in the colour of what is right
    };
    /// Places of the text in normalization form C, in UTF-16 units.
    struct MarkedPart
    {
        qsizetype start;
        qsizetype length; ///< 0 for a gap
        Mark mark;
    };

    static constexpr int MostLines = 2;

    using FittedLabel::FittedLabel;

    /// Shows a text plainly, on one line.
    void setFullText(const QString &text);
    /// Shows a text with marks; blanks that are marked alone or stand at an edge can be seen.
    void setMarkedText(const QString &text, std::vector<MarkedPart> parts, const QString &note = QString());

    QSize sizeHint() const override;

protected:
    void fit() override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString visibleText() const;
    void layOut(const QString &text, const QFont &type);
    /// Cuts the text to what its lines hold; true when it was too long.
    bool cut(const QString &text, const QFont &type);
    QColor colourOf(Mark mark) const;
    QList<QTextLayout::FormatRange> colours() const;
    /// Where the letters of a part stand, a rectangle for each piece of a line.
    std::vector<QRectF> places(const MarkedPart &part) const;
    void drawPart(QPainter &painter, const MarkedPart &part, QPointF origin) const;
    void drawGap(QPainter &painter, const MarkedPart &part, QPointF origin) const;

    bool m_marked = false;
    std::vector<MarkedPart> m_parts;
    QString m_note;
    qsizetype m_noteStart = 0;
    QTextLayout m_layout;
    int m_lines = 1;
    bool m_cut = false;
};
