#include "vorn_std/legacy/SFilePath.h"

#include "vorn_std/legacy/SDirPath.h"

namespace VornStd {

namespace {

// Paths written on Windows keep splitting here.
constexpr wchar_t WindowsSeparator = L'\\';
constexpr const wchar_t* CurrentDirectory = L".";
constexpr wchar_t SuffixMark = L'.';

}  // namespace

constexpr wchar_t SFilePath::DefaultSeparator;

SFilePath::SFilePath(const std::wstring& text, wchar_t separator)
    : SWString(text), separator(separator) {}

SFilePath::SFilePath(const wchar_t* text, wchar_t separator)
    : SWString(text != nullptr ? text : L""), separator(separator) {}

SFilePath::~SFilePath() = default;

SFilePath& SFilePath::Append(const std::wstring& part) {
    if (!empty()) {
        std::wstring::push_back(separator);
    }
    std::wstring::append(part);
    return *this;
}

SFilePath::size_type SFilePath::lastSeparator() const {
    const wchar_t separators[] = {separator, WindowsSeparator, L'\0'};
    return find_last_of(separators);
}

SWString SFilePath::Basename(const std::wstring& suffix) const {
    if (empty()) {
        return SWString(CurrentDirectory);
    }
    const size_type at = lastSeparator();
    if (at == npos) {
        return *this;
    }
    const std::wstring name = substr(at + 1);
    if (suffix.empty()) {
        return SWString(name);
    }
    const size_type suffixAt = name.rfind(suffix);
    if (suffixAt == npos) {
        return *this;
    }
    // The character before the suffix is its dot; a name that is nothing
    // but the suffix has no dot and gives the empty name.
    return SWString(name.substr(0, suffixAt == 0 ? 0 : suffixAt - 1));
}

SWString SFilePath::Suffixname() const {
    const size_type at = rfind(SuffixMark);
    return at == npos ? SWString() : SWString(substr(at + 1));
}

SDirPath SFilePath::Dirname() const {
    const size_type at = lastSeparator();
    return SDirPath(at == npos ? std::wstring(CurrentDirectory) : substr(0, at), separator);
}

SWString SFilePath::getFilename(const std::wstring& path) { return SFilePath(path).Basename(); }

SWString SFilePath::getDirectory(const std::wstring& path) {
    SWString directory = SFilePath(path).Dirname();
    directory.push_back(DefaultSeparator);
    return directory;
}

SFilePath operator+(const SFilePath& path, const SWString& part) {
    return SFilePath(path).Append(part);
}

SFilePath operator+(const SFilePath& path, std::wstring part) {
    return SFilePath(path).Append(part);
}

SFilePath operator+(const SFilePath& path, const wchar_t* part) {
    return SFilePath(path).Append(part != nullptr ? part : L"");
}

SFilePath operator+(const SFilePath& path, const char* part) {
    return SFilePath(path).Append(SWString(part));
}

}  // namespace VornStd
