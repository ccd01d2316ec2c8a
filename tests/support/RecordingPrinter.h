#pragma once

#include "print/rules/PrintSource.h"
#include "print/rules/PrinterDevice.h"

#include <vector>

/// A text where a surface was told to draw it.
struct DrawnText
{
    int x = 0;
    int y = 0;
    QString text;
    PrintFont font;
    QRgb color = 0;
    bool rightToLeft = false;
};

/// Keeps what is drawn on one page.
class RecordingSurface : public PrintSurface
{
public:
    std::vector<DrawnText> texts;

    void setFont(const PrintFont &font) override { m_font = font; }
    void setForeColor(QRgb color) override { m_color = color; }
    void drawText(int x, int y, const QString &text, bool rightToLeft) override
    {
        texts.push_back({x, y, text, m_font, m_color, rightToLeft});
    }
    /// The texts drawn on the line at y, joined by blanks.
    QString line(int y) const
    {
        QStringList words;
        for (const DrawnText &drawn : texts) {
            if (drawn.y == y)
                words.append(drawn.text);
        }
        return words.join(u' ');
    }
    const DrawnText *find(const QString &text) const
    {
        for (const DrawnText &drawn : texts) {
            if (drawn.text == text)
                return &drawn;
        }
        return nullptr;
    }

private:
    PrintFont m_font;
    QRgb m_color = 0;
};

/// A printer of A4 sheets on which every letter is 100 twips wide and 240 high, so that a line takes 250.
class RecordingPrinter : public PrinterDevice
{
public:
    std::vector<RecordingSurface> sheets;
    int width = 11900;
    int height = 16840;
    int failingSheet = 0; ///< from 1
    bool reverse = false;
    QList<int> wanted; ///< empty: every page
    int jobs = 0;
    QString docName;

    int Width() const override { return width; }
    int Height() const override { return height; }
    int ScaleHeight() const override { return height; }
    std::unique_ptr<TextMeasure> measure(const PrintFont &) const override
    {
        struct FixedMeasure : TextMeasure
        {
            int TextWidth(const QString &text) const override { return 100 * int(text.size()); }
            int TextHeight() const override { return 240; }
        };
        return std::make_unique<FixedMeasure>();
    }
    void setFont(const PrintFont &font) override { sheets.back().setFont(font); }
    void setForeColor(QRgb color) override { sheets.back().setForeColor(color); }
    void drawText(int x, int y, const QString &text, bool rightToLeft) override
    {
        sheets.back().drawText(x, y, text, rightToLeft);
    }
    void setDocName(const QString &name) override { docName = name; }
    void startPage() override
    {
        if (int(sheets.size()) + 1 == failingSheet) {
            m_open = false;
            throw PrinterError(QStringLiteral("out of paper"));
        }
        m_open = true;
        sheets.emplace_back();
    }
    void endDoc() override { jobs += std::exchange(m_open, false); }
    bool lastPageFirst() const override { return reverse; }
    bool wantsPage(int page) const override { return wanted.isEmpty() || wanted.contains(page); }

    /// The page numbers at the feet of the sheets.
    std::vector<int> pageNumbers() const
    {
        std::vector<int> numbers;
        for (const RecordingSurface &sheet : sheets)
            numbers.push_back(sheet.texts.back().text.toInt());
        return numbers;
    }

private:
    bool m_open = false;
};

/// A vocabulary to print, kept as pairs of words.
class PairSource : public PrintSource
{
public:
    std::vector<std::pair<QString, QString>> pairs;
    QString language1 = QStringLiteral("English");
    QString language2 = QStringLiteral("German");
    PrintFont font{QStringLiteral("Liberation Sans"), 10, false, false};
    int color = 0x0000ff;

    /// Pairs "one n", "zwei n" for n from 1.
    void fill(int count)
    {
        pairs.clear();
        for (int n = 1; n <= count; ++n)
            pairs.emplace_back(QStringLiteral("one %1").arg(n), QStringLiteral("zwei %1").arg(n));
    }
    QString Caption() const override { return QStringLiteral("Words"); }
    int Rows() const override { return int(pairs.size()) + 1; }
    QString TextMatrix(int row, int col) const override
    {
        if (row == 0)
            return col == 1 ? language1 : language2;
        if (col == 0)
            return QString::number(row);
        return col == 1 ? pairs[size_t(row) - 1].first : pairs[size_t(row) - 1].second;
    }
    PrintFont Font() const override { return font; }
    int ForeColor() const override { return color; }
};
