#include <gtest/gtest.h>

#include "vorn_std/VornStd.h"

using namespace vorn_std;

TEST(SprintfStringAppend, AppendsToWhatIsThere) {
    std::wstring out = L"id=";
    StringUtils::sprintfStringAppend(out, L"%d %ls %s", 42, L"wide", "narrow");
    EXPECT_EQ(L"id=42 wide narrow", out);
}

TEST(SprintfStringAppend, GrowsBeyondTheFirstRoomOf256) {
    for (size_t length : {255u, 256u, 257u, 1000u, 100000u}) {
        const std::wstring argument(length, L'x');
        std::wstring out = L">";
        StringUtils::sprintfStringAppend(out, L"%ls<", argument.c_str());
        EXPECT_EQ(L">" + argument + L"<", out) << length;
    }
}

TEST(SprintfStringAppend, NullFormatIsRefused) {
    std::wstring out;
    try {
        StringUtils::sprintfStringAppend(out, nullptr);
        FAIL() << "no exception";
    } catch (const VornIllegalArgumentException& e) {
        EXPECT_EQ(L"Format string cannot be null!", e.getMessage());
    }
}

// A conversion that fails for a reason other than room must end in the
// exception rather than in an endless doubling of the buffer.
TEST(SprintfStringAppend, InvalidMultibyteArgumentEndsInTheException) {
    std::wstring out = L"kept";
    try {
        StringUtils::sprintfStringAppend(out, L"bad <%s>", "\xff\xfe");
        FAIL() << "no exception";
    } catch (const VornIllegalArgumentException& e) {
        EXPECT_EQ(L"Unable to format string: bad <%s>", e.getMessage());
    }
    EXPECT_EQ(L"kept", out);
}

TEST(SprintfStringAppend, FailureThatLooksLikeNoRoomStillEnds) {
    // glibc reports this one with the same -1 and no errno as "too small".
    std::wstring out;
    EXPECT_THROW(StringUtils::sprintfStringAppend(out, L"%c", 0xE9), VornIllegalArgumentException);
    EXPECT_THROW(StringUtils::sprintfStringAppend(out, L"trailing %"),
                 VornIllegalArgumentException);
    EXPECT_EQ(L"", out);
}
