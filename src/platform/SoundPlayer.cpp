#include "platform/SoundPlayer.h"

#include "platform/DetachedProcess.h"

#include <QDir>
#include <QTemporaryFile>

namespace {

struct Player
{
    const char *program;
    QStringList options;
};

/// The first that is installed plays: the one for the usual sound servers, the one for PipeWire alone, and the one that
/// needs no server.
const Player Players[] = {{"paplay", {}}, {"pw-play", {}}, {"aplay", {QStringLiteral("-q")}}};

} // namespace

DesktopSoundPlayer::DesktopSoundPlayer(const QByteArray &wave)
    : m_wave(wave)
{
}

DesktopSoundPlayer::~DesktopSoundPlayer() = default;

void DesktopSoundPlayer::play()
{
    if (!m_file && !writeFile())
        return;
    for (const Player &player : Players) {
        if (DetachedProcess::start(QString::fromLatin1(player.program),
                                   player.options + QStringList(m_file->fileName())))
            return;
    }
}

bool DesktopSoundPlayer::writeFile()
{
    auto file = std::make_unique<QTemporaryFile>(QDir::tempPath() + QStringLiteral("/glosaria-XXXXXX.wav"));
    if (!file->open() || file->write(m_wave) != m_wave.size() || !file->flush())
        return false;
    m_file = std::move(file);
    return true;
}
