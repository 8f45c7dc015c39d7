#pragma once

// Every public header of VornStd.

#include "vorn_std/base/ErrorUtils.h"
#include "vorn_std/base/Export.h"
#include "vorn_std/base/Library.h"
#include "vorn_std/base/LogFunctionCall.h"
#include "vorn_std/base/Object.h"
#include "vorn_std/base/StringUtils.h"
#include "vorn_std/exception/VornExceptions.h"
#include "vorn_std/log/ContextLogMessage.h"
#include "vorn_std/log/InternalDebug.h"
#include "vorn_std/log/LogEventPriority.h"
#include "vorn_std/log/StaticLog.h"
#include "vorn_std/thread/AutoLock.h"
#include "vorn_std/thread/ReadWriteLock.h"
#include "vorn_std/thread/Thread.h"
