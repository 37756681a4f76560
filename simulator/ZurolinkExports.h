#pragma once

/// The binary interface of the communication library, as the stand-in offers it: C linkage, `short`
/// of 16 bits, texts in the ANSI code page, `values` ten doubles. Everything that differs between
/// systems is in the macros here.

// On Windows the definition file says what is exported, since it alone gives plain names.
#if defined(_WIN32)
#define ZUROLINK_EXPORT extern "C"
#else
#define ZUROLINK_EXPORT extern "C" __attribute__((visibility("default")))
#endif

// In 32 bits all are standard calls, and a caller on Windows may hand over a stack aligned to 4
// bytes only.
#if defined(__i386__)
#define ZUROLINK_CALL __attribute__((stdcall, force_align_arg_pointer))
#elif defined(_M_IX86)
#define ZUROLINK_CALL __stdcall
#else
#define ZUROLINK_CALL
#endif

ZUROLINK_EXPORT short ZUROLINK_CALL BscOpen(const char* path, short type);
ZUROLINK_EXPORT short ZUROLINK_CALL BscSetCom(short handle, short port, int baudrate, short parity,
                                              short dataLen, short stopBit);
ZUROLINK_EXPORT short ZUROLINK_CALL BscSetEther(short handle, const char* ip, short mode,
                                                void* window);
ZUROLINK_EXPORT short ZUROLINK_CALL BscConnect(short handle);
ZUROLINK_EXPORT short ZUROLINK_CALL BscDisConnect(short handle);
ZUROLINK_EXPORT short ZUROLINK_CALL BscClose(short handle);
ZUROLINK_EXPORT short ZUROLINK_CALL BscFindFirst(short handle, char* buffer, short length);
ZUROLINK_EXPORT short ZUROLINK_CALL BscFindNext(short handle, char* buffer, short length);
ZUROLINK_EXPORT short ZUROLINK_CALL BscDownLoad(short handle, const char* file);
ZUROLINK_EXPORT short ZUROLINK_CALL BscUpLoad(short handle, const char* file);
ZUROLINK_EXPORT short ZUROLINK_CALL BscSelectJob(short handle, const char* job);
ZUROLINK_EXPORT short ZUROLINK_CALL BscDeleteJob(short handle);
ZUROLINK_EXPORT short ZUROLINK_CALL BscGetVarData(short handle, short kind, short number,
                                                  double* values);
ZUROLINK_EXPORT short ZUROLINK_CALL BscPutVarData(short handle, short kind, short number,
                                                  const double* values);

/// What this library is, in ASCII; valid as long as the library is loaded. Only the stand-in has
/// it.
ZUROLINK_EXPORT const char* ZUROLINK_CALL ZurolinkSimulator(void);
