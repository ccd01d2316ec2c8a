#include "platform/CommonControls.h"

TEST(CommonControls, VersionFromWhichTheProgramRuns)
{
    struct Case
    {
        int majorVersion;
        int minorVersion;
        bool enough;
    };
    for (const Case &each :
         {Case{3, 99, false}, {4, 71, false}, {4, 72, true}, {4, 100, true}, {5, 0, true}, {6, 4, true}})
        EXPECT_EQ(CommonControls::isRecentEnough(QVersionNumber(each.majorVersion, each.minorVersion)), each.enough);
    EXPECT_TRUE(CommonControls::isRecentEnough(CommonControls::version()));
}
