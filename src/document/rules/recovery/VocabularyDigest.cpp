#include "document/rules/recovery/VocabularyDigest.h"

#include "document/rules/Vocabulary.h"

#include <QCryptographicHash>

namespace {

class Digest
{
public:
    void add(const QString &text)
    {
        add(text.size());
        m_hash.addData(QByteArrayView(reinterpret_cast<const char *>(text.utf16()), text.size() * 2));
    }
    template <typename Number> void add(Number number)
    {
        m_hash.addData(QByteArrayView(reinterpret_cast<const char *>(&number), sizeof number));
    }
    QByteArray result() const { return m_hash.result(); }

private:
    QCryptographicHash m_hash{QCryptographicHash::Sha1};
};

} // namespace

VocabularyDigest VocabularyDigest::of(const Vocabulary &vocabulary, qsizetype rows)
{
    Digest words;
    Digest layout;
    const VocabularyFont font = vocabulary.font.value_or(VocabularyFont());
    layout.add(font.name);
    layout.add(font.size);
    layout.add(font.bold);
    layout.add(font.italic);
    layout.add(font.color);
    for (const int width : vocabulary.columnWidths.value_or(std::array<int, 3>()))
        layout.add(width);
    for (size_t row = 0; row < size_t(rows); ++row) {
        words.add(vocabulary.first[row]);
        words.add(vocabulary.second[row]);
        layout.add(vocabulary.heights[row]);
    }
    return {words.result(), layout.result()};
}
