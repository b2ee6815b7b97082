// The least that a program with a window can be, of the size that the main window has.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    const QApplication programma(argc, argv);
    QWidget venster;
    venster.resize(1024, 700);
    venster.show();
    return QApplication::exec();
}
