#pragma once

#include <cstdint>
#include <exception>
#include <map>
#include <memory>
#include <string>

#include "vorn_std/base/Object.h"

namespace vorn_std {

class ReadWriteLock;

// Base of every exception the library throws. Thrown by value with the concrete
// class as the thrown type, caught by reference.
//
// Fields other than the key/values are fixed after construction, so any thread
// may read them. Key/values are guarded by a reader/writer lock of their own:
// an exception shared between threads may be annotated while others read it.
// Key/values do not survive a copy (nor newInstance(), nor a throw by value).
// Assignment is memberwise and shares the nested cause, the lock and the map.
class VORNSTD_API VornException : public std::exception, public Object {
public:
    explicit VornException(const std::wstring& message = std::wstring());
    VornException(const VornException& other);
    VornException(const std::wstring& message, const VornException& nested);
    VornException(const std::wstring& message, int32_t errNum);
    VornException(const std::wstring& message, int32_t errNum, const VornException& nested);
    ~VornException() override;

    VornException& operator=(const VornException& other);

    // A fresh heap copy of the cause on every call, owned by the caller; null if none.
    virtual VornException* getNestedException() const;
    virtual std::wstring getMessage() const;
    virtual int32_t getErrNum() const;
    virtual std::wstring getClassName() const;
    virtual std::wstring getStackTraceString() const;
    virtual std::wstring getValue(const std::wstring& key) const;
    virtual void setValue(const std::wstring& key, const std::wstring& value);
    // Covariant clone made with the copy constructor; the caller owns it.
    virtual VornException* newInstance() const;
    virtual void logDebug(const wchar_t* function) const;
    virtual void logCall(const wchar_t* function) const;
    virtual void logTrace(const wchar_t* function) const;
    virtual void logDump(const wchar_t* function) const;

    std::wstring toString() const override;
    std::wstring getKeyValuesString() const;

    // Makes hardware faults of the calling thread visible: a fault writes its
    // description to the debugger output before the default action ends the process.
    static void installHandler();

private:
    static std::wstring generateStackTraceString();
    void logAt(int priority, const wchar_t* function) const;

    std::wstring message;
    // Shared rather than owned: an assigned copy holds the same cause, and
    // neither side may free it under the other.
    std::shared_ptr<VornException> nestedException;
    int32_t errNum;
    std::wstring stackTrace;
    std::shared_ptr<ReadWriteLock> keyValuesLock;
    std::map<std::wstring, std::wstring> keyValues;  // guarded by keyValuesLock
};

}  // namespace vorn_std

// Declares one member of the family: the five constructors, the Java-style
// class name and the covariant clone. VORN_IMPLEMENT_EXCEPTION is its twin.
#define VORN_DECLARE_EXCEPTION(CLS, BASE)                                                  \
    class VORNSTD_API CLS : public BASE {                                                  \
    public:                                                                                \
        explicit CLS(const std::wstring& message = std::wstring());                        \
        CLS(const CLS& other);                                                             \
        CLS(const std::wstring& message, const ::vorn_std::VornException& nested);         \
        CLS(const std::wstring& message, int32_t errNum);                                  \
        CLS(const std::wstring& message, int32_t errNum,                                   \
            const ::vorn_std::VornException& nested);                                      \
        ~CLS() override;                                                                   \
        CLS& operator=(const CLS& other) = default;                                        \
        std::wstring getClassName() const override;                                        \
        CLS* newInstance() const override;                                                 \
    };

#define VORN_IMPLEMENT_EXCEPTION(CLS, BASE, NAME)                                          \
    CLS::CLS(const std::wstring& message) : BASE(message) {}                               \
    CLS::CLS(const CLS& other) : BASE(other) {}                                            \
    CLS::CLS(const std::wstring& message, const ::vorn_std::VornException& nested)         \
        : BASE(message, nested) {}                                                         \
    CLS::CLS(const std::wstring& message, int32_t errNum) : BASE(message, errNum) {}       \
    CLS::CLS(const std::wstring& message, int32_t errNum,                                  \
             const ::vorn_std::VornException& nested)                                      \
        : BASE(message, errNum, nested) {}                                                 \
    CLS::~CLS() = default;                                                                 \
    std::wstring CLS::getClassName() const { return NAME; }                                \
    CLS* CLS::newInstance() const { return new CLS(*this); }
