// The yardstick for start-up and memory: a bare Qt window of the game's size, nothing else.
#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle("Bare");
    window.resize(305, 323);
    window.show();
    return app.exec();
}
