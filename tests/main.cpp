#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv) {
    // No window of a test belongs on a desktop; where the system owns the windows this says nothing.
    static char display[] = "TAVLON_DISPLAY=headless";
    putenv(display);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
