#include "session/identity.h"
#include "shell/application.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(programTitle());
    QApplication::setQuitOnLastWindowClosed(false);
    Main();
    return QApplication::exec();
}
