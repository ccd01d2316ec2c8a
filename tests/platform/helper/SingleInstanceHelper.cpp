// One copy of a program: it says on its output what happens to it, and runs while it is the first copy. Arguments: the
// socket's path, the command line, how long to wait for an answer (ms), and the token to come to the front by, if any.
#include "platform/instance/SingleInstance.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const auto say = [](const QString &line) { QTextStream(stdout) << line << Qt::endl; };
    SingleInstance instance(arguments.at(1), {arguments.at(3).toInt(), 300});
    QObject::connect(&instance, &SingleInstance::activated,
                     [&](const QString &token) { say((QStringLiteral("activated ") + token).trimmed()); });
    QObject::connect(&instance, &SingleInstance::received, [&](const QString &text) {
        say(QStringLiteral("received ") + text);
        if (text == QStringLiteral("quit"))
            QCoreApplication::quit();
    });
    const bool isFirst = instance.start(arguments.at(2), arguments.value(4)) == SingleInstance::Role::First;
    say(isFirst ? QStringLiteral("first") : QStringLiteral("second"));
    instance.serve();
    return isFirst ? QCoreApplication::exec() : 0;
}
