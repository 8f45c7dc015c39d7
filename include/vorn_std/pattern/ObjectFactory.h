#pragma once

#include <map>
#include <memory>
#include <string>

#include "vorn_std/base/ErrorUtils.h"
#include "vorn_std/base/Object.h"
#include "vorn_std/exception/VornIllegalArgumentException.h"
#include "vorn_std/thread/ReadWriteLock.h"

namespace vorn_std {

// Objects by key, with typed lookup. Look-ups from many threads run together
// under the read lock; registration takes the write lock.
template <typename Key>
class ObjectFactory {
public:
    ObjectFactory() : lock(FactoryReaders) {}
    virtual ~ObjectFactory() = default;
    ObjectFactory(const ObjectFactory&) = delete;
    ObjectFactory& operator=(const ObjectFactory&) = delete;

    // Throws VornIllegalArgumentException for a null object, an invalid key
    // ("Specified key is invalid: " + key) or a key already taken
    // ("Object already exists for key: " + key).
    void registerObject(const Key& key, const std::shared_ptr<Object>& object) {
        ErrorUtils::isNullEx(object.get(), RegisterFunction, L"Object");
        if (!validKey(key)) {
            fail(L"Specified key is invalid: " + key);
        }
        ReadWriteLock::WriterLock guard(&lock);
        if (objects.count(key) != 0) {
            fail(L"Object already exists for key: " + key);
        }
        objects[key] = object;
    }

    // The object under key as a Target; empty if the key is absent or the
    // object is of another type. Never throws.
    template <typename Target>
    std::shared_ptr<Target> lookup(const Key& key) {
        ReadWriteLock::ReaderLock guard(&lock);
        auto found = objects.find(key);
        return found == objects.end() ? nullptr : std::dynamic_pointer_cast<Target>(found->second);
    }

protected:
    virtual bool validKey(const Key&) const { return true; }

private:
    static constexpr int FactoryReaders = 32;
    static constexpr const wchar_t* RegisterFunction = L"vorn_std::ObjectFactory::registerObject";

    [[noreturn]] static void fail(const std::wstring& text) {
        ErrorUtils::logDebug(RegisterFunction, text);
        throw VornIllegalArgumentException(text);
    }

    ReadWriteLock lock;
    std::map<Key, std::shared_ptr<Object>> objects;  // guarded by lock
};

}  // namespace vorn_std
