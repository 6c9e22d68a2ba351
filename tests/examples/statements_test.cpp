#include "statements.h"

#include <gtest/gtest.h>

using namespace examples;

namespace {

bool isKnown(const std::string& statement) { return isKnownStatement(statement, {"Fire", "Rdr_In", "Rdr_Out"}); }

} // namespace

TEST(IsKnownStatement, StatementsOfTheLanguageAre)
{
    for (const char* statement :
         {"BTN S1 Fire", "BTN S3", "BTN H1UL /U /I Fire /O a /D SHF F1", "BTN S2 /T /N Fire /T /N 2",
          "BTN T4 /P RAW (#5B) /R RAW (#F0 #5B)", "BTN X48 Fire", "BTN MT 1", "BTN HU /M Fire", "DEF X1 S3 AND NOT TG1",
          "DEF X2 (X1 OR CMPGT(THR 230)) AND PULSE(5 20) AND DELAY(4)", "USE TQS", "USE MTYPE B10", "RATE 80",
          "MDEF lance", "SWAPTG", "PortB1 IS TG2", "RNG 1 6 Rdr_Out Rdr_In", "RDDR 3 z x c", "THR 1 12 3 = - a b = -"})
        EXPECT_TRUE(isKnown(statement)) << statement;
}

TEST(IsKnownStatement, UnknownWordsAreNot)
{
    for (const char* statement :
         {"RAW (#5B)", "BTN", "BTN S5 Fire", "BTN S1 Missing", "BTN S1 fire", "BTN S1 /X Fire", "BTN X49 a", "USE SOAP",
          "USE MTYPE A6", "USE", "RATE", "MDEF ninechars", "PortB5 IS TG2", "PortB1 IS Fire", "DEF X1", "DEF X1 Fire",
          "DEF X2 CMPGT(S1 230)", "FIRE S1"})
        EXPECT_FALSE(isKnown(statement)) << statement;
}

TEST(IsKnownStatement, FieldsMustBeAsManyAsTheTypeWants)
{
    EXPECT_TRUE(isKnown("JSX 1 5 a b c"));
    EXPECT_FALSE(isKnown("JSX 1 5 a b"));
    EXPECT_FALSE(isKnown("JSX 1 5 a b c d"));
    EXPECT_FALSE(isKnown("JSX 4 5 a b c"));
    EXPECT_FALSE(isKnown("JSX 1 five a b c"));
    EXPECT_TRUE(isKnown("THR 2 2 1 a b c"));
    EXPECT_FALSE(isKnown("THR 2 2 1 a b"));
    EXPECT_FALSE(isKnown("THR 2 2 1 a b c d"));
}
