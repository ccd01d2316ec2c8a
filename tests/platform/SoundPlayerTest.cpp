#include "platform/SoundPlayer.h"

#include <QFile>
#include <QThread>

// The player found first on the search path is given a file with the sound.
TEST(SoundPlayer, PlayerOfTheDesktopPlaysTheSound)
{
    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir folder;
    qputenv("PATH", QFile::encodeName(folder.path()));
    DesktopSoundPlayer player("RIFF sound");
    player.play(); // no player, no sound
    QFile script(folder.filePath(QStringLiteral("aplay")));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write(
        "#!/bin/sh\n[ $1 = -q ] && while read -r line || [ \"$line\" ]; do echo \"$line\"; done < $2 > $0.heard\n");
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    script.close();
    player.play();
    QFile heard(script.fileName() + QStringLiteral(".heard"));
    for (int i = 0; i < 4000 && heard.size() == 0; ++i)
        QThread::msleep(5);
    EXPECT_TRUE(heard.open(QIODevice::ReadOnly));
    EXPECT_EQ(heard.readAll(), "RIFF sound\n");
    qputenv("PATH", path);
}
