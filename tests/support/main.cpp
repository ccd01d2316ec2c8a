#ifdef QT_WIDGETS_LIB
#include <QApplication>
using Application = QApplication;
#else
using Application = QCoreApplication;
#endif

/// A test program has a home of its own: every XDG folder is in a temporary one. Qt draws on the offscreen platform.
int main(int argc, char **argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    for (const char *name : {"CONFIG_HOME", "DATA_HOME", "STATE_HOME", "CACHE_HOME", "RUNTIME_DIR"}) {
        const QString folder = home.filePath(name);
        QDir().mkpath(folder);
        qputenv(qPrintable(QString("XDG_") + name), folder.toLocal8Bit());
    }
    QFile::setPermissions(home.filePath("RUNTIME_DIR"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8"); // wherever the tests run
    qunsetenv("LANGUAGE");
    Application application(argc, argv);
    Application::setApplicationName("Glosaria");
    return home.isValid() ? RUN_ALL_TESTS() : 1;
}
