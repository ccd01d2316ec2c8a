// One copy of a program: single_instance_helper <socket path> <command line> [answer ms] says on its output what
// happens to it, and runs while it is the first copy.
#include "platform/SingleInstance.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

void say(const QString &line)
{
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    SingleInstanceLimits limits;
    limits.stall = 300;
    if (arguments.size() > 3)
        limits.answer = arguments.at(3).toInt();
    SingleInstance instance(arguments.value(1), limits);
    QObject::connect(&instance, &SingleInstance::activated, [] { say(QStringLiteral("activated")); });
    QObject::connect(&instance, &SingleInstance::received, [](const QString &text) {
        say(QStringLiteral("received ") + text);
        if (text == QStringLiteral("quit"))
            QCoreApplication::quit();
    });
    if (instance.start(arguments.value(2)) == SingleInstance::Role::Second) {
        say(QStringLiteral("second"));
        return 0;
    }
    say(QStringLiteral("first"));
    return QCoreApplication::exec();
}
