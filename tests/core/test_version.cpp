#include <gtest/gtest.h>

#include <cstring>

#include "zeli.h"

TEST(Version, RecordIsConstantAndExact) {
    const ZelLibraryVersion* v = zeliGetLibVersion();
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v, zeliGetLibVersion());
    EXPECT_EQ(v->major, 5);
    EXPECT_EQ(v->minor, 3);
    EXPECT_EQ(v->majorBuild, 85);
    EXPECT_EQ(v->build, 502);
    EXPECT_EQ(std::memcmp(v->targetCpu, "v8\0\0", 4), 0);
    EXPECT_STREQ(v->Name, "libzeliv8-5.3.dylib");
    EXPECT_STREQ(v->Version, "5.3 Update 2 build 85.21");
    EXPECT_STREQ(v->BuildDate, "Feb 18 2008");
}
