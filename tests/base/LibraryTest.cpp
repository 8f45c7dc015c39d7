#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <regex>
#include <string>

#include "support/DebugCapture.h"

namespace {

int runHost(const std::string& output, const std::string& argument) {
    const std::string command = "VORNSTD_DEBUG_OUTPUT='" + output + "' '" +
                                std::string(VORN_EXIT_ORDER_HOST) + "' " + argument;
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// The host's lines with their source line numbers blanked out.
std::string hostLines(const std::string& output) {
    static const std::regex lineNumber("\\[[0-9]+\\]");
    return std::regex_replace(vorn_test::readFile(output), lineNumber, "[N]");
}

}  // namespace

TEST(LibraryUnload, NormalExitKeepsTheLastTraceLinesInReverseOrder) {
    vorn_test::TempDir dir;
    const std::string output = dir.file("debug.txt");
    ASSERT_EQ(0, runHost(output, ""));
    EXPECT_EQ(
        "ExitOrderHost.cpp[N] : singleton 2 says goodbye (initialized=0).\n"
        "ExitOrderHost.cpp[N] : singleton 1 says goodbye (initialized=0).\n",
        hostLines(output));
}

TEST(LibraryUnload, ExplicitTerminateIsFinalAndRunsOnce) {
    vorn_test::TempDir dir;
    const std::string output = dir.file("debug.txt");
    ASSERT_EQ(0, runHost(output, "terminate-early"));
    EXPECT_EQ(
        "ExitOrderHost.cpp[N] : singleton 2 says goodbye (initialized=0).\n"
        "ExitOrderHost.cpp[N] : singleton 1 says goodbye (initialized=0).\n"
        "ExitOrderHost.cpp[N] : after terminate (threshold=FATAL).\n"
        "ExitOrderHost.cpp[N] : Singleton locks have been destroyed.\n",
        hostLines(output));
}
