#pragma once

#include "vorn_std/exception/VornIOException.h"

namespace vorn_std {

VORN_DECLARE_EXCEPTION(VornConnectException, VornIOException)

}  // namespace vorn_std
