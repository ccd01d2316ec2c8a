#include "support/TestEnvironment.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    TestEnvironment environment;
    QCoreApplication application(argc, argv);
    return environment.isValid() ? RUN_ALL_TESTS() : 1;
}
