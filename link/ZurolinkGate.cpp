#include "link/ZurolinkGate.h"

namespace vantrel {

std::int16_t ZurolinkGate::BscOpen(const char* path, std::int16_t type) {
    return enter().BscOpen(path, type);
}

std::int16_t ZurolinkGate::BscSetCom(std::int16_t handle, std::int16_t port, std::int32_t baudrate,
                                     std::int16_t parity, std::int16_t dataLen,
                                     std::int16_t stopBit) {
    return enter().BscSetCom(handle, port, baudrate, parity, dataLen, stopBit);
}

std::int16_t ZurolinkGate::BscSetEther(std::int16_t handle, const char* ip, std::int16_t mode,
                                       void* window) {
    return enter().BscSetEther(handle, ip, mode, window);
}

std::int16_t ZurolinkGate::BscConnect(std::int16_t handle) {
    return enter().BscConnect(handle);
}

std::int16_t ZurolinkGate::BscDisConnect(std::int16_t handle) {
    return enter().BscDisConnect(handle);
}

std::int16_t ZurolinkGate::BscClose(std::int16_t handle) {
    return enter().BscClose(handle);
}

std::int16_t ZurolinkGate::BscFindFirst(std::int16_t handle, char* buffer, std::int16_t length) {
    return enter().BscFindFirst(handle, buffer, length);
}

std::int16_t ZurolinkGate::BscFindNext(std::int16_t handle, char* buffer, std::int16_t length) {
    return enter().BscFindNext(handle, buffer, length);
}

std::int16_t ZurolinkGate::BscDownLoad(std::int16_t handle, const char* file) {
    return enter().BscDownLoad(handle, file);
}

std::int16_t ZurolinkGate::BscUpLoad(std::int16_t handle, const char* file) {
    return enter().BscUpLoad(handle, file);
}

std::int16_t ZurolinkGate::BscSelectJob(std::int16_t handle, const char* job) {
    return enter().BscSelectJob(handle, job);
}

std::int16_t ZurolinkGate::BscDeleteJob(std::int16_t handle) {
    return enter().BscDeleteJob(handle);
}

std::int16_t ZurolinkGate::BscGetVarData(std::int16_t handle, std::int16_t kind,
                                         std::int16_t number, double* values) {
    return enter().BscGetVarData(handle, kind, number, values);
}

std::int16_t ZurolinkGate::BscPutVarData(std::int16_t handle, std::int16_t kind,
                                         std::int16_t number, const double* values) {
    return enter().BscPutVarData(handle, kind, number, values);
}

} // namespace vantrel
