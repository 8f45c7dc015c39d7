#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/DebugCapture.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using namespace std::string_literals;

TEST(Base64Utils, EncodesAndDecodesTheRfcVectors) {
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},         {"f", "Zg=="},         {"fo", "Zm8="},         {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="}, {"fooba", "Zm9vYmE="}, {"foobar", "Zm9vYmFy"}, {"A", "QQ=="},
    };
    for (const auto& [plain, encoded] : cases) {
        EXPECT_EQ(encoded, Base64Utils::mbcsToBase64(plain));
        EXPECT_EQ(plain, Base64Utils::base64ToMbcs(encoded));
    }
    // White space is skipped anywhere.
    EXPECT_EQ("A", Base64Utils::base64ToMbcs(" Q\tQ = =\n"));
    EXPECT_EQ("ABCDEF", Base64Utils::base64ToMbcs("QUJD\r\nREVG\v\f"));
}

// Binary data is encoded through ByteArray: the string forms stop at a zero byte.
TEST(Base64Utils, BinaryDataGoesThroughByteArrays) {
    const ByteArray bytes("\0\xFF\xFE\0"s);
    EXPECT_EQ("AP/+AA==", Base64Utils::byteArrayToBase64(bytes));
    ASSERT_NE(nullptr, Base64Utils::base64ToByteArray("AP/+AA=="));
    EXPECT_EQ(bytes, *Base64Utils::base64ToByteArray("AP/+AA=="));
    EXPECT_EQ("YQ==", Base64Utils::mbcsToBase64("a\0b"s));
    EXPECT_EQ("a", Base64Utils::base64ToMbcs("YQ==\0Zg=="s));
}

TEST(Base64Utils, FailuresGiveEmptyTextWithTheirDebugLines) {
    const std::string check = "Converted string length value -1 is below minimum of 0.";
    const std::pair<std::string, std::vector<std::string>> cases[] = {
        {"QQ", {"Partial bytes after string.", check}},
        {"QUJDR", {"Partial bytes after string.", check}},
        {"Q===", {check}},
        {"QUJD=", {check}},
        {"QQ=", {"Missing trailing padding.", check}},
        {"QQ= x", {"Missing trailing padding.", check}},
        {"QQ==QQ==", {"Extra characters after padding.", check}},
        {"QUI= x", {"Extra characters after padding.", check}},
        {"QR==", {"Invalid characters after padding.", check}},
        {"QUJ=", {"Invalid characters after padding.", check}},
        {"Q!==", {"<!> is not a Base64 character.", check}},
        {"QQ\xE9=", {"<\xC3\xA9> is not a Base64 character.", check}},
    };
    for (const auto& [text, messages] : cases) {
        vorn_test::DebugCapture capture;
        EXPECT_EQ("", Base64Utils::base64ToMbcs(text)) << text;
        EXPECT_EQ(messages, capture.messages()) << text;
        EXPECT_EQ(nullptr, Base64Utils::base64ToByteArray(text)) << text;
    }
    // Without a target the unused bits of the last character are not looked at.
    EXPECT_TRUE(Base64Utils::isBase64String("QR=="));
    EXPECT_TRUE(Base64Utils::isBase64String(""));
    EXPECT_FALSE(Base64Utils::isBase64String("Q==="));
}
