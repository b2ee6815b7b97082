// The main of the tests that read Access databases: the running program is its own child, as in
// production.
#include <gtest/gtest.h>

#include "platform/bronnen/access.h"

int main(int argc, char** argv)
{
    plexoran::WerkAlsAccesskind(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
