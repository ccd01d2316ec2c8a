#pragma once

#include <QString>
#include <QStringList>

/// The language of the program's texts. English is complete; a text that another table lacks is English.
namespace TextLanguage {

/// The languages of all tables besides English, as in "de" or "pt_BR", in alphabetical order.
const QStringList &available();

/// The table for the first of the wanted languages that has one, best first, written as locales are: "de-AT", "pt_PT".
/// English ends the search, like a list that has none of the languages: empty.
QString bestOf(const QStringList &wanted);

/// True for English and for what bestOf finds a table for.
bool isKnown(const QString &name);

/// Takes the texts from the table of an available language; empty: from the English one. Called before the first text
/// is looked up.
void use(const QString &language);

/// The language of the table in use; empty: English.
const QString &inUse();

/// A name or a path to stand within the program's texts. In a language that is written from right to left it is
/// enclosed in marks without which its digits and signs would change places with what stands beside it.
QString isolated(const QString &name);

} // namespace TextLanguage
