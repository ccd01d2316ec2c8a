// What any program with a main window costs: the least that the start of Glosaria can be compared with.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
