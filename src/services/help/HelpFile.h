#pragma once

#include "services/help/rules/HelpBook.h"

#include <QTemporaryDir>

#include <memory>

class QHelpEngineCore;
class QUrl;

/// The compiled help file. It is opened at the first question; one that is missing then is looked for again at the
/// next. Callers name pages as the book does; some of them exist in other languages, too, in folders of their own.
class HelpFile
{
public:
    /// The language is that of the pages where there are such, as TextLanguage names it; empty: English.
    explicit HelpFile(const QString &path, const QString &language = {});
    ~HelpFile();

    QString path() const { return m_path; }
    /// False when the file is missing or no help file.
    bool open();

    /// Content of a file within, by its path there; empty when there is none.
    QByteArray contents(const QString &file) const;
    /// The page with that context number in a table within; empty when there is none.
    QString pageOf(int contextId, const QString &contextFile) const;
    /// The page that a caller names, its folders separated by slashes or backslashes; empty when there is none.
    QString pageNamed(const QString &topic) const;
    /// Its titles are in the language of the pages.
    const HelpBook &book() const { return m_book; }

    QString language() const { return m_language; }
    /// The file to show for a page of the book: the page itself or, where there is one, that in the help's language.
    QString shownFor(const QString &page) const { return m_translated.value(page, page); }
    /// The page of the book that a file is shown for.
    QString pageOf(const QString &file) const { return m_translated.key(file, file); }

private:
    QUrl urlOf(const QString &file) const;
    void findTranslated();

    QString m_path;
    QString m_language;
    QHash<QString, QString> m_translated;              ///< files by the pages that they are shown for
    std::unique_ptr<QTemporaryDir> m_collectionFolder; ///< the toolkit keeps a list of open help files on disk
    std::unique_ptr<QHelpEngineCore> m_engine;
    QString m_namespace;
    HelpBook m_book;
};
