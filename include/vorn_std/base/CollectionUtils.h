#pragma once

#include "vorn_std/base/Export.h"

namespace vorn_std {

// A home for collection helpers; it has none of its own yet.
class VORNSTD_API CollectionUtils {
public:
    CollectionUtils() = delete;
};

}  // namespace vorn_std
