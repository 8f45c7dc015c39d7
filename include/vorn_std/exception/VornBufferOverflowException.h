#pragma once

#include "vorn_std/exception/VornException.h"

namespace vorn_std {

VORN_DECLARE_EXCEPTION(VornBufferOverflowException, VornException)

}  // namespace vorn_std
