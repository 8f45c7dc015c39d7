#include "vorn_std/base/CollectionUtils.h"
