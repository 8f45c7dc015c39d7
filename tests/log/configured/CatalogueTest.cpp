// Every numbered message, as its line reaches an appender: the number after
// the priority, the text, no source file.
#include <gtest/gtest.h>

#include <functional>

#include "internal/StaticLogControl.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;

namespace {

struct Message {
    std::function<void()> send;
    const wchar_t* line;  // after the time stamp
};

const wchar_t* const F = L"vorn_std::RollingFileAppender::setProperty";

void expectLines(const std::vector<Message>& messages) {
    VectorLogAppender vector;
    for (const Message& message : messages) {
        vector.clear();
        message.send();
        const auto statements = vector.getLogStatements();
        ASSERT_EQ(1u, statements.size()) << testing::PrintToString(std::wstring(message.line));
        EXPECT_EQ(message.line, statements[0].substr(24));
    }
}

}  // namespace

TEST(NumberedMessages, EveryStdMessageWithItsNumberLevelAndText) {
    VornLoggerSTD& std = VornLoggerSTD::getInstance();
    expectLines({
        {[&] { std.STD0000(F); }, L"INFO STD0000 Starting preference change event dispatch thread.\n"},
        {[&] { std.STD0001(F); }, L"INFO STD0001 Stopping preference change event dispatch thread.\n"},
        {[&] { std.STD0002(F, L"File"); }, L"INFO STD0002 Using File PreferencesFactory.\n"},
        {[&] { std.STD0003(F, L"Default"); }, L"INFO STD0003 Using Default Paths.\n"},
        {[&] { std.STD0004(F, L"c", L"h:1"); },
         L"INFO STD0004 Client <c> connected to service at <h:1>.\n"},
        {[&] { std.STD0005(F, L"c", L"h:1"); },
         L"INFO STD0005 Client <c> disconnected from service at <h:1>.\n"},
        {[&] { std.STD0006(F, L"libx.so"); }, L"INFO STD0006 Loaded shared library <libx.so>.\n"},
        {[&] { std.STD0007(F, L"libx.so"); }, L"INFO STD0007 Unloaded shared library <libx.so>.\n"},
        {[&] { std.STD0008(F, L"WARN"); }, L"INFO STD0008 Debugging threshold changed to: <WARN>.\n"},
        {[&] { std.STD0009(F, 10485760UL); },
         L"INFO STD0009 Maximum file size changed to: <10485760>.\n"},
        {[&] { std.STD0010(F, 5UL); }, L"INFO STD0010 Maximum file count changed to: <5>.\n"},
        {[&] { std.STD2000(F, L"c", L"h"); },
         L"ERROR STD2000 Client <c> failed to send heart beat to service at <h>.\n"},
        {[&] { std.STD2001(F, L"c"); }, L"ERROR STD2001 Client <c> failed to connect to any service.\n"},
        {[&] { std.STD2002(F, L"why"); },
         L"ERROR STD2002 The service controller threw an exception: why\n"},
        {[&] { std.STD2003(F, 5, L"why"); },
         L"ERROR STD2003 Failed to install console control signal translator.  Reason:[5:why]\n"},
        {[&] { std.STD2004(F, 6, L"why"); },
         L"ERROR STD2004 Failed to remove console control signal translator.  Reason:[6:why]\n"},
        {[&] { std.STD3000(F, L"a", L"b", L"c"); }, L"WARN STD3000 a b: <c>.\n"},
        {[&] { std.STD3001(F, L"K"); },
         L"WARN STD3001 Registry key <K> is not of REG_SZ or REG_DWORD type.\n"},
        {[&] { std.STD3002(F, L"K"); }, L"WARN STD3002 Registry key <K> is not of REG_DWORD type.\n"},
        {[&] { std.STD3003(L"vorn_std::A::b"); },
         L"WARN STD3003 Internal error: Caught unknown exception in <vorn_std::A::b>.\n"},
        {[&] { std.STD3004(F, 100u); },
         L"WARN STD3004 Preference change notification queue has reached its maximum size <100>.\n"},
        {[&] { std.STD3005(F, 7u); },
         L"WARN STD3005 Preference change blocker queue has reached its maximum size <7>.\n"},
        {[&] { std.STD3006(F, L"r"); }, L"WARN STD3006 Unable to initialize Xerces XML system : r\n"},
        {[&] { std.STD3007(F, L"r"); }, L"WARN STD3007 Unable to shutdown Xerces XML system : r\n"},
        {[&] { std.STD3008(F, L"12", L"t", L"r"); },
         L"WARN STD3008 The thread [12:t] terminated unexpectedly. Reason: r\n"},
        {[&] { std.STD3009(F, 0xabcULL, L"t", L"p", L"k", L"k2"); },
         L"WARN STD3009 Thread <0xabc:t> in thread pool <p> running task <k> is considered hung "
         L"and removed. The running task k2 aborted.\n"},
        {[&] { std.STD3010(F, L"f", L"p", L"k"); },
         L"WARN STD3010 Thread factory <f> could not create thread for thread pool <p>. "
         L"Potentially discarding task <k>.\n"},
    });
}

TEST(NumberedMessages, EverySlMessageWithItsNumberLevelAndText) {
    NTServiceLogger sl;
    const wchar_t* const nt = L"The Windows NT service ";
    const std::wstring manager = L" message from the Windows NT service manager.\n";
    const std::vector<std::wstring> received = {
        L"INFO SL4008 " + std::wstring(nt) + L"received a stop" + manager,
        L"INFO SL4009 " + std::wstring(nt) + L"received a pause" + manager,
        L"INFO SL4012 " + std::wstring(nt) + L"received a continue" + manager,
        L"INFO SL4013 " + std::wstring(nt) + L"received an interrogate" + manager,
        L"INFO SL4014 " + std::wstring(nt) + L"received a shutdown" + manager,
        L"INFO SL4015 " + std::wstring(nt) + L"received a user control" + manager};
    expectLines({
        {[&] { sl.SL1005(F); }, L"ERROR SL1005 The Control handler could not be installed\n"},
        {[&] { sl.SL1006(F, L"svc", 5); }, L"ERROR SL1006 svc failed to install. Error 5\n"},
        {[&] { sl.SL1007(F, L"svc", 2); }, L"ERROR SL1007 Could not remove svc. Error 2\n"},
        {[&] { sl.SL1008(F); }, L"ERROR SL1008 Invalid Arguments, Exiting\n"},
        {[&] { sl.SL1009(F); }, L"ERROR SL1009 The Control handler could not be installed\n"},
        {[&] { sl.SL1010(F); }, L"ERROR SL1010 The initialization process failed\n"},
        {[&] { sl.SL2000(F); }, L"ERROR SL2000 Invalid service control code.\n"},
        {[&] { sl.SL2001(F); }, L"ERROR SL2001 Invalid Request.\n"},
        {[&] { sl.SL4007(F); }, L"INFO SL4007 The Windows NT service has started.\n"},
        {[&] { sl.SL4008(F); }, received[0].c_str()},
        {[&] { sl.SL4009(F); }, received[1].c_str()},
        {[&] { sl.SL4010(F); }, L"INFO SL4010 The Windows NT service is paused.\n"},
        {[&] { sl.SL4011(F); }, L"INFO SL4011 The Windows NT service has stopped.\n"},
        {[&] { sl.SL4012(F); }, received[2].c_str()},
        {[&] { sl.SL4013(F); }, received[3].c_str()},
        {[&] { sl.SL4014(F); }, received[4].c_str()},
        {[&] { sl.SL4015(F); }, received[5].c_str()},
        {[&] { sl.SL4016(F, L"svc", 3, 1); }, L"INFO SL4016 svc Version 3.1\n"},
        {[&] { sl.SL4017(F, L"not"); }, L"INFO SL4017 The service is not installed\n"},
        {[&] { sl.SL4018(F, L"svc"); }, L"INFO SL4018 svc is already installed\n"},
        {[&] { sl.SL4019(F, L"svc"); }, L"INFO SL4019 svc installed\n"},
        {[&] { sl.SL4020(F, L"svc"); }, L"INFO SL4020 svc is not installed\n"},
        {[&] { sl.SL4021(F, L"svc"); }, L"INFO SL4021 svc removed.\n"},
        {[&] { sl.SL4022(F); }, L"INFO SL4022 Service Removed\n"},
        {[&] { sl.SL4023(F); }, L"INFO SL4023 Service Not Removed\n"},
        {[&] { sl.SL4024(F); }, L"INFO SL4024 Service Started\n"},
        {[&] { sl.SL4025(F); }, L"INFO SL4025 Service Control Stop message\n"},
        {[&] { sl.SL4026(F); }, L"INFO SL4026 Service Stopped\n"},
        {[&] { sl.SL4027(F); }, L"INFO SL4027 Service Control Pause message\n"},
        {[&] { sl.SL4028(F); }, L"INFO SL4028 Service Paused\n"},
        {[&] { sl.SL4029(F); }, L"INFO SL4029 Service Control Continue message\n"},
        {[&] { sl.SL4031(F); }, L"INFO SL4031 Service Control Shutdown message\n"},
        {[&] { sl.SL4032(F); }, L"INFO SL4032 Service Stopped\n"},
        {[&] { sl.SL4033(F); }, L"INFO SL4033 Service User Control message\n"},
        {[&] { sl.SL4034(F, L"m", L"p", L"v", L"b", L"s", L"x", L"t"); },
         L"INFO SL4034 <m>: Product <p> Version <v> Pri Build <b> Special Build <s> Platform <x> "
         L"Debug threshold <t>.\n"},
        {[&] { sl.SL4035(F); }, L"INFO SL4035 An unexpected error occurred.\n"},
        {[&] { sl.SL4036(F, L"m", L"p", L"v", L"b", L"s"); },
         L"INFO SL4036 <m>: Product <p> Version <v> Pri Build <b> Special Build <s>.\n"},
        {[&] { sl.SL4037(F, L"x"); }, L"INFO SL4037 Platform <x>.\n"},
        {[&] { sl.SL4038(F, L"t"); }, L"INFO SL4038 Debug threshold <t>.\n"},
    });
}

TEST(NumberedMessages, ReachAppendersWhateverTheThresholdAndCarryTheShortFunction) {
    auto layouts = Class::getInstance().lookup<Configurable>(L"vorn_std.VornLogLayout");
    VectorLogAppender vector;
    vector.setLayout(std::shared_ptr<ILogEventLayout>(
        dynamic_cast<ILogEventLayout*>(layouts->newInstance({{L"debug", L"true"}}))));
    const LogEventPriority before = StaticLog::getThreshold();
    vorn_std_internal::StaticLogControl::setCurrentThreshold(FATAL);
    VornLoggerSTD::getInstance().STD0008(F, L"FATAL");
    vorn_std_internal::StaticLogControl::setCurrentThreshold(before);
    const auto statements = vector.getLogStatements();
    ASSERT_EQ(1u, statements.size());
    EXPECT_NE(std::wstring::npos,
              statements[0].find(L"] STD0008 RollingFileAppender::setProperty: Debugging threshold"))
        << statements[0];
}
