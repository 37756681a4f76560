extern "C" __attribute__((visibility("default"))) int vantrelTestAnswer() {
    return 42;
}
