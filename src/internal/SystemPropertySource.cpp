#include "internal/SystemPropertySource.h"

namespace vorn_std_internal {

// TEMPORARY until VornSystem lands: no property table exists yet.
std::wstring readSystemProperty(const std::wstring&, const std::wstring& defaultValue) {
    return defaultValue;
}

}  // namespace vorn_std_internal
