#pragma once

#include <QByteArray>

#include <memory>

class QTemporaryFile;

/// Plays one sound.
class SoundPlayer
{
public:
    virtual ~SoundPlayer() = default;

    /// Returns at once; without a sound device nothing is heard, and that is no error.
    virtual void play() = 0;
};

/// Plays a sound through whichever player the desktop has, as a process of its own: the sound server may take its time
/// or hang without the window noticing. The sound is written to a temporary file when it is first played.
class DesktopSoundPlayer : public SoundPlayer
{
public:
    /// The bytes of a WAV file.
    explicit DesktopSoundPlayer(const QByteArray &wave);
    ~DesktopSoundPlayer() override;

    void play() override;

private:
    bool writeFile();

    QByteArray m_wave;
    std::unique_ptr<QTemporaryFile> m_file;
};
