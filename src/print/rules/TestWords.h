#pragma once

#include "print/rules/PrintSource.h"

/// What the user wants of a printed test.
struct TestChoice
{
    enum Kind { Sheet, Cards };
    enum Asked { FirstLanguage, SecondLanguage, Mixed };
    static constexpr int LargestNumber = 9999;

    Kind kind = Sheet;
    Asked asked = FirstLanguage;
    int count = 0; ///< of words at most; 0: all
    bool shuffled = true;
    int number = 1; ///< of the sheet, 1 to LargestNumber: the same number shuffles the same words in the same way
    int columns = 1;
    bool nameAndDate = true;
    bool key = true; ///< on a page of its own
};

/// One question of a test.
struct TestItem
{
    QString question;
    QString answer;
    bool operator==(const TestItem &) const = default;
};

namespace TestWords {

/// How many rows have words in both languages: only those can be asked.
int count(const PrintSource &vocabulary);

/// The questions in their order. Shuffled, they are drawn from all rows and Mixed decides by chance which word is
/// asked; else they are the first rows, and Mixed takes turns.
std::vector<TestItem> items(const PrintSource &vocabulary, const TestChoice &choice);

} // namespace TestWords
