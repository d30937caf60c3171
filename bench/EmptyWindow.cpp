// An empty window of the same toolkit, the yardstick of how fast a program can start.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.show();
    return QApplication::exec();
}
