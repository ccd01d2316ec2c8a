#include "quiz/QuizCommands.h"

#include "document/DocumentList.h"
#include "document/FileCommands.h"
#include "document/GridContent.h"
#include "document/rules/Vocabulary.h"
#include "quiz/GridWords.h"
#include "quiz/frmOva.h"
#include "quiz/rules/QuizMemory.h"
#include "resources/StringTable.h"
#include "services/AlertBox.h"
#include "services/settings/clsAppProperties.h"
#include "services/status/modSBFunc.h"

#include <QTimer>

namespace {

constexpr int NoQuiz = 12013;

/// The texts of each choice but the first: what the status bar says, and what is asked when there are no such words.
struct ChoiceTexts
{
    int note;
    int offer;
};

ChoiceTexts textsOf(WordsToAsk choice)
{
    const int place = int(choice) - int(WordsToAsk::SelectedRows);
    return {14316 + place, 14320 + place};
}

} // namespace

QuizCommands::QuizCommands(const Needs &needs, QObject *parent)
    : QObject(parent)
    , m_needs(needs)
{
    connect(&m_needs.documents, &DocumentList::activeChanged, this, &QuizCommands::refreshMode);
    connect(&m_needs.documents, &DocumentList::activeChanged, this, &QuizCommands::leftKindChanged);
    connect(&m_needs.documents, &DocumentList::created, this, &QuizCommands::watch);
    connect(&m_needs.documents, &DocumentList::removed, this, [this](frmDoc *document) { m_traces.erase(document); });
}

/// The number of selected words follows the selection, once for all that changes at a time.
void QuizCommands::watch(frmDoc *document)
{
    auto *later = new QTimer(document);
    later->setSingleShot(true);
    connect(later, &QTimer::timeout, this, &QuizCommands::refreshMode);
    connect(document->Rutor(), &ctlGrid::SelChange, later, [this, later] {
        if (m_choice == WordsToAsk::SelectedRows)
            later->start(0);
    });
}

void QuizCommands::refreshMode()
{
    if (frmDoc *document = m_needs.documents.active())
        document->setQuizModeNote(modeNote(*document));
}

void QuizCommands::setWordsToAsk(WordsToAsk choice)
{
    m_choice = choice;
    refreshMode();
}

bool QuizCommands::canChoose(WordsToAsk choice) const
{
    return m_needs.memory || (choice != WordsToAsk::Due && choice != WordsToAsk::Hardest);
}

std::vector<int> QuizCommands::rowsToAsk(const frmDoc &document, WordsToAsk choice) const
{
    const auto traces = m_traces.find(&document);
    const GridSelection selection = document.selection();
    return AskedWords::rows(choice, GridWords(*document.Rutor()),
                            {.mode = m_needs.settings.QuizMode(),
                             .firstRow = selection.top(),
                             .lastRow = selection.bottom(),
                             .missed = traces == m_traces.end() ? QSet<WordPair>() : traces->second.missed,
                             .memory = m_needs.memory});
}

/// Which words are asked, and how many; empty for all.
QString QuizCommands::modeNote(const frmDoc &document) const
{
    if (m_choice == WordsToAsk::All)
        return {};
    return resText(textsOf(m_choice).note).arg(rowsToAsk(document, m_choice).size());
}

/// Nothing when the user does not want to be asked. Where even all words are too few for a quiz, all are taken.
std::optional<AskedRows> QuizCommands::askedRows(const frmDoc &document, QuizKind kind)
{
    if (m_choice == WordsToAsk::All)
        return AskedRows();
    const std::vector<int> chosen = rowsToAsk(document, m_choice);
    if (!chosen.empty())
        return AskedWords::only(chosen);
    if (int(rowsToAsk(document, WordsToAsk::All).size()) < QuestionTable::fewestWords(kind))
        return AskedRows();
    const QString offer = resText(textsOf(m_choice).offer);
    if (m_needs.alert.show(&m_needs.window, {.prompt = offer, .buttons = Alert::YesNo}) != AlertBox::AnswerYes)
        return std::nullopt;
    setWordsToAsk(WordsToAsk::All);
    return AskedRows();
}

void QuizCommands::start(QuizKind kind)
{
    frmDoc *document = m_needs.documents.active();
    std::optional<AskedRows> rows = document ? askedRows(*document, kind) : std::nullopt;
    if (!rows)
        return;
    rows->most = m_needs.settings.quizOptions().mostWords;
    frmOva quiz(m_needs.settings, m_needs.random, m_needs.errorSound, &m_needs.window);
    quiz.setQuizType(qint16(kind));
    quiz.setAskedRows(*rows);
    quiz.setWordFamily(document->Rutor()->Font().family());
    quiz.setSpeaker(m_needs.speaker);
    quiz.Form_Load(GridWords(*document->Rutor()), *document->frame(), document->Caption());
    if (quiz.Tag() == u"1")
        run(quiz, *document);
    else
        m_needs.status.ShowStatus(NoQuiz);
}

std::optional<QuizKind> QuizCommands::leftKind() const
{
    const auto traces = m_traces.find(m_needs.documents.active());
    if (traces == m_traces.end() || !traces->second.left.session)
        return std::nullopt;
    return traces->second.left.session->kind();
}

void QuizCommands::goOn()
{
    if (!leftKind())
        return;
    frmDoc &document = *m_needs.documents.active();
    frmOva quiz(m_needs.settings, m_needs.random, m_needs.errorSound, &m_needs.window);
    quiz.setWordFamily(document.Rutor()->Font().family());
    quiz.setSpeaker(m_needs.speaker);
    quiz.resume(std::move(m_traces.at(&document).left), *document.frame(), document.Caption());
    run(quiz, document);
}

/// Has the answers of a quiz remembered, if the user wants that.
std::unique_ptr<QuizMemory> QuizCommands::remember(frmOva &quiz, const frmDoc &document) const
{
    if (!m_needs.memory || !m_needs.settings.quizOptions().rememberAnswers)
        return {};
    auto memory = std::make_unique<QuizMemory>(
        *quiz.session(), *m_needs.memory, AskedWords::keys(GridWords(*document.Rutor()), m_needs.settings.QuizMode()));
    quiz.setRoundNote([&memory = *memory] { return memory.nextDue(); });
    return memory;
}

/// Who has answered nothing has left no quiz, and the one left before stays.
void QuizCommands::run(frmOva &quiz, frmDoc &document)
{
    const std::unique_ptr<QuizMemory> memory = remember(quiz, document);
    quiz.exec();
    const std::vector<frmDoc *> &open = m_needs.documents.open();
    if (std::find(open.begin(), open.end(), &document) == open.end())
        return;
    LeftQuiz left = quiz.takeQuiz();
    if (left.missed->hasBegun()) {
        Traces &traces = m_traces[&document];
        traces.missed = left.missed->words();
        if (quiz.isToKeepMissed())
            keep(left.missed->ofRound(), document);
        if (!left.session->done())
            traces.left = std::move(left);
    }
    refreshMode();
    Q_EMIT leftKindChanged();
}

/// A word that was missed both ways is kept once.
void QuizCommands::keep(const std::vector<MissedAnswer> &answers, const frmDoc &document)
{
    Vocabulary kept;
    kept.font = GridContent::font(*document.Rutor());
    kept.append(document.language(1), document.language(2));
    QSet<WordPair> known;
    for (const MissedAnswer &each : answers) {
        const WordPair words = each.words();
        if (!known.contains(words))
            kept.append(words.first, words.second);
        known.insert(words);
    }
    m_needs.files.openUntitled(std::move(kept));
}
