#pragma once

#include "print/rules/PrintSource.h"
#include "print/rules/PrinterDevice.h"

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
    std::vector<QLine> lines;

    void setFont(const PrintFont &font) override { m_font = font; }
    void setForeColor(QRgb color) override { m_color = color; }
    void drawText(int x, int y, const QString &text, bool rightToLeft) override
    {
        texts.push_back({x, y, text, m_font, m_color, rightToLeft});
    }
    void drawLine(int x1, int y1, int x2, int y2) override { lines.emplace_back(x1, y1, x2, y2); }
    /// "x,y size text" of each text, "x1,y1 x2,y2" of each line. "*": bold; "<": from right to left; "#": coloured.
    std::string described() const
    {
        QString parts;
        for (const DrawnText &drawn : texts) {
            const QString signs = QString(drawn.font.Bold ? "*" : "") + (drawn.color & 0xffffff ? "#" : "") +
                                  (drawn.rightToLeft ? '<' : ' ');
            parts += QString("%1,%2 %3%4%5\n").arg(drawn.x).arg(drawn.y).arg(drawn.font.Size).arg(signs, drawn.text);
        }
        for (const QLine &line : lines)
            parts += QString("%1,%2 %3,%4\n").arg(line.x1()).arg(line.y1()).arg(line.x2()).arg(line.y2());
        return parts.toStdString();
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

/// One on which something was drawn before, bold and in red.
inline RecordingSurface usedSurface()
{
    RecordingSurface surface;
    surface.setFont({"Another", 99, true, true});
    surface.setForeColor(qRgb(255, 0, 0));
    return surface;
}

/// A printer of A4 sheets on which every letter is 100 twips wide and 240 high, so that a line takes 250.
struct RecordingPrinter : PrinterDevice
{
    std::vector<RecordingSurface> sheets;
    QSize size{11900, 16840};
    bool shortEdge = false;
    int failingSheet = 0; ///< from 1
    bool reverse = false;
    QList<int> wanted; ///< empty: every page
    int jobs = 0;
    int killed = 0;
    QString docName;
    std::function<void()> duringSheet; ///< what happens while a sheet is printed

    int Width() const override { return size.width(); }
    int Height() const override { return size.height(); }
    int ScaleHeight() const override { return size.height(); }
    bool turnsOverShortEdge() const override { return shortEdge; }
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
    void drawLine(int x1, int y1, int x2, int y2) override { sheets.back().drawLine(x1, y1, x2, y2); }
    void setDocName(const QString &name) override { docName = name; }
    void startPage() override
    {
        m_open = int(sheets.size()) + 1 != failingSheet;
        if (!m_open)
            throw PrinterError(QStringLiteral("out of paper"));
        sheets.emplace_back();
        if (duringSheet)
            duringSheet();
    }
    void endDoc() override { jobs += std::exchange(m_open, false); }
    void killDoc() override { killed += std::exchange(m_open, false); }
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

/// What the user is told of a step that fails.
inline QString printerFault(const std::function<void()> &step)
{
    try {
        step();
    } catch (const PrinterError &error) {
        return error.text();
    }
    return {};
}

/// How pages look that are described in a file.
inline std::string drawnAs(const char *name)
{
    return readFile(QStringLiteral(SOURCE_FOLDER "/tests/print/data/%1.txt").arg(name)).toStdString();
}

/// A vocabulary to print, made of pairs of words.
inline PrintSource sourceOf(const std::vector<std::pair<QString, QString>> &pairs)
{
    PrintSource source{"Words", {"Liberation Sans", 10, false, false}, 0, {"English"}, {"German"}};
    for (const auto &[first, second] : pairs) {
        source.first.push_back(first);
        source.second.push_back(second);
    }
    return source;
}

/// Pairs "one n", "zwei n" for n from 1.
inline PrintSource sourceOf(int count)
{
    std::vector<std::pair<QString, QString>> pairs;
    for (int n = 1; n <= count; ++n)
        pairs.emplace_back(QStringLiteral("one %1").arg(n), QStringLiteral("zwei %1").arg(n));
    return sourceOf(pairs);
}
