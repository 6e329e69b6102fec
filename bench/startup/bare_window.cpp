// A minimal Qt program with a window, which Uninstall.exe is compared with.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Bare window"));
    window.setCentralWidget(new QLabel(QStringLiteral("Nothing to remove")));
    // The size of the program's window, since pixels cost time and memory.
    window.resize(379, 305);
    window.show();
    return QApplication::exec();
}
