// A library for the test of loading one at run time.
extern "C" int twice(int value) {
    return 2 * value;
}
