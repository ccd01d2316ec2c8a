#include "services/settings/SettingsRecord.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace {

constexpr int FullSize = 40;

/// Where each field stands. The flag for AutoCheck is written twice; the first one decides.
enum Offset {
    AtAppWinState = 0,
    AtAutoCheck = 2,
    AtAutoCheckAgain = 3,
    AtAutoTimerInterval = 4,
    AtErrorBeep = 8,
    AtErrorHint = 9,
    AtFontBold = 10,
    AtFontColor = 12,
    AtFontItalic = 16,
    AtFontSize = 18,
    AtQuizMode = 20,
    AtWinPosBottom = 24,
    AtWinPosLeft = 28,
    AtWinPosRight = 32,
    AtWinPosTop = 36
};

} // namespace

QByteArray SettingsRecord::toBytes() const
{
    std::array<char, FullSize> record = {};
    char *data = record.data();
    qToLittleEndian(AppWinState, data + AtAppWinState);
    record[AtAutoCheck] = record[AtAutoCheckAgain] = char(AutoCheck);
    qToLittleEndian(AutoTimerInterval, data + AtAutoTimerInterval);
    record[AtErrorBeep] = char(ErrorBeep);
    record[AtErrorHint] = char(ErrorHint);
    record[AtFontBold] = char(FontBold);
    qToLittleEndian(FontColor, data + AtFontColor);
    record[AtFontItalic] = char(FontItalic);
    qToLittleEndian(FontSize, data + AtFontSize);
    qToLittleEndian(QuizMode, data + AtQuizMode);
    qToLittleEndian(WinPosBottom, data + AtWinPosBottom);
    qToLittleEndian(WinPosLeft, data + AtWinPosLeft);
    qToLittleEndian(WinPosRight, data + AtWinPosRight);
    qToLittleEndian(WinPosTop, data + AtWinPosTop);
    return QByteArray(data, StoredSize);
}

SettingsRecord SettingsRecord::fromBytes(QByteArrayView bytes)
{
    std::array<char, FullSize> record = {};
    const QByteArrayView stored = bytes.first(std::min<qsizetype>(bytes.size(), StoredSize));
    std::copy(stored.begin(), stored.end(), record.begin());
    const char *data = record.data();
    SettingsRecord values;
    values.AppWinState = qFromLittleEndian<qint16>(data + AtAppWinState);
    values.AutoCheck = record[AtAutoCheck] != 0;
    values.AutoTimerInterval = qFromLittleEndian<qint32>(data + AtAutoTimerInterval);
    values.ErrorBeep = record[AtErrorBeep] != 0;
    values.ErrorHint = record[AtErrorHint] != 0;
    values.FontBold = record[AtFontBold] != 0;
    values.FontColor = qFromLittleEndian<qint32>(data + AtFontColor);
    values.FontItalic = record[AtFontItalic] != 0;
    values.FontSize = qFromLittleEndian<qint16>(data + AtFontSize);
    values.QuizMode = qFromLittleEndian<qint16>(data + AtQuizMode);
    values.WinPosBottom = qFromLittleEndian<qint32>(data + AtWinPosBottom);
    values.WinPosLeft = qFromLittleEndian<qint32>(data + AtWinPosLeft);
    values.WinPosRight = qFromLittleEndian<qint32>(data + AtWinPosRight);
    values.WinPosTop = qFromLittleEndian<qint32>(data + AtWinPosTop);
    return values;
}
