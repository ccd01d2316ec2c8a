#pragma once

#include "platform/Speaker.h"
#include "quiz/rules/HeadingLanguages.h"
#include "services/rules/QuizOptions.h"

#include <QObject>

#include <memory>
#include <optional>

class QAbstractButton;
class QuizSession;

/// Reads the words of a quiz aloud: those that the options want read, and the question when its button is pressed. The
/// button shows while there is a voice for the word that is asked. Ends reading when it goes.
class QuizReader : public QObject
{
public:
    /// speaker and session outlive the reader.
    QuizReader(Speaker &speaker, QuizSession &session, const QuizOptions &options, QAbstractButton &button);
    ~QuizReader() override;

private:
    Utterance utterance(const QString &text, const QString &heading);
    Utterance question();
    Utterance answer();
    void onQuestion();
    void onRevealed();
    void onJudged();
    void onRoundEnd();
    void read(const std::vector<Utterance> &texts);
    void showButton();

    Speaker &m_speaker;
    const bool m_canRead;
    QuizSession &m_session;
    QuizOptions m_options;
    QAbstractButton &m_button;
    std::unique_ptr<HeadingLanguages> m_names;
    std::optional<Speaker::Languages> m_languages; ///< that there is a voice for; nothing while that is not known
    std::vector<Utterance> m_answers;              ///< to be read before the next question
    bool m_answerRead = false;                     ///< the present one
    bool m_asked = false;                          ///< for the languages
};
