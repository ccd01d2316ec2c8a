#include "platform/SoundPlayer.h"

#include "support/ToolFolder.h"

#include <QFile>

TEST(SoundPlayer, FirstPlayerOfTheDesktopPlaysTheSound)
{
    ToolFolder tools;
    DesktopSoundPlayer player("RIFF sound");
    player.play(); // no player, no sound
    tools.addTool(QStringLiteral("aplay"));
    player.play();
    const QStringList first = tools.calls(1);
    ASSERT_EQ(first.size(), 1);
    ASSERT_TRUE(first.at(0).startsWith(QStringLiteral("aplay -q "))) << qPrintable(first.at(0));
    QFile file(first.at(0).section(QLatin1Char(' '), 2));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "RIFF sound");
    tools.addTool(QStringLiteral("paplay"));
    player.play();
    EXPECT_EQ(tools.calls(2), (QStringList{first.at(0), QStringLiteral("paplay ") + file.fileName()}));
}
