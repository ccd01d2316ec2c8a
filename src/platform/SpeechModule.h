#pragma once

#include "platform/Speaker.h"

#include <memory>

/// The speaker in the program's speech module. That is a file of its own, loaded when it is first asked for: so the
/// program starts, and runs, where the libraries that it needs are not installed.
class SpeechModule : public Speaker
{
public:
    /// The function by which the module hands out a speaker, which the caller owns.
    using Make = Speaker *(*)();
    static constexpr char MakeName[] = "glosariaSpeaker";

    /// The module's file, which need not be there.
    explicit SpeechModule(const QString &file)
        : m_file(file)
    {
    }

    bool isThere() override;
    void askLanguages(QObject *context, const std::function<void(const Languages &)> &tell) override;
    void say(const std::vector<Utterance> &texts) override;
    void stop() override;

private:
    Speaker *loaded();

    QString m_file;
    std::unique_ptr<Speaker> m_speaker; ///< null before it is needed, and where it cannot be loaded
};
