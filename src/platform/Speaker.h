#pragma once

#include <QLocale>
#include <QSet>
#include <QString>

#include <functional>
#include <vector>

class QObject;

/// A text to be read aloud, and the language it is in.
struct Utterance
{
    QString text;
    QLocale::Language language;

    bool operator==(const Utterance &) const = default;
};

/// Reads texts aloud. It starts when it is first asked to read or for its languages, and nobody waits for it. What
/// cannot be read is not heard, and that is no error.
class Speaker
{
public:
    using Languages = QSet<QLocale::Language>;

    virtual ~Speaker() = default;

    /// Whether there is anything to read with, as far as that can be told without starting it.
    virtual bool isThere() = 0;

    /// Tells the languages that there is a voice for, now or later, unless context has gone by then.
    virtual void askLanguages(QObject *context, const std::function<void(const Languages &)> &tell) = 0;

    /// Reads the texts one after the other, in place of what is being read.
    virtual void say(const std::vector<Utterance> &texts) = 0;
    virtual void stop() = 0;
};
