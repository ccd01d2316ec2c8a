#pragma once

#include <QFont>
#include <QString>

#include <vector>

/// Measures texts in one font. Whether a text fits is mostly told from the widths of its letters alone, which is ten
/// times quicker than to lay it out; that counts when thousands of cells change at once.
class TextWidth
{
public:
    explicit TextWidth(const QFont &font = {})
        : m_font(font)
    {
    }

    const QFont &font() const { return m_font; }

    /// The width of a text on one line, in pixels.
    double of(const QString &text) const;
    /// The height of a line, in pixels.
    double lineHeight() const;
    /// Whether a text surely takes no more than so many pixels. False: it has to be measured.
    bool surelyFits(const QString &text, double pixels);

private:
    void measureLetters();

    QFont m_font;
    std::vector<float> m_letters; ///< widths by code, empty until they are needed; 0: unknown
};
