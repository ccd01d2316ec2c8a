#include "memory/StoredMemory.h"

#include "support/FileSizeLimit.h"

#include <QSqlQuery>

namespace {

const WordKey Dog = WordKey::of("dog", "Hund"), Cat = WordKey::of("cat", "Katze"), Bird = WordKey::of("bird", "Vogel");

/// Another program that has the store open.
struct Other
{
    explicit Other(const QString &path) { database.setDatabaseName(path), database.open(); }
    ~Other() { database = {}, QSqlDatabase::removeDatabase("other"); }
    /// The first value of its result.
    QString run(const QString &statement)
    {
        QSqlQuery query(database);
        EXPECT_TRUE(query.exec(statement)) << statement.toStdString();
        return query.next() ? query.value(0).toString() : QString();
    }

    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "other");
};

struct StoredMemoryTest : testing::Test
{
    std::unique_ptr<StoredMemory> open()
    {
        auto memory = std::make_unique<StoredMemory>(m_path, [this] { return m_now; });
        const auto note = [this](auto trouble, auto name) { m_troubles.push_back(trouble), m_setAside = name; };
        QObject::connect(memory.get(), &StoredMemory::troubled, memory.get(), note, Qt::DirectConnection);
        return memory;
    }
    std::vector<Card> stored() { return open()->cards({Dog, Cat, Bird}); }
    /// Two answers, then the memory ends.
    void fill()
    {
        const auto memory = open();
        memory->remember({.word = Dog, .right = true});
        memory->remember({.word = Cat});
    }
    QString sql(const QString &statement) { return Other(m_path).run(statement); }

    QTemporaryDir m_home;
    QString m_path = m_home.path() + "/glosaria/memory.sqlite";
    QDateTime m_now{QDate(2026, 11, 25), QTime(12, 0)};
    std::vector<MemoryTrouble> m_troubles;
    QString m_setAside;
};

} // namespace

TEST_F(StoredMemoryTest, KnowsEveryAnswerThroughEndsDoubtsOtherProgramsAndForgetting)
{
    open()->forgetAll();
    open()->answersByDay({Dog}, 0, 1);
    EXPECT_FALSE(QFile::exists(m_path)) << "made with the first answer";
    const std::vector<WordKey> words = {Dog, WordKey::of(QString(100000, QChar(0xE9)), QString(100000, QChar(0x30A2))),
                                        WordKey::of("\U0001F436", "كلب"), WordKey::of(QString(QChar(0xD800)), {})};
    const char *faults[8] = {"stability = -1", "stability = 36501", "difficulty = 10.5",  "difficulty = 0.9",
                             "due = last",     "missed = -1",       "missed = asked + 1", "asked = 0, missed = 0"};
    const QString newest = " WHERE answer = (SELECT max(answer) FROM card)";
    std::mt19937 chance(1);
    const auto draw = [&chance](size_t end) { return size_t(chance() % end); };
    std::vector<Card> cards(words.size());
    std::vector<std::vector<int>> days(words.size()); // of the answers to each word
    std::unique_ptr<StoredMemory> programs[] = {open(), open()};
    for (int i = 0; i < 250; ++i) {
        m_now = m_now.addDays(draw(3) == 0 ? int(draw(9)) : 0);
        const int today = Day::of(m_now);
        const size_t word = draw(words.size()), what = draw(12);
        if (what == 0 && QFile::exists(m_path)) {
            programs[1].reset(), programs[0].reset();
            sql(draw(9) == 0 ? "DELETE FROM card" + newest : "UPDATE card SET " + QString(faults[draw(8)]));
            programs[0] = open(), programs[1] = open();
        } else if (what == 1 && word > 0) {
            programs[0]->forget({words[word]});
            cards[word] = {}, days[word].clear();
        } else {
            Answer answer{words[word], Answer::Kind(draw(3)), draw(3) != 0, draw(4) == 0, i};
            if (word == 0) // is always known, and gets ever easier
                answer = {.word = words[0], .right = true};
            what == 3 && QFile::exists(m_path) ? sql("UPDATE card SET stability = -1") : QString();
            programs[0]->remember(answer);
            cards[word] = Schedule::next(cards[word], answer.grade(), today);
            days[word].push_back(today);
            programs[0]->finish();
            what == 2 ? sql("UPDATE card SET stability = -1" + newest) : QString();
        }
        EXPECT_EQ(cards, programs[0]->cards(words)) << i << ' ' << what;
        const auto on = [&of = days[word]](int day) { return int(std::count(of.begin(), of.end(), day)); };
        EXPECT_EQ((std::vector{on(today - 1), on(today), 0}), programs[1]->answersByDay({words[word]}, today - 1, 3));
        swap(programs[0], programs[1]);
    }
    for (int i = 0; i < 40; ++i) { // both at the same time
        programs[i % 2]->remember({.word = Dog, .right = true});
        cards[0] = Schedule::next(cards[0], Grade::Good, Day::of(m_now));
    }
    programs[0]->finish();
    EXPECT_EQ(cards, programs[1]->cards(words));
    programs[1].reset();
    EXPECT_EQ("dogHund", sql("SELECT asked || answer FROM word WHERE id = " + QString::number(Dog.number())));
    EXPECT_EQ(sql("SELECT count(*) FROM card"), sql("SELECT count(*) FROM word"));
    for (const bool all : {false, true}) {
        programs[0]->remember({.word = Dog, .right = true});
        all ? programs[0]->forgetAll() : programs[0]->forget(words);
        programs[0]->finish();
        EXPECT_FALSE(readFile(m_path).contains("Hund"));
    }
    EXPECT_TRUE(programs[0]->cards({Dog})[0].isNew() && m_troubles.empty());
}

TEST_F(StoredMemoryTest, SetsADamagedStoreAsideAndBeginsAnew)
{
    auto memory = open();
    for (int i = 0; i < 300; ++i)
        memory->remember({.word = WordKey::of(QString::number(i), {}), .right = true});
    memory.reset();
    EXPECT_EQ(QString(), MemoryStore::setAside(m_path)) << "it is whole";
    const QByteArray sound = readFile(m_path);
    const QByteArray lost(sound.size() - 4096, 'x');
    sql("DROP TABLE card");
    const QByteArray damaged[] = {readFile(m_path), "no database",           sound.left(5000),
                                  sound.left(100),  sound.left(4096) + lost, sound.left(2 * sound.size() / 3) + lost};
    for (const QByteArray &content : damaged) {
        memory.reset();
        m_troubles.clear();
        writeFile(m_path, content);
        memory = open();
        if (content.size() > 5000)
            memory->cards({}); // finds what is damaged elsewhere
        memory->remember({.word = Bird, .right = true});
        EXPECT_EQ(1, memory->cards({Bird})[0].asked) << content.size();
        EXPECT_EQ(std::vector{MemoryTrouble::Damaged}, m_troubles) << content.size();
        EXPECT_TRUE(!readFile(m_setAside).isEmpty() && stored()[2].asked == 1) << content.size();
    }
    EXPECT_EQ(qsizetype(std::size(damaged)), QDir(m_home.path() + "/glosaria").entryList({"*damaged*"}).size());
}

TEST_F(StoredMemoryTest, GoesOnWithoutAStoreThatItCannotUse)
{
    const std::pair<std::function<void()>, MemoryTrouble> cases[] = {
        {[this] { sql("PRAGMA user_version = 99"); }, MemoryTrouble::Newer},
        {[this] { QFile::remove(m_path), QDir().mkdir(m_path); }, MemoryTrouble::Unavailable},
        {[this] { m_path = "/proc/glosaria/memory.sqlite"; }, MemoryTrouble::Unavailable}};
    for (const auto &[prepare, trouble] : cases) {
        fill();
        m_troubles.clear();
        prepare();
        auto memory = open();
        memory->remember({.word = Bird, .right = true});
        memory->remember({.word = Bird});
        EXPECT_EQ(2, memory->cards({Bird})[0].asked) << "until the end it counts";
        memory.reset();
        EXPECT_EQ(std::vector{trouble}, m_troubles) << "told once";
        EXPECT_TRUE(trouble != MemoryTrouble::Newer || sql("SELECT count(*) FROM answer") == u"2") << "left alone";
    }
}

TEST_F(StoredMemoryTest, WritesLaterWhatFoundNoRoom)
{
    fill();
    const auto memory = open();
    EXPECT_EQ(1, memory->cards({Dog})[0].asked);
    for (const bool forgets : {false, true}) {
        {
            const FileSizeLimit full(rlim_t(QFileInfo(m_path).size()) / 2);
            memory->remember({.word = Dog});
            memory->remember({.word = Bird, .right = true});
            EXPECT_EQ(forgets ? 3 : 2, memory->cards({Dog})[0].asked);
            EXPECT_EQ(std::vector{MemoryTrouble::Refused}, m_troubles);
        }
        forgets ? memory->forget({Bird}) : memory->remember({.word = Bird, .right = true});
        const std::vector<Card> cards = memory->cards({Dog, Cat, Bird});
        EXPECT_EQ(forgets ? 0 : 2, cards[2].asked);
        EXPECT_EQ(cards, stored());
    }
}

TEST_F(StoredMemoryTest, ReadsWhatItMayNotWrite)
{
    EXPECT_TRUE(OrdinaryUser::run([this] {
        QTemporaryDir home;
        m_path = home.path() + "/memory.sqlite";
        fill();
        QFile::setPermissions(m_path, QFile::ReadOwner);
        const auto memory = open();
        memory->remember({.word = Dog, .right = true});
        EXPECT_EQ(2, memory->cards({Dog})[0].asked);
        EXPECT_EQ(std::vector{MemoryTrouble::Refused}, m_troubles);
        EXPECT_EQ(1, stored()[0].asked);
        return !HasFailure();
    }));
}

TEST_F(StoredMemoryTest, WaitsForAnotherProgramWithoutHoldingAnyoneUp)
{
    fill();
    std::optional<Other> other(m_path);
    other->run("BEGIN EXCLUSIVE");
    auto memory = open();
    QElapsedTimer timer;
    timer.start();
    memory->remember({.word = Bird, .right = true});
    EXPECT_LT(timer.elapsed(), 100);
    memory->cards({Dog});
    EXPECT_LT(timer.elapsed(), 2 * StoredMemory::Patience);
    other->run("COMMIT");
    memory->finish();
    EXPECT_TRUE(m_troubles.empty());
    other->run("BEGIN EXCLUSIVE");
    memory->remember({.word = Bird, .right = true});
    memory->remember({.word = Bird, .right = true});
    timer.start();
    memory.reset();
    EXPECT_TRUE(timer.elapsed() >= StoredMemory::EndPatience - 500 && timer.elapsed() < 2 * StoredMemory::EndPatience);
    EXPECT_EQ(std::vector{MemoryTrouble::Locked}, m_troubles);
    other.reset();
    EXPECT_EQ(1, stored()[2].asked);
}
