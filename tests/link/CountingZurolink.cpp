// A communication library for the binding's tests. Its handles are counted from 1, anew each time
// that it is loaded, and no link can be disconnected.

#include "link/Zurolink.h"

#define EXPORTED(arguments) __attribute__((visibility("default"))) short ZUROLINK_CALL arguments

namespace {

short links = 0;

} // namespace

extern "C" {

EXPORTED(BscOpen(const char*, short)) {
    return ++links;
}
EXPORTED(BscDisConnect(short)) {
    return 0;
}
EXPORTED(BscClose(short)) {
    return 0;
}

EXPORTED(BscSetCom(short, short, int, short, short, short)) {
    return 1;
}
EXPORTED(BscSetEther(short, const char*, short, void*)) {
    return 1;
}
EXPORTED(BscConnect(short)) {
    return 1;
}
EXPORTED(BscFindFirst(short, char*, short)) {
    return -1;
}
EXPORTED(BscFindNext(short, char*, short)) {
    return -1;
}
EXPORTED(BscDownLoad(short, const char*)) {
    return 0;
}
EXPORTED(BscUpLoad(short, const char*)) {
    return 0;
}
EXPORTED(BscSelectJob(short, const char*)) {
    return 0;
}
EXPORTED(BscDeleteJob(short)) {
    return 0;
}
EXPORTED(BscGetVarData(short, short, short, double*)) {
    return 0;
}
EXPORTED(BscPutVarData(short, short, short, const double*)) {
    return 0;
}

} // extern "C"
