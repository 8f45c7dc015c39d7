#include <gtest/gtest.h>

#include "support/DebugCapture.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;

TEST(VornLoggerNames, FunctionAndQualifiedFunctionParts) {
    EXPECT_EQ(L"f", VornLogger::getFunctionName(L"a::B::f"));
    EXPECT_EQ(L"f", VornLogger::getFunctionName(L"f"));
    EXPECT_EQ(L"B::f", VornLogger::getQualifiedFunctionName(L"a::B::f"));
    EXPECT_EQ(L"f", VornLogger::getQualifiedFunctionName(L"B::f"));
    EXPECT_EQ(L"f", VornLogger::getQualifiedFunctionName(L"f"));
    EXPECT_EQ(L"C::f", VornLogger::getQualifiedFunctionName(L"a::b::C::f"));
}

TEST(VornLoggerUnconfigured, MessageGoesToTheDebuggerOutputWithoutItsNumber) {
    vorn_test::DebugCapture capture;
    VornLoggerSTD::getInstance().STD2001(L"vorn_std::ConnectionManager::connect", L"client");
    NTServiceLogger().SL1006(L"f", L"svc", 5);
    EXPECT_EQ(
        "ERROR : Client <client> failed to connect to any service.\n"
        "ERROR : svc failed to install. Error 5\n",
        capture.text());
}
