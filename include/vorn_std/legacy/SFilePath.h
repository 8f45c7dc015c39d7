#pragma once

#include <string>

#include "vorn_std/base/Export.h"
#include "vorn_std/legacy/SWString.h"

namespace VornStd {

class SDirPath;

// A path of the older interface: plain text with a separator of its own,
// "/" unless given otherwise. When it takes a path apart, "\" counts as a
// separator too, so that paths written on Windows still split. Nothing here
// looks at the disk; SDirPath does.
class VORNSTD_API SFilePath : public SWString {
public:
    static constexpr wchar_t DefaultSeparator = L'/';

    using SWString::SWString;
    using SWString::operator=;

    SFilePath() = default;
    SFilePath(const SFilePath&) = default;
    SFilePath(SFilePath&&) = default;
    SFilePath(const std::wstring& text, wchar_t separator = DefaultSeparator);
    SFilePath(const wchar_t* text, wchar_t separator);
    ~SFilePath() override;

    SFilePath& operator=(const SFilePath&) = default;
    SFilePath& operator=(SFilePath&&) = default;

    wchar_t GetSeparator() const { return separator; }
    void SetSeparator(wchar_t newSeparator) { separator = newSeparator; }

    bool IsEmpty() const { return empty(); }
    size_type Length() const { return length(); }

    // An empty path becomes part as it is; any other gets the separator and
    // part, even if it already ends in a separator or part starts with one.
    SFilePath& Append(const std::wstring& part);
    SFilePath& operator+=(const std::wstring& part) { return Append(part); }
    // part in the system's code page.
    SFilePath& operator+=(const char* part) { return Append(SWString(part)); }

    // The text behind the last separator; the whole path if there is none,
    // "." for the empty path. A suffix is given without its dot: if it
    // occurs behind the separator, the name ends one character before its
    // last occurrence ("a/b.txt" with "txt" gives "b"); if it does not, the
    // whole path is the answer.
    SWString Basename(const std::wstring& suffix = std::wstring()) const;
    // The text behind the last "."; empty if there is none.
    SWString Suffixname() const;
    // The text before the last separator, with this separator; "." if there
    // is none.
    SDirPath Dirname() const;

    // Basename without a suffix, and Dirname with a "/" at its end, of a
    // path with the default separator.
    static SWString getFilename(const std::wstring& path);
    static SWString getDirectory(const std::wstring& path);

private:
    size_type lastSeparator() const;

    wchar_t separator = DefaultSeparator;
};

// Appending with "+": the path's separator joins them, as in Append. A wide
// string is taken by value for the reason SWString's "+" gives.
VORNSTD_API SFilePath operator+(const SFilePath& path, const SWString& part);
VORNSTD_API SFilePath operator+(const SFilePath& path, std::wstring part);
VORNSTD_API SFilePath operator+(const SFilePath& path, const wchar_t* part);
VORNSTD_API SFilePath operator+(const SFilePath& path, const char* part);

}  // namespace VornStd

// Dirname answers with an SDirPath, which derives from this class: whoever
// includes this header can use the answer.
#include "vorn_std/legacy/SDirPath.h"
