#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>

// Every test program runs under the user's locale, as the window program does, and an empty run fails.
int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
    if (testing::UnitTest::GetInstance()->test_to_run_count() == 0) {
        std::fputs("no test was run\n", stderr);
        return 1;
    }
    return result;
}
