#pragma once

#include "vorn_std/exception/VornRuntimeException.h"

namespace vorn_std {

VORN_DECLARE_EXCEPTION(VornUnknownException, VornRuntimeException)

}  // namespace vorn_std
