#pragma once

#include "exchange/rules/TextTable.h"

#include <stdexcept>

class QLocale;

/// Why nothing can be read.
enum class ReadError {
    None,
    CannotOpen, ///< missing, not readable, no regular file
    Empty,      ///< no word in it
    OtherKind,  ///< none of the kinds of files that hold lists
    OldKind,    ///< a workbook of the old binary kind, or one that is locked with a password
    Locked,     ///< locked with a password
    Damaged,
    TooLarge, ///< the file, or what it unpacks to
    NewerKind ///< made by a newer program
};

/// Ends a reader. It never leaves ListReader.
class ReadFailure : public std::runtime_error
{
public:
    explicit ReadFailure(ReadError error)
        : std::runtime_error("cannot be read")
        , m_error(error)
    {
    }
    ReadError error() const { return m_error; }

private:
    ReadError m_error;
};

/// How a file is read. What does not apply to its kind is ignored.
struct ReadChoices
{
    QString separator;   ///< of the words of a line
    QByteArray encoding; ///< a name that the platform's converters know
    int list = 0;        ///< which of lists()
    bool operator==(const ReadChoices &) const = default;
};

/// A file that holds lists, opened: it can be read in one way or another as often as the user wants.
class ListSource
{
public:
    enum class Kind { Text, Workbook, Package, Vocabulary };

    virtual ~ListSource() = default;

    virtual Kind kind() const = 0;
    /// The sheets of a workbook, the decks of a package; at least one, one without a name for other kinds.
    virtual QStringList lists() const { return {QString()}; }
    /// Whether it is written in a character set that only looks tell.
    virtual bool isEncoded() const { return false; }
    /// What reads best as far as can be told.
    virtual ReadChoices proposal() const { return {}; }
    /// Whether the words are written with markup.
    virtual bool hasMarkup() const { return false; }
    /// Throws ReadFailure.
    virtual TextTable table(const ReadChoices &choices) const = 0;
};
