#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "support/DebugCapture.h"
#include "support/ScopedEnvironment.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using namespace std::string_literals;

TEST(ByteArray, ConstructorsCopyOrZeroTheirBytes) {
    EXPECT_EQ(0, ByteArray().getLength());
    EXPECT_NE(nullptr, ByteArray().getArray());
    EXPECT_EQ("\0\0\0"s, ByteArray(3).toString());
    EXPECT_EQ("a\0b"s, ByteArray("a\0b", 3).toString());
    EXPECT_EQ(ByteArray("a\0b"s), ByteArray("a\0b", 3));
    EXPECT_NE(ByteArray("ab"s), ByteArray("ab\0"s));
    EXPECT_NE(ByteArray("ab"s), ByteArray("ac"s));
    const std::pair<std::function<void()>, std::wstring> refused[] = {
        {[] { ByteArray(-1); }, L"ByteArray length value -1 is below minimum of 0."},
        {[] { ByteArray(nullptr, 1); }, L"ByteArray value value is NULL."},
        {[] { ByteArray("x", -2); }, L"ByteArray length value -2 is below minimum of 0."},
    };
    for (const auto& [construct, text] : refused) {
        try {
            construct();
            ADD_FAILURE() << "no exception for " << testing::PrintToString(text);
        } catch (const VornIllegalArgumentException& e) {
            EXPECT_EQ(text, e.getMessage());
        }
    }
}

TEST(ByteArray, CopiesShareNothing) {
    ByteArray original("abc"s);
    ByteArray copy(original);
    ByteArray assigned;
    assigned = original;
    copy[0] = 'x';
    assigned[1] = 'y';
    original.clear();
    EXPECT_EQ(0, original.getLength());
    EXPECT_EQ("xbc", copy.toString());
    EXPECT_EQ("ayc", assigned.toString());
}

// A bad index is logged and answered with a spare byte that reads 0 and
// swallows writes; nothing reaches the caller.
TEST(ByteArray, BadIndexGivesTheSpareByte) {
    vorn_test::DebugCapture capture;
    ByteArray bytes("abc"s);
    for (long index : {-1L, 3L}) {
        bytes[index] = 'z';
        EXPECT_EQ(0, bytes[index]);
    }
    EXPECT_EQ(0, static_cast<const ByteArray&>(bytes)[3]);
    EXPECT_EQ("abc", bytes.toString());
    const std::string below = "Column in array value -1 is below minimum of 0.";
    const std::string above = "Column in array value 3 is above maximum of 2.";
    EXPECT_EQ((std::vector<std::string>{below, below, above, above, above}), capture.messages());
}

TEST(ByteArray, CharsetsEncodeAndDecode) {
    struct Case {
        std::wstring text;
        std::wstring charset;
        std::string bytes;
    };
    const std::wstring pair{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
    const Case cases[] = {
        {L"A\u00E9", L"UTF-8", "A\xC3\xA9"},
        {pair, L"UTF-8", "\xED\xA0\xBD\xED\xB8\x80"},
        {L"a\0b"s, L"UTF-8", "a\0b"s},
        // Any other name: 16-bit units in this machine's (little-endian) order.
        {L"A\u20AC", L"ISO-10646-UCS-2", "A\0\xAC\x20"s},
        {pair, L"ISO-10646-UCS-2", "\x3D\xD8\x00\xDE"s},
        {L"A", L"utf-8", "A\0"s},
        {L"", L"UTF-8", ""},
        {L"", L"x", ""},
    };
    for (const Case& c : cases) {
        const ByteArray bytes(c.text, c.charset);
        EXPECT_EQ(c.bytes, bytes.toString()) << c.charset;
        EXPECT_EQ(c.text, bytes.toWString(c.charset)) << c.charset;
    }
    EXPECT_EQ(L"\u6261", ByteArray("abc"s).toWString(L"ISO-10646-UCS-2"));
}

// "windows-1252" is the system's own code page, UTF-8 under the C locale.
TEST(ByteArray, Windows1252GoesThroughTheSystemCodePageAndStopsAtZero) {
    vorn_test::ScopedEnvironment locale("LC_ALL", "C");
    EXPECT_EQ("\xC3\xA9", ByteArray(L"\u00E9", L"windows-1252").toString());
    EXPECT_EQ(L"\u00E9", ByteArray("\xC3\xA9"s).toWString(L"windows-1252"));
    EXPECT_EQ(L"ab", ByteArray("ab\0cd"s).toWString(L"windows-1252"));
}
