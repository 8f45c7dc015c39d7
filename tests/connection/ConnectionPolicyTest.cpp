#include <gtest/gtest.h>

#include "vorn_std/VornStd.h"

using namespace vorn_std;

TEST(ConnectionPolicies, NextPositionFromTheLastAttempt) {
    ZeroStartConnectionPolicy zero;
    LastPlusOneConnectionPolicy plusOne;
    EXPECT_EQ(0, zero.getIndexForNextConnectionAttempt(false, true));
    EXPECT_EQ(0, zero.getIndexForNextConnectionAttempt(true, false));
    EXPECT_EQ(0, plusOne.getIndexForNextConnectionAttempt(false, true));
    zero.setIndexOfConnectionInfoInLastAttempt(2);
    plusOne.setIndexOfConnectionInfoInLastAttempt(4);
    EXPECT_EQ(0, zero.getIndexForNextConnectionAttempt(true, true));
    EXPECT_EQ(3, zero.getIndexForNextConnectionAttempt(false, false));
    for (bool recovery : {false, true}) {
        for (bool first : {false, true}) {
            EXPECT_EQ(5, plusOne.getIndexForNextConnectionAttempt(recovery, first));
        }
    }
}

TEST(ConnectionPolicies, NamesTextsAndTheRecordedIndexes) {
    ZeroStartConnectionPolicy zero;
    zero.setIndexOfConnectionInfoInLastSuccessful(7);
    EXPECT_EQ(7, zero.getIndexOfConnectionInfoInLastSuccessful());
    EXPECT_EQ(-1, zero.getIndexOfConnectionInfoInLastAttempt());
    EXPECT_EQ(L"vorn_std.ZeroStartConnectionPolicy", zero.getClassName());
    EXPECT_EQ(L"vorn_std.LastPlusOneConnectionPolicy", LastPlusOneConnectionPolicy().getClassName());
    EXPECT_EQ(L"vorn_std.AbstractConnectionPolicy", AbstractConnectionPolicy::getClassNameStatic());
    EXPECT_EQ(
        L"ZeroStartConnectionPolicy{AbstractConnectionPolicy{indexOfLastAttempted=-1,"
        L"indexOfLastSuccessful=7}}",
        zero.toString());
    EXPECT_EQ(
        L"LastPlusOneConnectionPolicy{AbstractConnectionPolicy{indexOfLastAttempted=-1,"
        L"indexOfLastSuccessful=-1}}",
        LastPlusOneConnectionPolicy().toString());
}
