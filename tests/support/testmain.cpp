#include "tests/support/otheruser.h"

// The main() of tests without a display; a test program that brings its own leaves this one out.
int main(int argc, char **argv) { return runTests(argc, argv, {}); }
