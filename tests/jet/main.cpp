#include "runner.h"

#include <gtest/gtest.h>

/// With a folder as argument the cases of that folder are run in place of the project's own.
int main(int argc, char **argv)
{
    qputenv("TZ", "UTC");
    testing::InitGoogleTest(&argc, argv);
    registerCases(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(KELVANE_CASES));
    return RUN_ALL_TESTS();
}
