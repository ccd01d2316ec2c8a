#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// The settings as they are stored: every one but the font's name, in 39 bytes. The initial values are those of a first
/// run.
struct SettingsRecord
{
    static constexpr int StoredSize = 39;

    qint16 AppWinState = 0;
    bool AutoCheck = false;
    qint32 AutoTimerInterval = 0;
    bool ErrorBeep = true;
    bool ErrorHint = false;
    bool FontBold = false;
    qint32 FontColor = 0;
    bool FontItalic = false;
    qint16 FontSize = 10;
    qint16 QuizMode = 1;
    qint32 WinPosBottom = -1;
    qint32 WinPosLeft = -1;
    qint32 WinPosRight = -1;
    /// Its most significant byte is not stored and reads back as 0.
    qint32 WinPosTop = -1;

    bool operator==(const SettingsRecord &) const = default;

    /// Always StoredSize bytes.
    QByteArray toBytes() const;
    /// Bytes that are missing count as 0, bytes beyond StoredSize are ignored. Values come as stored, in range or not.
    static SettingsRecord fromBytes(QByteArrayView bytes);
};
