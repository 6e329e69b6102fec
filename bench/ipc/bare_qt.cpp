// A static Qt program that only starts and quits: the lower bound of a start.
#include <QApplication>
#include <QTimer>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QTimer::singleShot(0, &application, &QApplication::quit);
    return QApplication::exec();
}
