#pragma once

#include "print/rules/PrintSource.h"
#include "print/rules/PrinterDevice.h"

#include <QSize>

#include <algorithm>
#include <vector>

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
struct RecordingSurface : PrintSurface
{
    std::vector<DrawnText> texts;

    void setFont(const PrintFont &font) override { m_font = font; }
    void setForeColor(QRgb color) override { m_color = color; }
    void drawText(int x, int y, const QString &text, bool rightToLeft) override
    {
        texts.push_back({x, y, text, m_font, m_color, rightToLeft});
    }
    const DrawnText *find(const QString &text) const
    {
        const auto is = [&text](const DrawnText &drawn) { return drawn.text == text; };
        const auto found = std::find_if(texts.begin(), texts.end(), is);
        return found == texts.end() ? nullptr : &*found;
    }

private:
    PrintFont m_font;
    QRgb m_color = 0;
};

/// A printer of A4 sheets on which every letter is 100 twips wide and 240 high, so that a line takes 250.
struct RecordingPrinter : PrinterDevice
{
    std::vector<RecordingSurface> sheets;
    QSize size{11900, 16840};
    int failingSheet = 0; ///< from 1
    bool reverse = false;
    QList<int> wanted; ///< empty: every page
    int jobs = 0;
    QString docName;

    int Width() const override { return size.width(); }
    int Height() const override { return size.height(); }
    int ScaleHeight() const override { return size.height(); }
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
    void drawText(int x, int y, const QString &text, bool rtl) override { sheets.back().drawText(x, y, text, rtl); }
    void setDocName(const QString &name) override { docName = name; }
    void startPage() override
    {
        m_open = int(sheets.size()) + 1 != failingSheet;
        if (!m_open)
            throw PrinterError(QStringLiteral("out of paper"));
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
struct PairSource : PrintSource
{
    std::vector<std::pair<QString, QString>> pairs;
    QString language2 = QStringLiteral("German");
    int color = 0;

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
        if (col == 0)
            return QString::number(row);
        const auto words = row ? pairs[size_t(row) - 1] : std::pair(QStringLiteral("English"), language2);
        return col == 1 ? words.first : words.second;
    }
    PrintFont Font() const override { return {QStringLiteral("Liberation Sans"), 10, false, false}; }
    int ForeColor() const override { return color; }
};
