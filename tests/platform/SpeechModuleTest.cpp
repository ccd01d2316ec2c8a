#include "platform/SpeechModule.h"

TEST(SpeechModule, WithoutItsFileThereIsNothingToReadWith)
{
    const QTemporaryDir folder;
    QFile broken(folder.filePath("broken.so"));
    EXPECT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("no library") > 0 && broken.flush());
    for (const QString &file : {folder.filePath("missing.so"), broken.fileName(), QString()}) {
        SpeechModule module(file);
        bool told = false;
        QObject context;
        module.stop();
        EXPECT_FALSE(module.isThere());
        module.askLanguages(&context, [&told](const Speaker::Languages &languages) { told = languages.isEmpty(); });
        EXPECT_TRUE(told);
        module.say({{"dog", QLocale::English}});
        module.stop();
    }
}
