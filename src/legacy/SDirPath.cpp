#include "vorn_std/legacy/SDirPath.h"

#include "internal/LegacyFileSystem.h"
#include "internal/PlatformText.h"

namespace VornStd {

using vorn_std_internal::toPlatformUtf8;
namespace LegacyFileSystem = vorn_std_internal::LegacyFileSystem;

SDirPath::SDirPath(const std::wstring& text, wchar_t separator) : SFilePath(text, separator) {}

SDirPath::SDirPath(const wchar_t* text, wchar_t separator) : SFilePath(text, separator) {}

SDirPath::~SDirPath() = default;

bool SDirPath::Exists() const { return LegacyFileSystem::isAccessible(toPlatformUtf8(*this)); }

bool SDirPath::CreatePath() const {
    if (empty() || Exists()) {
        return true;
    }
    // "." is its own parent: where even that cannot be reached (a working
    // folder that was removed) the recursion has to end somewhere.
    const SDirPath parent = Dirname();
    const bool parentMade = parent == *this || parent.CreatePath();
    return parentMade && LegacyFileSystem::makeDirectory(toPlatformUtf8(*this));
}

}  // namespace VornStd
