#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/utsname.h>
#include <unistd.h>

#include "support/Failures.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;

using vorn_test::messageOf;

TEST(VornSystemProperties, SetReturnsTheOldValueAndGetFallsBackToTheDefault) {
    VornSystem& system = VornSystem::getInstance();
    EXPECT_EQ(L"fallback", system.getProperty(L"test.key", L"fallback"));
    EXPECT_EQ(L"", system.setProperty(L"test.key", L"one"));
    EXPECT_EQ(L"one", system.setProperty(L"test.key", L"two"));
    EXPECT_EQ(L"two", system.getProperty(L"test.key", L"fallback"));
    EXPECT_EQ(L"two", system.getProperties().at(L"test.key"));
    system.setProperties({{L"only", L"this"}});
    EXPECT_EQ(1u, system.getProperties().size());
    EXPECT_EQ(L"fallback", system.getProperty(L"test.key", L"fallback"));
}

TEST(VornSystemProperties, EmptyKeysAndNamesAreRefused) {
    VornSystem& system = VornSystem::getInstance();
    EXPECT_EQ(L"Property key value is empty.",
              messageOf<VornIllegalArgumentException>([&] { system.getProperty(L"", L"x"); }));
    EXPECT_EQ(L"Property key value is empty.",
              messageOf<VornIllegalArgumentException>([&] { system.setProperty(L"", L"x"); }));
    EXPECT_EQ(L"Environment variable name value is empty.",
              messageOf<VornIllegalArgumentException>([&] { system.getEnv(L""); }));
}

TEST(VornSystemEnvironment, NonAsciiTextRoundTripsAsUtf8) {
    VornSystem& system = VornSystem::getInstance();
    const std::wstring value{L'\u00e9', L'\u20ac', static_cast<wchar_t>(0xD83D),
                             static_cast<wchar_t>(0xDE00)};
    ASSERT_TRUE(system.putEnv(L"VORN_TEST_\u00c5", value));
    EXPECT_STREQ("\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", getenv("VORN_TEST_\xC3\x85"));
    EXPECT_EQ(value, system.getEnv(L"VORN_TEST_\u00c5"));
    EXPECT_EQ(L"", system.getEnv(L"VORN_TEST_UNSET_VARIABLE"));
}

TEST(VornSystemNames, OperatingSystemAndHostFromTheKernel) {
    struct utsname names {};
    ASSERT_EQ(0, uname(&names));
    const std::string release = names.release;
    EXPECT_EQ(L"Linux " + std::wstring(release.begin(), release.end()),
              VornSystem::getOperatingSystemName());
    EXPECT_EQ(0, VornSystem::getOperatingSystemType());
    char host[512] = {};
    ASSERT_EQ(0, gethostname(host, sizeof host - 1));
    const std::string hostName = host;
    EXPECT_EQ(std::wstring(hostName.begin(), hostName.end()), VornSystem::getHostName());
}
