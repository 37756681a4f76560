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

/// The robot maker's communication library: the fourteen functions that are used, under their own
/// names. Texts are in the ANSI code page. Only the session calls them.
class Zurolink {
  public:
    virtual ~Zurolink() = default;

    /// A link handle >= 0; negative on failure.
    virtual std::int16_t BscOpen(const char* path, std::int16_t type) = 0;
    virtual std::int16_t BscSetCom(std::int16_t handle, std::int16_t port, std::int32_t baudrate,
                                   std::int16_t parity, std::int16_t dataLen,
                                   std::int16_t stopBit) = 0; ///< 1 on success
    virtual std::int16_t BscSetEther(std::int16_t handle, const char* ip, std::int16_t mode,
                                     void* window) = 0;          ///< 1 on success
    virtual std::int16_t BscConnect(std::int16_t handle) = 0;    ///< 1 on success
    virtual std::int16_t BscDisConnect(std::int16_t handle) = 0; ///< 1 on success
    virtual std::int16_t BscClose(std::int16_t handle) = 0;      ///< 0 on success
    /// 0: an entry was written to the buffer; -1: no more entries; other: error.
    virtual std::int16_t BscFindFirst(std::int16_t handle, char* buffer, std::int16_t length) = 0;
    virtual std::int16_t BscFindNext(std::int16_t handle, char* buffer, std::int16_t length) = 0;
    virtual std::int16_t BscDownLoad(std::int16_t handle, const char* file) = 0; ///< 0 on success
    virtual std::int16_t BscUpLoad(std::int16_t handle, const char* file) = 0;   ///< 0 on success
    virtual std::int16_t BscSelectJob(std::int16_t handle, const char* job) = 0; ///< 0 on success
    virtual std::int16_t BscDeleteJob(std::int16_t handle) = 0;                  ///< 0 on success
    /// `values` is ten numbers; 0 on success.
    virtual std::int16_t BscGetVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                                       double* values) = 0;
    virtual std::int16_t BscPutVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                                       const double* values) = 0;
};

} // namespace vantrel
