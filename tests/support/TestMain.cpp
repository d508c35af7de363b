#include "support/NamedEnd.h"

#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    gfc::test::NameTheTestOfAnEnd();
    return RUN_ALL_TESTS();
}
