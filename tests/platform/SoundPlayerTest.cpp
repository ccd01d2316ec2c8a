#include "platform/SoundPlayer.h"

#include "support/FileSizeLimit.h"

// The player found first on the search path is given a file with the sound.
TEST(SoundPlayer, PlayerOfTheDesktopPlaysTheSound)
{
    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir folder;
    qputenv("PATH", folder.path().toUtf8());
    DesktopSoundPlayer player("RIFF sound");
    player.play(); // no player, no sound
    const QString heard = folder.filePath("heard");
    for (const QString name : {"aplay", "paplay"}) {
        const QString script = writeFile(folder.filePath(name), "#!/bin/sh\n[ $1 = -q ] && shift\nread -r line < $1\n"
                                                                "echo \"${0##*/} $line\" >> ${0%/*}/heard\n");
        QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner);
        FileSizeLimit(3), DesktopSoundPlayer("RIFF nothing").play(); // while the disk is full
        player.play();
        for (int i = 0; i < 4000 && (!QFile::exists(heard) || !readFile(heard).contains(name.toUtf8() + " RIFF")); ++i)
            QThread::msleep(5);
    }
    EXPECT_EQ(readFile(heard), "aplay RIFF sound\npaplay RIFF sound\n");
    qputenv("PATH", path);
}
