#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <type_traits>

#include "support/ScopedEnvironment.h"
#include "vorn_std/VornStd.h"

using namespace VornStd;
using namespace std::string_literals;

// Under "C" the system's code page is UTF-8, whatever the machine's locale.
class SWStringTest : public ::testing::Test {
    vorn_test::ScopedEnvironment locale{"LC_ALL", "C"};
};

TEST_F(SWStringTest, NarrowConstructorsDecodeByCodeType) {
    struct Case {
        std::string bytes;
        long length;
        CodeType type;
        unsigned int codePage;
        std::wstring expected;
    };
    const Case cases[] = {
        {"caf\xC3\xA9", -1, MBCS_TEXT, 0, L"caf\u00E9"},
        {"caf\xE9", -1, MBCS_TEXT, 1252, L"caf\u00E9"},
        // Any type but the two named ones is multi-byte text.
        {"\xE9", -1, static_cast<CodeType>(1), 1252, L"\u00E9"},
        {"\xC3\xA9", -1, UTF8_TEXT, 1252, L"\u00E9"},
        {"a\0b"s, 3, UTF8_TEXT, 0, L"a\0b"s},
        {"abc", 2, MBCS_TEXT, 0, L"ab"},
        {"w6k=", -1, BASE64_TEXT, 0, L"\u00E9"},
        {"6Q==", -1, BASE64_TEXT, 1252, L"\u00E9"},
        {"6Q==", 2, BASE64_TEXT, 1252, L""},
        {"abc", -1, MBCS_TEXT, 12345, L""},
    };
    for (const Case& c : cases) {
        const SWString text = c.length < 0
                                  ? SWString(c.bytes.c_str(), c.type, c.codePage)
                                  : SWString(c.bytes.c_str(), c.length, c.type, c.codePage);
        EXPECT_EQ(c.expected, text) << c.bytes << " type " << c.type << " page " << c.codePage;
    }
    EXPECT_EQ(L"", SWString(static_cast<const char*>(nullptr), UTF8_TEXT));
    EXPECT_EQ(L"\u00E9", SWString("\xE9", 1252u));

    const SWString text(L"caf\u00E9");
    EXPECT_EQ("caf\xE9", std::string(text.mb_str(1252)));
    EXPECT_EQ("caf\xC3\xA9", std::string(text.mb_str()));
    EXPECT_EQ("caf\xC3\xA9", std::string(text.utf8_str()));
    EXPECT_EQ("Y2Fmw6k=", std::string(text.base64_str()));
    EXPECT_EQ(text.c_str(), text.t_str());
}

TEST_F(SWStringTest, SetUtf8AndBase64KeepTheOldTextWhenNothingDecodes) {
    struct Case {
        bool base64;
        const char* text;
        long length;
        bool stored;
        std::wstring expected;
    };
    const Case cases[] = {
        {false, "caf\xC3\xA9", -1, true, L"caf\u00E9"},
        {false, "caf\xC3\xA9", 3, true, L"caf"},
        {false, "\xFF", -1, false, L"old"},
        {false, "", -1, true, L""},
        {false, nullptr, -1, true, L""},
        {true, "QUJD", -1, true, L"ABC"},
        {true, "QUJDRA==", 4, true, L"ABC"},
        {true, "!!!!", -1, false, L"old"},
    };
    for (const Case& c : cases) {
        SWString text(L"old");
        const bool stored =
            c.base64 ? (c.length < 0 ? text.SetBase64(c.text) : text.SetBase64(c.text, c.length))
                     : (c.length < 0 ? text.SetUTF8(c.text) : text.SetUTF8(c.text, c.length));
        EXPECT_EQ(c.stored, stored) << (c.text != nullptr ? c.text : "<null>");
        EXPECT_EQ(c.expected, text) << (c.text != nullptr ? c.text : "<null>");
    }
}

TEST_F(SWStringTest, CaseTrimAndNumbers) {
    SWString text(L"  Mixed 42 \t\r\n");
    EXPECT_EQ(L"  MIXED 42 \t\r\n", SWString(text).ToUpper());
    EXPECT_EQ(L"  mixed 42", text.ToLower().TrimString());

    const std::pair<std::wstring, long long> numbers[] = {
        {L"  -17xyz", -17},
        {L"+8", 8},
        {L"abc", 0},
        {L"0x1F", 0},
        {L"2147483648", INT_MAX + 1LL},
        {L"-2147483649", INT_MIN - 1LL},
    };
    for (const auto& [input, value] : numbers) {
        EXPECT_EQ(std::min<long long>(std::max<long long>(value, INT_MIN), INT_MAX),
                  SWString(input).ToInt())
            << input;
        EXPECT_EQ(value, SWString(input).ToLong()) << input;
    }
    EXPECT_EQ(LONG_MAX, SWString(L"99999999999999999999").ToLong());
}

TEST_F(SWStringTest, WideStringOperationsAnswerWithTheSWString) {
    SWString text;
    text.assign(L"b").append(2, L'c').insert(0, L"a").replace(1, 1, L"B") += L'!';
    EXPECT_EQ(L"aBcc!", text);
    static_assert(std::is_same<decltype(text = std::wstring()), SWString&>::value, "");
    EXPECT_EQ(L'<', *text.insert(text.begin(), {L'<', L'>'}));
    EXPECT_EQ(L"<>aBcc!", text);

    // The narrow forms read the system's code page, or the one given.
    text.assign("\xE9", 1252).append("\xC3\xA9").insert(1, "-").replace(0, 1, "x");
    EXPECT_EQ(L"x-\u00E9", text);
    text = "n\xC3\xA9";
    text += "w";
    EXPECT_EQ(L"n\u00E9w", text);

    const SWString a(L"a");
    static_assert(std::is_same<decltype(std::wstring() + a), SWString>::value, "");
    static_assert(std::is_same<decltype(L'x' + a), SWString>::value, "");
    EXPECT_EQ(L"ab!xa\u00E9", a + std::wstring(L"b") + L"!" + L'x' + a + "\xC3\xA9");
    EXPECT_EQ(L"\u00E9!xa", "\xC3\xA9" + (L"!" + (L'x' + a)));

    EXPECT_TRUE(SWString(L"\u00E9") == "\xC3\xA9");
    EXPECT_TRUE(SWString(L"e") != "\xC3\xA9");
    EXPECT_TRUE(SWString(L"a") < SWString(L"b"));
    EXPECT_FALSE(SWString(L"b") < SWString(L"a"));
}

TEST(MemoryBufferTest, ResizeKeepsTheArrayOnlyForTheSameSize) {
    MemoryBuffer<wchar_t> buffer(0);
    EXPECT_EQ(nullptr, static_cast<wchar_t*>(buffer));
    buffer.resize(4);
    EXPECT_EQ(std::wstring(4, L'\0'), std::wstring(buffer, 4));
    wcscpy(buffer, L"abc");
    buffer.resize(4);
    EXPECT_EQ(L"abc", std::wstring(buffer));
    buffer.resize(8);
    EXPECT_EQ(8u, buffer.size());
    EXPECT_EQ(std::wstring(8, L'\0'), std::wstring(buffer, 8));
}
