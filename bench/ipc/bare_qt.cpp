// A static Qt program that does nothing but start and quit: what any start costs here.
#include <QApplication>
#include <QTimer>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QTimer::singleShot(0, &application, &QApplication::quit);
    return QApplication::exec();
}
