#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/DebugCapture.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using namespace std::string_literals;

// Each unit on its own, up to three bytes: a surrogate pair is two sequences.
TEST(Utf8Utils, EncodesEachUnitAndDecodesItBack) {
    const std::wstring pair{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
    const std::pair<std::wstring, std::string> cases[] = {
        {L"", ""},
        {L"A\u007F", "A\x7F"},
        {L"\u0080\u07FF", "\xC2\x80\xDF\xBF"},
        {L"\u0800\u20AC\uFFFF", "\xE0\xA0\x80\xE2\x82\xAC\xEF\xBF\xBF"},
        {pair, "\xED\xA0\xBD\xED\xB8\x80"},
        {pair.substr(1) + L"x", "\xED\xB8\x80x"},
        {L"a\0b"s, "a\0b"s},
    };
    for (const auto& [wide, utf8] : cases) {
        EXPECT_EQ(utf8, Utf8Utils::unicodeToUtf8(wide));
        EXPECT_EQ(static_cast<long>(utf8.size()) + 1, Utf8Utils::getUtf8StringLength(wide));
        EXPECT_EQ(wide, Utf8Utils::utf8ToUnicode(utf8));
        EXPECT_TRUE(Utf8Utils::isUtf8String(utf8));
    }
    // Overlong forms are accepted.
    EXPECT_EQ(L"\0A/"s, Utf8Utils::utf8ToUnicode("\xC0\x80\xC1\x81\xE0\x80\xAF"));
}

TEST(Utf8Utils, InvalidInputGivesEmptyTextAndItsDebugLines) {
    const std::string cases[] = {
        "\xF0\x9F\x98\x80",      // four bytes: beyond one 16-bit unit
        "\xF8\x88\x80\x80\x80",  // five
        "\xFE", "\xFF",
        "ab\x80",                // continuation byte as lead
        "\xC3", "\xE2\x82",      // cut short
        "\xC3(", "\xE2\x82(",    // not a continuation byte
    };
    for (const std::string& bytes : cases) {
        vorn_test::DebugCapture capture;
        EXPECT_FALSE(Utf8Utils::isUtf8String(bytes));
        EXPECT_EQ(L"", Utf8Utils::utf8ToUnicode(bytes));
        const auto messages = capture.messages();
        ASSERT_EQ(3u, messages.size());
        EXPECT_EQ("Converted string length value -1 is below minimum of 0.", messages[2]);
    }
    // Each byte reaches the line as the character of its own value (a narrow
    // %hs would fail on bytes above 0x7F).
    vorn_test::DebugCapture capture;
    EXPECT_FALSE(Utf8Utils::isUtf8String("x\xF0\x9F"));
    EXPECT_EQ(std::vector<std::string>{"<x\xC3\xB0\xC2\x9F> value is not a valid UTF-8 string."},
              capture.messages());
}

TEST(Utf8Utils, UnicodeLengthCountsALeadWithUpToFiveContinuationBytes) {
    const std::pair<std::string, long> cases[] = {
        {"", 1}, {"abc", 4}, {"\xE2\x82\xAC" "a", 3}, {"\x80\x80", 2},
        {"\xC3\x80\x80\x80\x80\x80", 2}, {"\xC3\x80\x80\x80\x80\x80\x80", 3},
    };
    for (const auto& [bytes, length] : cases) {
        EXPECT_EQ(length, Utf8Utils::getUnicodeStringLength(bytes)) << bytes;
    }
}
