#include "platform/SoundPlayer.h"

// The player found first on the search path is given a file with the sound.
TEST(SoundPlayer, PlayerOfTheDesktopPlaysTheSound)
{
    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir folder;
    qputenv("PATH", QFile::encodeName(folder.path()));
    DesktopSoundPlayer player("RIFF sound");
    player.play(); // no player, no sound
    const QString script =
        writeFile(folder.filePath("aplay"), "#!/bin/sh\n[ $1 = -q ] && while read -r line || [ \"$line\" ];"
                                            " do echo \"$line\"; done < $2 > $0.heard\n");
    QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner);
    player.play();
    for (int i = 0; i < 4000 && QFileInfo(script + ".heard").size() == 0; ++i)
        QThread::msleep(5);
    EXPECT_EQ(readFile(script + ".heard"), "RIFF sound\n");
    qputenv("PATH", path);
}
