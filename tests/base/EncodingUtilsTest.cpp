#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "support/DebugCapture.h"
#include "support/ScopedEnvironment.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using namespace std::string_literals;

namespace {

const std::wstring SurrogatePair{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};

std::string bytesOf(const std::shared_ptr<ByteArray>& bytes) {
    return bytes ? bytes->toString() : "<null>";
}

std::string readAll(const std::shared_ptr<ByteBuffer>& buffer) {
    std::string bytes;
    while (buffer && buffer->hasRemaining()) {
        bytes += buffer->get();
    }
    return buffer ? bytes : "<null>";
}

}  // namespace

TEST(EncodingUtilsCodePages, RoundTripEachCodePage) {
    struct Case {
        unsigned int codePage;
        std::wstring wide;
        std::string bytes;
    };
    const Case cases[] = {
        {1252, L"e\u00E9\u20AC", "e\xE9\x80"},
        // Unassigned in iconv's table; Windows maps them to the same control characters.
        {1252, L"\u0081\u008D\u008F\u0090\u009D", "\x81\x8D\x8F\x90\x9D"},
        {1251, L"\u0416\u0436", "\xC6\xE6"},
        {932, L"\u65E5\u672C", "\x93\xFA\x96\x7B"},
        {936, L"\u4E2D\u6587", "\xD6\xD0\xCE\xC4"},
        {949, L"\uD55C", "\xC7\xD1"},
        {950, L"\u4E2D", "\xA4\xA4"},
        {65001, L"\u00E9" + SurrogatePair, "\xC3\xA9\xF0\x9F\x98\x80"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.bytes, EncodingUtils::convertUnicodeToMbcs(c.wide, c.codePage)) << c.codePage;
        EXPECT_EQ(c.wide, EncodingUtils::convertMbcsToUnicode(c.bytes, c.codePage)) << c.codePage;
    }
}

TEST(EncodingUtilsCodePages, QuestionMarksZerosAndUnknownPages) {
    EXPECT_EQ("a?b", EncodingUtils::convertUnicodeToMbcs(L"a\u0100b", 1252));
    // A surrogate pair is one character, and so one question mark; a lone one too.
    EXPECT_EQ("?", EncodingUtils::convertUnicodeToMbcs(SurrogatePair, 1252));
    EXPECT_EQ("?x", EncodingUtils::convertUnicodeToMbcs(SurrogatePair.substr(0, 1) + L"x", 65001));
    EXPECT_EQ(L"a?b", EncodingUtils::convertMbcsToUnicode("a\xFF" "b", 65001));
    EXPECT_EQ(L"\u65E5?", EncodingUtils::convertMbcsToUnicode("\x93\xFA\x93", 932));
    EXPECT_EQ(L"ab", EncodingUtils::convertMbcsToUnicode("ab\0cd"s, 1252));
    EXPECT_EQ("ab", EncodingUtils::convertUnicodeToMbcs(L"ab\0cd"s, 1252));
    EXPECT_EQ("", EncodingUtils::convertUnicodeToMbcs(L"abc", 12345));
    EXPECT_EQ(L"", EncodingUtils::convertMbcsToUnicode("abc", 12345));
}

// A process that never chose a locale must not lose its non-ASCII characters.
TEST(EncodingUtilsCodePages, SystemCodePageUnderTheCLocaleIsUtf8) {
    vorn_test::ScopedEnvironment locale("LC_ALL", "C");
    EXPECT_EQ("\xC3\xA9\xE2\x82\xAC", EncodingUtils::convertUnicodeToMbcs(L"\u00E9\u20AC", 0));
    EXPECT_EQ(L"\u00E9\u20AC", EncodingUtils::convertMbcsToUnicode("\xC3\xA9\xE2\x82\xAC", 0));
}

TEST(EncodingUtilsNames, CharacterSetsAndLanguagesMatchExactly) {
    EXPECT_TRUE(EncodingUtils::isValidCharacterSet(L"ISO-10646-UCS-2"));
    EXPECT_FALSE(EncodingUtils::isValidCharacterSet(L"Windows-1252"));
    EXPECT_FALSE(EncodingUtils::isValidCharacterSet(L""));
    EXPECT_EQ(1252u, EncodingUtils::languageToCodePage(L"Brazilian Portuguese"));
    EXPECT_EQ(950u, EncodingUtils::languageToCodePage(L"Traditional Chinese"));
    EXPECT_EQ(0u, EncodingUtils::languageToCodePage(L"english"));
    EXPECT_TRUE(EncodingUtils::isLoaded());
}

TEST(EncodingUtilsHex, ReadsPairsAndCountsAnythingElseAsZero) {
    EXPECT_EQ(L"000FABFF", EncodingUtils::toHexString(ByteArray("\0\x0F\xAB\xFF"s)));
    EXPECT_EQ(L"", EncodingUtils::toHexString(ByteArray()));
    const std::pair<std::string, std::string> cases[] = {
        {"", "<null>"}, {"ABC", "<null>"}, {"FF00", "\xFF\0"s}, {"7e", "\x70"},
        {"0a", "\0"s},  {"G1", "\x01"},    {"\xE9" "1", "\x01"},
    };
    for (const auto& [text, bytes] : cases) {
        const std::wstring wide(text.begin(), text.end());
        EXPECT_EQ(bytes, bytesOf(EncodingUtils::hexStringToByteArray(text))) << text;
        EXPECT_EQ(bytes, bytesOf(EncodingUtils::hexStringToByteArray(wide))) << text;
        EXPECT_EQ(bytes, readAll(EncodingUtils::hexStringToByteBuffer(text))) << text;
    }
}

TEST(EncodingUtilsDelimited, ReadsNumbersKeepingTheirLowEightBits) {
    EXPECT_EQ(L"1-255-0", EncodingUtils::toDelimString(ByteArray("\x01\xFF\0"s)));
    EXPECT_EQ(L"", EncodingUtils::toDelimString(ByteArray()));
    const std::pair<std::wstring, std::string> cases[] = {
        {L"", "<null>"},    {L"1--2-", "\x01\x02"}, {L"300", "\x2C"},   {L"-7", "\x07"},
        {L"0-00-255", "\0\0\xFF"s}, {L"---", ""},   {L"1-x", ""},       {L"1 2", ""},
        // As a 32-bit atol reads it: beyond 2147483647 the number stays there.
        {L"4294967297", "\xFF"},
    };
    for (const auto& [text, bytes] : cases) {
        const std::string narrow(text.begin(), text.end());
        EXPECT_EQ(bytes, bytesOf(EncodingUtils::delimStringToByteArray(text))) << text;
        EXPECT_EQ(bytes, bytesOf(EncodingUtils::delimStringToByteArray(narrow))) << text;
        EXPECT_EQ(bytes, readAll(EncodingUtils::delimStringToByteBuffer(text))) << text;
    }
}

TEST(EncodingUtilsDelimited, InvalidTextIsLogged) {
    vorn_test::DebugCapture capture;
    EXPECT_EQ("", bytesOf(EncodingUtils::delimStringToByteArray("1-\xE9")));
    EXPECT_EQ(0, EncodingUtils::delimStringToByteBuffer(L"2-?")->getCapacity());
    EXPECT_EQ((std::vector<std::string>{"<1-\xC3\xA9> string is invalid.",
                                        "<2-?> string is invalid."}),
              capture.messages());
}

// Reading a buffer leaves its position, but the mark is used and so lost.
TEST(EncodingUtils, BufferFormsReadFromPositionToLimit) {
    auto buffer = ByteBuffer::allocate(4);
    buffer->put("\x01\x02\x03\x04", 4);
    buffer->setLimit(3);
    buffer->setPosition(1);
    buffer->setMark();
    buffer->setPosition(2);
    EXPECT_EQ(L"03", EncodingUtils::toHexString(*buffer));
    buffer->reset();
    EXPECT_EQ(2, buffer->getPosition());
    buffer->setPosition(0);
    EXPECT_EQ(L"1-2-3", EncodingUtils::toDelimString(*buffer));
    EXPECT_EQ(0, buffer->getPosition());
}

TEST(EncodingUtils, EncodeStringChoosesTheFormByName) {
    const ByteArray bytes("\x01\x1F"s);
    EXPECT_EQ(L"1-31", EncodingUtils::encodeString(bytes, EncodingUtils::DelimiteredEncoding));
    EXPECT_EQ(L"011F", EncodingUtils::encodeString(bytes, L"HexEncoding"));
    EXPECT_EQ("\x01\x1F", bytesOf(EncodingUtils::decodeString(L"1-31", L"DelimiteredEncoding")));
    EXPECT_EQ("\x01\x1F", bytesOf(EncodingUtils::decodeString(L"011F", L"")));
    EXPECT_EQ(L"18446744073709551615", EncodingUtils::toStringFromLongLong(-1));
    EXPECT_EQ(L"9223372036854775807", EncodingUtils::toStringFromLongLong(LLONG_MAX));
}
