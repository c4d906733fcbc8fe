// GoogleTest main for every suite of the project.
#include <gtest/gtest.h>

#include <clocale>

int main(int argc, char** argv)
{
    // Narrow %S arguments and UTF-8 conversions in the host need a UTF-8 aware C library locale.
    std::setlocale(LC_ALL, "C.UTF-8");
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
