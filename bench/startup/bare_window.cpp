// The least that a Qt program with a window can be: one label. What Uninstall.exe is measured by.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Bare window"));
    window.setCentralWidget(new QLabel(QStringLiteral("Nothing to remove")));
    // As large as the program's, since the pixels cost time and memory too.
    window.resize(379, 305);
    window.show();
    return QApplication::exec();
}
