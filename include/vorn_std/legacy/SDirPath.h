#pragma once

#include <string>

#include "vorn_std/base/Export.h"
#include "vorn_std/legacy/SFilePath.h"

namespace VornStd {

// A folder path of the older interface, with the two calls that look at
// the disk. The path goes to the system as UTF-8 bytes.
class VORNSTD_API SDirPath : public SFilePath {
public:
    using SFilePath::SFilePath;
    using SFilePath::operator=;

    SDirPath() = default;
    SDirPath(const SDirPath&) = default;
    SDirPath(SDirPath&&) = default;
    SDirPath(const std::wstring& text, wchar_t separator = DefaultSeparator);
    SDirPath(const wchar_t* text, wchar_t separator);
    ~SDirPath() override;

    SDirPath& operator=(const SDirPath&) = default;
    SDirPath& operator=(SDirPath&&) = default;

    // Whether anything of that name can be reached, a file included.
    bool Exists() const;
    // Makes the folder and any missing parents. True for the empty path and
    // for one that exists; otherwise whether the parent and then the folder
    // itself could be made. A folder that another process makes meanwhile
    // counts as made.
    bool CreatePath() const;
};

}  // namespace VornStd
