#include "runner.h"

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    qputenv("TZ", "UTC");
    registerCases(QStringLiteral(KELVANE_CASES));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
