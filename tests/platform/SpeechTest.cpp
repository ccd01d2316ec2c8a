#include "support/pch_rules_test.h"

#include "platform/SpeechModule.h"

#include <QTextToSpeechPlugin>

namespace {

using Voices = QMap<QString, QStringList>; ///< by the names of their locales

/// The desktop's speech service: keeps what it is told, and reads a text until the test says otherwise.
struct ScriptedEngine : QTextToSpeechEngine
{
    static inline Voices voices;
    static inline QTextToSpeech::State stateAtFirst = QTextToSpeech::Ready;
    static inline QStringList told;
    static inline std::atomic<ScriptedEngine *> made = nullptr; ///< while it lives

    QLocale chosenLocale;
    QVoice chosenVoice;

    ScriptedEngine() { made = this; }
    ~ScriptedEngine() override { made = nullptr; }
    void say(const QString &text) override
    {
        told << chosenLocale.name() + u' ' + chosenVoice.name() + u' ' + text;
        Q_EMIT stateChanged(QTextToSpeech::Speaking);
    }
    void stop(QTextToSpeech::BoundaryHint) override { told << "stop"; }
    QList<QLocale> availableLocales() const override
    {
        const QStringList names = voices.keys();
        return {names.begin(), names.end()};
    }
    QList<QVoice> availableVoices() const override
    {
        QList<QVoice> list;
        for (const QString &name : voices[chosenLocale.name()])
            list << createVoice(name, chosenLocale, QVoice::Unknown, QVoice::Other, {});
        return list;
    }
    bool setLocale(const QLocale &locale) override { return (chosenLocale = locale, chosenVoice = QVoice(), true); }
    bool setVoice(const QVoice &voice) override { return (chosenVoice = voice, true); }
    QLocale locale() const override { return chosenLocale; }
    QVoice voice() const override { return chosenVoice; }
    QTextToSpeech::State state() const override { return stateAtFirst; }
    QTextToSpeech::ErrorReason errorReason() const override { return {}; }
    QString errorString() const override { return {}; }
    void pause(QTextToSpeech::BoundaryHint) override {}
    void resume() override {}
    double rate() const override { return 0; }
    double pitch() const override { return 0; }
    double volume() const override { return 1; }
    bool setRate(double) override { return false; }
    bool setPitch(double) override { return false; }
    bool setVolume(double) override { return false; }
};

struct SpeechService : QObject, QTextToSpeechPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.qt.speech.tts.plugin/6.0" FILE "speechd.json")
    Q_INTERFACES(QTextToSpeechPlugin)
public:
    QTextToSpeechEngine *createTextToSpeechEngine(const QVariantMap &, QObject *, QString *) const override
    {
        return new ScriptedEngine;
    }
};

void onEngine(const std::function<void()> &act)
{
    QMetaObject::invokeMethod(ScriptedEngine::made.load(), act, Qt::BlockingQueuedConnection);
}

/// A step is "Stop", "Late", a state that the engine comes to, or texts to be read ("de:Hund, en:dog"). Returns what
/// the engine was told then.
QString play(Speaker &speaker, const QString &step)
{
    const int state = QMetaEnum::fromType<QTextToSpeech::State>().keyToValue(qPrintable(step));
    std::vector<Utterance> texts;
    if (state >= 0)
        onEngine([state] { Q_EMIT ScriptedEngine::made.load()->stateChanged(QTextToSpeech::State(state)); });
    else if (step == "Late")
        for (bool waits = true; waits; QThread::msleep(1))
            onEngine([&waits] { waits = ScriptedEngine::told.isEmpty(); });
    else if (step == "Stop")
        speaker.stop();
    else {
        for (const QString &each : step.split(", "))
            texts.push_back({each.mid(3), QLocale::codeToLanguage(each.left(2))});
        speaker.say(texts);
    }
    onEngine([] {});
    onEngine([] {}); // what was begun from there
    return std::exchange(ScriptedEngine::told, {}).join(", ");
}

Speaker::Languages languages(Speaker &speaker)
{
    QObject context;
    auto former = std::make_unique<QObject>();
    std::optional<Speaker::Languages> told;
    speaker.askLanguages(former.get(), [&former](const auto &) { EXPECT_TRUE(former) << "it has gone"; });
    former.reset();
    speaker.askLanguages(&context, [&told](const auto &languages) { told = languages; });
    for (const QDeadlineTimer patience(5000); !told && !patience.hasExpired();)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    return told.value_or(Speaker::Languages{QLocale::Zulu});
}

} // namespace

Q_IMPORT_PLUGIN(SpeechService)

TEST(Speech, OneTextIsReadAfterTheOtherInThePlainestVoiceOfItsLanguage)
{
    using enum QLocale::Language;
    const Voices many{{"C", {"Klingon", "Chinese (Mandarin)"}},
                      {"de_AT", {"Resi"}},
                      {"en_AU", {"Ann"}},
                      {"de_DE", {"Karl+whisper", "Karl", "Hans"}},
                      {"fi_FI", {}},
                      {"pt_BR", {"Ana"}},
                      {"pt_PT", {"Rui"}}};
    // An error ends everything; a service may not tell that it has stopped.
    const char *reading = "de:Hund, fr:chien, zh:gou, fi:sana -> de_DE Karl Hund; Paused -> ; "
                          "Ready -> C Chinese (Mandarin) gou; Ready -> fi_FI  sana; Ready -> ; Stop -> ; "
                          "en:dog, en:cat -> en_AU Ann dog; pt:sol, de:Hund -> stop; Ready -> pt_BR Ana sol; "
                          "Error -> ; Ready -> ; en:dog, en:cat -> en_AU Ann dog; Stop -> stop; Ready -> ; "
                          "en:dog -> en_AU Ann dog; en:cat -> stop; Late -> en_AU Ann cat";
    const std::tuple<Voices, QTextToSpeech::State, Speaker::Languages, const char *> cases[] = {
        {many, QTextToSpeech::Ready, {German, English, Finnish, Portuguese, Chinese}, reading},
        {{{"C", {"Klingon"}}}, QTextToSpeech::Ready, {}, "zh:gou -> "},
        {{{"C", {"Chinese (Mandarin)"}}, {"zh_CN", {"Ting"}}},
         QTextToSpeech::Ready,
         {Chinese},
         "zh:gou -> zh_CN Ting gou"},
        {{{"zh_CN", {"Ting"}}}, QTextToSpeech::Error, {}, "zh:gou -> "}};
    const QByteArray path = qgetenv("PATH");
    const QStringList libraries = QCoreApplication::libraryPaths();
    const QTemporaryDir tools;
    qputenv("PATH", tools.path().toUtf8());
    QCoreApplication::setLibraryPaths({}); // nor is any other engine found
    EXPECT_FALSE(SpeechModule(SPEECH_MODULE).isThere());
    QFile::setPermissions(writeFile(tools.filePath("speech-dispatcher"), ""), QFile::ReadOwner | QFile::ExeOwner);
    for (const auto &[voices, state, known, steps] : cases) {
        std::tie(ScriptedEngine::voices, ScriptedEngine::stateAtFirst) = std::tie(voices, state);
        {
            SpeechModule module(SPEECH_MODULE);
            module.stop();
            EXPECT_TRUE(module.isThere());
            if (steps == reading)
                EXPECT_EQ(languages(module), known);
            else
                module.say({{"", Zulu}}); // opens it as well
            for (int i = 0; i < 4000 && !ScriptedEngine::made; ++i)
                QThread::msleep(1);
            for (const QString &line : QString(steps).split("; "))
                EXPECT_EQ(play(module, line.section(" -> ", 0, 0)), line.section(" -> ", 1)) << line.toStdString();
            EXPECT_EQ(languages(module), known);
        }
        EXPECT_FALSE(ScriptedEngine::made);
        // the toolkit stops it when it goes, in any case
        EXPECT_EQ(std::exchange(ScriptedEngine::told, {}).size(), QString(steps).endsWith("-> ") ? 1 : 2);
    }
    qputenv("PATH", path);
    QCoreApplication::setLibraryPaths(libraries);
}

TEST(Speech, WithoutItsFileThereIsNothingToReadWith)
{
    SpeechModule module("/missing.so");
    module.say({{"dog", QLocale::English}});
    EXPECT_TRUE(!module.isThere() && languages(module).isEmpty());
}

#include "SpeechTest.moc"
