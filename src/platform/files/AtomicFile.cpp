#include "platform/files/AtomicFile.h"

#include "platform/files/UserFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr qsizetype PieceSize = 1 << 16;
constexpr int MostLinks = 40;

QString systemError(int number)
{
    return QString::fromStdString(std::generic_category().message(number));
}

/// Fills an open file: gathers small pieces, checks that every write takes all of them, and forces them to the disk.
class CheckedOutput
{
public:
    explicit CheckedOutput(QFile &file)
        : m_file(file)
    {
        m_pending.reserve(PieceSize);
    }

    bool fill(const AtomicFile::Producer &producer)
    {
        const bool produced = producer([this](QByteArrayView bytes) { return put(bytes); });
        if (!produced && m_error.isEmpty())
            m_error = QStringLiteral("The content could not be produced");
        return produced && flush() && m_file.resize(m_file.pos()) && sync();
    }

    QString error() const { return m_error.isEmpty() ? m_file.errorString() : m_error; }

private:
    bool put(QByteArrayView bytes)
    {
        if (m_pending.size() + bytes.size() > PieceSize && !flush())
            return false;
        if (bytes.size() >= PieceSize)
            return writeAll(bytes);
        m_pending.append(bytes);
        return m_error.isEmpty();
    }

    bool flush()
    {
        const bool written = m_pending.isEmpty() || writeAll(m_pending);
        m_pending.resize(0);
        return written && m_error.isEmpty();
    }

    bool writeAll(QByteArrayView bytes)
    {
        errno = 0;
        if (m_error.isEmpty() && (m_file.write(bytes.data(), bytes.size()) != bytes.size() || !m_file.flush()))
            m_error = errno ? systemError(errno) : m_file.errorString();
        return m_error.isEmpty();
    }

    bool sync()
    {
        // Some file systems cannot be asked to; that is no loss of data.
        if (::fsync(m_file.handle()) != 0 && errno != EINVAL && errno != ENOTSUP) {
            m_error = systemError(errno);
            return false;
        }
        return true;
    }

    QFile &m_file;
    QByteArray m_pending;
    QString m_error;
};

AtomicFile::Producer copyOf(QFile &source)
{
    return [&source](const AtomicFile::Sink &sink) {
        if (!source.seek(0))
            return false;
        QByteArray piece(PieceSize, Qt::Uninitialized);
        qint64 count = 0;
        while ((count = source.read(piece.data(), PieceSize)) > 0) {
            if (!sink(QByteArrayView(piece.constData(), count)))
                return false;
        }
        return count == 0;
    };
}

/// The file that a chain of symbolic links ends at; it need not exist.
QString linkTarget(const QString &path)
{
    QString target = path;
    for (int i = 0; i < MostLinks && QFileInfo(target).isSymLink(); ++i)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

void keepOwnerAndMode(const QString &from, QFile &to)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(from).constData(), &status) != 0)
        return;
    // Only the administrator may give files away; then the new file is the user's, which is the best there is.
    [[maybe_unused]] const int refused = ::fchown(to.handle(), status.st_uid, status.st_gid);
    ::fchmod(to.handle(), status.st_mode & 07777);
}

/// A file's place in its folder, too, must be forced to the disk; some file systems cannot be asked to.
void syncFolder(const QByteArray &folder)
{
    const int handle = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    ::fsync(handle);
    ::close(handle);
}

/// A new file in a folder. It gets its name only when it is whole, so that a program that is killed leaves nothing
/// behind; where the file system knows no files without a name it has one from the start.
class NewFile
{
public:
    explicit NewFile(const QString &folder)
        : m_folder(QFile::encodeName(folder))
        // A name of its own, not the file's with an ending: that may be as long as a name can be.
        , m_name(m_folder + "/.glosaria-" + QByteArray::number(QRandomGenerator::global()->generate64(), 36))
    {
    }
    ~NewFile()
    {
        m_file.close();
        if (m_named)
            ::unlink(m_name.constData());
    }
    Q_DISABLE_COPY_MOVE(NewFile)

    /// False: see errno.
    bool open(bool named)
    {
        const int handle = named ? ::open(m_name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)
                                 : ::open(m_folder.constData(), O_WRONLY | O_TMPFILE | O_CLOEXEC, 0666);
        m_named = named && handle >= 0;
        return handle >= 0 && m_file.open(handle, QIODevice::WriteOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle);
    }

    QFile &file() { return m_file; }

    /// Gives the file its name. False: this file cannot be named later.
    bool giveName()
    {
        const QByteArray handle = "/proc/self/fd/" + QByteArray::number(m_file.handle());
        if (!m_named)
            m_named = ::linkat(AT_FDCWD, handle.constData(), AT_FDCWD, m_name.constData(), AT_SYMLINK_FOLLOW) == 0;
        return m_named;
    }

    /// Puts the file in another's place, for good even if the power fails. False: see errno.
    bool moveTo(const QString &path)
    {
        if (::rename(m_name.constData(), QFile::encodeName(path).constData()) != 0)
            return false;
        m_named = false;
        syncFolder(m_folder);
        return true;
    }

private:
    QByteArray m_folder;
    QByteArray m_name;
    QFile m_file;
    bool m_named = false;
};

enum class Outcome { Done, Failed, NoNewFileAllowed, NoNameLater };

/// A folder that cannot be changed, or a file that cannot be exchanged, can still be written in place.
Outcome failure(int number, QString &error)
{
    error = systemError(number);
    const bool place = number == EACCES || number == EPERM || number == EBUSY || number == EXDEV;
    return place ? Outcome::NoNewFileAllowed : Outcome::Failed;
}

Outcome writeBeside(const QString &path, const AtomicFile::Producer &producer, QString &error, bool named)
{
    NewFile beside(QFileInfo(path).absolutePath());
    if (!beside.open(named))
        return named ? failure(errno, error) : Outcome::NoNameLater;
    keepOwnerAndMode(path, beside.file());
    CheckedOutput output(beside.file());
    if (!output.fill(producer)) {
        error = output.error();
        return Outcome::Failed;
    }
    if (!beside.giveName())
        return Outcome::NoNameLater;
    return beside.moveTo(path) ? Outcome::Done : failure(errno, error);
}

/// Writes over a file whose old content is in the copy, and puts that back if it goes wrong. False: see error; restored
/// tells whether the copy has become needless.
bool writeOver(QFile &file, QFile &copy, const AtomicFile::Producer &producer, QString &error, bool &restored)
{
    CheckedOutput output(file);
    if (file.seek(0) && output.fill(producer))
        return true;
    error = output.error();
    restored = file.seek(0) && CheckedOutput(file).fill(copyOf(copy));
    if (!restored)
        error += QStringLiteral(" (") + copy.fileName() + QLatin1Char(')');
    return false;
}

bool writeInPlace(const QString &path, const AtomicFile::Producer &producer, QString &error,
                  const std::function<void()> &overwriting)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered)) {
        error = file.errorString();
        return false;
    }
    const QString folder = UserFolders::state();
    QDir().mkpath(folder);
    QTemporaryFile copy(folder + QStringLiteral("/saved-XXXXXX.") + QFileInfo(path).suffix());
    if (!copy.open()) {
        error = copy.errorString();
        return false;
    }
    CheckedOutput copyOutput(copy);
    // It has a name, by which it outlives a program that is killed meanwhile, only once it is asked for it.
    if (!copyOutput.fill(copyOf(file)) || copy.fileName().isEmpty()) {
        error = copyOutput.error();
        return false;
    }
    syncFolder(QFile::encodeName(folder));
    copy.setAutoRemove(false);
    if (overwriting)
        overwriting();
    bool restored = true;
    const bool written = writeOver(file, copy, producer, error, restored);
    copy.setAutoRemove(restored);
    return written;
}

} // namespace

namespace AtomicFile {

bool write(const QString &path, const Producer &producer, QString *error, const std::function<void()> &overwriting)
{
    QString reason;
    const QString target = linkTarget(path);
    const QFileInfo old(target);
    if (old.exists() && (!old.isFile() || !old.isWritable())) {
        if (error)
            *error = systemError(old.isDir() ? EISDIR : EACCES);
        return false;
    }
    Outcome outcome = writeBeside(target, producer, reason, false);
    if (outcome == Outcome::NoNameLater)
        outcome = writeBeside(target, producer, reason, true);
    if (outcome == Outcome::NoNewFileAllowed && old.exists())
        outcome = writeInPlace(target, producer, reason, overwriting) ? Outcome::Done : Outcome::Failed;
    if (error)
        *error = outcome == Outcome::Done ? QString() : reason;
    return outcome == Outcome::Done;
}

bool write(const QString &path, QByteArrayView content, QString *error)
{
    return write(
        path, [content](const Sink &sink) { return sink(content); }, error);
}

} // namespace AtomicFile
