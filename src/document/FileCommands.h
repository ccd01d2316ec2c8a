#pragma once

#include "document/DocumentCloser.h"
#include "document/rules/file/VocabularyCodec.h"

#include <QObject>

class AlertBox;
class DocumentCopies;
class DocumentList;
class FilePrompts;
class VocabularyFile;
class clsMRUFileList;
class frmDoc;
class modSBFunc;
struct FileStamp;

/// The commands that act on documents as files: New, Open, Save, Save As, Close, with the reading and writing of
/// vocabularies, their messages and the question before changes are lost.
class FileCommands : public QObject, private DocumentCloser
{
    Q_OBJECT

public:
    /// What the commands work with.
    struct Needs
    {
        DocumentList &documents;
        clsMRUFileList &recentFiles;
        modSBFunc &status;
        AlertBox &alert;
        FilePrompts &prompts;
        DocumentCopies &copies;
    };

    /// codePage is the character set of vocabulary files.
    FileCommands(const Needs &needs, const CodePage &codePage, QObject *parent = nullptr);

    void newDocument();
    /// Opens words as a document that has no file yet and is changed. Names of the languages that they lack are those
    /// of a new document.
    frmDoc &openUntitled(Vocabulary &&vocabulary);
    void open();
    void save();
    void saveAs();
    void closeActive();

    /// Closes every document, each asking for unsaved changes. False when the user refused one; the ones before it are
    /// closed then.
    bool closeAll();

    /// Reads a file into a new document window. Every failure is told to the user here; a file that cannot be read
    /// leaves no window.
    void LoadVocabulary(const QString &path);

    /// The same, but what opens is a new document with the words of the file, which it knows nothing of.
    void openCopy(const QString &path);

    /// What the user has to learn after a vocabulary was saved.
    struct SaveReport
    {
        QString error;                       ///< why it failed; empty when it did not
        std::vector<qsizetype> unstoredRows; ///< whose words the file cannot hold
    };

    /// Writes a document to a file, replacing the one of that name whole or not at all. The user is told nothing: after
    /// a failure the document keeps its caption, its path and its changes, and it stays changed when it has words that
    /// the file cannot hold.
    SaveReport SaveVocabulary(frmDoc &document, const QString &path);

Q_SIGNALS:
    /// A document was made or read and is shown.
    void opened(frmDoc *document);
    /// The document's words are in its file.
    void saved(frmDoc *document);
    /// The user closes the document and does not want its changes.
    void givenUp(frmDoc *document);

private:
    enum class SaveOutcome {
        Saved,
        Cancelled,
        Failed,
        Refused ///< the user wants to keep what another program has written to the file
    };

    bool close(frmDoc &document) override;
    bool confirmClose(frmDoc &document);
    /// Whether a document may close all the same that was not saved, or not whole.
    bool mayCloseUnsaved(frmDoc &document, const QString &path, const SaveReport &report);
    /// Whether a document may close of which there is not even a copy.
    bool mayLose(const frmDoc &document, const SaveReport &report);
    /// An empty path stands for a cancelled dialog.
    SaveOutcome saveUnder(frmDoc &document, const QString &path, SaveReport &report);
    /// The same as a command: the user learns of a failure.
    void saveAndTell(frmDoc &document, const QString &path);
    bool mayOverwrite(const frmDoc &document);
    QString pathOrAsk(const frmDoc &document);
    QString askPath(const frmDoc &document);
    enum class OpenAs { File, Copy };
    void load(const QString &path, OpenAs how);
    /// Tells the user when the file is open already; true then.
    bool refuseOpenOne(const QString &path);
    /// Reads the rows of a file and opens them, if they can be read.
    VocabularyCodec::Outcome readInto(const VocabularyFile &file, const QString &path, OpenAs how);
    frmDoc *createFilled(Vocabulary &&vocabulary, const FileStamp &stamp);
    void becomeFile(frmDoc &document, const QString &path, const FileStamp &stamp);
    enum class Tone { Plain, Warning };
    /// helpId is that of the page for the Help button; 0: there is none.
    void tell(Tone tone, const QString &prompt, int helpId = 0);

    Needs m_needs;
    CodePage m_codePage;
};
