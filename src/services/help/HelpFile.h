#pragma once

#include "services/help/rules/HelpBook.h"

#include <QTemporaryDir>

#include <memory>

class QHelpEngineCore;
class QUrl;

/// The compiled help file. It is opened at the first question; one that is missing then is looked for again at the
/// next.
class HelpFile
{
public:
    explicit HelpFile(const QString &path);
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
    const HelpBook &book() const { return m_book; }

private:
    QUrl urlOf(const QString &file) const;

    QString m_path;
    std::unique_ptr<QTemporaryDir> m_collectionFolder; ///< the toolkit keeps a list of open help files on disk
    std::unique_ptr<QHelpEngineCore> m_engine;
    QString m_namespace;
    HelpBook m_book;
};
