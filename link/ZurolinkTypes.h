#pragma once

#include <cstdint>

/// How the library's functions are called: standard call in programs of 32 bits, where that differs
/// from the ordinary call. The maker's library has that on Windows; Linux follows, so that the
/// convention is tried where programs of 32 bits can be run.
#if defined(__i386__)
#define ZUROLINK_CALL __attribute__((stdcall))
#elif defined(_M_IX86)
#define ZUROLINK_CALL __stdcall
#else
#define ZUROLINK_CALL
#endif

namespace vantrel {

/// The signatures of the library's functions. `short` has 16 bits and `int` 32 on every system that
/// the library exists for.
struct ZurolinkTypes {
    using BscOpen = short(ZUROLINK_CALL*)(const char* path, short type);
    using BscSetCom = short(ZUROLINK_CALL*)(short handle, short port, int baudrate, short parity,
                                            short dataLen, short stopBit);
    using BscSetEther = short(ZUROLINK_CALL*)(short handle, const char* ip, short mode,
                                              void* window);
    using HandleOnly = short(ZUROLINK_CALL*)(short handle);
    using Find = short(ZUROLINK_CALL*)(short handle, char* buffer, short length);
    using Named = short(ZUROLINK_CALL*)(short handle, const char* name);
    using BscGetVarData = short(ZUROLINK_CALL*)(short handle, short kind, short number,
                                                double* values);
    using BscPutVarData = short(ZUROLINK_CALL*)(short handle, short kind, short number,
                                                const double* values);
    /// Only a stand-in has it: "ZurolinkSimulator".
    using SimulatorName = const char*(ZUROLINK_CALL*)();
};

static_assert(sizeof(short) == sizeof(std::int16_t) && sizeof(int) == sizeof(std::int32_t));

} // namespace vantrel
