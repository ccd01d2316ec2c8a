#include "memory/StoredMemory.h"

#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"

#include <QSqlQuery>

namespace {

const WordKey Dog = WordKey::of(QStringLiteral("dog"), QStringLiteral("Hund"));
const WordKey Cat = WordKey::of(QStringLiteral("cat"), QStringLiteral("Katze"));
const WordKey Bird = WordKey::of(QStringLiteral("bird"), QStringLiteral("Vogel"));

Answer answer(const WordKey &word, bool right)
{
    return {word, Answer::Kind::QuestionAndAnswer, right, false, 1500};
}

struct StoredMemoryTest : testing::Test
{
    std::unique_ptr<StoredMemory> open()
    {
        auto memory = std::make_unique<StoredMemory>(m_path, [this] { return m_now; });
        const auto note = [this](MemoryTrouble trouble, const QString &setAside) {
            m_troubles.push_back(trouble);
            m_setAside = setAside;
        };
        QObject::connect(memory.get(), &StoredMemory::troubled, memory.get(), note, Qt::DirectConnection);
        return memory;
    }
    std::vector<Card> stored() { return open()->cards({Dog, Cat, Bird}); }
    /// Two answers, then the memory ends.
    void fill()
    {
        const auto memory = open();
        memory->remember(answer(Dog, true));
        memory->remember(answer(Cat, false));
    }
    QVariant sql(const QString &statement)
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("test"));
        database.setDatabaseName(m_path);
        database.open();
        QVariant result;
        if (QSqlQuery query(database); query.exec(statement) && query.next())
            result = query.value(0);
        database = QSqlDatabase();
        QSqlDatabase::removeDatabase(QStringLiteral("test"));
        return result;
    }

    QTemporaryDir m_home;
    QString m_path = m_home.path() + QStringLiteral("/glosaria/memory.sqlite");
    QDateTime m_now{QDate(2026, 11, 25), QTime(12, 0)};
    std::vector<MemoryTrouble> m_troubles;
    QString m_setAside;
};

} // namespace

TEST_F(StoredMemoryTest, KeepsAnswersFromTheFirstOneOnAndForgetsThem)
{
    EXPECT_EQ(std::vector<Card>(3), stored());
    open()->forgetAll();
    EXPECT_FALSE(QFile::exists(m_path));
    fill();
    const int today = open()->today();
    std::vector<Card> cards = stored();
    EXPECT_EQ(Schedule::next({}, Grade::Good, today), cards[0]);
    EXPECT_EQ(Schedule::next({}, Grade::Again, today), cards[1]);
    EXPECT_TRUE(cards[2].isNew());
    m_now = m_now.addDays(2);
    const auto memory = open();
    memory->remember(answer(Dog, true));
    EXPECT_EQ(Schedule::next(cards[0], Grade::Good, today + 2), memory->cards({Dog})[0]);
    EXPECT_EQ((std::vector<int>{0, 2, 0, 1}), memory->answersByDay({Dog, Cat}, today - 1, 4));
    EXPECT_EQ((std::vector<int>{0, 1, 0, 0}), memory->answersByDay({Cat}, today - 1, 4));
    memory->forget({Dog});
    cards = memory->cards({Dog, Cat});
    EXPECT_TRUE(cards[0].isNew());
    EXPECT_EQ(1, cards[1].asked);
    memory->finish();
    EXPECT_FALSE(readFile(m_path).contains("Hund"));
    memory->forgetAll();
    EXPECT_EQ(std::vector<Card>(2), memory->cards({Dog, Cat}));
    EXPECT_TRUE(m_troubles.empty());
}

TEST_F(StoredMemoryTest, MakesCardsAnewWhenInDoubt)
{
    fill();
    m_now = m_now.addDays(3);
    fill();
    const std::vector<Card> before = stored();
    EXPECT_EQ(2, before[0].asked);
    for (const char *fault : {"DELETE FROM card", "DELETE FROM card WHERE answer = 4", "UPDATE card SET stability = -1",
                              "UPDATE card SET difficulty = 1e300", "UPDATE card SET missed = asked + 1"}) {
        sql(QLatin1String(fault));
        EXPECT_EQ(before, stored()) << fault;
    }
    EXPECT_TRUE(m_troubles.empty());
}

TEST_F(StoredMemoryTest, SetsADamagedStoreAsideAndBeginsAnew)
{
    fill();
    const QByteArray sound = readFile(m_path);
    QByteArray scribbled = sound;
    for (qsizetype i = 4096; i < scribbled.size(); i += 7)
        scribbled[i] = 'x';
    sql(QStringLiteral("DROP TABLE card"));
    const std::vector<QByteArray> damaged = {readFile(m_path), "no database", sound.left(5000), sound.left(100),
                                             scribbled};
    for (const QByteArray &content : damaged) {
        m_troubles.clear();
        writeFile(m_path, content);
        {
            const auto memory = open();
            memory->remember(answer(Bird, true));
            EXPECT_EQ(1, memory->cards({Bird})[0].asked) << content.size();
        }
        EXPECT_EQ(std::vector{MemoryTrouble::Damaged}, m_troubles) << content.size();
        EXPECT_FALSE(readFile(m_setAside).isEmpty()) << content.size();
        EXPECT_EQ(1, stored()[2].asked) << content.size();
    }
    EXPECT_EQ(qsizetype(damaged.size()),
              QDir(m_home.path() + QStringLiteral("/glosaria")).entryList({"*damaged*"}).size());
}

TEST_F(StoredMemoryTest, GoesOnWithoutAStoreThatItCannotUse)
{
    const auto makeNewer = [this] { sql("PRAGMA user_version = 99"); };
    const auto makeFolder = [this] { QFile::remove(m_path), QDir().mkdir(m_path); };
    const auto goWhereNoneCanBe = [this] { m_path = "/proc/glosaria/memory.sqlite"; };
    const std::pair<std::function<void()>, MemoryTrouble> cases[] = {{makeNewer, MemoryTrouble::Newer},
                                                                     {makeFolder, MemoryTrouble::Unavailable},
                                                                     {goWhereNoneCanBe, MemoryTrouble::Unavailable}};
    const auto content = [this] { return QFileInfo(m_path).isFile() ? readFile(m_path) : QByteArray(); };
    for (const auto &[prepare, trouble] : cases) {
        fill();
        m_troubles.clear();
        prepare();
        const QByteArray before = content();
        {
            const auto memory = open();
            memory->remember(answer(Bird, true));
            memory->remember(answer(Bird, false));
            EXPECT_EQ(2, memory->cards({Bird})[0].asked) << "until the end it counts";
        }
        EXPECT_EQ(std::vector{trouble}, m_troubles) << "told once";
        EXPECT_EQ(before, content());
    }
}

TEST_F(StoredMemoryTest, WritesLaterWhatFoundNoRoom)
{
    fill();
    const auto memory = open();
    EXPECT_EQ(1, memory->cards({Dog})[0].asked);
    {
        const FileSizeLimit full(rlim_t(QFileInfo(m_path).size()) / 2);
        memory->remember(answer(Dog, false));
        memory->remember(answer(Bird, true));
        EXPECT_EQ(2, memory->cards({Dog})[0].asked);
        EXPECT_EQ(std::vector{MemoryTrouble::Refused}, m_troubles);
    }
    memory->remember(answer(Bird, true));
    const std::vector<Card> cards = memory->cards({Dog, Cat, Bird});
    EXPECT_EQ(2, cards[2].asked);
    EXPECT_EQ(cards, stored());
}

TEST_F(StoredMemoryTest, ReadsWhatItMayNotWrite)
{
    EXPECT_TRUE(OrdinaryUser::run([this] {
        QTemporaryDir home;
        m_path = home.path() + QStringLiteral("/memory.sqlite");
        fill();
        QFile::setPermissions(m_path, QFile::ReadOwner);
        const auto memory = open();
        memory->remember(answer(Dog, true));
        EXPECT_EQ(2, memory->cards({Dog})[0].asked);
        EXPECT_EQ(std::vector{MemoryTrouble::Refused}, m_troubles);
        EXPECT_EQ(1, stored()[0].asked);
        return !HasFailure();
    }));
}

TEST_F(StoredMemoryTest, WaitsForAnotherProgramWithoutHoldingAnyoneUp)
{
    fill();
    QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("other"));
    other.setDatabaseName(m_path);
    ASSERT_TRUE(other.open());
    QSqlQuery(other).exec(QStringLiteral("BEGIN EXCLUSIVE"));
    const auto memory = open();
    QElapsedTimer timer;
    timer.start();
    memory->remember(answer(Bird, true));
    EXPECT_LT(timer.elapsed(), 100);
    memory->cards({Dog});
    EXPECT_LT(timer.elapsed(), 2 * StoredMemory::Patience);
    QSqlQuery(other).exec(QStringLiteral("COMMIT"));
    other = QSqlDatabase();
    QSqlDatabase::removeDatabase(QStringLiteral("other"));
    memory->finish();
    EXPECT_EQ(1, stored()[2].asked);
    EXPECT_TRUE(m_troubles.empty());
}

TEST_F(StoredMemoryTest, SharesTheStoreWithAnotherProgram)
{
    const auto one = open();
    const auto two = open();
    for (int i = 0; i < 20; ++i) {
        one->remember(answer(Dog, true));
        two->remember(answer(Dog, i % 2));
    }
    one->finish();
    two->finish();
    EXPECT_EQ(40, one->cards({Dog})[0].asked);
    EXPECT_EQ(one->cards({Dog}), two->cards({Dog}));
    EXPECT_EQ(10, one->cards({Dog})[0].missed);
    one->forget({Dog});
    one->finish();
    EXPECT_TRUE(two->cards({Dog})[0].isNew());
    EXPECT_TRUE(m_troubles.empty());
}

TEST_F(StoredMemoryTest, KeepsLongWordsAndManyScripts)
{
    const std::vector<WordKey> keys = {WordKey::of(QString(100000, QChar(0xE9)), QString(100000, QChar(0x30A2))),
                                       WordKey::of(QStringLiteral("\U0001F436"), QStringLiteral("كلب")),
                                       WordKey::of(QString(QChar(0xD800)), QString())};
    for (const WordKey &key : keys)
        open()->remember(answer(key, true));
    for (const Card &card : open()->cards(keys))
        EXPECT_EQ(1, card.asked);
}
