#include "base/error.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(CurrentError, HoldsTheFailureOfTheLastStepOnly)
{
    EXPECT_FALSE(attempt([] { throwError(RuleViolation, u"taken: Ä"_s); }));
    EXPECT_EQ(currentError().number, 1973);
    EXPECT_EQ(currentError().description, u"taken: Ä");

    EXPECT_TRUE(attempt([] {}));
    EXPECT_FALSE(currentError().isSet());
    EXPECT_TRUE(currentError().description.isEmpty());
}

TEST(CurrentError, LetsFaultsOfTheProgramThrough)
{
    EXPECT_THROW(attempt([] { throw std::logic_error("a fault"); }), std::logic_error);
    EXPECT_FALSE(currentError().isSet());
}

TEST(Error, TellsItsTextAsUtf8)
{
    EXPECT_STREQ(Error(1, u"Größe"_s).what(), "Gr\xC3\xB6\xC3\x9F\x65");
}
