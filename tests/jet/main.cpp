#include "base/error.h"
#include "runner.h"

#include <gtest/gtest.h>

#include <cstdio>

/// With a folder as argument the cases of that folder are run in place of the project's own.
int main(int argc, char **argv)
{
    qputenv("TZ", "UTC");
    testing::InitGoogleTest(&argc, argv);
    try {
        registerCases(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(KELVANE_CASES));
    } catch (const Error &mistake) {
        fprintf(stderr, "%s\n", mistake.what());
        return 1;
    }
    return RUN_ALL_TESTS();
}
