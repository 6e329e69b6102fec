// Saves a picture of every window of the program in every language.
//
//   gallery FOLDER   writes FOLDER/<window>-<language>.png
//
// The scale follows the screen's resolution, as the program's does.

#include "tests/windows/languages/localised_windows.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QScreen>
#include <QTextStream>

int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QApplication application(argc, argv);
    QTextStream errors(stderr);
    if (argc != 2) {
        errors << "usage: gallery FOLDER" << Qt::endl;
        return 2;
    }

    const QDir folder(QString::fromLocal8Bit(argv[1]));
    bool complete = true;
    for (const QString& language : allLanguages()) {
        const bool shown = visitWindows(language, [&](const QString& name, QWidget& window) {
            const QString file =
                folder.filePath(name + QLatin1Char('-') + language + QStringLiteral(".png"));
            // Grabbed from the screen: QWidget::grab() loses edges of check boxes at 125 %.
            if (!window.screen()->grabWindow(window.winId()).save(file)) {
                errors << "cannot write " << file << Qt::endl;
                complete = false;
            }
        });
        if (!shown) {
            errors << "a window did not appear in language " << language << Qt::endl;
            complete = false;
        }
    }
    return complete ? 0 : 1;
}
