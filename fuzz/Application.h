#pragma once

#include <QCoreApplication>

/// Beside the fuzzer's own file the program's modules are found, which only an application knows.
inline void beApplication()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    static const QCoreApplication application(count, arguments);
}
