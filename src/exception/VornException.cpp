#include "vorn_std/exception/VornException.h"

#include "internal/FaultHandler.h"
#include "vorn_std/base/LogFunctionCall.h"
#include "vorn_std/log/ContextLogMessage.h"
#include "vorn_std/log/StaticLog.h"
#include "vorn_std/thread/ReadWriteLock.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* ClassName = L"com.kelmoran.exception.VornException";
constexpr const wchar_t* MessageSeparator = L": ";
constexpr const wchar_t* NestedMarker = L"; --> nested ";
constexpr const wchar_t* StackTraceMarker = L"-------- nested by: ";
constexpr const wchar_t* LogFormat = L"%ls Stack trace <%ls>.";
constexpr const wchar_t* LibraryModule = L"VornStd";
constexpr const wchar_t* SourceFile = L"VornException.cpp";
constexpr int KeyValuesReaders = 32;

std::shared_ptr<VornException> cloneOf(const VornException& nested) {
    return std::shared_ptr<VornException>(nested.newInstance());
}

}  // namespace

VornException::VornException(const std::wstring& message) : VornException(message, 0) {}

VornException::VornException(const VornException& other)
    : std::exception(other),
      Object(other),
      message(other.message),
      nestedException(other.nestedException ? cloneOf(*other.nestedException) : nullptr),
      errNum(other.errNum),
      stackTrace(other.stackTrace),
      keyValuesLock(std::make_shared<ReadWriteLock>(KeyValuesReaders)) {}

VornException::VornException(const std::wstring& message, const VornException& nested)
    : VornException(message, nested.getErrNum(), nested) {}

VornException::VornException(const std::wstring& message, int32_t errNum)
    : message(message),
      errNum(errNum),
      stackTrace(generateStackTraceString()),
      keyValuesLock(std::make_shared<ReadWriteLock>(KeyValuesReaders)) {}

VornException::VornException(const std::wstring& message, int32_t errNum,
                             const VornException& nested)
    : VornException(message, errNum) {
    nestedException = cloneOf(nested);
}

VornException::~VornException() = default;

VornException& VornException::operator=(const VornException& other) {
    if (this != &other) {
        message = other.message;
        nestedException = other.nestedException;
        errNum = other.errNum;
        stackTrace = other.stackTrace;
        ReadWriteLock::ReaderLock guard(other.keyValuesLock.get());
        keyValues = other.keyValues;
        keyValuesLock = other.keyValuesLock;
    }
    return *this;
}

VornException* VornException::getNestedException() const {
    return nestedException ? nestedException->newInstance() : nullptr;
}

std::wstring VornException::getMessage() const {
    if (!nestedException) {
        return message;
    }
    if (message.empty()) {
        return nestedException->getMessage();
    }
    return message + MessageSeparator + nestedException->getMessage();
}

int32_t VornException::getErrNum() const { return errNum; }

std::wstring VornException::getClassName() const { return ClassName; }

std::wstring VornException::getStackTraceString() const {
    std::wstring trace;
    if (nestedException) {
        trace = nestedException->getStackTraceString() + StackTraceMarker;
    }
    return trace + stackTrace;
}

std::wstring VornException::getValue(const std::wstring& key) const {
    ReadWriteLock::ReaderLock guard(keyValuesLock.get());
    auto found = keyValues.find(key);
    return found == keyValues.end() ? std::wstring() : found->second;
}

void VornException::setValue(const std::wstring& key, const std::wstring& value) {
    ReadWriteLock::WriterLock guard(keyValuesLock.get());
    keyValues[key] = value;
}

VornException* VornException::newInstance() const { return new VornException(*this); }

std::wstring VornException::toString() const {
    std::wstring text = getClassName() + MessageSeparator + getMessage();
    if (nestedException) {
        text += NestedMarker + nestedException->toString();
    }
    return text;
}

std::wstring VornException::getKeyValuesString() const {
    ReadWriteLock::ReaderLock guard(keyValuesLock.get());
    std::wstring text = L"KeyValues{";
    for (auto entry = keyValues.begin(); entry != keyValues.end(); ++entry) {
        if (entry != keyValues.begin()) {
            text += L",";
        }
        text += entry->first + L"=" + entry->second;
    }
    return text + L"}";
}

void VornException::logDebug(const wchar_t* function) const { logAt(DEBUG, function); }
void VornException::logCall(const wchar_t* function) const { logAt(CALL, function); }
void VornException::logTrace(const wchar_t* function) const { logAt(TRACE, function); }
void VornException::logDump(const wchar_t* function) const { logAt(DUMP, function); }

void VornException::logAt(int priority, const wchar_t* function) const {
    const auto level = static_cast<LogEventPriority>(priority);
    if (StaticLog::isThresholdOn(level)) {
        ContextLogMessage::log(level, function, LibraryModule, L"", Thread::getCurrentThreadId(),
                               SourceFile, __LINE__, LogFormat, toString().c_str(),
                               getStackTraceString().c_str());
    }
}

void VornException::installHandler() {
    LogFunctionCall scope(L"vorn_std::VornException::installHandler", LibraryModule, SourceFile,
                          __LINE__, CALL, true);
    vorn_std_internal::installFaultHandler();
}

// No stack walker exists on this platform; a family member's trace is made of
// the nesting markers alone. The constructors still call this, so a walker
// can be placed here.
std::wstring VornException::generateStackTraceString() { return std::wstring(); }

}  // namespace vorn_std
