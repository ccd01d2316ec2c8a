#include "platform/SpeechModule.h"

TEST(SpeechModule, WithoutItsFileThereIsNothingToReadWith)
{
    SpeechModule module("/missing.so");
    module.say({{"dog", QLocale::English}});
    module.stop();
    EXPECT_FALSE(module.isThere());
    bool told = false;
    module.askLanguages(nullptr, [&told](const Speaker::Languages &languages) { told = languages.isEmpty(); });
    EXPECT_TRUE(told);
}
