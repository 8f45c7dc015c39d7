// The library's numbered messages: number, level, text and arguments side by
// side, expanded into the member functions of VornLoggerSTD. Each function
// takes the calling function's qualified name first, then PARAMS; ARGS are
// what the text's format receives.
//   X(NUMBER, LEVEL, TEXT, PARAMS, ARGS)
#define VORN_STD_MESSAGES(X)                                                                     \
    X(STD0000, Info, L"Starting preference change event dispatch thread.", (), ())               \
    X(STD0001, Info, L"Stopping preference change event dispatch thread.", (), ())               \
    X(STD0002, Info, L"Using %ls PreferencesFactory.", (, const wchar_t* factory), (, factory))  \
    X(STD0003, Info, L"Using %ls Paths.", (, const wchar_t* paths), (, paths))                   \
    X(STD0004, Info, L"Client <%ls> connected to service at <%ls>.",                             \
      (, const wchar_t* client, const wchar_t* service), (, client, service))                    \
    X(STD0005, Info, L"Client <%ls> disconnected from service at <%ls>.",                        \
      (, const wchar_t* client, const wchar_t* service), (, client, service))                    \
    X(STD0006, Info, L"Loaded shared library <%ls>.", (, const wchar_t* library), (, library))   \
    X(STD0007, Info, L"Unloaded shared library <%ls>.", (, const wchar_t* library), (, library)) \
    X(STD0008, Info, L"Debugging threshold changed to: <%ls>.", (, const wchar_t* threshold),    \
      (, threshold))                                                                             \
    X(STD0009, Info, L"Maximum file size changed to: <%u>.", (, unsigned long size),             \
      (, static_cast<unsigned int>(size)))                                                       \
    X(STD0010, Info, L"Maximum file count changed to: <%u>.", (, unsigned long count),           \
      (, static_cast<unsigned int>(count)))                                                      \
    X(STD2000, Error, L"Client <%ls> failed to send heart beat to service at <%ls>.",            \
      (, const wchar_t* client, const wchar_t* service), (, client, service))                    \
    X(STD2001, Error, L"Client <%ls> failed to connect to any service.",                         \
      (, const wchar_t* client), (, client))                                                     \
    X(STD2002, Error, L"The service controller threw an exception: %ls",                         \
      (, const wchar_t* reason), (, reason))                                                     \
    X(STD2003, Error, L"Failed to install console control signal translator.  Reason:[%d:%ls]",  \
      (, int code, const wchar_t* reason), (, code, reason))                                     \
    X(STD2004, Error, L"Failed to remove console control signal translator.  Reason:[%d:%ls]",   \
      (, int code, const wchar_t* reason), (, code, reason))                                     \
    X(STD3000, Warn, L"%ls %ls: <%ls>.",                                                         \
      (, const wchar_t* first, const wchar_t* second, const wchar_t* third),                     \
      (, first, second, third))                                                                  \
    X(STD3001, Warn, L"Registry key <%ls> is not of REG_SZ or REG_DWORD type.",                  \
      (, const wchar_t* key), (, key))                                                           \
    X(STD3002, Warn, L"Registry key <%ls> is not of REG_DWORD type.", (, const wchar_t* key),    \
      (, key))                                                                                   \
    X(STD3003, Warn, L"Internal error: Caught unknown exception in <%ls>.", (), (, function))    \
    X(STD3004, Warn, L"Preference change notification queue has reached its maximum size <%d>.", \
      (, unsigned int size), (, size))                                                           \
    X(STD3005, Warn, L"Preference change blocker queue has reached its maximum size <%d>.",      \
      (, unsigned int size), (, size))                                                           \
    X(STD3006, Warn, L"Unable to initialize Xerces XML system : %ls", (, const wchar_t* reason), \
      (, reason))                                                                                \
    X(STD3007, Warn, L"Unable to shutdown Xerces XML system : %ls", (, const wchar_t* reason),   \
      (, reason))                                                                                \
    X(STD3008, Warn, L"The thread [%ls:%ls] terminated unexpectedly. Reason: %ls",               \
      (, const wchar_t* id, const wchar_t* name, const wchar_t* reason), (, id, name, reason))   \
    X(STD3009, Warn,                                                                             \
      L"Thread <0x%llx:%ls> in thread pool <%ls> running task <%ls> is considered hung and "     \
      L"removed. The running task %ls aborted.",                                                 \
      (, unsigned long long id, const wchar_t* name, const wchar_t* pool, const wchar_t* task,   \
       const wchar_t* aborted),                                                                  \
      (, id, name, pool, task, aborted))                                                         \
    X(STD3010, Warn,                                                                             \
      L"Thread factory <%ls> could not create thread for thread pool <%ls>. Potentially "        \
      L"discarding task <%ls>.",                                                                 \
      (, const wchar_t* factory, const wchar_t* pool, const wchar_t* task),                      \
      (, factory, pool, task))
