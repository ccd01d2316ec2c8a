#include "quiz/rules/LetterMatch.h"

#include <algorithm>

namespace {

/// How far an answer is ahead of or behind the text that it is compared with: as many places are followed at a time.
constexpr size_t MostReadings = 64;

/// What stands between two letters.
struct Gap
{
    bool blank = false;
    bool punctuation = false;

    /// A blank and a hyphen part words alike; only a gap that has neither is none.
    bool standsFor(Gap other) const { return blank == other.blank || (blank ? other.punctuation : punctuation); }
};

struct Piece
{
    const LetterForms *forms;
    Gap before;
};

/// The letters that count, with the gaps before them; all letters where blanks and punctuation count too.
std::vector<Piece> pieces(const Letters &letters, bool blanksCount)
{
    std::vector<Piece> all;
    Gap gap;
    for (const Letter &letter : letters) {
        if (blanksCount || letter.forms->counts()) {
            all.push_back({letter.forms, all.empty() ? Gap() : gap});
            gap = Gap();
        } else {
            gap.blank = gap.blank || letter.forms->blank;
            gap.punctuation = gap.punctuation || letter.forms->punctuation;
        }
    }
    return all;
}

bool parted(const std::vector<Piece> &given, size_t first, size_t end)
{
    return std::any_of(given.begin() + ptrdiff_t(first) + 1, given.begin() + ptrdiff_t(end),
                       [](const Piece &piece) { return piece.before.blank; });
}

/// The places in the text given that may follow the expected letter when it begins at the place given.
void follow(const std::vector<Piece> &given, size_t place, const Piece &expected, const AnswerTolerance &tolerance,
            std::vector<size_t> &next)
{
    if (place >= given.size() || (place > 0 && !given[place].before.standsFor(expected.before)))
        return;
    if (LetterRules::same(*given[place].forms, *expected.forms, tolerance))
        next.push_back(place + 1);
    if (!tolerance.accents)
        return;
    for (const auto &spelling : expected.forms->spellings) {
        const size_t end = place + spelling.size();
        if (LetterMatch::spelledAt(given, place, spelling, tolerance) && !parted(given, place, end))
            next.push_back(end);
    }
}

bool countsAnywhere(const Letters &letters)
{
    return std::any_of(letters.begin(), letters.end(), [](const Letter &letter) { return letter.forms->counts(); });
}

} // namespace

bool LetterMatch::matches(const Letters &given, const Letters &expected, const AnswerTolerance &tolerance)
{
    const bool blanksCount = !tolerance.blanksAndPunctuation || !countsAnywhere(given) || !countsAnywhere(expected);
    const std::vector<Piece> said = pieces(given, blanksCount);
    std::vector<size_t> places{0};
    for (const Piece &piece : pieces(expected, blanksCount)) {
        std::vector<size_t> next;
        for (const size_t place : places)
            follow(said, place, piece, tolerance, next);
        std::sort(next.begin(), next.end());
        next.erase(std::unique(next.begin(), next.end()), next.end());
        if (next.empty())
            return false;
        next.resize(std::min(next.size(), MostReadings));
        places = std::move(next);
    }
    return places.back() == said.size();
}
