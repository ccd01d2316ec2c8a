#pragma once

#include <QString>

#include <array>

/// One question of a quiz: the seven fields of the question table, counted from 1.
class Question
{
public:
    /// The fields that hold the options; outside Multiple Choice only the first is used.
    static constexpr int FirstOption = 4;
    static constexpr int LastOption = 6;

    const QString &field(int number) const { return m_fields[size_t(number - 1)]; }
    void setField(int number, const QString &text) { m_fields[size_t(number - 1)] = text; }

    const QString &answerLanguage() const { return field(1); }
    const QString &askedLanguage() const { return field(2); }
    /// The number of the field with the correct answer, FirstOption to LastOption.
    int correctPosition() const { return field(3).toInt(); }
    const QString &correctAnswer() const { return field(correctPosition()); }
    const QString &askedWord() const { return field(7); }

    /// The column of the vocabulary that the answer was taken from, 1 or 2.
    int answerColumn() const { return m_answerColumn; }
    void setAnswerColumn(int column) { m_answerColumn = column; }

    bool operator==(const Question &) const = default;

private:
    std::array<QString, 7> m_fields;
    int m_answerColumn = 2;
};
