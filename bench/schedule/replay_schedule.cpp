// Reads histories, one a line, as pairs of a day and a grade (1 to 4), and writes the state after each answer:
// stability, difficulty and days until due. schedule.sh compares it with another implementation.

#include "memory/Schedule.h"

#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>

int main()
{
    for (std::string line; std::getline(std::cin, line);) {
        std::istringstream history(line);
        Card card;
        int day = 0;
        for (int grade = 0; history >> day >> grade;) {
            card = Schedule::next(card, Grade(grade), day);
            std::printf("%.17g %.17g %d ", card.stability, card.difficulty, card.due - day);
        }
        std::printf("\n");
    }
    return 0;
}
