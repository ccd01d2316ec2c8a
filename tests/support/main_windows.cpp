#include "support/TestEnvironment.h"

#include <QApplication>

int main(int argc, char **argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    TestEnvironment environment;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Glosaria"));
    return environment.isValid() ? RUN_ALL_TESTS() : 1;
}
