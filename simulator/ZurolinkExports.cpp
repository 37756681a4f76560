#include "simulator/ZurolinkExports.h"

#include "simulator/LibraryLocation.h"
#include "simulator/ResultCodes.h"
#include "simulator/Simulator.h"

#include <thread>

namespace {

using vantrel::simulator::Simulator;
namespace code = vantrel::simulator::code;

/// The one object of the process, made by the first call. The C interface hands nothing around that
/// could lead to an object, so this place alone has to know one.
Simulator& simulator() {
    static Simulator instance(vantrel::simulator::libraryFolder(),
                              [](auto time) { std::this_thread::sleep_for(time); });
    return instance;
}

/// Runs a function of the simulator so that no exception, running out of memory included, reaches
/// the caller, whose language may know none.
template <typename... Parameters, typename... Arguments>
short call(short failure, short (Simulator::*function)(Parameters...),
           Arguments... arguments) noexcept {
    try {
        return (simulator().*function)(arguments...);
    } catch (...) {
        return failure;
    }
}

} // namespace

short ZUROLINK_CALL BscOpen(const char* path, short type) {
    return call(-code::internalError, &Simulator::BscOpen, path, type);
}

short ZUROLINK_CALL BscSetCom(short handle, short port, int baudrate, short parity, short dataLen,
                              short stopBit) {
    return call(code::internalError, &Simulator::BscSetCom, handle, port, baudrate, parity, dataLen,
                stopBit);
}

short ZUROLINK_CALL BscSetEther(short handle, const char* ip, short mode, void* /*window*/) {
    return call(code::internalError, &Simulator::BscSetEther, handle, ip, mode);
}

short ZUROLINK_CALL BscConnect(short handle) {
    return call(code::internalError, &Simulator::BscConnect, handle);
}

short ZUROLINK_CALL BscDisConnect(short handle) {
    return call(code::internalError, &Simulator::BscDisConnect, handle);
}

short ZUROLINK_CALL BscClose(short handle) {
    return call(code::internalError, &Simulator::BscClose, handle);
}

short ZUROLINK_CALL BscFindFirst(short handle, char* buffer, short length) {
    return call(code::internalError, &Simulator::BscFindFirst, handle, buffer, length);
}

short ZUROLINK_CALL BscFindNext(short handle, char* buffer, short length) {
    return call(code::internalError, &Simulator::BscFindNext, handle, buffer, length);
}

short ZUROLINK_CALL BscDownLoad(short handle, const char* file) {
    return call(code::internalError, &Simulator::BscDownLoad, handle, file);
}

short ZUROLINK_CALL BscUpLoad(short handle, const char* file) {
    return call(code::internalError, &Simulator::BscUpLoad, handle, file);
}

short ZUROLINK_CALL BscSelectJob(short handle, const char* job) {
    return call(code::internalError, &Simulator::BscSelectJob, handle, job);
}

short ZUROLINK_CALL BscDeleteJob(short handle) {
    return call(code::internalError, &Simulator::BscDeleteJob, handle);
}

short ZUROLINK_CALL BscGetVarData(short handle, short kind, short number, double* values) {
    return call(code::internalError, &Simulator::BscGetVarData, handle, kind, number, values);
}

short ZUROLINK_CALL BscPutVarData(short handle, short kind, short number, const double* values) {
    return call(code::internalError, &Simulator::BscPutVarData, handle, kind, number, values);
}

const char* ZUROLINK_CALL ZurolinkSimulator(void) {
    return "Zurolink simulator";
}
