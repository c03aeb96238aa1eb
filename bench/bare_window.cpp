// The yardsticks for start-up and memory: a bare Qt window of the game's size, nothing else.
// Given a text, the same window shows it in one label: the least any window with text pays for,
// the desktop's font set-up and the screen reader bridge among it.
#include <QApplication>
#include <QLabel>
#include <QWidget>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    const QString text = app.arguments().value(1);
    QWidget window;
    window.setWindowTitle(text.isEmpty() ? "Bare" : "Label");
    window.resize(305, 323);
    if (!text.isEmpty())
        (new QLabel(text, &window))->move(10, 10);
    window.show();
    return app.exec();
}
