#include <gtest/gtest.h>

#include "internal/PlatformText.h"
#include "internal/Trace.h"

using vorn_std_internal::fromPlatformUtf8;
using vorn_std_internal::sourceFileName;
using vorn_std_internal::toPlatformUtf8;

TEST(PlatformText, EncodesEachRangeAndJoinsSurrogatePairs) {
    EXPECT_EQ("A\xC3\xA9\xE2\x82\xAC", toPlatformUtf8(L"A\u00E9\u20AC"));
    const std::wstring pair{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
    EXPECT_EQ("\xF0\x9F\x98\x80", toPlatformUtf8(pair));
    EXPECT_EQ(pair, fromPlatformUtf8("\xF0\x9F\x98\x80"));
}

TEST(PlatformText, UndecodableBytesRoundTripThroughEscapes) {
    const std::string bytes = "a\xFF" "b\xC3" "\xE2\x82" "c\xED\xA0\x80";
    const std::wstring wide = fromPlatformUtf8(bytes);
    EXPECT_EQ(static_cast<wchar_t>(0xDCFF), wide[1]);
    EXPECT_EQ(bytes, toPlatformUtf8(wide));
}

TEST(PlatformText, LoneSurrogateBecomesReplacementCharacter) {
    const std::wstring lone{L'x', static_cast<wchar_t>(0xD800), L'y'};
    EXPECT_EQ("x\xEF\xBF\xBDy", toPlatformUtf8(lone));
}

TEST(SourceFileName, TakesWhatFollowsTheLastSeparator) {
    EXPECT_EQ(L"File.cpp", sourceFileName("/src/file/File.cpp"));
    EXPECT_EQ(L"File.cpp", sourceFileName("src\\file\\File.cpp"));
    EXPECT_EQ(L"b.cpp", sourceFileName("a\\x/b.cpp"));
    EXPECT_EQ(L"c.cpp", sourceFileName("a/x\\c.cpp"));
    EXPECT_EQ(L"plain.cpp", sourceFileName("plain.cpp"));
}
