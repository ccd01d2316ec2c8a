#pragma once

#include "quiz/rules/LeftQuiz.h"
#include "quiz/rules/WordsToAsk.h"

#include <QObject>

#include <map>
#include <memory>
#include <optional>

class AlertBox;
class AnswerMemory;
class DocumentList;
class FileCommands;
class QuizMemory;
class RandomSource;
class SoundPlayer;
class Speaker;
class clsAppProperties;
class frmDoc;
class frmOva;
class modSBFunc;

/// The commands of the Quiz menu. Owns what is chosen for quizzes but not stored, and what quizzes leave behind about
/// each open document.
class QuizCommands : public QObject
{
    Q_OBJECT

public:
    /// What the commands work with; all of it outlives them.
    struct Needs
    {
        DocumentList &documents;
        FileCommands &files;
        clsAppProperties &settings;
        AlertBox &alert;
        modSBFunc &status;
        RandomSource &random;
        SoundPlayer &errorSound;
        QWidget &window;                ///< parent of the quiz windows
        AnswerMemory *memory = nullptr; ///< null: there is none
        Speaker *speaker = nullptr;     ///< the same
    };

    explicit QuizCommands(const Needs &needs, QObject *parent = nullptr);

    /// Asks the words of the active document. When the user wants only some of them and there are none, a box offers
    /// all.
    void start(QuizKind kind);
    /// Takes up the quiz about the active document that was left last before its end.
    void goOn();
    /// The kind of that quiz; nothing when there is none.
    std::optional<QuizKind> leftKind() const;

    /// All words when the program starts.
    WordsToAsk wordsToAsk() const { return m_choice; }
    void setWordsToAsk(WordsToAsk choice);
    /// What can only be told from a memory cannot be chosen without one.
    bool canChoose(WordsToAsk choice) const;

    /// To be called when the quiz mode has changed: brings the status bar up to date.
    void refreshMode();

Q_SIGNALS:
    /// Another quiz, or none, can be taken up now.
    void leftKindChanged();

private:
    /// What quizzes have left behind about a document.
    struct Traces
    {
        QSet<WordPair> missed; ///< in the last quiz
        LeftQuiz left;         ///< before its end; without a session when there is none
    };

    void watch(frmDoc *document);
    std::vector<int> rowsToAsk(const frmDoc &document, WordsToAsk choice) const;
    std::optional<AskedRows> askedRows(const frmDoc &document, QuizKind kind);
    std::unique_ptr<QuizMemory> remember(frmOva &quiz, const frmDoc &document) const;
    void run(frmOva &quiz, frmDoc &document);
    void keep(const std::vector<MissedAnswer> &answers, const frmDoc &document);
    QString modeNote(const frmDoc &document) const;

    Needs m_needs;
    WordsToAsk m_choice = WordsToAsk::All;
    std::map<const frmDoc *, Traces> m_traces;
};
