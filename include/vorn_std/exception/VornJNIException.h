#pragma once

#include "vorn_std/exception/VornException.h"

namespace vorn_std {

VORN_DECLARE_EXCEPTION(VornJNIException, VornException)

}  // namespace vorn_std
