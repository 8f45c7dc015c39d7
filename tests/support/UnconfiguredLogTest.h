#pragma once

#include <gtest/gtest.h>

#include "internal/StaticLogControl.h"
#include "support/DebugCapture.h"

namespace vorn_test {

// A test of the log before configuration: the debugger output is captured,
// and whatever threshold state a test set is undone afterwards.
class UnconfiguredLogTest : public testing::Test {
protected:
    void TearDown() override {
        vorn_std_internal::StaticLogControl::setInitialized(false);
        vorn_std_internal::StaticLogControl::setCurrentThreshold(vorn_std::DEBUG);
    }
    DebugCapture capture;
};

}  // namespace vorn_test
