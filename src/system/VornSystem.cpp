#include "vorn_std/system/VornSystem.h"

#include "internal/PlatformText.h"
#include "internal/SystemInfo.h"
#include "internal/SystemPropertySource.h"
#include "vorn_std/base/ErrorUtils.h"
#include "vorn_std/thread/ReadWriteLock.h"

namespace vorn_std {

template class Singleton<VornSystem>;

// Never destroyed: properties may be read by the last destructors at exit.
ReadWriteLock& VornSystem::lock = *new ReadWriteLock();

namespace {

constexpr const wchar_t* EnvironmentNameLabel = L"Environment variable name";
constexpr const wchar_t* PropertyKeyLabel = L"Property key";
constexpr const wchar_t* SystemName = L"Linux ";

using vorn_std_internal::fromPlatformUtf8;
using vorn_std_internal::toPlatformUtf8;

}  // namespace

VornSystem::VornSystem() = default;
VornSystem::~VornSystem() = default;

std::wstring VornSystem::getSingletonName() { return L"vorn_std::VornSystem"; }

std::wstring VornSystem::toString() const { return L"VornSystem{}"; }

std::wstring VornSystem::getEnv(const std::wstring& name) {
    ErrorUtils::isEmptyEx(name, L"vorn_std::VornSystem::getEnv", EnvironmentNameLabel);
    ReadWriteLock::ReaderLock guard(&lock);
    std::string value;
    return vorn_std_internal::getEnvironment(toPlatformUtf8(name), value) ? fromPlatformUtf8(value)
                                                                          : std::wstring();
}

bool VornSystem::putEnv(const std::wstring& name, const std::wstring& value) {
    ErrorUtils::isEmptyEx(name, L"vorn_std::VornSystem::putEnv", EnvironmentNameLabel);
    ReadWriteLock::WriterLock guard(&lock);
    return vorn_std_internal::setEnvironment(toPlatformUtf8(name), toPlatformUtf8(value));
}

std::wstring VornSystem::getProperty(const std::wstring& key, const std::wstring& defaultValue) {
    ErrorUtils::isEmptyEx(key, L"vorn_std::VornSystem::getProperty", PropertyKeyLabel);
    ReadWriteLock::ReaderLock guard(&lock);
    auto found = properties.find(key);
    return found == properties.end() ? defaultValue : found->second;
}

std::wstring VornSystem::setProperty(const std::wstring& key, const std::wstring& value) {
    ErrorUtils::isEmptyEx(key, L"vorn_std::VornSystem::setProperty", PropertyKeyLabel);
    ReadWriteLock::WriterLock guard(&lock);
    std::wstring& slot = properties[key];
    std::wstring old = slot;
    slot = value;
    return old;
}

VornSystem::Properties VornSystem::getProperties() {
    ReadWriteLock::ReaderLock guard(&lock);
    return properties;
}

void VornSystem::setProperties(const Properties& replacement) {
    ReadWriteLock::WriterLock guard(&lock);
    properties = replacement;
}

std::wstring VornSystem::getOperatingSystemName() {
    std::string system;
    std::string release;
    if (!vorn_std_internal::getSystemRelease(system, release)) {
        return SystemName;
    }
    return SystemName + fromPlatformUtf8(release);
}

int VornSystem::getOperatingSystemType() { return OS_DEFAULT; }

std::wstring VornSystem::getHostName() {
    std::string name;
    return vorn_std_internal::getHostName(name) ? fromPlatformUtf8(name) : std::wstring();
}

}  // namespace vorn_std

namespace vorn_std_internal {

std::wstring readSystemProperty(const std::wstring& key, const std::wstring& defaultValue) {
    return vorn_std::VornSystem::getInstance().getProperty(key, defaultValue);
}

}  // namespace vorn_std_internal
