#pragma once

#include <map>
#include <string>

#include "vorn_std/base/Object.h"
#include "vorn_std/pattern/Singleton.h"

namespace vorn_std {

class ReadWriteLock;

// The process-wide table of string properties, the environment, and the
// names of this host and its operating system. Settings such as
// "ByteBuffer maximum capacity" are read here before any file could hold them.
//
// Reads run together under VornSystem::lock; writes exclude them. The
// environment is read and written under the same lock: putEnv() races with
// every other getenv() in the process (localtime_r included), so it belongs
// to start-up, before other threads run.
class VORNSTD_API VornSystem : public Singleton<VornSystem>, public Object {
public:
    enum OSType { OS_DEFAULT = 0 };
    using Properties = std::map<std::wstring, std::wstring>;

    static ReadWriteLock& lock;

    std::wstring toString() const override;

    // Empty if unset. Throws VornIllegalArgumentException for an empty name.
    std::wstring getEnv(const std::wstring& name);
    // True on success.
    bool putEnv(const std::wstring& name, const std::wstring& value);
    // Throw VornIllegalArgumentException for an empty key.
    std::wstring getProperty(const std::wstring& key, const std::wstring& defaultValue);
    // Returns the old value, or the empty string if there was none.
    std::wstring setProperty(const std::wstring& key, const std::wstring& value);
    Properties getProperties();
    void setProperties(const Properties& properties);

    // "Linux " and the kernel release.
    static std::wstring getOperatingSystemName();
    static int getOperatingSystemType();
    // Empty if it cannot be had.
    static std::wstring getHostName();

private:
    friend class Singleton<VornSystem>;
    VornSystem();
    ~VornSystem() override;
    static std::wstring getSingletonName();

    Properties properties;  // guarded by lock
};

extern template class Singleton<VornSystem>;

}  // namespace vorn_std
