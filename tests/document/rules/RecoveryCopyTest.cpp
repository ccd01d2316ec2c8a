#include "document/rules/recovery/RecoveryFolder.h"

namespace {

const QDateTime Epoch = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);

RecoveryCopy smallCopy()
{
    RecoveryCopy copy{"A", "/b", {7, Epoch.addDays(1)}, Epoch, {}, RecoveryCopy::Cause::NotInFile};
    copy.vocabulary.font = VocabularyFont{"F", 9.5, true, false, 255};
    copy.vocabulary.columnWidths = {1, 2, 3};
    copy.vocabulary.append("é", "x", 300);
    return copy;
}

std::optional<RecoveryCopy> read(QByteArray bytes)
{
    QBuffer device(&bytes);
    EXPECT_TRUE(device.open(QIODevice::ReadOnly));
    return RecoveryCopy::read(device);
}

} // namespace

TEST(RecoveryCopy, IsReadWholeOrNotAtAll)
{
    RecoveryCopy copy = smallCopy();
    const QByteArray whole = copy.toBytes();
    const char stored[] = "R0xSMQAAAAIAQQAAAAQALwBiAAAAAAAAAAcAAAAAACU9jQAAAAABAAAAAAAlPYwAAAAAAQAAAAIA"
                          "RkAjAAAAAAAAAQAAAAD/AAAAAQAAAAIAAAADAAAAAQAAAAIA6QAAAAIAeAAAASxFTkQz";
    EXPECT_EQ(whole, QByteArray::fromBase64(stored)) << "as other versions write and read it";
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(read(whole.left(size))) << size;
    EXPECT_FALSE(read(whole + 'x') || read('x' + whole.mid(1)));
    for (int cause = 0; cause < 256; ++cause) {
        const QByteArray bytes = whole.chopped(1) + char(cause);
        const std::optional<RecoveryCopy> found = read(bytes);
        EXPECT_EQ(found.has_value(), cause >= '1' && cause <= '3');
        EXPECT_EQ(found ? found->toBytes() : bytes, bytes);
    }
    for (const auto &[size, isUsable] : {std::pair(0.9, false), {1, true}, {2048, true}, {2049, false}, {NAN, false}}) {
        copy.vocabulary.font->size = size;
        EXPECT_EQ(read(copy.toBytes()).has_value(), isUsable) << size;
    }
    copy.vocabulary = {};
    EXPECT_FALSE(read(copy.toBytes())) << "not even the names of the languages";
}

TEST(RecoveryCopy, KnowsTheFileOfItsDocument)
{
    const QTemporaryDir folder;
    RecoveryCopy copy = smallCopy();
    copy.docName = folder.filePath("a.gla");
    EXPECT_FALSE(copy.isFileChanged()) << "there is none";
    writeFile(copy.docName, "a");
    EXPECT_TRUE(copy.isFileChanged());
    copy.fileStamp = FileStamp::of(copy.docName);
    EXPECT_FALSE(copy.isFileChanged());
}

TEST(RecoveryFolder, OffersWhatNobodyHoldsNewestFirst)
{
    const QTemporaryDir home;
    const QString folder = home.filePath("r");
    for (const int day : {1, 2, 0}) {
        RecoveryCopy copy = smallCopy();
        copy.caption.setNum(day);
        copy.time = Epoch.addDays(day);
        QString path;
        EXPECT_TRUE(RecoveryFolder(folder).write(path, copy));
    }
    RecoveryFolder mine(folder), other(folder);
    const auto found = mine.orphans();
    ASSERT_EQ(found.size(), 3u);
    for (int day = 2; day >= 0; --day)
        EXPECT_EQ(found[size_t(2 - day)].copy.caption, QString::number(day));
    EXPECT_TRUE(QDir(folder).mkdir("empty") && QFile::link(QFileInfo(found[0].path).path(), folder + "/link"));
    EXPECT_EQ(other.orphans().size(), 3u);
    EXPECT_FALSE(QFile::exists(folder + "/empty"));
    const QString adopted = mine.adopt(found[0].path);
    EXPECT_TRUE(QFile::exists(adopted) && !QFile::exists(QFileInfo(found[0].path).path()));
    EXPECT_EQ(other.adopt(found[0].path), "") << "another program was quicker";
    EXPECT_EQ(other.orphans().size(), 2u);
    EXPECT_TRUE(other.remove({}) && other.remove(found[1].path) && other.remove(found[1].path));
    EXPECT_FALSE(QFile::exists(QFileInfo(found[1].path).path()));
    EXPECT_FALSE(other.remove(folder)) << "it is still there";
    RecoveryFolder blocked(writeFile(home.filePath("file"), "in the way"));
    QString path;
    EXPECT_FALSE(blocked.write(path, smallCopy()));
    EXPECT_EQ(blocked.adopt(found[2].path), found[2].path) << "it cannot be moved";
}
