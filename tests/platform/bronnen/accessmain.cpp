// The main of the tests that read Access databases: the running program is its own child, as in
// production.
#include <gtest/gtest.h>

#include "platform/bronnen/accesskind.h"

int main(int argc, char** argv)
{
    if (const auto eindstatus = plexoran::AlsAccesskind(argc, argv))
        return *eindstatus;
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
