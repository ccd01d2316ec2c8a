#include "exchange/rules/cards/CardPackage.h"

#include "exchange/rules/archive/Unpacked.h"
#include "exchange/rules/archive/ZipPackage.h"
#include "exchange/rules/cards/CollectionReader.h"

#include <QTemporaryFile>

namespace {

const QString Newest = QStringLiteral("collection.anki21b");

/// The collection that counts: for older programs a package may hold another one with a single note that says so.
QString collectionIn(const ZipPackage &package)
{
    for (const QString &name : {Newest, QStringLiteral("collection.anki21"), QStringLiteral("collection.anki2")}) {
        if (package.contains(name))
            return name;
    }
    return {};
}

/// A database can only be read from a file.
void writeTo(QTemporaryFile &file, PackedStream &stream)
{
    static constexpr qint64 PartSize = qint64(256) * 1024;
    if (!file.open())
        throw ReadFailure(ReadError::CannotOpen);
    for (QByteArray part = stream.read(PartSize); !part.isEmpty(); part = stream.read(PartSize)) {
        if (file.write(part) != part.size())
            throw ReadFailure(ReadError::CannotOpen);
    }
    stream.require();
    if (!file.flush())
        throw ReadFailure(ReadError::CannotOpen);
}

} // namespace

bool CardPackage::isIn(const ZipPackage &package)
{
    return !collectionIn(package).isEmpty();
}

std::unique_ptr<CardPackage> CardPackage::open(const QByteArray &bytes, const ZipPackage &package)
{
    Limits limits(bytes.size());
    const QString name = collectionIn(package);
    std::unique_ptr<PackedStream> stream = package.open(name, limits);
    if (name == Newest)
        stream = Unpacked::zstd(std::move(stream), limits);
    QTemporaryFile file;
    writeTo(file, *stream);
    return std::make_unique<CardPackage>(CollectionReader(file.fileName(), limits).decks());
}

QStringList CardPackage::lists() const
{
    QStringList names;
    for (const Deck &deck : m_decks)
        names += deck.name;
    return names;
}
