#pragma once

#include "print/rules/ColumnFlow.h"
#include "print/rules/LineBreaker.h"
#include "print/rules/TestLayout.h"

/// Numbered words with lines to write the answers on, and on pages of its own the key with the answers.
class TestSheet final : public TestLayout
{
public:
    TestSheet(const PrintSource &vocabulary, const TestChoice &choice, const PrinterMetrics &printer,
              double ZoomDivisor);

    int pageCount() const override { return m_questionPages + m_keyPages; }
    void drawPage(int page, PrintSurface &PrintDevice) const override;

private:
    int columnWidth() const;
    int columnLeft(int column) const;
    int wordLeft(int column) const;
    int answerLeft(int column) const;
    int wordWidth() const;
    int answerWidth() const;
    QStringList linesOf(const QString &text, int width) const { return m_breaker.lines(text, width); }

    int headerTop() const;
    int answerLines(const TestItem &item) const;
    int questionHeight(const TestItem &item) const;
    int keyHeight(const TestItem &item) const;
    template <typename Height> int place(std::vector<ColumnFlow::Place> &places, int firstTop, Height heightOf);

    void drawTitle(PagePen &pen, const QString &title, bool nameAndDate) const;
    void drawField(PagePen &pen, const QString &name, int left, int right, int y) const;
    void drawFooter(PagePen &pen, int page) const;
    void drawQuestion(PagePen &pen, size_t item) const;
    void drawKey(PagePen &pen, size_t item) const;
    void drawNumber(PagePen &pen, size_t item, int column, int y) const;
    void drawText(PagePen &pen, const QStringList &lines, int left, int width, int y) const;

    TestChoice m_choice;
    QString m_title;
    QString m_languages;
    PrintFont m_font;
    PrintFont m_titleFont;
    std::unique_ptr<TextMeasure> m_measure;
    std::unique_ptr<TextMeasure> m_titleMeasure;
    LineBreaker m_breaker;
    int m_lineHeight;
    int m_numberWidth;
    std::vector<ColumnFlow::Place> m_questions;
    std::vector<ColumnFlow::Place> m_keys;
    int m_questionPages = 0;
    int m_keyPages = 0;
};
