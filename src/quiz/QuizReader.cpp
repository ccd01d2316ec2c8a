#include "quiz/QuizReader.h"

#include "quiz/rules/QuizSession.h"

#include <QAbstractButton>

#include <utility>

QuizReader::QuizReader(Speaker &speaker, QuizSession &session, const QuizOptions &options, QAbstractButton &button)
    : m_speaker(speaker)
    , m_canRead(speaker.isThere())
    , m_session(session)
    , m_options(options)
    , m_button(button)
{
    connect(&session, &QuizSession::questionShown, this, &QuizReader::onQuestion);
    connect(&session, &QuizSession::answerRevealed, this, &QuizReader::onRevealed);
    connect(&session, &QuizSession::judged, this, &QuizReader::onJudged);
    connect(&session, &QuizSession::roundEnded, this, &QuizReader::onRoundEnd);
    connect(&button, &QAbstractButton::clicked, this, [this] { read({question()}); });
}

QuizReader::~QuizReader()
{
    m_speaker.stop();
}

/// What stands under a heading that names no language is read as the user speaks.
Utterance QuizReader::utterance(const QString &text, const QString &heading)
{
    if (!m_names)
        m_names = std::make_unique<HeadingLanguages>();
    return {text, m_names->languageOf(heading).value_or(QLocale().language())};
}

Utterance QuizReader::question()
{
    return utterance(m_session.question().askedWord(), m_session.question().askedLanguage());
}

Utterance QuizReader::answer()
{
    return utterance(m_session.question().correctAnswer(), m_session.question().answerLanguage());
}

void QuizReader::onQuestion()
{
    m_answerRead = false;
    std::vector<Utterance> texts = std::exchange(m_answers, {});
    if (m_options.readQuestion)
        texts.push_back(question());
    read(texts);
    showButton();
}

/// Practice spells the answer out before it goes on; a hint gives away a part only.
void QuizReader::onRevealed()
{
    if (m_session.kind() != QuizKind::Practice || !m_options.readAnswer || std::exchange(m_answerRead, true))
        return;
    read({answer()});
}

void QuizReader::onJudged()
{
    if (m_options.readAnswer && !m_answerRead)
        m_answers.push_back(answer());
}

void QuizReader::onRoundEnd()
{
    read(std::exchange(m_answers, {}));
    m_button.hide();
}

void QuizReader::read(const std::vector<Utterance> &texts)
{
    if (texts.empty() || !m_canRead)
        return;
    m_speaker.say(texts);
    if (std::exchange(m_asked, true))
        return;
    m_speaker.askLanguages(this, [this](const Speaker::Languages &languages) {
        m_languages = languages;
        if (!m_session.done())
            showButton();
    });
}

void QuizReader::showButton()
{
    m_button.setVisible(m_canRead && (!m_languages || m_languages->contains(question().language)));
}
