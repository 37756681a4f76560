// A communication library that lacks most of its functions, for the binding's tests.

extern "C" __attribute__((visibility("default"))) short BscOpen(const char*, short) {
    return 1;
}

extern "C" __attribute__((visibility("default"))) short BscConnect(short) {
    return 1;
}
