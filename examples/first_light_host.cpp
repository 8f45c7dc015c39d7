// A host's first minutes: it logs before anything is configured (the lines
// reach standard error in the unconfigured form), then meets a failure three
// levels deep and reports it.
#include <vorn_std/VornStd.h>

#include <clocale>
#include <cstdio>
#include <memory>

using namespace vorn_std;

namespace {

constexpr const wchar_t* Module = L"FirstLightHost";

void readSettings(const wchar_t* path) {
    try {
        throw VornIOException(L"Unable to open file.", 2);
    } catch (const VornException& e) {
        throw VornIllegalStateException(std::wstring(L"Settings unreadable: ") + path, e);
    }
}

void startService() {
    LogFunctionCall scope(L"FirstLightHost::startService", Module, L"first_light_host.cpp",
                          __LINE__, DEBUG, true);
    try {
        readSettings(L"/etc/first-light/host.cfg");
    } catch (const VornException& e) {
        VornRuntimeException failure(L"Service could not start", e);
        failure.setValue(L"service", L"first-light");
        failure.setValue(L"attempt", L"1");
        throw failure;
    }
}

}  // namespace

int main() {
    std::setlocale(LC_ALL, "");
    VornException::installHandler();

    ContextLogMessage::log(INFO, L"main", Module, L"", Thread::getCurrentThreadId(),
                           L"first_light_host.cpp", __LINE__, L"Host starting, pid file <%ls>.",
                           L"/run/first-light.pid");
    if (__internal_debug_on()) {
        __internal_debug(L"main", L"first_light_host.cpp", __LINE__,
                         L"Threshold before configuration: %ls.",
                         logEventPriorityToString(StaticLog::getThreshold()).c_str());
    }
    if (__internal_trace_on()) {
        __internal_trace(L"main", L"first_light_host.cpp", __LINE__, L"never formatted");
    }

    try {
        startService();
    } catch (VornRuntimeException& e) {
        // Attributes are lost on copy, so annotate the caught object itself.
        e.setValue(L"host", L"example");
        std::printf("toString():            %ls\n", e.toString().c_str());
        std::printf("getMessage():          %ls\n", e.getMessage().c_str());
        std::printf("getStackTraceString(): %ls\n", e.getStackTraceString().c_str());
        std::printf("getKeyValuesString():  %ls\n", e.getKeyValuesString().c_str());
        std::printf("getErrNum():           %d\n", e.getErrNum());
        std::unique_ptr<VornException> cause(e.getNestedException());
        std::printf("cause class:           %ls\n", cause->getClassName().c_str());
        std::printf("errno 2 reads:         %ls\n", ErrorUtils::getErrorDescription(2).c_str());
    }
    ContextLogMessage::log(WARN, L"main", Module, L"", Thread::getCurrentThreadId(),
                           L"first_light_host.cpp", __LINE__, L"Host stopping.");
    return 0;
}
