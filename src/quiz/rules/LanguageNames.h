#pragma once

#include <QStringList>

/// What a language, named as in "de" or "pt_BR", calls the languages of the world: in its alphabetical order, with a
/// capital where it begins a list so. An empty one stands for English.
QStringList languageNames(const QString &language);
