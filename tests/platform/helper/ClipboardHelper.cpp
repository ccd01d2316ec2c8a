#include "platform/ClipboardOwner.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>

#include <iostream>

/// Takes the clipboard at the line "own" and tells at every line whether it has it, and whether its owner answers.
int main(int argc, char **argv)
{
    constexpr int AtOnce = 700; // ms
    QGuiApplication application(argc, argv);
    ClipboardOwner owner;
    for (std::string line; std::getline(std::cin, line);) {
        QGuiApplication::processEvents();
        if (line == "own")
            QGuiApplication::clipboard()->setText("mine");
        QElapsedTimer clock;
        clock.start();
        std::cout << (QGuiApplication::clipboard()->ownsClipboard() ? "own, " : "")
                  << (owner.answers() ? "answers" : "hangs") << (clock.elapsed() < AtOnce ? " at once" : "")
                  << std::endl;
    }
}
