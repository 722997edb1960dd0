// An empty window, nothing else: what any Qt Widgets program costs.
#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("bare window"));
    window.resize(632, 434);
    window.show();
    return QApplication::exec();
}
