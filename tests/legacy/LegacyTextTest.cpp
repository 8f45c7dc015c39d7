#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <string>
#include <vector>

#include "support/ScopedEnvironment.h"
#include "vorn_std/VornStd.h"

using namespace VornStd;
using vorn_std::VornIllegalArgumentException;

TEST(FieldTest, DelimitedFieldsCountFromOne) {
    const std::tuple<std::wstring, int, std::wstring> cases[] = {
        {L"a,b,c", 2, L"b"}, {L"a,b,c", 3, L"c"}, {L"a,b", 3, L""}, {L"a,b", 0, L"a"},
        {L"a,b", -4, L"a"},  {L"a,,c", 2, L""},   {L",x", 1, L""},  {L"x,", 2, L""},
    };
    for (const auto& [source, field, expected] : cases) {
        SWString dest(L"old");
        EXPECT_EQ(static_cast<int>(expected.size()), GetDelimField(dest, source, field, L','))
            << source << L" " << field;
        EXPECT_EQ(expected, dest) << source << L" " << field;
    }
    EXPECT_EQ(4, NbrDelimFields(L",,,", L','));
    EXPECT_EQ(1, NbrDelimFields(L"", L','));

    vorn_test::ScopedEnvironment locale("LC_ALL", "C");
    char narrow[8] = "unused";
    EXPECT_EQ(5, GetDelimField(narrow, sizeof narrow, "one;two\xC3\xA9;three", 2, ';'));
    EXPECT_EQ(std::string("two\xC3\xA9"), narrow);
    EXPECT_EQ(7, GetDelimField(narrow, sizeof narrow, "one;two;threefold", 3, ';'));
    EXPECT_EQ(std::string("threefo"), narrow);
}

TEST(FieldTest, PositionedFieldsCountFromOne) {
    const std::tuple<int, int, int, std::wstring> cases[] = {
        {1, 3, 1, L"abc"}, {4, 10, 1, L"def"}, {7, 1, 0, L""},
        {0, 2, 0, L""},    {2, 0, 0, L""},     {2, -1, 0, L""},
    };
    for (const auto& [position, length, result, expected] : cases) {
        SWString dest(L"old");
        EXPECT_EQ(result, GetPosField(dest, L"abcdef", position, length)) << position;
        EXPECT_EQ(expected, dest) << position << " " << length;
    }
}

TEST(RangeStrToIntArrTest, MarksNumbersAndRangesWithinTheArray) {
    struct Case {
        std::wstring text;
        int maxIndex;
        int count;
        std::vector<int> marked;
    };
    const Case cases[] = {
        {L"1-3,7", 9, 6, {1, 2, 3, 7}},
        {L"3-1", 9, 2, {1, 3}},
        {L"8-12", 9, 3, {8, 9}},
        {L"2 - 4", 9, 5, {2, 3, 4}},
        {L"1-,3", 9, 5, {1, 2, 3}},
        {L"0,0", 0, 2, {0}},
        {L"x1y-2z", 4, 4, {1, 2}},
        // From -1, which is outside the array and skipped.
        {L"-2", 9, 4, {0, 1, 2}},
        // A number beyond int is ignored; a range goes on from the one before.
        {L"99999999999,2", 4, 1, {2}},
        {L"1-99999999999-3", 4, 5, {1, 2, 3}},
        {L"0000000000000004", 4, 1, {4}},
        {L"1-2147483647", 3, 4, {1, 2, 3}},
    };
    for (const Case& c : cases) {
        // Guards on both sides catch a write outside the array.
        std::vector<int> array(static_cast<size_t>(c.maxIndex) + 3, -1);
        EXPECT_EQ(c.count, RangeStrToIntArr(c.text, array.data() + 1, c.maxIndex)) << c.text;
        std::vector<int> expected(array.size(), 0);
        expected.front() = expected.back() = -1;
        for (const int value : c.marked) {
            expected[static_cast<size_t>(value) + 1] = 1;
        }
        EXPECT_EQ(expected, array) << c.text;
    }
    int untouched = -1;
    EXPECT_EQ(0, RangeStrToIntArr(L"0-3", &untouched, -1));
    EXPECT_EQ(-1, untouched);
}

namespace {

// The letter of a switch as itself, the other results as numbers.
std::string describe(int result, const char* argument) {
    const bool letter = result > 1 && result < 65535;
    return (letter ? std::string(1, static_cast<char>(result)) : std::to_string(result)) + "(" +
           (argument != nullptr ? argument : "") + ")";
}

}  // namespace

// The position of GetOption never goes back: each command line is walked in
// a child process of its own, which writes what it saw, one call past the end.
TEST(GetOptionTest, WalksTheCommandLineOnce) {
    const std::tuple<std::vector<std::string>, const char*, std::string> cases[] = {
        {{"-a", "/b", "file"}, "ab", "a() b() 1(file) 0() 0()"},
        {{"-o", "out", "-v"}, "o:v", "o(out) v() 0() 0()"},
        {{"-oout", "rest"}, "o:", "o(out) 1(rest) 0() 0()"},
        {{"-o", "-v"}, "o:v", "o() v() 0() 0()"},
        {{"-x", "-", "-\xE9", "-a"}, "o", "65535(-x) 65535(-) 65535(-\xE9) 65535(-a) 0() 0()"},
        {{"-?", "-:"}, "?:", "?() :() 0() 0()"},
    };
    for (const auto& [arguments, optionString, expected] : cases) {
        std::vector<std::string> storage = arguments;
        storage.insert(storage.begin(), "program");
        std::vector<char*> argv;
        for (std::string& argument : storage) {
            argv.push_back(&argument[0]);
        }
        const auto walk = [&, optionString = optionString]() {
            std::string seen;
            for (int calls = 0, ended = 0; ended < 2; ++calls) {
                char* argument = argv[0];
                const int result =
                    GetOption(static_cast<int>(argv.size()), argv.data(), optionString, &argument);
                seen += (calls == 0 ? "" : " ") + describe(result, argument);
                ended += result == 0 ? 1 : 0;
            }
            fputs(seen.c_str(), stderr);
            exit(0);
        };
        EXPECT_EXIT(walk(), ::testing::ExitedWithCode(0), ::testing::Eq(expected)) << optionString;
    }
}

TEST(GetOptionTest, WideFormSharesThePosition) {
    const auto walk = []() {
        std::wstring wide[] = {L"program", L"-n5", L"-v"};
        wchar_t* wideArgv[] = {&wide[0][0], &wide[1][0], &wide[2][0]};
        std::string narrow[] = {"program", "-n5", "-v"};
        char* narrowArgv[] = {&narrow[0][0], &narrow[1][0], &narrow[2][0]};
        wchar_t* wideArgument = nullptr;
        char* narrowArgument = nullptr;
        const int first = GetOption(3, wideArgv, L"n:v", &wideArgument);
        const int second = GetOption(3, narrowArgv, "n:v", &narrowArgument);
        fprintf(stderr, "%c(%ls) %c(%p)", first, wideArgument, second, narrowArgument);
        exit(0);
    };
    EXPECT_EXIT(walk(), ::testing::ExitedWithCode(0), ::testing::Eq("n(5) v((nil))"));
}

TEST(TextTest, BufferDumpGivesNumbersThenPrintableText) {
    const std::tuple<std::string, int, std::wstring> cases[] = {
        {"A\x01", 16, L"41 1 \"A.\""},
        {"A\x01", 8, L"101 1 \"A.\""},
        {"A\x01", 2, L"65 1 \"A.\""},
        {"\xFF ~", 16, L"ff 20 7e \". ~\""},
        {"", 16, L"\"\""},
    };
    for (const auto& [bytes, base, expected] : cases) {
        EXPECT_EQ(expected, BufferDump(bytes.data(), static_cast<int>(bytes.size()), base));
    }
    EXPECT_EQ(L"\"\"", BufferDump("abc", -1, 16));
    const wchar_t wide[] = {L'A', 0x263A, L'\t'};
    EXPECT_EQ(L"65 9786 9 \"A..\"", BufferDump(wide, 3, 10));
}

TEST(TextTest, TrimStringKeepsLeadingBlanks) {
    char narrow[] = "  a b \t\r\n";
    EXPECT_EQ(std::string("  a b"), TrimString(narrow));
    wchar_t wide[] = L" \v x \f";
    EXPECT_EQ(std::wstring(L" \v x"), TrimString(wide));
    SWString text(L"\tkept\n\n");
    EXPECT_EQ(&text, &TrimString(text));
    EXPECT_EQ(L"\tkept", text);
}

TEST(TextTest, NumbersAndErrorTexts) {
    EXPECT_EQ(L"-9223372036854775807", Num2Str(-9223372036854775807L));
    const std::pair<int, std::wstring> codes[] = {
        {7, L"E0007"}, {9999, L"E9999"}, {10000, L"E10000"}, {-5, L"E-005"}};
    for (const auto& [code, expected] : codes) {
        EXPECT_EQ(expected, printErr(code, L"E")) << code;
    }
    errno = ENOENT;
    EXPECT_EQ(L"No such file or directory", printLastErr());
    errno = 99999;
    EXPECT_EQ(L"An unexpected error occurred.", printLastErr());
}

namespace {

void appendVA(SWString& out, const char* format, ...) {
    va_list args;
    va_start(args, format);
    sprintfStringAppendVA(out, args, format);
    va_end(args);
}

}  // namespace

TEST(SprintfTest, WideAndNarrowFormatsReplaceOrAppend) {
    vorn_test::ScopedEnvironment locale("LC_ALL", "C");
    SWString out(L"old ");
    sprintfStringAppend(out, L"%d %ls", 1, L"w\u00E9");
    appendVA(out, " %05.1f %s", 2.25, "n\xC3\xA9");
    EXPECT_EQ(L"old 1 w\u00E9 002.2 n\u00E9", out);
    // Narrow arguments are copied as bytes and read in the system's code page,
    // where a wide format would leave their conversion to the C locale.
    sprintfString(out, "%s|%c", "\xC3\xA9", 'x');
    EXPECT_EQ(L"\u00E9|x", out);
    const std::string longArgument(1000, 'z');
    sprintfString(out, "<%s>", longArgument.c_str());
    EXPECT_EQ(L"<" + std::wstring(1000, L'z') + L">", out);
}

TEST(SprintfTest, FailuresThrowAndLeaveTheTextAlone) {
    vorn_test::ScopedEnvironment locale("LC_ALL", "C");
    SWString out(L"kept");
    const auto messageOf = [&](auto format) {
        try {
            sprintfString(out, format, L"\u00E9");
        } catch (const VornIllegalArgumentException& e) {
            return e.getMessage();
        }
        return std::wstring(L"no exception");
    };
    EXPECT_EQ(L"Format string cannot be null!", messageOf(static_cast<const char*>(nullptr)));
    EXPECT_EQ(L"Format string cannot be null!", messageOf(static_cast<const wchar_t*>(nullptr)));
    // A wide argument the C locale cannot write as narrow text.
    EXPECT_EQ(L"Unable to format string: bad %ls", messageOf("bad %ls"));
    EXPECT_EQ(L"kept", out);
}
