#include "quiz/rules/AnswerParts.h"

#include <algorithm>

namespace {

const QString Opening = QStringLiteral("([{（［｛【〔");
const QString Closing = QStringLiteral(")]}）］｝】〕");
const QString Separators = QStringLiteral(",;/，；／、،؛");

/// With more brackets than this all of them are read in the same way.
constexpr size_t MostChosenBrackets = 3;

enum BracketReading { AsTheyAre, Bare, LeftOut, BracketReadings };

bool betweenDigits(const QString &text, qsizetype place)
{
    return place > 0 && place + 1 < text.size() && text[place - 1].isDigit() && text[place + 1].isDigit();
}

AnswerParts::Part trimmed(const QString &text, qsizetype start, qsizetype end)
{
    while (start < end && text[start].isSpace())
        ++start;
    while (end > start && text[end - 1].isSpace())
        --end;
    return {start, end - start};
}

/// Leaves a bracket out, and with it one of the blanks around it.
void leaveOut(QString &before, QStringView &after)
{
    if (before.trimmed().isEmpty()) {
        while (!after.isEmpty() && after[0].isSpace())
            after = after.mid(1);
    } else if (after.isEmpty() || !after[0].isLetterOrNumber()) {
        while (before.back().isSpace())
            before.chop(1);
    }
}

QString reading(const QString &text, const std::vector<AnswerParts::Part> &brackets, const std::vector<int> &choices)
{
    QString read;
    QStringView rest(text);
    for (size_t i = 0; i < brackets.size(); ++i) {
        const AnswerParts::Part &bracket = brackets[i];
        read += rest.left(bracket.start - (text.size() - rest.size()));
        rest = QStringView(text).mid(bracket.end());
        const QStringView whole = QStringView(text).mid(bracket.start, bracket.length);
        if (choices[i] == LeftOut)
            leaveOut(read, rest);
        else
            read += choices[i] == AsTheyAre ? whole : whole.mid(1, whole.size() - 2);
    }
    return read += rest;
}

/// Counts on to the next choice; false after the last.
bool nextChoice(std::vector<int> &choices, bool together)
{
    for (int &choice : choices) {
        choice = (choice + 1) % BracketReadings;
        if (choice != 0 && !together)
            return true;
    }
    return together && choices[0] != 0;
}

} // namespace

std::vector<AnswerParts::Part> AnswerParts::brackets(const QString &text)
{
    std::vector<Part> found;
    std::vector<std::pair<qsizetype, qsizetype>> open; // place and kind
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isLetterOrNumber())
            continue;
        if (const qsizetype kind = Opening.indexOf(text[i]); kind >= 0)
            open.emplace_back(i, kind);
        else if (!open.empty() && Closing.indexOf(text[i]) == open.back().second) {
            const qsizetype start = open.back().first;
            open.pop_back();
            while (!found.empty() && found.back().start > start)
                found.pop_back();
            found.push_back({start, i + 1 - start});
        }
    }
    return found;
}

std::vector<AnswerParts::Part> AnswerParts::answers(const QString &text, size_t most)
{
    const std::vector<Part> closed = brackets(text);
    auto bracket = closed.begin();
    std::vector<Part> parts;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        while (bracket != closed.end() && i == bracket->start)
            i = (bracket++)->end();
        if (i < text.size() && (text[i].isLetterOrNumber() || !Separators.contains(text[i]) || betweenDigits(text, i)))
            continue;
        if (const Part part = trimmed(text, start, i); part.length > 0)
            parts.push_back(part);
        start = i + 1;
    }
    if (parts.size() <= 1 || parts.size() > most)
        return {{0, text.size()}};
    return parts;
}

std::vector<QString> AnswerParts::readings(const QString &text)
{
    const std::vector<Part> parts = brackets(text);
    std::vector<QString> all;
    std::vector<int> choices(parts.size(), AsTheyAre);
    do {
        all.push_back(reading(text, parts, choices));
    } while (!parts.empty() && nextChoice(choices, parts.size() > MostChosenBrackets));
    return all;
}
