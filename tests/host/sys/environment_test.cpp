#include "ui/common/sys/environment.h"

#include <gtest/gtest.h>

#include <stdlib.h>

namespace sys {

TEST(Environment, SwitchIsOnForTheTextOneOnly)
{
    constexpr const char* name = "TESSERA_TEST_SWITCH";
    unsetenv(name);
    EXPECT_FALSE(environmentSwitch(name));
    for (const char* value : {"", "0", "2", "11", "01", " 1", "1 ", "true", "yes"}) {
        SCOPED_TRACE(value);
        setenv(name, value, 1);
        EXPECT_FALSE(environmentSwitch(name));
    }
    setenv(name, "1", 1);
    EXPECT_TRUE(environmentSwitch(name));
    unsetenv(name);
}

} // namespace sys
