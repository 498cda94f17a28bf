// Runs tests that need an application object: timers, processes, a bus.
#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
