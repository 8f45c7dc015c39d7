// The service host's numbered messages; see VornLoggerSTDMessages.h for the shape.
#define VORN_SL_MESSAGES(X)                                                                      \
    X(SL1005, Error, L"The Control handler could not be installed", (), ())                      \
    X(SL1006, Error, L"%ls failed to install. Error %d", (, const wchar_t* name, int code),       \
      (, name, code))                                                                            \
    X(SL1007, Error, L"Could not remove %ls. Error %d", (, const wchar_t* name, int code),        \
      (, name, code))                                                                            \
    X(SL1008, Error, L"Invalid Arguments, Exiting", (), ())                                      \
    X(SL1009, Error, L"The Control handler could not be installed", (), ())                      \
    X(SL1010, Error, L"The initialization process failed", (), ())                               \
    X(SL2000, Error, L"Invalid service control code.", (), ())                                   \
    X(SL2001, Error, L"Invalid Request.", (), ())                                                \
    X(SL4007, Info, L"The Windows NT service has started.", (), ())                              \
    X(SL4008, Info,                                                                              \
      L"The Windows NT service received a stop message from the Windows NT service manager.",    \
      (), ())                                                                                    \
    X(SL4009, Info,                                                                              \
      L"The Windows NT service received a pause message from the Windows NT service manager.",   \
      (), ())                                                                                    \
    X(SL4010, Info, L"The Windows NT service is paused.", (), ())                                \
    X(SL4011, Info, L"The Windows NT service has stopped.", (), ())                              \
    X(SL4012, Info,                                                                              \
      L"The Windows NT service received a continue message from the Windows NT service "         \
      L"manager.",                                                                               \
      (), ())                                                                                    \
    X(SL4013, Info,                                                                              \
      L"The Windows NT service received an interrogate message from the Windows NT service "     \
      L"manager.",                                                                               \
      (), ())                                                                                    \
    X(SL4014, Info,                                                                              \
      L"The Windows NT service received a shutdown message from the Windows NT service "         \
      L"manager.",                                                                               \
      (), ())                                                                                    \
    X(SL4015, Info,                                                                              \
      L"The Windows NT service received a user control message from the Windows NT service "     \
      L"manager.",                                                                               \
      (), ())                                                                                    \
    X(SL4016, Info, L"%ls Version %d.%d", (, const wchar_t* name, int major, int minor),         \
      (, name, major, minor))                                                                    \
    X(SL4017, Info, L"The service is %ls installed", (, const wchar_t* state), (, state))        \
    X(SL4018, Info, L"%ls is already installed", (, const wchar_t* name), (, name))              \
    X(SL4019, Info, L"%ls installed", (, const wchar_t* name), (, name))                         \
    X(SL4020, Info, L"%ls is not installed", (, const wchar_t* name), (, name))                  \
    X(SL4021, Info, L"%ls removed.", (, const wchar_t* name), (, name))                          \
    X(SL4022, Info, L"Service Removed", (), ())                                                  \
    X(SL4023, Info, L"Service Not Removed", (), ())                                              \
    X(SL4024, Info, L"Service Started", (), ())                                                  \
    X(SL4025, Info, L"Service Control Stop message", (), ())                                     \
    X(SL4026, Info, L"Service Stopped", (), ())                                                  \
    X(SL4027, Info, L"Service Control Pause message", (), ())                                    \
    X(SL4028, Info, L"Service Paused", (), ())                                                   \
    X(SL4029, Info, L"Service Control Continue message", (), ())                                 \
    X(SL4031, Info, L"Service Control Shutdown message", (), ())                                 \
    X(SL4032, Info, L"Service Stopped", (), ())                                                  \
    X(SL4033, Info, L"Service User Control message", (), ())                                     \
    X(SL4034, Info,                                                                              \
      L"<%ls>: Product <%ls> Version <%ls> Pri Build <%ls> Special Build <%ls> Platform <%ls> "  \
      L"Debug threshold <%ls>.",                                                                 \
      (, const wchar_t* module, const wchar_t* product, const wchar_t* version,                  \
       const wchar_t* priBuild, const wchar_t* specialBuild, const wchar_t* platform,            \
       const wchar_t* threshold),                                                                \
      (, module, product, version, priBuild, specialBuild, platform, threshold))                 \
    X(SL4035, Info, L"An unexpected error occurred.", (), ())                                    \
    X(SL4036, Info,                                                                              \
      L"<%ls>: Product <%ls> Version <%ls> Pri Build <%ls> Special Build <%ls>.",                \
      (, const wchar_t* module, const wchar_t* product, const wchar_t* version,                  \
       const wchar_t* priBuild, const wchar_t* specialBuild),                                    \
      (, module, product, version, priBuild, specialBuild))                                      \
    X(SL4037, Info, L"Platform <%ls>.", (, const wchar_t* platform), (, platform))               \
    X(SL4038, Info, L"Debug threshold <%ls>.", (, const wchar_t* threshold), (, threshold))
