#include "vorn_std/exception/VornExceptions.h"

// One line per member keeps the five constructors, the class name and the
// clone alike across the family.
namespace vorn_std {

VORN_IMPLEMENT_EXCEPTION(VornIllegalArgumentException, VornException, L"com.kelmoran.exception.VornIllegalArgumentException")
VORN_IMPLEMENT_EXCEPTION(VornIllegalStateException, VornException, L"com.kelmoran.exception.VornIllegalStateException")
VORN_IMPLEMENT_EXCEPTION(VornIOException, VornException, L"com.kelmoran.exception.VornIOException")
VORN_IMPLEMENT_EXCEPTION(VornConnectException, VornIOException, L"com.kelmoran.util.connection.VornConnectException")
VORN_IMPLEMENT_EXCEPTION(VornObjectNotFoundException, VornException, L"com.kelmoran.exception.VornObjectNotFoundException")
VORN_IMPLEMENT_EXCEPTION(VornRuntimeException, VornException, L"com.kelmoran.exception.VornRuntimeException")
VORN_IMPLEMENT_EXCEPTION(VornUnknownException, VornRuntimeException, L"com.kelmoran.exception.VornUnknownException")
VORN_IMPLEMENT_EXCEPTION(VornAccessException, VornException, L"com.kelmoran.exception.VornAccessException")
VORN_IMPLEMENT_EXCEPTION(VornUnhandledException, VornException, L"com.kelmoran.exception.VornUnhandledException")
VORN_IMPLEMENT_EXCEPTION(VornTimeoutException, VornException, L"com.kelmoran.exception.VornTimeoutException")
VORN_IMPLEMENT_EXCEPTION(VornOutOfResourcesException, VornException, L"com.kelmoran.exception.VornOutOfResourcesException")
VORN_IMPLEMENT_EXCEPTION(VornUnsupportedOperationException, VornException, L"com.kelmoran.exception.VornUnsupportedOperationException")
VORN_IMPLEMENT_EXCEPTION(VornBufferOverflowException, VornException, L"com.kelmoran.exception.VornBufferOverflowException")
VORN_IMPLEMENT_EXCEPTION(VornBufferUnderflowException, VornException, L"com.kelmoran.exception.VornBufferUnderflowException")
VORN_IMPLEMENT_EXCEPTION(VornJNIException, VornException, L"com.kelmoran.exception.VornJNIException")
VORN_IMPLEMENT_EXCEPTION(VornInterruptedException, VornException, L"com.kelmoran.util.concurrency.VornInterruptedException")
VORN_IMPLEMENT_EXCEPTION(VornWaitObjectDestroyedException, VornException, L"com.kelmoran.util.concurrency.VornWaitObjectDestroyedException")
VORN_IMPLEMENT_EXCEPTION(VornAbandonedException, VornException, L"com.kelmoran.util.concurrency.VornAbandonedException")
VORN_IMPLEMENT_EXCEPTION(VornDeadlockException, VornException, L"com.kelmoran.util.concurrency.VornDeadlockException")
VORN_IMPLEMENT_EXCEPTION(VornCancellationException, VornException, L"com.kelmoran.util.thread.VornCancellationException")
VORN_IMPLEMENT_EXCEPTION(VornExecutionException, VornException, L"com.kelmoran.util.thread.VornExecutionException")
VORN_IMPLEMENT_EXCEPTION(VornRejectedExecutionException, VornException, L"com.kelmoran.util.thread.VornRejectedExecutionException")
VORN_IMPLEMENT_EXCEPTION(VornBackingStoreException, VornException, L"com.kelmoran.util.prefs.VornBackingStoreException")
VORN_IMPLEMENT_EXCEPTION(VornInvalidPreferencesFormatException, VornException, L"com.kelmoran.util.prefs.VornInvalidPreferencesFormatException")
VORN_IMPLEMENT_EXCEPTION(VornXmlException, VornException, L"com.kelmoran.xml.VornXmlException")

}  // namespace vorn_std
