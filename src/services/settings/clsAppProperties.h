#pragma once

#include "services/rules/QuizOptions.h"
#include "services/settings/SettingsRecord.h"

#include <QRect>
#include <QString>

class RegistryStore;

/// The user's settings for the whole run. Start-up reads them once, the main window stores them when it closes. A value
/// that would do harm is replaced when it is set or read: see each setter.
class clsAppProperties
{
public:
    /// Holds the values of a first run. The store outlives this object; programPath is the program's own file, which a
    /// first run registers for vocabulary files.
    clsAppProperties(RegistryStore &store, const QString &programPath);

    bool FontItalic() const { return m_values.FontItalic; }
    void setFontItalic(bool italic) { m_values.FontItalic = italic; }
    bool FontBold() const { return m_values.FontBold; }
    void setFontBold(bool bold) { m_values.FontBold = bold; }
    /// 0x00BBGGRR.
    int FontColor() const { return m_values.FontColor; }
    void setFontColor(int color) { m_values.FontColor = color; }
    /// Points, 1 to LargestFontSize; the first run's size stands in for 0 and less.
    int FontSize() const { return m_values.FontSize; }
    void setFontSize(int points);
    /// Never empty: the first run's typeface stands in.
    QString FontName() const { return m_fontName; }
    void setFontName(const QString &name);

    /// The main window's height, width, left and top edge in twips, as stored: they may lie anywhere.
    int WinPosBottom() const { return m_values.WinPosBottom; }
    void setWinPosBottom(int twips) { m_values.WinPosBottom = twips; }
    int WinPosRight() const { return m_values.WinPosRight; }
    void setWinPosRight(int twips) { m_values.WinPosRight = twips; }
    int WinPosLeft() const { return m_values.WinPosLeft; }
    void setWinPosLeft(int twips) { m_values.WinPosLeft = twips; }
    int WinPosTop() const { return m_values.WinPosTop; }
    void setWinPosTop(int twips) { m_values.WinPosTop = twips; }
    /// 0 normal, 1 minimized, 2 maximized; a stored one may be anything.
    int AppWinState() const { return m_values.AppWinState; }
    void setAppWinState(int state) { m_values.AppWinState = qint16(state); }

    /// Milliseconds; 0 stands in for less.
    int AutoTimerInterval() const { return m_values.AutoTimerInterval; }
    void setAutoTimerInterval(int milliseconds);
    /// 1 to 5; 1 stands in for anything else.
    int QuizMode() const { return m_values.QuizMode; }
    void setQuizMode(int mode);
    bool AutoCheck() const { return m_values.AutoCheck; }
    void setAutoCheck(bool check) { m_values.AutoCheck = check; }
    bool ErrorHint() const { return m_values.ErrorHint; }
    void setErrorHint(bool hint) { m_values.ErrorHint = hint; }
    bool ErrorBeep() const { return m_values.ErrorBeep; }
    void setErrorBeep(bool beep) { m_values.ErrorBeep = beep; }

    const QuizOptions &quizOptions() const { return m_quizOptions; }
    /// A number of words below 0 or above QuizOptions::MostWords is taken as 0.
    void setQuizOptions(const QuizOptions &options);

    /// Place and size of the quiz window in pixels, an empty rectangle if none is remembered; one that no screen can
    /// have is not taken.
    QRect QuizWindow() const { return m_quizWindow; }
    void setQuizWindow(const QRect &place);

    /// Below each grid stand the letters that the keyboard may lack.
    bool ShowLetters() const { return m_showLetters; }
    void setShowLetters(bool show) { m_showLetters = show; }

    /// How large vocabularies are shown, in percent, as stored: it may be anything.
    int GridZoom() const { return m_gridZoom; }
    void setGridZoom(int percent) { m_gridZoom = percent; }

    static constexpr int LargestFontSize = 2048;
    static constexpr int NormalZoom = 100;

    /// Takes the stored settings. Without any, which is a first run, it takes the defaults and registers the file type.
    /// Throws RegistryError when that fails; the settings are usable all the same.
    void ReadProperties();
    /// Stores the settings. Throws RegistryError.
    void SaveProperties() const;

    /// True when ReadProperties found no settings key.
    bool firstRun() const { return m_firstRun; }

private:
    void setFrom(const SettingsRecord &record);

    RegistryStore &m_store;
    QString m_programPath;
    SettingsRecord m_values;
    QString m_fontName;
    QuizOptions m_quizOptions;
    bool m_showLetters = false;
    QRect m_quizWindow;
    int m_gridZoom = NormalZoom;
    bool m_firstRun = false;
};
