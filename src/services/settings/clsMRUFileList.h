#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class clsRegistry;

/// The recently used files, newest first, for the File menu. Entries are full paths and count from 1.
class clsMRUFileList
{
public:
    /// The width of a text in pixels, in the font of the menus.
    using TextWidth = std::function<int(const QString &text)>;

    explicit clsMRUFileList(TextWidth textWidth);

    /// The capacity, 0 to LargestCapacity; a smaller one drops the oldest entries.
    int MaxFileCount() const { return m_maxFileCount; }
    void setMaxFileCount(int count);
    int FileCount() const { return int(m_files.size()); }

    /// Entry i; empty outside 1..FileCount.
    QString File(int i) const;
    bool FileExists(int i) const { return !File(i).isEmpty(); }
    /// The caption of entry i: its number as mnemonic, and the path shortened to CaptionWidth. Ready for a menu: an
    /// ampersand in the path is doubled.
    QString MenuCaption(int i) const;

    /// Puts the path on top; an entry that differs in letter case only is replaced by it.
    void AddFile(const QString &path);

    /// Write and read the list under the key that registry is set to. Throw RegistryError.
    void Save(clsRegistry &registry) const;
    void Load(clsRegistry &registry);

    static constexpr int Capacity = 4; ///< of the File menu
    static constexpr int LargestCapacity = 1000;
    static constexpr int CaptionWidth = 200; ///< pixels

private:
    TextWidth m_textWidth;
    int m_maxFileCount = Capacity;
    QStringList m_files;
};
