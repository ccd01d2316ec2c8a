// What any program with a main window costs: the least that the start of Glosaria can be compared with. The window is
// as large as Glosaria's first one.

#include <QApplication>
#include <QMainWindow>
#include <QScreen>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setGeometry(QGuiApplication::primaryScreen()->availableGeometry());
    window.show();
    return QApplication::exec();
}
