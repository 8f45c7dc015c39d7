#pragma once

#include "vorn_std/exception/VornException.h"

namespace vorn_std {

VORN_DECLARE_EXCEPTION(VornIllegalArgumentException, VornException)

}  // namespace vorn_std
